#pragma once
// Las incidencias de la licencia: los días generados en el año anterior y los
// que quedan, y lo que vale la licencia pendiente, con la traza de cada paso.
// No escribe nada.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "engine/calculos/calculo_licencia.h"
#include "engine/calculos/licencia_dias.h"
#include "engine/calculos/licencia_egreso.h"
#include "engine/mes/lectura.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace egreso {

inline constexpr const char* kFaltanCamposLicencia =
    "Debe completar los campos Empresa, Nombre del Personal y Fecha.";

struct IncidenciasLicencia {
    DiasLicencia dias;
    ImporteLicencia importe;  // de los días pendientes
    // Si egresa en el año: lo no gozado y lo del año, y lo que vale cada parte.
    std::optional<LicenciaEgreso> egreso;
    common::Dinero noGozadaAnterior, noGozadaActual;
    std::string traza;  // líneas terminadas en CR LF
};

// Sobre lo leído: ctx apunta a la persona, sus filas (las del año anterior, las
// del año y los doce meses antes de `fecha`) y los maestros. Nada si no le
// corresponde licencia (el diálogo ya lo dijo). Quien egresa en el año de
// `fecha` suma CalculoLicenciaEgresos y el valor de sus dos partes.
std::optional<IncidenciasLicencia> incidenciasDeLaLicencia(const ContextoFormula& ctx,
                                                           const common::Fecha& fecha,
                                                           common::Dialogo& dialogo);

// El botón Generar: lee la persona y calcula. Sin empresa, nombre o fecha, el
// aviso de los campos.
std::optional<IncidenciasLicencia> incidenciasDeLaLicencia(
    store::Conexion& base, const std::string& empresa, const std::string& nombre,
    const std::optional<common::Fecha>& fecha, common::Dialogo& dialogo);

}  // namespace egreso
}  // namespace nomira::engine
