#include "engine/egreso/incidencias_licencia.h"

#include "common/fechas.h"
#include "common/texto.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/licencia_lector.h"

namespace nomira::engine {
inline namespace egreso {

namespace {

// Lo del año de egreso que cuenta para su licencia.
EntradaLicenciaEgreso entradaDelEgreso(const ContextoFormula& ctx, const ActividadLicencia& a,
                                       const DiasLicencia& dias, int anio) {
    EntradaLicenciaEgreso e;
    e.tiposueldo = ctx.persona->tiposueldo;
    e.ingreso = a.ingreso;
    e.egreso = *a.egreso;
    e.pendientesAnterior = dias.cantdiaspendientes;
    e.diasextras = dias.diasextras;
    for (const auto& f : libroDe(ctx).filas(TablaLiquidacion::Habydesc, common::Mes{anio, 1},
                                            common::Mes{anio, 12})) {
        const auto c = common::mayusculas(f.concepto);
        if (c == "LICENCIA") e.licenciaDelAnio += f.cant;
        if (esAusencia(c)) e.ausenciasDelAnio += f.cant;
        if (esDiaTrabajado(c, e.tiposueldo)) e.diasTrabajadosDelAnio += f.cant;
    }
    return e;
}

std::string valorDeLosDias(const char* concepto, double dias, double porDia,
                           common::Dinero& monto) {
    monto = common::Dinero::desdeDouble(dias * porDia);
    return std::string(concepto) + ": " + numero(dias) + " días x " + pesos(porDia) + " = " +
           pesos(monto) + "\r\n";
}

}  // namespace

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

    const auto actividad = actividadDeLicencia(*ctx.persona);
    if (!actividad.egreso || common::anioPivote50(actividad.egreso->yy) != fecha.anio) return r;
    r.egreso = CalculoLicenciaEgresos(entradaDelEgreso(ctx, actividad, r.dias, fecha.anio));
    const double porDia = r.importe.jornal + r.importe.porDia;
    r.traza += r.egreso->traza +
               valorDeLosDias("LICENCIA NO GOZ AÑO ANTERIOR", r.egreso->diasAnterior, porDia,
                              r.noGozadaAnterior) +
               valorDeLosDias("LICENCIA NO GOZ AÑO ACTUAL", r.egreso->diasActual, porDia,
                              r.noGozadaActual);
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
