#include "engine/mes/renglon.h"

#include <cmath>

#include "common/empaquetados.h"
#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/aportes.h"
#include "engine/mes/aportes_lector.h"
#include "engine/calculos/calculo_licencia.h"
#include "engine/mes/descuentos.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/explicaciones.h"
#include "engine/mes/filas_persona.h"
#include "engine/mes/licencia_lector.h"
#include "engine/calculos/primas_antiguedad.h"
#include "engine/calculos/salario_vacacional.h"

namespace nomira::engine {

using common::Dinero;

namespace {

long codigoDe(const master::Concepto& c) {
    return static_cast<long>(common::textoANumero(c.codigo));
}

std::vector<store::Valor> clavesMes(const MesPersona& mp) {
    return {mp.empresa, mp.nombre, mp.mes.primerDia().iso()};
}

std::vector<store::Valor> clavesCodigo(const MesPersona& mp, long codigo) {
    return {mp.empresa, mp.nombre, mp.mes.primerDia().iso(), static_cast<std::int64_t>(codigo)};
}

// La fila SUELDO del mes con otro total, y por qué.
void reescribirSueldo(store::Conexion& base, const MesPersona& mp, Dinero total,
                      const std::string& explicacion) {
    const auto filas = base.consulta(
        "SELECT codigo FROM habydesc WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
        "concepto = 'SUELDO'",
        clavesMes(mp));
    base.ejecuta(
        "UPDATE habydesc SET total = ? WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
        "concepto = 'SUELDO'",
        {total.aDouble(), mp.empresa, mp.nombre, mp.mes.primerDia().iso()});
    for (const auto& f : filas.filas)
        guardarExplicacion(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes,
                           static_cast<long>(f.entero("codigo")), "Hab", explicacion);
}

bool hayDescuentos(store::Conexion& base, const MesPersona& mp) {
    return !base.consulta(
                    "SELECT 1 FROM habydesc WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
                    "tipo = 'Des' LIMIT 1",
                    clavesMes(mp))
                .vacio();
}

double diasAGozar(store::Conexion& base, const MesPersona& mp, common::Dialogo& dialogo) {
    const auto d = CalculoDiasaGozar(base, mp.empresa, mp.nombre, mp.mes.anio, dialogo);
    return d ? d->cantdiaspendientes : 0;
}

// El período de la licencia, pedido hasta que tenga sus 17 caracteres. Nada si
// se cancela: sin respuesta no hay período.
std::optional<std::string> pedirPeriodo(const MesPersona& mp, common::Dialogo& dialogo) {
    const auto mmyy = mp.mes.texto();
    const std::string inicial = "01/" + mmyy + "-10/" + mmyy;
    for (;;) {
        auto r = dialogo.pedirTexto(kTituloPeriodoLicencia, kPidePeriodoLicencia, inicial);
        if (!r) return std::nullopt;
        if (common::longitudCaracteres(*r) == 17) return r;
    }
}

// La licencia: días a gozar, las preguntas, el período y el importe.
std::optional<CalculoRenglon> calcularLicencia(store::Conexion& base, MesPersona& mp,
                                               ContextoFormula& ctx, CalculoRenglon r,
                                               const std::string& textoCant,
                                               common::Dialogo& dialogo) {
    const double totaldias = diasAGozar(base, mp, dialogo);
    if (textoCant == "0" || textoCant == " 0") {
        dialogo.avisar(common::TipoAviso::Advertencia, kLicenciaCero);
        r.explicacion = "licencia de cero días";
        return r;
    }
    const double dias = common::textoANumero(textoCant);
    if (totaldias - dias < 0 && !dialogo.confirmar(kTituloMenosDias, "¿Desea continuar?")) {
        r.explicacion = "quedan " + numero(totaldias) + " días a gozar";
        return r;
    }
    if (((totaldias > 0 && totaldias < 10) || dias < 10) &&
        !dialogo.confirmar(kTituloMenosDe10, "¿Desea continuar?"))
        return std::nullopt;
    const auto periodo = pedirPeriodo(mp, dialogo);
    if (!periodo) return std::nullopt;
    r.fechadesdelic = periodo->substr(0, 8);
    r.fechahastalic = periodo->substr(9, 8);
    const auto importe =
        CalculoLicencia(base, ctx, textoCant, mp.consejo.grupo, mp.consejo.subgrupo, dialogo);
    r.cant = textoCant.empty() ? 1 : dias;
    r.total = importe.total;
    r.explicacion =
        "días a gozar " + numero(totaldias) + ", período " + *periodo + "; " + importe.explicacion;
    return r;
}

// La fórmula con los ajustes de los aportes y la antigüedad.
CalculoRenglon calcularConFormula(store::Conexion& base, MesPersona& mp, ContextoFormula& ctx,
                                  CalculoRenglon r, const std::string& nombre,
                                  const std::string& textoCant, common::Dialogo& dialogo) {
    ctx.cantarchivo = 0;
    ctx.importearchivo = Dinero();
    ctx.psnis = 0;
    ctx.pfocer = Dinero();
    ctx.formula = r.concepto.formula;
    ctx.textoCant = textoCant;
    CalculoFormula(ctx, dialogo);

    EntradaAporte e;
    e.concepto = nombre;
    e.totalFormula = ctx.total;
    e.psnis = ctx.psnis;
    e.mes = mp.mes;
    e.tipoaporte = mp.tipoaporte;
    e.vinculofun = mp.vinculofun;
    e.cantbfc = ctx.cantbfc;
    e.bpc = mp.bpc;
    e.montograv = ctx.montograv;
    e.excepcionLicencia = excepcionLicencia(
        mp.tiposueldo,
        leerFilasDelMes(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes));
    e.tafap = common::SocMedica::leer(mp.persona->socmedica).tafap == "Si";
    e.tope = topeAfap(base, mp.persona->socmedica);
    for (const auto& f :
         leerFilasDelMes(base, TablaLiquidacion::Aguinaldos, mp.empresa, mp.nombre, mp.mes)) {
        if (f.tipo == "Hab") e.aguinaldosHab += f.total;
        if (empiezaCon(f.concepto, "SNIS") && e.snisAguinaldo == Dinero())
            e.snisAguinaldo = f.total;
    }
    const auto a = ajustarAporte(e);
    r.cant = ctx.cant;
    r.total = a.total;
    r.texto = nombre == r.texto ? a.concepto : r.texto;
    r.explicacion = a.explicacion;

    if (esConceptoAntiguedad(nombre))
        if (const auto p = CalculoAntiguedad(base, *ctx.variables, *mp.persona, mp.consejo,
                                             textoCant, mp.mes, dialogo)) {
            r.cant = p->cant;
            r.total = p->total;
            r.explicacion = p->explicacion;
        }
    return r;
}

}  // namespace

std::string mensajeHayDescuentos(const std::string& accion) {
    return "Ya hay Descuentos ingresados, para " + accion +
           " un Haber deberá eliminar todos los Descuentos o usar el botón Reliq. por retro.";
}

bool esConceptoLicencia(const std::string& concepto) {
    return concepto == "LICENCIA" || concepto == "LICENCIA 2DA ACT" ||
           concepto == "LICENCIA 3RA ACT";
}

std::optional<RenglonBuscado> buscarRenglon(store::Conexion& base, const MesPersona& mp,
                                            ContextoFormula& ctx, long codigo,
                                            common::Dialogo& dialogo) {
    auto c = master::leerConcepto(base, codigo);
    if (!c) {
        dialogo.avisar(common::TipoAviso::Advertencia, master::kCodigoInexistente);
        return std::nullopt;
    }
    RenglonBuscado r;
    r.concepto = std::move(*c);
    if (const auto f = filaPorCodigo(base, mp.empresa, mp.nombre, mp.mes, codigo)) {
        r.existe = true;
        r.textoCant = common::numeroATexto(f->cant);
        r.textoTotal = common::numeroATexto(f->total.aDouble());
    }
    const auto nombre = common::mayusculas(r.concepto.concepto);
    if (esConceptoLicencia(nombre)) {
        r.textoCant = common::numeroATexto(diasAGozar(base, mp, dialogo));
    } else if (nombre == "JORNADAS EN EL MES" && ctx.htrab != 0) {
        double horas = 0;
        for (const char* n : {"HORAS", "HORAS NOCTURNAS"})
            if (const auto f = filaPorConcepto(base, mp.empresa, mp.nombre, mp.mes, n))
                horas += f->cant;
        r.textoCant = common::numeroATexto(horas / ctx.htrab);
    }
    return r;
}

std::optional<CalculoRenglon> calcularRenglon(store::Conexion& base, MesPersona& mp,
                                              ContextoFormula& ctx,
                                              const master::Concepto& concepto,
                                              const std::string& textoCant,
                                              common::Dialogo& dialogo) {
    CalculoRenglon r;
    r.concepto = concepto;
    r.texto = concepto.concepto;
    const auto nombre = common::mayusculas(concepto.concepto);
    ctx.textoCant = textoCant;
    if (nombre == "IRP" || nombre == "IRPF") {
        const auto imp = calcularImpuesto(base, mp, ctx, nombre, dialogo);
        r.texto = imp.concepto;
        r.cant = imp.cant;
        r.total = imp.total;
        r.explicacion = imp.explicacion;
        r.impuesto = imp;
        return r;
    }
    if (esConceptoLicencia(nombre))
        return calcularLicencia(base, mp, ctx, std::move(r), textoCant, dialogo);
    return calcularConFormula(base, mp, ctx, std::move(r), nombre, textoCant, dialogo);
}

std::optional<std::string> guardarRenglon(store::Conexion& base, MesPersona& mp,
                                          ContextoFormula& ctx, const CalculoRenglon& calculo,
                                          const std::string& textoCant,
                                          const std::string& textoTotal, common::Dialogo& dialogo) {
    auto rechazar = [&](std::string m) -> std::optional<std::string> {
        dialogo.avisar(common::TipoAviso::Advertencia, m);
        return m;
    };
    if (textoTotal.empty()) return rechazar(kFaltaTotal);
    const auto& c = calculo.concepto;
    const long codigo = codigoDe(c);
    const bool existe = filaPorCodigo(base, mp.empresa, mp.nombre, mp.mes, codigo).has_value();
    if (c.tipo == "Hab" && hayDescuentos(base, mp))
        return rechazar(mensajeHayDescuentos(existe ? "Modificar" : "Agregar"));
    if (hayEgresos(base, mp.empresa, mp.nombre, mp.mes)) return rechazar(kConEgresos);

    const auto nombre = common::mayusculas(c.concepto);
    const double total = common::textoANumero(textoTotal);
    store::Transaccion t(base);
    std::string vacacional;
    if (esConceptoLicencia(nombre)) {
        if (const auto sv = CalculoSalarioVacacionalNew(
                base, ctx, nombre, common::textoANumero(textoCant), Dinero::desdeDouble(total),
                calculo.fechadesdelic, calculo.fechahastalic, dialogo))
            vacacional = sv->explicacion;
        // El mes de un mensual paga el sueldo menos los días de licencia.
        if (mp.tiposueldo == "S") {
            const auto sueldo = Dinero::desdeDouble(ctx.sueldo - total);
            reescribirSueldo(base, mp, sueldo,
                             "Sueldo " + pesos(ctx.sueldo) + " menos la licencia " + pesos(total) +
                                 " = " + pesos(sueldo) + ".");
        }
    }
    if (nombre == "RET. JUD. S/VAC") {
        base.ejecuta(
            "DELETE FROM salvacacional WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
            "codigo = ?",
            clavesCodigo(mp, codigo));
        base.ejecuta(
            "INSERT INTO salvacacional (empresa, nombre, fecha, codigo, concepto, unidad, cant, "
            "total) VALUES (?, ?, ?, ?, ?, 'I', 1, ?)",
            {mp.empresa, mp.nombre, mp.mes.primerDia().iso(), static_cast<std::int64_t>(codigo),
             c.concepto, Dinero::desdeDouble(total).aDouble()});
    }
    auto fila = filaDeConcepto(c, c.tipo);
    fila.concepto = calculo.texto;
    fila.cant = common::textoANumero(textoCant);
    fila.total = Dinero::desdeDouble(total);
    escribirFila(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes, fila);
    std::string explicacion = calculo.explicacion;
    if (fila.total != calculo.total)
        explicacion += (explicacion.empty() ? "" : " ") + std::string("Total tecleado: ") +
                       pesos(fila.total) + ".";
    if (!vacacional.empty()) explicacion += (explicacion.empty() ? "" : " ") + vacacional;
    guardarExplicacion(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes, codigo,
                       fila.tipo, explicacion);
    if (esConceptoHoras(nombre))
        actualizarJornadas(base, mp.empresa, mp.nombre, mp.mes, nombre, fila.cant, ctx.htrab);
    else if (existe && mp.tipoaporte == "04" && mp.tiposueldo == "H" && empiezaCon(nombre, "HORAS"))
        actualizarJornadas(base, mp.empresa, mp.nombre, mp.mes, nombre, fila.cant, ctx.htrab);
    t.confirmar();
    refrescarDesglose(base, mp, ctx);
    return std::nullopt;
}

std::optional<std::string> eliminarRenglon(store::Conexion& base, const MesPersona& mp,
                                           const master::Concepto& c, common::Dialogo& dialogo) {
    if (c.tipo == "Hab" && hayDescuentos(base, mp)) {
        const auto m = mensajeHayDescuentos("Eliminar");
        dialogo.avisar(common::TipoAviso::Advertencia, m);
        return m;
    }
    if (!dialogo.confirmar("Eliminar Concepto", "¿Desea continuar?")) return "";
    const auto nombre = common::mayusculas(c.concepto);
    const long codigo = codigoDe(c);
    store::Transaccion t(base);
    if (nombre == "LICENCIA" || nombre == "LICENCIA 2DA ACT") {
        base.ejecuta("DELETE FROM salvacacional WHERE empresa = ? AND nombre = ? AND fecha = ?",
                     clavesMes(mp));
        if (nombre == "LICENCIA" && mp.tiposueldo == "S") {
            const auto sueldo = Dinero::desdeDouble(common::textoANumero(mp.persona->sueldo));
            reescribirSueldo(base, mp, sueldo,
                             "Sueldo de la ficha: " + pesos(sueldo) + " (se borró la licencia).");
        }
    }
    const auto claves = clavesCodigo(mp, codigo);
    if (nombre == "RET. JUD. S/VAC")
        base.ejecuta(
            "DELETE FROM salvacacional WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
            "codigo = ?",
            claves);
    base.ejecuta(
        "DELETE FROM habydesc WHERE empresa = ? AND nombre = ? AND fecha = ? AND codigo = ?",
        claves);
    podarExplicaciones(base, TablaLiquidacion::Habydesc, mp.empresa, mp.mes, mp.nombre);
    t.confirmar();
    return std::nullopt;
}

}  // namespace nomira::engine
