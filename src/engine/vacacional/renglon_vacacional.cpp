#include "engine/vacacional/renglon_vacacional.h"

#include "common/formato.h"
#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/explicacion.h"
#include "engine/calculos/irp.h"
#include "engine/mes/escritura.h"
#include "engine/mes/irpf_lector.h"
#include "engine/mes/renglon.h"
#include "engine/vacacional/desglose_vacacional.h"

namespace nomira::engine {
inline namespace vacacional {

using common::Dinero;

namespace {

bool blanco(const std::string& s) {
    return s.find_first_not_of(' ') == std::string::npos;
}

std::string ddmmyy(const std::string& iso) {
    const auto f = common::Fecha::desdeTexto(iso);
    return f ? f->ddmmyy() : "";
}

// IRP con importe: el nombre, un blanco y la base y el impuesto "##,##0" en 8.
std::string textoIRP(const std::string& nombre, Dinero base, Dinero irp) {
    const auto ocho = [](Dinero d) {
        return common::alinearDerecha(common::formatear(d.aDouble(), "##,##0"), 8);
    };
    return nombre + " " + ocho(base) + " - " + ocho(irp);
}

// IRPF con importe: el nombre, cuatro blancos, la base "##,##0.00" en 10 y
// seis blancos.
std::string textoIRPF(const std::string& nombre, Dinero base) {
    return nombre + "    " +
           common::alinearDerecha(common::formatear(base.aDouble(), "##,##0.00"), 10) + "      ";
}

// La fecha de una casilla del período como se guarda: "" si está vacía, nada
// si no es una fecha.
std::optional<std::string> fechaIso(const std::string& texto) {
    if (blanco(texto)) return std::string();
    if (const auto f = common::Fecha::desdeTexto(texto)) return f->iso();
    return std::nullopt;
}

std::string noEsFecha(const char* campo, const std::string& texto) {
    return std::string("El campo ") + campo +
           " debe tener una fecha que exista, con el formato dd/mm/aa: \"" + texto + "\" no lo es.";
}

void cargarFila(VacacionalBuscado& b) {
    const auto* f = b.mp.libro().porCodigo(TablaLiquidacion::Salvacacional, b.mp.mes, b.codigo);
    b.existe = f != nullptr;
    b.calculo = {};
    b.calculo.texto = b.concepto.concepto;
    b.textoCant = b.textoTotal = b.desdelic = b.hastalic = "";
    if (!f) return;
    b.textoCant = common::numeroATexto(f->cant);
    b.textoTotal = common::numeroATexto(f->total.aDouble());
    b.desdelic = ddmmyy(f->desdelic);
    b.hastalic = ddmmyy(f->hastalic);
    b.calculo.texto = f->concepto;
    b.calculo.cant = f->cant;
    b.calculo.total = f->total;
    b.calculo.explicacion = f->explicacion;
}

}  // namespace

ResultadoBuscarVacacional buscarVacacional(store::Conexion& base, const ClaveVacacional& clave,
                                           ContextoFormula& ctx, common::Dialogo& dialogo) {
    ResultadoBuscarVacacional r;
    if (blanco(clave.empresa) || blanco(clave.nombre) || !clave.mes || blanco(clave.codigo)) {
        dialogo.avisar(common::TipoAviso::Advertencia, kFaltanCamposVacacional);
        return r;
    }
    auto mp = leerMesDeLaPersona(base, clave.empresa, clave.nombre, *clave.mes, ctx, dialogo);
    if (!mp) return r;
    const master::Concepto* c = nullptr;
    long codigo = 0;
    if (common::esNumerico(clave.codigo)) {
        codigo = static_cast<long>(common::textoANumero(clave.codigo));
        c = mp->maestros().conceptos.porCodigo(codigo);
    }
    if (!c) {
        dialogo.avisar(common::TipoAviso::Advertencia, master::kCodigoInexistente);
        r.limpiarCasillas = true;
        return r;
    }
    VacacionalBuscado b;
    b.concepto = *c;
    b.codigo = codigo;
    b.persona = {ctx.sueldo, mp->tiposueldo, ctx.htrab, ctx.cantbfc};
    b.mp = std::move(*mp);
    cargarFila(b);
    cargarContextoVacacional(b.mp, ctx);
    r.buscado = std::move(b);
    return r;
}

CalculoVacacional calcularVacacional(VacacionalBuscado& b, ContextoFormula& ctx,
                                     const std::string& textoCant, common::Dialogo& dialogo) {
    cargarContextoVacacional(b.mp, ctx);
    ctx.textoCant = textoCant;
    const auto& c = b.concepto;
    const auto nombre = common::mayusculas(c.concepto);
    const double cantTecleada = textoCant.empty() ? 1 : common::textoANumero(textoCant);
    CalculoVacacional r;
    r.texto = c.concepto;
    if (nombre == "IRP") {
        const auto irp = CalculoIRP(ctx);
        r.cant = irp.cant;
        r.total = Dinero::desdeDouble(irp.total);
        r.explicacion =
            "IRP sobre el salario vacacional " + pesos(ctx.montograv) + " = " + pesos(r.total);
        if (r.total != Dinero()) r.texto = textoIRP(c.concepto, ctx.montograv, r.total);
    } else if (nombre == "IRPF") {
        const auto irpf = CalculoIRPF(ctx, ctx.montosv, Dinero(), opcionesIRPFForm44(), dialogo);
        r.cant = cantTecleada;
        r.total = irpf.total;
        r.irpf = irpf;
        r.explicacion =
            "salario vacacional (606 y 636) " + pesos(ctx.montosv) + "; " + irpf.explicacion;
        if (r.total != Dinero()) r.texto = textoIRPF(c.concepto, ctx.montosv);
    } else if (nombre == "LICENCIA") {
        // La licencia se liquida en el mes; aquí queda lo que se teclee.
        r.cant = cantTecleada;
        r.total = b.calculo.total;
        r.explicacion = "La licencia no se calcula en el salario vacacional.";
    } else {
        ctx.cantarchivo = 0;
        ctx.importearchivo = Dinero();
        ctx.psnis = 0;
        ctx.pfocer = Dinero();
        ctx.formula = c.formula;
        try {
            calcularFormula(ctx, opcionesForm44(), dialogo);
        } catch (const common::Fallo& f) {
            throw fallaEnConcepto(f, c);
        }
        r.cant = ctx.cant;
        r.total = Dinero::desdeDouble(ctx.total);
        r.explicacion = explicarFormula(ctx);
    }
    b.calculo = r;
    return r;
}

std::optional<std::string> guardarVacacional(store::Conexion& base, VacacionalBuscado& b,
                                             ContextoFormula& ctx, const CasillasVacacional& c,
                                             common::Dialogo& dialogo) {
    auto rechazar = [&](std::string m) -> std::optional<std::string> {
        dialogo.avisar(common::TipoAviso::Advertencia, m);
        return m;
    };
    if (c.total.empty()) return rechazar(kFaltaTotal);
    // Sólo se controla el tipo: los descuentos van libres.
    if (b.concepto.tipo == "Hab" && !esHaberVacacional(b.concepto.concepto))
        return rechazar(kUnicoHaberVacacional);
    const auto desde = fechaIso(c.desdelic);
    if (!desde) return rechazar(noEsFecha("Desde", c.desdelic));
    const auto hasta = fechaIso(c.hastalic);
    if (!hasta) return rechazar(noEsFecha("Hasta", c.hastalic));

    store::Transaccion t(base);
    if (!releerBajoClave(base, b.mp, ctx, dialogo)) return std::string();
    FilaMes fila;
    fila.codigo = b.codigo;
    fila.concepto = b.calculo.texto;
    fila.unidad = b.concepto.unidad;
    fila.cant = common::textoANumero(c.cant);
    fila.total = Dinero::desdeDouble(common::textoANumero(c.total));
    fila.desdelic = *desde;
    fila.hastalic = *hasta;
    fila.explicacion = b.calculo.explicacion;
    if (fila.total != b.calculo.total)
        fila.explicacion += (fila.explicacion.empty() ? "" : " ") +
                            std::string("Total tecleado: ") + pesos(fila.total) + ".";
    auto& libro = b.mp.libro();
    libro.borrarCodigo(TablaLiquidacion::Salvacacional, b.mp.mes, b.codigo);
    libro.escribir(TablaLiquidacion::Salvacacional, b.mp.mes, fila);
    escribirLibro(base, libro);
    t.confirmar();
    cargarFila(b);
    cargarContextoVacacional(b.mp, ctx);
    return std::nullopt;
}

std::optional<std::string> eliminarVacacional(store::Conexion& base, VacacionalBuscado& b,
                                              ContextoFormula& ctx, common::Dialogo& dialogo) {
    if (!dialogo.confirmar(kTituloEliminarHaber, "¿Desea continuar?")) return "";
    store::Transaccion t(base);
    if (!releerBajoClave(base, b.mp, ctx, dialogo)) return std::string();
    auto& libro = b.mp.libro();
    libro.borrarCodigo(TablaLiquidacion::Salvacacional, b.mp.mes, b.codigo);
    escribirLibro(base, libro);
    t.confirmar();
    cargarFila(b);
    cargarContextoVacacional(b.mp, ctx);
    return std::nullopt;
}

}  // namespace vacacional
}  // namespace nomira::engine
