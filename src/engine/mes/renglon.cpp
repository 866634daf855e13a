#include "engine/mes/renglon.h"

#include <cmath>

#include "common/empaquetados.h"
#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/aportes.h"
#include "engine/calculos/calculo_licencia.h"
#include "engine/calculos/explicacion.h"
#include "engine/calculos/salario_vacacional.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/escritura.h"
#include "engine/mes/filas_persona.h"
#include "engine/mes/licencia_lector.h"
#include "engine/mes/primas_antiguedad_lector.h"

namespace nomira::engine {
inline namespace mes {

using common::Dinero;

namespace {

long codigoDe(const master::Concepto& c) {
    return static_cast<long>(common::textoANumero(c.codigo));
}

// Las filas SUELDO del mes con otro total, y por qué.
void reescribirSueldo(const MesPersona& mp, Dinero total, const std::string& explicacion) {
    auto& libro = mp.libro();
    std::vector<FilaMes> sueldos;
    for (const auto& f : libro.filas(mp.tabla, mp.mes))
        if (f.concepto == "SUELDO") sueldos.push_back(f);
    for (auto& f : sueldos) {
        f.total = total;
        f.explicacion = explicacion;
        libro.escribir(mp.tabla, mp.mes, f);
    }
}

bool hayDescuentos(const MesPersona& mp) {
    return mp.libro().tiene(mp.tabla, mp.mes, "Des");
}

double diasAGozar(const MesPersona& mp, common::Dialogo& dialogo) {
    const auto d = CalculoDiasaGozar(*mp.persona, mp.libro(), mp.mes.anio, dialogo);
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
std::optional<CalculoRenglon> calcularLicencia(MesPersona& mp, ContextoFormula& ctx,
                                               CalculoRenglon r, const std::string& textoCant,
                                               common::Dialogo& dialogo) {
    const double totaldias = diasAGozar(mp, dialogo);
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
        CalculoLicencia(ctx, textoCant, mp.consejo.grupo, mp.consejo.subgrupo, dialogo);
    r.cant = textoCant.empty() ? 1 : dias;
    r.total = importe.total;
    r.explicacion =
        "días a gozar " + numero(totaldias) + ", período " + *periodo + "; " + importe.explicacion;
    return r;
}

// La fórmula con los ajustes de los aportes y la antigüedad.
CalculoRenglon calcularConFormula(MesPersona& mp, ContextoFormula& ctx, CalculoRenglon r,
                                  const std::string& nombre, const std::string& textoCant,
                                  common::Dialogo& dialogo) {
    ctx.cantarchivo = 0;
    ctx.importearchivo = Dinero();
    ctx.psnis = 0;
    ctx.pfocer = Dinero();
    ctx.formula = r.concepto.formula;
    ctx.textoCant = textoCant;
    CalculoFormula(ctx, dialogo);

    const auto& libro = mp.libro();
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
    e.excepcionLicencia = excepcionLicencia(mp.tiposueldo, libro.filas(mp.tabla, mp.mes));
    e.tafap = common::SocMedica::leer(mp.persona->socmedica).tafap == "Si";
    e.tope = topeAfap(mp.maestros(), mp.persona->socmedica);
    for (const auto& f : libro.filas(TablaLiquidacion::Aguinaldos, mp.mes)) {
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
        if (const auto p =
                CalculoAntiguedad(mp.maestros(), *mp.persona, textoCant, mp.mes, dialogo)) {
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

std::optional<RenglonBuscado> buscarRenglon(const MesPersona& mp, const ContextoFormula& ctx,
                                            long codigo, common::Dialogo& dialogo) {
    const auto* c = mp.maestros().conceptos.porCodigo(codigo);
    if (!c) {
        dialogo.avisar(common::TipoAviso::Advertencia, master::kCodigoInexistente);
        return std::nullopt;
    }
    const auto& libro = mp.libro();
    RenglonBuscado r;
    r.concepto = *c;
    if (const auto* f = libro.porCodigo(mp.tabla, mp.mes, codigo)) {
        r.existe = true;
        r.textoCant = common::numeroATexto(f->cant);
        r.textoTotal = common::numeroATexto(f->total.aDouble());
    }
    const auto nombre = common::mayusculas(r.concepto.concepto);
    if (esConceptoLicencia(nombre)) {
        r.textoCant = common::numeroATexto(diasAGozar(mp, dialogo));
    } else if (nombre == "JORNADAS EN EL MES" && ctx.htrab != 0) {
        double horas = 0;
        for (const char* n : {"HORAS", "HORAS NOCTURNAS"})
            if (const auto* f = libro.porConcepto(mp.tabla, mp.mes, n)) horas += f->cant;
        r.textoCant = common::numeroATexto(horas / ctx.htrab);
    }
    return r;
}

std::optional<CalculoRenglon> calcularRenglon(MesPersona& mp, ContextoFormula& ctx,
                                              const master::Concepto& concepto,
                                              const std::string& textoCant,
                                              common::Dialogo& dialogo) {
    CalculoRenglon r;
    r.concepto = concepto;
    r.texto = concepto.concepto;
    const auto nombre = common::mayusculas(concepto.concepto);
    ctx.textoCant = textoCant;
    if (nombre == "IRP" || nombre == "IRPF") {
        const auto imp = calcularImpuesto(mp, ctx, nombre, dialogo, mp.tabla);
        r.texto = imp.concepto;
        r.cant = imp.cant;
        r.total = imp.total;
        r.explicacion = imp.explicacion;
        r.impuesto = imp;
        return r;
    }
    if (esConceptoLicencia(nombre))
        return calcularLicencia(mp, ctx, std::move(r), textoCant, dialogo);
    return calcularConFormula(mp, ctx, std::move(r), nombre, textoCant, dialogo);
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
    store::Transaccion t(base);
    if (!releerBajoClave(base, mp, ctx, dialogo)) return std::string();
    auto& libro = mp.libro();
    const auto& c = calculo.concepto;
    const long codigo = codigoDe(c);
    const bool existe = libro.porCodigo(mp.tabla, mp.mes, codigo) != nullptr;
    if (c.tipo == "Hab" && hayDescuentos(mp))
        return rechazar(mensajeHayDescuentos(existe ? "Modificar" : "Agregar"));
    if (mp.tabla == TablaLiquidacion::Habydesc && libro.hayEgresos(mp.mes))
        return rechazar(kConEgresos);

    const auto nombre = common::mayusculas(c.concepto);
    const double total = common::textoANumero(textoTotal);
    std::string vacacional;
    if (esConceptoLicencia(nombre)) {
        if (const auto sv = CalculoSalarioVacacionalNew(
                ctx, nombre, common::textoANumero(textoCant), Dinero::desdeDouble(total),
                calculo.fechadesdelic, calculo.fechahastalic, dialogo))
            vacacional = sv->explicacion;
        // El mes de un mensual paga el sueldo menos los días de licencia.
        if (mp.tiposueldo == "S") {
            const auto sueldo = Dinero::desdeDouble(ctx.sueldo - total);
            reescribirSueldo(mp, sueldo,
                             "Sueldo " + pesos(ctx.sueldo) + " menos la licencia " + pesos(total) +
                                 " = " + pesos(sueldo) + ".");
        }
    }
    if (nombre == "RET. JUD. S/VAC") {
        FilaMes retencion;
        retencion.codigo = codigo;
        retencion.concepto = c.concepto;
        retencion.unidad = "I";
        retencion.cant = 1;
        retencion.total = Dinero::desdeDouble(total);
        libro.borrarCodigo(TablaLiquidacion::Salvacacional, mp.mes, codigo);
        libro.escribir(TablaLiquidacion::Salvacacional, mp.mes, retencion);
    }
    auto fila = filaDeConcepto(c, c.tipo);
    fila.concepto = calculo.texto;
    fila.cant = common::textoANumero(textoCant);
    fila.total = Dinero::desdeDouble(total);
    std::string explicacion = calculo.explicacion;
    if (fila.total != calculo.total)
        explicacion += (explicacion.empty() ? "" : " ") + std::string("Total tecleado: ") +
                       pesos(fila.total) + ".";
    if (!vacacional.empty()) explicacion += (explicacion.empty() ? "" : " ") + vacacional;
    libro.escribir(mp.tabla, mp.mes, fila);
    if (!explicacion.empty()) libro.explicar(mp.tabla, mp.mes, codigo, explicacion);
    if (esConceptoHoras(nombre))
        actualizarJornadas(libro, mp.maestros(), mp.mes, nombre, fila.cant, ctx.htrab, mp.tabla);
    else if (existe && mp.tipoaporte == "04" && mp.tiposueldo == "H" && empiezaCon(nombre, "HORAS"))
        actualizarJornadas(libro, mp.maestros(), mp.mes, nombre, fila.cant, ctx.htrab, mp.tabla);
    escribirLibro(base, libro);
    t.confirmar();
    refrescarDesglose(mp, ctx);
    return std::nullopt;
}

std::optional<std::string> eliminarRenglon(store::Conexion& base, MesPersona& mp,
                                           ContextoFormula& ctx, const master::Concepto& c,
                                           common::Dialogo& dialogo) {
    if (c.tipo == "Hab" && hayDescuentos(mp)) {
        const auto m = mensajeHayDescuentos("Eliminar");
        dialogo.avisar(common::TipoAviso::Advertencia, m);
        return m;
    }
    if (!dialogo.confirmar("Eliminar Concepto", "¿Desea continuar?")) return "";
    store::Transaccion t(base);
    if (!releerBajoClave(base, mp, ctx, dialogo)) return std::string();
    auto& libro = mp.libro();
    const auto nombre = common::mayusculas(c.concepto);
    const long codigo = codigoDe(c);
    if (nombre == "LICENCIA" || nombre == "LICENCIA 2DA ACT") {
        libro.borrar(TablaLiquidacion::Salvacacional, mp.mes, [](const FilaMes&) { return true; });
        if (nombre == "LICENCIA" && mp.tiposueldo == "S") {
            const auto sueldo = Dinero::desdeDouble(common::textoANumero(mp.persona->sueldo));
            reescribirSueldo(mp, sueldo,
                             "Sueldo de la ficha: " + pesos(sueldo) + " (se borró la licencia).");
        }
    }
    if (nombre == "RET. JUD. S/VAC")
        libro.borrarCodigo(TablaLiquidacion::Salvacacional, mp.mes, codigo);
    libro.borrarCodigo(mp.tabla, mp.mes, codigo);
    escribirLibro(base, libro);
    t.confirmar();
    refrescarDesglose(mp, ctx);
    return std::nullopt;
}

}  // namespace mes
}  // namespace nomira::engine
