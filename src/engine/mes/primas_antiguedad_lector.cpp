#include "engine/mes/primas_antiguedad_lector.h"

namespace nomira::engine {
inline namespace mes {

std::optional<PrimaAntiguedad> CalculoAntiguedad(
    const Maestros& maestros, const master::Persona& persona, const std::string& textoCant,
    const common::Mes& periodo, common::Dialogo& dialogo, const std::string& pantalla) {
    const auto& consejo = maestros.consejo;
    const int miembro = miembroPorConsejo(consejo.grupo, consejo.subgrupo).value_or(0);
    try {
        const auto baseDe = [&](const MiembroAntiguedad& m, const ActividadAntiguedad& a) {
            switch (m.base) {
                case BaseAntiguedad::Sueldo:
                    return a.sueldo;
                case BaseAntiguedad::BPC:
                    return maestros.variables.valor("BPC");
                case BaseAntiguedad::SALMIN:
                    return maestros.variables.valor("SALMIN");
                case BaseAntiguedad::SueldoMinimo:
                    return maestros.sueldoMinimo(m.sector ? m.sector : a.sector,
                                                 m.categoria ? m.categoria : a.categoria);
            }
            return 0.0;
        };
        return calcularPrimaAntiguedad(persona, consejo.grupo, consejo.subgrupo, textoCant, periodo,
                                       baseDe);
    } catch (const std::exception& e) {
        // Como en cada convenio: se avisa y el total de la fórmula queda.
        common::avisarErrorInesperado(
            dialogo, e, "CalculoAntiguedad" + (miembro ? std::to_string(miembro) : ""), pantalla);
        return std::nullopt;
    }
}

}  // namespace mes
}  // namespace nomira::engine
