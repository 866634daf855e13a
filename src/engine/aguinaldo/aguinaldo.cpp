#include "engine/aguinaldo/aguinaldo.h"

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/aguinaldo.h"
#include "engine/calculos/explicacion.h"
#include "engine/calculos/irp.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/escritura.h"
#include "engine/mes/irpf_lector.h"
#include "engine/mes/una_persona.h"

namespace nomira::engine {
inline namespace aguinaldo {

using common::Dinero;

namespace {

bool esReliquidacionVacacional(const std::string& concepto) {
    return concepto == "RELIQ. SAL. VAC." || concepto == "RELIQ. SAL. VAC. POR LAUDO";
}

FilaMes filaDeDescuento(const master::Concepto& c, const common::Mes& pago) {
    auto fila = filaDeConcepto(c, "Des");
    fila.mes = pago.texto().substr(0, 2);
    return fila;
}

// IRP sobre lo que se paga; IRPF calculado entero y en 0, como lo deja siempre
// el aguinaldo.
FilaLiquidada impuesto(MesPersona& mp, ContextoFormula& ctx, const master::Concepto& c,
                       const std::string& nombre, common::Dialogo& dialogo) {
    auto fila = filaDeDescuento(c, mp.mes);
    fila.cant = 1;
    std::string exp;
    if (nombre == "IRP") {
        const auto irp = CalculoIRP(ctx);
        fila.cant = irp.cant;
        fila.total = Dinero::desdeDouble(irp.total);
        exp = "IRP sobre " + pesos(ctx.montograv) + " = " + pesos(fila.total);
    } else {
        const auto irpf =
            CalculoIRPF(ctx, ctx.montograv, ctx.montograv, opcionesIRPFForm43(), dialogo);
        fila.total = irpf.total;
        fila.concepto = textoFilaIRPF(c.concepto, irpf, ctx.montograv);
        exp = irpf.explicacion;
    }
    fila.explicacion = exp;
    mp.libro().escribir(TablaLiquidacion::Aguinaldos, mp.mes, fila);
    return {fila, exp};
}

ResultadoPersona resultadoDe(const MesPersona& mp) {
    ResultadoPersona r;
    r.empresa = mp.empresa;
    r.nombre = mp.nombre;
    r.mes = mp.mes;
    return r;
}

}  // namespace

FilaMes aguinaldoGeneradoEnElMes(const LibroPersona& libro, const Conceptos& conceptos,
                                 const common::Mes& mes, int actividad, bool convenio) {
    Dinero monto;
    std::string detalle;
    const auto sumar = [&](const std::string& que, Dinero total) {
        monto += total;
        detalle += (detalle.empty() ? "" : ", ") + que + " " + pesos(total);
    };
    for (const auto& f : libro.filas(TablaLiquidacion::Habydesc, mes))
        if (f.tipo == "Hab" && f.aguinaldo == "Si" && esDeLaActividad(f.concepto, actividad))
            sumar(f.concepto, f.total);
    const auto vacacional = "SALARIO VACACIONAL" + sufijoActividad(actividad);
    for (const auto& f : libro.filas(TablaLiquidacion::Salvacacional, mes)) {
        if (f.concepto != vacacional) continue;
        const auto* c = conceptos.porCodigo(f.codigo);
        if (c && (c->aguinaldo == "Si" || convenio))
            sumar(f.concepto + (c->aguinaldo == "Si" ? "" : " (grupo con convenio)"), f.total);
    }
    // La reliquidación del vacacional entra por su columna o por el convenio,
    // además de lo que ya sumó como haber con aguinaldo.
    if (actividad == 1)
        for (const auto& f : libro.filas(TablaLiquidacion::Habydesc, mes))
            if (esReliquidacionVacacional(f.concepto) && (f.aguinaldo == "Si" || convenio))
                sumar(f.concepto + " (reliquidación del vacacional)", f.total);

    FilaMes fila;
    fila.concepto = conceptoAguinaldo(actividad);
    fila.tipo = "Hab";
    fila.total = monto;
    fila.mes = mes.texto().substr(0, 2);
    fila.aclab = std::to_string(actividad);
    fila.explicacion = "lo que genera aguinaldo en el " + mes.texto() + ": " +
                       (detalle.empty() ? "nada" : detalle) + "; total " + pesos(monto);
    return fila;
}

MesesALeer mesesDelAguinaldo(const common::Mes& pago) {
    MesesALeer m;
    m.escrito = pago;
    for (auto& t : m.tramos) t = {pago, pago};
    const common::Mes desde =
        pago.mes == 12 ? common::Mes{pago.anio, 6} : common::Mes{pago.anio - 1, 12};
    for (const auto t : {TablaLiquidacion::Habydesc, TablaLiquidacion::Salvacacional})
        m.tramos[static_cast<std::size_t>(t)] = {desde, pago};
    return m;
}

ActividadAguinaldo actividadDe(const master::Persona& p, int actividad) {
    ActividadAguinaldo a;
    a.numero = actividad == 2 || actividad == 3 ? actividad : 1;
    const auto& ing = a.numero == 2 ? p.fechaing2 : a.numero == 3 ? p.fechaing3 : p.fechaing;
    const auto& eg = a.numero == 2 ? p.fechaeg2 : a.numero == 3 ? p.fechaeg3 : p.fechaeg;
    a.ingreso = fechaDeIngreso(ing);
    a.egreso = fechaDeEgreso(eg);
    return a;
}

ResultadoPersona haberesDelAguinaldo(MesPersona& mp, int actividad) {
    auto r = resultadoDe(mp);
    auto& libro = mp.libro();
    if (libro.hayEgresos(mp.mes)) {
        r.aviso = kConEgresos;
        return r;
    }
    libro.borrarTipo(TablaLiquidacion::Aguinaldos, mp.mes, "Des");
    const auto act = actividadDe(*mp.persona, actividad);
    const double cantbfc = common::textoANumero(mp.persona->cantbfc);
    r.aviso = motivoSinAguinaldo(cantbfc, act.ingreso, act.egreso, mp.mes);
    if (!r.aviso.empty()) return r;
    const bool convenio = grupoConConvenio(mp.consejo.codigoGrupo, mp.consejo.codigoSubgrupo);
    for (const auto& mes : mesesDelSemestre(mp.mes, act.ingreso)) {
        auto fila =
            aguinaldoGeneradoEnElMes(libro, mp.maestros().conceptos, mes, act.numero, convenio);
        libro.escribir(TablaLiquidacion::Aguinaldos, mp.mes, fila);
        auto exp = fila.explicacion;
        r.filas.emplace_back(std::move(fila), std::move(exp));
    }
    r.hecho = true;
    return r;
}

CifrasAguinaldo cifrasDelAguinaldo(const std::vector<FilaMes>& filas) {
    CifrasAguinaldo c;
    for (const auto& f : filas) {
        if (f.tipo == "Hab") c.sumaDeMeses += f.total;
        if (f.tipo == "Des") c.descuentos += f.total;
    }
    c.haberes = Dinero::desdeDouble(c.sumaDeMeses.aDouble() / 12);
    c.liquido = c.descuentos < c.haberes ? c.haberes - c.descuentos : Dinero();
    return c;
}

Dinero montoDelAguinaldo(const LibroPersona& libro, const common::Mes& pago) {
    return cifrasDelAguinaldo(libro.filas(TablaLiquidacion::Aguinaldos, pago)).haberes;
}

Dinero baseDeDescuentos(const LibroPersona& libro, const common::Mes& pago) {
    auto base = montoDelAguinaldo(libro, pago);
    if (pago.mes != 6)
        for (const auto& f : libro.filas(TablaLiquidacion::Salvacacional, pago))
            if (f.concepto.starts_with("SALARIO VACACIONAL")) base += f.total;
    return base;
}

ResultadoPersona descuentosDelAguinaldo(MesPersona& mp, ContextoFormula& ctx,
                                        common::Dialogo& dialogo) {
    auto r = resultadoDe(mp);
    auto& libro = mp.libro();
    libro.borrarTipo(TablaLiquidacion::Aguinaldos, mp.mes, "Des");
    r.hecho = true;
    // Con ficto el único concepto que se lee es "NINGUNO": no se descuenta nada.
    if (ctx.cantbfc != 0) return r;
    ctx.montograv = baseDeDescuentos(libro, mp.mes);
    const auto opciones = opcionesAportesForm43();
    for (const long codigo : codigosDescuento(mp, 0)) {
        const auto* c = mp.maestros().conceptos.porCodigo(codigo);
        if (!c) continue;
        const auto nombre = common::mayusculas(c->concepto);
        if (nombre == "IRP" || nombre == "IRPF") {
            r.filas.push_back(impuesto(mp, ctx, *c, nombre, dialogo));
            continue;
        }
        auto hecha = descuentoDeConcepto(ctx, *c, opciones, dialogo);
        hecha.fila.mes = mp.mes.texto().substr(0, 2);
        r.filas.push_back(std::move(hecha));
    }
    return r;
}

namespace {

// Una persona sola, en junio o diciembre; a quien no le corresponde se le dice por qué.
ResultadoPersona unaPersona(store::Conexion& base, const std::string& empresa,
                            const std::string& nombre, const common::Mes& pago,
                            const char* faltanCampos, common::Dialogo& dialogo,
                            const PasoPersona& paso) {
    if (!empresa.empty() && !nombre.empty() && !esMesDeAguinaldo(pago)) {
        dialogo.avisar(common::TipoAviso::Advertencia, kMesSinAguinaldo);
        ResultadoPersona r;
        r.aviso = kMesSinAguinaldo;
        return r;
    }
    return liquidarUnaPersona(
        base, empresa, nombre, pago, mesesDelAguinaldo(pago), faltanCampos, dialogo,
        [&](MesPersona& mp, ContextoFormula& ctx) {
            auto r = paso(mp, ctx);
            if (r.aviso == kConEgresos)
                dialogo.avisar(common::TipoAviso::Advertencia, r.aviso);
            else if (!r.aviso.empty())
                dialogo.avisar(common::TipoAviso::Informacion,
                               "No le corresponde aguinaldo a " + nombre + ": " + r.aviso + ".");
            return r;
        });
}

}  // namespace

ResultadoPersona haberesAguinaldoDeUnaPersona(store::Conexion& base, const std::string& empresa,
                                              const std::string& nombre, const common::Mes& pago,
                                              int actividad, common::Dialogo& dialogo) {
    return unaPersona(
        base, empresa, nombre, pago, kFaltanCamposHaberesAguinaldo, dialogo,
        [&](MesPersona& mp, ContextoFormula&) { return haberesDelAguinaldo(mp, actividad); });
}

ResultadoPersona descuentosAguinaldoDeUnaPersona(store::Conexion& base, const std::string& empresa,
                                                 const std::string& nombre, const common::Mes& pago,
                                                 common::Dialogo& dialogo) {
    return unaPersona(base, empresa, nombre, pago, kFaltanCamposDescuentosAguinaldo, dialogo,
                      [&](MesPersona& mp, ContextoFormula& ctx) {
                          return descuentosDelAguinaldo(mp, ctx, dialogo);
                      });
}

ResultadoEmpresa aguinaldoDeLaEmpresa(store::Conexion& base, const std::string& empresa,
                                      const common::Mes& pago, int actividad,
                                      common::Dialogo& dialogo, const ProgresoEmpresa& progreso,
                                      const CancelarEmpresa& cancelar) {
    if (empresa.empty()) {
        dialogo.avisar(common::TipoAviso::Advertencia, kFaltaEmpresa);
        return {};
    }
    if (!esMesDeAguinaldo(pago)) {
        dialogo.avisar(common::TipoAviso::Advertencia, kMesSinAguinaldo);
        return {};
    }
    auto lectura =
        std::make_shared<Lectura>(leerCorrida(base, empresa, pago, mesesDelAguinaldo(pago)));
    auto porPersona = [&](const std::shared_ptr<Lectura>& l, PersonaDelMes& p, bool) {
        ContextoFormula ctx;
        auto mp = mesDeLaPersona(l, p, ctx);
        if (const auto m = sueldoNoNumerico(*p.ficha)) {
            auto r = resultadoDe(mp);
            r.aviso = *m;
            dialogo.avisar(common::TipoAviso::Advertencia, r.aviso);
            return r;
        }
        auto r = haberesDelAguinaldo(mp, actividad);
        if (!r.hecho) return r;
        auto d = descuentosDelAguinaldo(mp, ctx, dialogo);
        r.filas.insert(r.filas.end(), std::make_move_iterator(d.filas.begin()),
                       std::make_move_iterator(d.filas.end()));
        return r;
    };
    auto r = recorrerEmpresa(base, std::move(lectura), porPersona, progreso, cancelar);
    if (!r.cancelado && !r.fallo)
        dialogo.avisar(common::TipoAviso::Confirmacion, textoActualizacionFinalizada(r));
    return r;
}

}  // namespace aguinaldo
}  // namespace nomira::engine
