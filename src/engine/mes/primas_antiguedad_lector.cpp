// CalculoAntiguedad sobre la base: persona, consejo de la empresa y bases.
#include "engine/calculos/calculo_licencia.h"
#include "engine/calculos/primas_antiguedad.h"
#include "master/personal.h"

namespace nomira::engine {

namespace {

// El sueldo mínimo más nuevo (por fecha de fin) de la categoría; 0 sin fila.
double sueldoMinimo(store::Conexion& base, const ConsejoSalarios& c, const std::string& sector,
                    const std::string& categoria) {
    const auto r = base.consulta(
        "SELECT sueldo FROM histsueldosmin WHERE nombre = ? AND nombre2 = ? AND nombre3 = ? AND "
        "nombre4 = ? ORDER BY fechafin IS NULL, fechafin DESC LIMIT 1",
        {c.textoGrupo, c.textoSubgrupo, sector, categoria});
    return r.vacio() ? 0 : r.primera().real("sueldo");
}

}  // namespace

std::optional<PrimaAntiguedad> CalculoAntiguedad(
    store::Conexion& base, master::LectorVariables& variables, const std::string& empresa,
    const std::string& nombre, const std::string& textoCant, const common::Mes& periodo,
    common::Dialogo& dialogo, const std::string& pantalla) {
    const auto persona = master::leerPersona(base, empresa, nombre);
    if (!persona) return std::nullopt;
    return CalculoAntiguedad(base, variables, *persona, consejoDeLaEmpresa(base, empresa),
                             textoCant, periodo, dialogo, pantalla);
}

std::optional<PrimaAntiguedad> CalculoAntiguedad(
    store::Conexion& base, master::LectorVariables& variables, const master::Persona& persona,
    const ConsejoSalarios& consejo, const std::string& textoCant, const common::Mes& periodo,
    common::Dialogo& dialogo, const std::string& pantalla) {
    const int miembro = miembroPorConsejo(consejo.grupo, consejo.subgrupo).value_or(0);
    try {
        const auto baseDe = [&](const MiembroAntiguedad& m, const ActividadAntiguedad& a) {
            switch (m.base) {
                case BaseAntiguedad::Sueldo:
                    return a.sueldo;
                case BaseAntiguedad::BPC:
                    return variables.valor("BPC");
                case BaseAntiguedad::SALMIN:
                    return variables.valor("SALMIN");
                case BaseAntiguedad::SueldoMinimo:
                    return sueldoMinimo(base, consejo, m.sector ? m.sector : a.sector,
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

}  // namespace nomira::engine
