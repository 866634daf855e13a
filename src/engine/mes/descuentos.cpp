#include "engine/mes/descuentos.h"

#include <algorithm>
#include <set>

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/aportes.h"
#include "engine/calculos/explicacion.h"
#include "engine/calculos/irp.h"
#include "engine/calculos/liquido.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/escritura.h"
#include "engine/mes/horas.h"
#include "engine/mes/irpf_lector.h"
#include "engine/mes/irpf_licencia.h"
#include "engine/mes/una_persona.h"

namespace nomira::engine {
inline namespace mes {

using common::Dinero;

namespace {

FilaLiquidada escribir(const MesPersona& mp, FilaGenerada fila, std::string explicacion) {
    fila.explicacion = explicacion;
    mp.libro().escribir(TablaLiquidacion::Habydesc, mp.mes, fila);
    return {std::move(fila), std::move(explicacion)};
}

// Paso 3: lo que se adelanta de la licencia a jornaleros y por hora, el
// salario vacacional del mes menos su IRPF.
std::optional<FilaLiquidada> adelantoLicencia(const MesPersona& mp, ContextoFormula& ctx,
                                              double licencia, common::Dialogo& dialogo) {
    const auto& libro = mp.libro();
    Dinero salvac;
    for (const auto& s : libro.filas(TablaLiquidacion::Salvacacional, mp.mes))
        if (s.concepto == "SALARIO VACACIONAL" || s.concepto == "SALARIO VACACIONAL 2DA ACT")
            salvac += s.total;
    std::string exp = "salario vacacional del mes " + pesos(salvac);
    Dinero irpf;
    if (mp.mes.mes != 12) {
        if (mp.tipoaporte != "04" && !vinculoSinAdicion(mp.vinculofun) &&
            licencia + salvac.aDouble() > 10 * mp.bpc) {
            licencia *= 1.06;
            exp += "; licencia más 6% " + pesos(licencia);
        }
        const auto guardado = ctx.montograv;
        const auto* filaLic = libro.porConcepto(TablaLiquidacion::Habydesc, mp.mes, "LICENCIA");
        const auto r = irpfConAportesDeLicencia(ctx, Dinero::desdeDouble(licencia) + salvac,
                                                Dinero::desdeDouble(licencia),
                                                filaLic ? filaLic->total : Dinero(), dialogo);
        ctx.montograv = guardado;
        irpf = r.irpf.total;
        exp += "; " + r.explicacion + "IRPF de licencia y vacacional " + pesos(irpf);
    }
    salvac -= irpf;
    const auto* c = mp.maestros().conceptos.porNombre("ADELANTOS LICENCIA");
    if (!c) return std::nullopt;
    auto fila = filaDeConcepto(*c, "Des");
    fila.cant = 1;
    fila.total = salvac;
    return escribir(mp, fila, exp + "; adelanto " + pesos(salvac));
}

// Paso 4: un mes anterior con más descuentos que haberes pasa como ADELANTOS.
std::optional<FilaLiquidada> arrastreNegativo(const MesPersona& mp) {
    const auto anterior = mp.mes.anterior();
    Dinero neto;
    for (const auto& f : mp.libro().filas(TablaLiquidacion::Habydesc, anterior)) {
        if (f.tipo == "Hab") neto += f.total;
        if (f.tipo == "Des") neto -= f.total;
    }
    if (!(neto < Dinero())) return std::nullopt;
    const auto* c = mp.maestros().conceptos.porNombre("ADELANTOS");
    if (!c) return std::nullopt;
    auto fila = filaDeConcepto(*c, "Des");
    fila.cant = 1;
    fila.total = Dinero() - neto;
    std::string exp = "el " + anterior.texto() + " cerró en " + pesos(neto);
    // Sobre una fila que ya está se acumula.
    if (const auto* previa =
            mp.libro().porCodigo(TablaLiquidacion::Habydesc, mp.mes, fila.codigo)) {
        fila.total += previa->total;
        exp += "; más lo que ya había " + pesos(previa->total);
    }
    return escribir(mp, fila, exp);
}

}  // namespace

std::vector<long> codigosDescuento(const MesPersona& mp, double cantbfc) {
    const auto& m = mp.maestros();
    const auto excluido = conceptoExcluido(cantbfc, mp.tipoaporte, mp.vinculofun);
    std::set<long> codigos;
    for (const auto& c : m.conceptos.todos())
        if (c.tipo == "Des" && c.permanente == "Si" && (excluido.empty() || c.concepto != excluido))
            codigos.insert(static_cast<long>(common::textoANumero(c.codigo)));
    for (const long codigo : m.propiosDe(mp.nombre, "Des"))
        if (m.conceptos.porCodigo(codigo)) codigos.insert(codigo);
    return {codigos.begin(), codigos.end()};
}

FilaLiquidada descuentoDeConcepto(ContextoFormula& ctx, const master::Concepto& c,
                                  const OpcionesAportes& opciones, common::Dialogo& dialogo) {
    const auto codigo = static_cast<long>(common::textoANumero(c.codigo));
    ConceptoDescuento d{codigo,    c.concepto,  c.formula, c.unidad, c.permanente,
                        c.gravado, c.aguinaldo, c.lic,     c.ipd};
    DescuentoGenerado g;
    try {
        g = generarDescuento(ctx, d, opciones, dialogo);
    } catch (const common::Fallo& f) {
        throw fallaEnConcepto(f, c);
    }
    auto fila = filaDeConcepto(c, "Des");
    fila.concepto = g.fila.concepto;
    fila.cant = ctx.cant;
    fila.total = g.fila.total;
    return {fila, g.fila.explicacion};
}

ImporteImpuesto calcularImpuesto(const MesPersona& mp, ContextoFormula& ctx,
                                 const std::string& concepto, common::Dialogo& dialogo,
                                 TablaLiquidacion tabla) {
    const bool egresos = tabla == TablaLiquidacion::Egresos;
    ImporteImpuesto r;
    r.concepto = concepto;
    if (concepto == "IRP") {
        const auto irp = CalculoIRP(ctx);
        r.cant = irp.cant;
        r.total = Dinero::desdeDouble(irp.total);
        r.explicacion = "IRP sobre " + pesos(ctx.montograv) + " = " + pesos(r.total);
        return r;
    }
    r.cant = ctx.textoCant.empty() ? 1 : common::textoANumero(ctx.textoCant);
    if (mp.mes.mes == 12) {
        if (excepcionLicencia(mp.tiposueldo, mp.libro().filas(tabla, mp.mes))) {
            r.explicacion = "diciembre: su único haber es una licencia, sin IRPF";
            return r;
        }
        const auto dic = CalculoIRPFDic(ctx, egresos, dialogo);
        r.total = dic.total;
        r.explicacion = dic.explicacion;
        r.irpfDiciembre = dic;
        return r;
    }
    const auto irpf = CalculoIRPF(ctx, mp.desglose.montoirpf, mp.desglose.montonominal,
                                  egresos ? opcionesIRPFForm45() : opcionesIRPFForm42(), dialogo);
    r.total = irpf.total;
    r.concepto = textoFilaIRPF(concepto, irpf, mp.desglose.montoirpf);
    r.explicacion = irpf.explicacion;
    r.irpfMes = irpf;
    return r;
}

std::vector<FilaLiquidada> generarDescuentos(MesPersona& mp, ContextoFormula& ctx,
                                             common::Dialogo& dialogo) {
    std::vector<FilaLiquidada> hechas;
    hechas.reserve(8);  // las filas son grandes: sin mudarlas al crecer
    // Cuántos haberes hay y el total de la última licencia.
    std::size_t haberes = 0;
    double licencia = 0;
    for (const auto& f : mp.libro().filas(TablaLiquidacion::Habydesc, mp.mes)) {
        if (f.tipo != "Hab") continue;
        ++haberes;
        if (f.concepto == "LICENCIA" || f.concepto == "LICENCIA 2DA ACT")
            licencia = f.total.aDouble();
    }
    const bool unicoHaber = jornaleroOPorHora(mp.tiposueldo) && haberes == 1;

    if (jornaleroOPorHora(mp.tiposueldo) && haberes > 1)
        if (auto f = adelantoLicencia(mp, ctx, licencia, dialogo)) hechas.push_back(std::move(*f));
    if (!unicoHaber)
        if (auto f = arrastreNegativo(mp)) hechas.push_back(std::move(*f));

    const auto opciones = opcionesAportesForm42();
    for (const long codigo : codigosDescuento(mp, ctx.cantbfc)) {
        const auto* c = mp.maestros().conceptos.porCodigo(codigo);
        if (!c) continue;
        const auto nombre = common::mayusculas(c->concepto);
        ctx.textoCant.clear();
        if (nombre == "IRP" || nombre == "IRPF") {
            const auto liquido = liquidoNeto(mp.libro().filas(TablaLiquidacion::Habydesc, mp.mes),
                                             opcionesLiquidoForm42());
            ctx.liquidoneto = liquido.liquidoneto;
            ctx.liquidonetograv = liquido.liquidonetograv;
            ctx.montogravalim = liquido.montogravalim;
            const auto imp = calcularImpuesto(mp, ctx, nombre, dialogo);
            auto fila = filaDeConcepto(*c, "Des");
            fila.concepto = imp.concepto;
            fila.cant = imp.cant;
            fila.total = imp.total;
            auto hecha = escribir(mp, fila, imp.explicacion);
            hecha.irpfMes = imp.irpfMes;
            hecha.irpfDiciembre = imp.irpfDiciembre;
            hechas.push_back(std::move(hecha));
            continue;
        }
        hechas.push_back(descuentoDeConcepto(ctx, *c, opciones, dialogo));
    }
    return hechas;
}

ResultadoPersona descuentosDeUnaPersona(store::Conexion& base, const std::string& empresa,
                                        const std::string& nombre, const common::Mes& mes,
                                        common::Dialogo& dialogo) {
    return liquidarUnaPersona(base, empresa, nombre, mes, mesesDelRenglon(mes), kFaltanCamposMes,
                              dialogo, [&](MesPersona& mp, ContextoFormula& ctx) {
                                  ResultadoPersona r;
                                  r.empresa = empresa;
                                  r.nombre = nombre;
                                  r.mes = mes;
                                  if (mp.libro().hayEgresos(mes)) {
                                      r.aviso = kConEgresos;
                                      dialogo.avisar(common::TipoAviso::Advertencia, r.aviso);
                                      return r;
                                  }
                                  r.filas = generarDescuentos(mp, ctx, dialogo);
                                  r.hecho = true;
                                  return r;
                              });
}

ResultadoEmpresa descuentosDeLaEmpresa(store::Conexion& base, const std::string& empresa,
                                       const common::Mes& mes, common::Dialogo& dialogo,
                                       const ProgresoEmpresa& progreso,
                                       const CancelarEmpresa& cancelar) {
    auto lectura = std::make_shared<Lectura>(leerCorrida(base, empresa, mes, mesesDelMes(mes)));
    auto porPersona = [&](const std::shared_ptr<Lectura>& l, PersonaDelMes& p, bool activa) {
        ResultadoPersona r;
        r.empresa = empresa;
        r.nombre = p.ficha->nombre;
        r.mes = mes;
        if (!activa) return r;
        if (p.libro.hayEgresos(mes)) {
            r.aviso = kConEgresos;
            return r;
        }
        // Sin haberes no hay descuentos.
        if (!p.libro.tiene(TablaLiquidacion::Habydesc, mes, "Hab")) return r;
        if (const auto m = sueldoNoNumerico(*p.ficha)) {
            r.aviso = *m;
            dialogo.avisar(common::TipoAviso::Advertencia, r.aviso);
            return r;
        }
        ContextoFormula ctx;
        auto mp = mesDeLaPersona(l, p, ctx);
        const auto horas = CalculoCant2(ctx, dialogo);
        for (const auto& f : horas.filas) r.filas.push_back({f, "archivo de horas"});
        auto hechas = generarDescuentos(mp, ctx, dialogo);
        r.filas.insert(r.filas.end(), std::make_move_iterator(hechas.begin()),
                       std::make_move_iterator(hechas.end()));
        r.hecho = true;
        return r;
    };
    auto r = recorrerEmpresa(base, std::move(lectura), porPersona, progreso, cancelar);
    if (!r.cancelado && !r.fallo)
        dialogo.avisar(common::TipoAviso::Informacion, textoActualizacionFinalizada(r));
    return r;
}

std::string textoActualizacionFinalizada(const ResultadoEmpresa& r) {
    const auto hechas = std::count_if(r.personas.begin(), r.personas.end(),
                                      [](const ResultadoPersona& p) { return p.hecho; });
    const auto mes = r.personas.empty() ? std::string() : r.personas.front().mes.texto();
    return std::string(kActualizacionFinalizada) + "\n" + std::to_string(hechas) +
           (hechas == 1 ? " persona liquidada" : " personas liquidadas") +
           (mes.empty() ? "" : " del mes " + mes) + ".";
}

long eliminarDescuentosDelMes(store::Conexion& base, const std::string& empresa,
                              const std::string& nombre, const common::Mes& mes,
                              common::Dialogo& dialogo) {
    if (!dialogo.confirmar("Eliminar Desc.Perm.", "¿Desea continuar?")) return -1;
    return static_cast<long>(borrarTipoDelMes(base, empresa, nombre, mes, "Des"));
}

long eliminarHaberesDelMes(store::Conexion& base, const std::string& empresa,
                           const std::string& nombre, const common::Mes& mes,
                           common::Dialogo& dialogo) {
    if (!dialogo.confirmar("Eliminar Hab.Perm.", "¿Desea continuar?")) return -1;
    return static_cast<long>(borrarTipoDelMes(base, empresa, nombre, mes, "Hab"));
}

}  // namespace mes
}  // namespace nomira::engine
