#pragma once
// El mes de la persona en Form42 y todo lo que la pantalla le pide al motor sobre
// él: leerlo (leerMesDeLaPersona), las filas y cifras de las grillas, y la fila en mano
// (buscarla, calcularla, guardarla, eliminarla, su explicación).
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "engine/mes/mes_en_pantalla.h"
#include "engine/mes/mes_persona.h"
#include "engine/mes/renglon.h"
#include "store/conexion.h"

namespace nomira::pantallas {

class MesAbierto {
  public:
    // `tabla`: donde van las filas tecleadas (habydesc en el mes, egresos en el egreso).
    MesAbierto(store::Conexion& base, common::Dialogo& dialogo,
               engine::TablaLiquidacion tabla = engine::TablaLiquidacion::Habydesc)
        : base_(base), dialogo_(dialogo), tabla_(tabla) {}

    // leerMesDeLaPersona: lee de nuevo la empresa, la persona y la base del mes. Sin
    // empresa o sin persona el motor ya avisó y el mes queda cerrado.
    bool abrir(const std::string& empresa, const std::string& nombre, const common::Mes& mes);
    void cerrar() { mp_.reset(); }
    bool abierto() const { return mp_.has_value(); }
    const engine::MesPersona& mes() const { return *mp_; }
    // Las variables y la persona como las dejó la última lectura.
    engine::ContextoFormula& contexto() { return ctx_; }

    // Consultar_Click: las filas de las dos grillas y las cifras de abajo.
    struct Vista {
        std::vector<engine::FilaGuardada> filas;
        engine::CifrasMes cifras;
    };
    Vista consultar();

    std::optional<engine::RenglonBuscado> buscar(long codigo);
    std::optional<engine::CalculoRenglon> calcular(const master::Concepto& concepto,
                                                   const std::string& textoCant);
    // El mensaje que lo impidió (ya avisado), o nada si se guardó.
    std::optional<std::string> guardar(const engine::CalculoRenglon& calculo,
                                       const std::string& textoCant, const std::string& textoTotal);
    // "" si se respondió No, otro mensaje si no se pudo, nada si se borró.
    std::optional<std::string> eliminar(const master::Concepto& concepto);
    // Cómo se llegó al importe guardado de la fila; "" si no tiene explicación.
    std::string explicacion(long codigo);

  private:
    void conLaTabla();

    store::Conexion& base_;
    common::Dialogo& dialogo_;
    engine::TablaLiquidacion tabla_;
    engine::ContextoFormula ctx_;
    std::optional<engine::MesPersona> mp_;
};

}  // namespace nomira::pantallas
