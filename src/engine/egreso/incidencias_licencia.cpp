#include "engine/egreso/incidencias_licencia.h"

#include "engine/calculos/explicacion.h"
#include "engine/mes/licencia_lector.h"

namespace nomira::engine {
inline namespace egreso {

std::optional<IncidenciasLicencia> incidenciasDeLaLicencia(const ContextoFormula& ctx,
                                                           const common::Fecha& fecha,
                                                           common::Dialogo& dialogo) {
    if (!ctx.persona) return std::nullopt;
    auto dias = CalculoDiasaGozar(*ctx.persona, libroDe(ctx), fecha.anio, dialogo,
                                  PantallaLicencia::Form76);
    if (!dias) return std::nullopt;
    IncidenciasLicencia r;
    r.dias = std::move(*dias);
    const auto& consejo = maestrosDe(ctx).consejo;
    r.importe = CalculoLicencia(ctx, numero(r.dias.cantdiaspendientes), consejo.grupo,
                                consejo.subgrupo, dialogo);
    r.traza = r.dias.traza + r.importe.explicacion + "\r\n";
    return r;
}

std::optional<IncidenciasLicencia> incidenciasDeLaLicencia(
    store::Conexion& base, const std::string& empresa, const std::string& nombre,
    const std::optional<common::Fecha>& fecha, common::Dialogo& dialogo) {
    if (empresa.empty() || nombre.empty() || !fecha) {
        dialogo.avisar(common::TipoAviso::Advertencia, kFaltanCamposLicencia);
        return std::nullopt;
    }
    const auto mes = common::Mes::de(*fecha);
    auto lectura = leerCorrida(base, empresa, mes, mesesDelRenglon(mes), nombre, false);
    auto* p = lectura.persona(nombre);
    if (!p) {
        dialogo.avisar(common::TipoAviso::Advertencia, kFaltanCamposLicencia);
        return std::nullopt;
    }
    ContextoFormula ctx;
    cargarPersona(ctx, *p->ficha);
    ctx.empresa = empresa;
    ctx.nombre = nombre;
    ctx.periodo = mes;
    ctx.persona = p->ficha.get();
    ctx.libro = &p->libro;
    ctx.maestros = &lectura.maestros;
    ctx.variables = &lectura.maestros.variables;
    return incidenciasDeLaLicencia(ctx, *fecha, dialogo);
}

}  // namespace egreso
}  // namespace nomira::engine
