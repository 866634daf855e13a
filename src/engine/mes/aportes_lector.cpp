#include "engine/mes/aportes_lector.h"

#include "common/empaquetados.h"
#include "common/numeros.h"
#include "engine/mes/datos_persona.h"
#include "engine/calculos/psnis.h"

namespace nomira::engine {

using common::Dinero;

namespace {

std::optional<std::string> formulaDe(store::Conexion& base, const char* concepto) {
    const auto r = base.consulta(
        "SELECT formula FROM conceptos WHERE tipo = 'Des' AND concepto = ? ORDER BY codigo "
        "LIMIT 1",
        {std::string(concepto)});
    if (r.vacio()) return std::nullopt;
    return r.primera().texto("formula");
}

}  // namespace

OpcionesAportes opcionesAportesForm42() {
    return {TablaLiquidacion::Habydesc, opcionesLiquidoForm42(), opcionesForm42()};
}

OpcionesAportes opcionesAportesForm45() {
    auto formula = opcionesForm42();
    formula.tokens = tokensForm45();
    return {TablaLiquidacion::Egresos, opcionesLiquidoForm45(), formula};
}

double topeAfap(store::Conexion& base, const std::string& socmedica) {
    const bool a = common::SocMedica::leer(socmedica).bseap == "A";
    const auto r = base.consulta(
        "SELECT valor FROM definiciondevariables WHERE nombre = ? "
        "ORDER BY fecha IS NULL, fecha DESC LIMIT 1",
        {std::string(a ? "TOPEAFAPA" : "TOPEAFAP")});
    return r.vacio() ? kTopeAfapPorDefecto : r.primera().real("valor");
}

double psnisDeLaFormula(const ContextoFormula& ctx, common::Dialogo& dialogo) {
    const auto formula = formulaDe(baseDe(ctx), "SNIS");
    if (!formula) return 0;
    ContextoFormula copia = ctx;
    copia.formula = *formula;
    copia.psnis = 0;
    CalculoFormula2(copia, dialogo);
    return copia.psnis;
}

PorcentajesFormula porcentajesDeConceptos(store::Conexion& base) {
    PorcentajesFormula p;
    if (const auto f = formulaDe(base, "MONTEPIO")) p.montepio = porcentajeDeFormula(*f);
    if (const auto f = formulaDe(base, "FRL")) p.frl = porcentajeDeFormula(*f);
    return p;
}

double CalculoTasasDesNewAguinaldo(ContextoFormula& ctx, common::Dialogo& dialogo) {
    double montograv = 0;
    for (const auto& f : leerFilasDelMes(baseDe(ctx), TablaLiquidacion::Egresos, ctx.empresa,
                                         ctx.nombre, ctx.periodo))
        if (f.gravado == "Si" && f.concepto != "AGUINALDO") montograv += f.total.aDouble();
    return tasasSobre(ctx, montograv, dialogo);
}

double tasasSobre(ContextoFormula& ctx, double montograv, common::Dialogo& dialogo) {
    auto& base = baseDe(ctx);
    DatosSNIS d;
    d.montograv = montograv;
    d.bpc = ctx.variables->valor("BPC");
    d.tipoaporte = ctx.tipoaporte;
    if (const auto p = datosPersona(ctx)) conyugeEHijosSNIS(d, *p->fila, ctx.periodo, &dialogo);
    const auto pf = porcentajesDeConceptos(base);
    return sumaTasas(porcentajeSNIS(d), pf.montepio, pf.frl);
}

DescuentoGenerado generarDescuento(ContextoFormula& ctx, const ConceptoDescuento& c,
                                   const OpcionesAportes& op, common::Dialogo& dialogo) {
    auto& base = baseDe(ctx);
    const auto mes = ctx.periodo;
    ctx.psnis = 0;
    ctx.pfocer = Dinero();
    // Los descuentos ya generados (de código menor) cuentan para el líquido.
    const auto filas = leerFilasDelMes(base, op.liquido.tabla, ctx.empresa, ctx.nombre, mes);
    const auto liquido = liquidoNeto(filas, op.liquido);
    ctx.liquidoneto = liquido.liquidoneto;
    if (!op.liquido.soloLiquidoNeto) {
        ctx.liquidonetograv = liquido.liquidonetograv;
        ctx.montogravalim = liquido.montogravalim;
    }
    ctx.formula = c.formula;
    ctx.textoCant.clear();
    ctx.cantarchivo = 0;
    ctx.importearchivo = Dinero();
    calcularFormula(ctx, op.formula, dialogo);

    EntradaAporte e;
    e.concepto = c.concepto;
    e.totalFormula = ctx.total;
    e.psnis = ctx.psnis;
    e.mes = mes;
    e.tipoaporte = ctx.tipoaporte;
    e.bpc = ctx.variables->valor("BPC");
    e.montograv = ctx.montograv;
    if (const auto& persona = personaDelContexto(ctx)) {
        e.vinculofun = persona->vinculofun;
        e.cantbfc = common::textoANumero(persona->cantbfc);
        e.tafap = common::SocMedica::leer(persona->socmedica).tafap == "Si";
        e.tope = topeAfap(base, persona->socmedica);
        e.excepcionLicencia = excepcionLicencia(
            persona->tiposueldo,
            op.liquido.tabla == TablaLiquidacion::Habydesc
                ? filas
                : leerFilasDelMes(base, TablaLiquidacion::Habydesc, ctx.empresa, ctx.nombre, mes));
    }
    for (const auto& f :
         leerFilasDelMes(base, TablaLiquidacion::Aguinaldos, ctx.empresa, ctx.nombre, mes)) {
        if (f.tipo == "Hab") e.aguinaldosHab += f.total;
        // La primera fila de SNIS del aguinaldo.
        if (empiezaCon(f.concepto, "SNIS") && e.snisAguinaldo == Dinero())
            e.snisAguinaldo = f.total;
    }

    DescuentoGenerado r;
    r.fila = ajustarAporte(e);
    r.fila.explicacion =
        "Fórmula " + c.formula + " = " + ctx.formulaSustituida + "; " + r.fila.explicacion;
    ctx.psnis = r.fila.psnis;
    ctx.total = r.fila.total.aDouble();
    if (op.tabla == TablaLiquidacion::Habydesc && hayEgresos(base, ctx.empresa, ctx.nombre, mes))
        return r;
    escribirFila(base, op.tabla, ctx.empresa, ctx.nombre, mes,
                 {c.codigo, r.fila.concepto, "Des", c.unidad, c.permanente, c.gravado, c.aguinaldo,
                  c.lic, c.ipd, ctx.cant, r.fila.total});
    r.escrita = true;
    return r;
}

}  // namespace nomira::engine
