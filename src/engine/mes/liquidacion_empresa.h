#pragma once
// El mes de toda una empresa como lo hacen los dos botones de Form42: los
// haberes permanentes de cada persona (con las horas del reloj si se piden) y
// después sus descuentos, con los totales que quedan en el mes.
#include <cstddef>
#include <string>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/mes/haberes.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

struct TotalesEmpresa {
    std::size_t personas = 0;  // las que quedaron con descuentos generados
    common::Dinero haberes, descuentos;
};

// Un fallo sale como el cuadro de "Error inesperado" de la acción de la
// pantalla que lo produjo (ActHamPermxEmpresa_Click o ActDesPermxEmpresa_Click).
TotalesEmpresa liquidarMesDeEmpresa(store::Conexion& base, const std::string& empresa,
                                    const common::Mes& mes, common::Dialogo& dialogo,
                                    const OpcionesHaberes& opciones = {});

}  // namespace mes
}  // namespace nomira::engine
