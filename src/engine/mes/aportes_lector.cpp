#include "engine/mes/aportes_lector.h"

#include "common/empaquetados.h"
#include "common/numeros.h"
#include "engine/calculos/psnis.h"
#include "engine/mes/datos_persona.h"
#include "engine/mes/libro.h"

namespace nomira::engine {
inline namespace mes {

using common::Dinero;

namespace {

std::optional<std::string> formulaDe(const Maestros& maestros, const char* concepto) {
    const auto* c = maestros.conceptos.porNombre(concepto, "Des");
    if (!c) return std::nullopt;
    return c->formula;
}

}  // namespace

OpcionesAportes opcionesAportesForm42() {
    return {TablaLiquidacion::Habydesc, opcionesLiquidoForm42(), opcionesForm42()};
}

OpcionesAportes opcionesAportesForm43() {
    return {TablaLiquidacion::Aguinaldos, opcionesLiquidoForm43(), opcionesForm43(), 0.5};
}

OpcionesAportes opcionesAportesForm45() {
    auto formula = opcionesForm42();
    formula.tokens = tokensForm45();
    return {TablaLiquidacion::Egresos, opcionesLiquidoForm45(), formula};
}

double topeAfap(const Maestros& maestros, const std::string& socmedica) {
    const bool a = common::SocMedica::leer(socmedica).bseap == "A";
    return maestros.variables.buscar(a ? "TOPEAFAPA" : "TOPEAFAP").value_or(kTopeAfapPorDefecto);
}

double psnisDeLaFormula(const ContextoFormula& ctx, common::Dialogo& dialogo) {
    const auto formula = formulaDe(maestrosDe(ctx), "SNIS");
    if (!formula) return 0;
    ContextoFormula copia = ctx;
    copia.formula = *formula;
    copia.psnis = 0;
    CalculoFormula2(copia, dialogo);
    return copia.psnis;
}

PorcentajesFormula porcentajesDeConceptos(const Maestros& maestros) {
    PorcentajesFormula p;
    if (const auto f = formulaDe(maestros, "MONTEPIO")) p.montepio = porcentajeDeFormula(*f);
    if (const auto f = formulaDe(maestros, "FRL")) p.frl = porcentajeDeFormula(*f);
    return p;
}

double CalculoTasasDesNewAguinaldo(ContextoFormula& ctx, common::Dialogo& dialogo) {
    double montograv = 0;
    for (const auto& f : libroDe(ctx).filas(TablaLiquidacion::Egresos, ctx.periodo))
        if (f.gravado == "Si" && f.concepto != "AGUINALDO") montograv += f.total.aDouble();
    return tasasSobre(ctx, montograv, dialogo);
}

double tasasSobre(ContextoFormula& ctx, double montograv, common::Dialogo& dialogo) {
    DatosSNIS d;
    d.montograv = montograv;
    d.bpc = variablesDe(ctx).valor("BPC");
    d.tipoaporte = ctx.tipoaporte;
    if (ctx.persona) conyugeEHijosSNIS(d, *ctx.persona, ctx.periodo, &dialogo);
    const auto pf = porcentajesDeConceptos(maestrosDe(ctx));
    return sumaTasas(porcentajeSNIS(d), pf.montepio, pf.frl);
}

DescuentoGenerado generarDescuento(ContextoFormula& ctx, const ConceptoDescuento& c,
                                   const OpcionesAportes& op, common::Dialogo& dialogo) {
    auto& libro = libroDe(ctx);
    const auto mes = ctx.periodo;
    ctx.psnis = 0;
    ctx.pfocer = Dinero();
    // Los descuentos ya generados (de código menor) cuentan para el líquido.
    const auto& filas = libro.filas(op.liquido.tabla, mes);
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
    e.bpc = variablesDe(ctx).valor("BPC");
    e.montograv = ctx.montograv;
    if (const auto* persona = ctx.persona) {
        e.vinculofun = persona->vinculofun;
        e.cantbfc = common::textoANumero(persona->cantbfc);
        e.tafap = common::SocMedica::leer(persona->socmedica).tafap == "Si";
        e.tope = topeAfap(maestrosDe(ctx), persona->socmedica) * op.factorTope;
        e.excepcionLicencia =
            excepcionLicencia(persona->tiposueldo, libro.filas(TablaLiquidacion::Habydesc, mes));
    }
    for (const auto& f : libro.filas(TablaLiquidacion::Aguinaldos, mes)) {
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
    if (op.tabla == TablaLiquidacion::Habydesc && libro.hayEgresos(mes)) return r;
    FilaMes fila;
    fila.codigo = c.codigo;
    fila.concepto = r.fila.concepto;
    fila.tipo = "Des";
    fila.unidad = c.unidad;
    fila.permanente = c.permanente;
    fila.gravado = c.gravado;
    fila.aguinaldo = c.aguinaldo;
    fila.lic = c.lic;
    fila.ipd = c.ipd;
    fila.cant = ctx.cant;
    fila.total = r.fila.total;
    fila.explicacion = r.fila.explicacion;
    if (op.tabla == TablaLiquidacion::Aguinaldos) fila.mes = mes.texto().substr(0, 2);
    libro.escribir(op.tabla, mes, fila);
    r.escrita = true;
    return r;
}

}  // namespace mes
}  // namespace nomira::engine
