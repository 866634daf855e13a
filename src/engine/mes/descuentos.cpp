#include "engine/mes/descuentos.h"

#include <algorithm>
#include <set>

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/aportes.h"
#include "engine/mes/aportes_lector.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/explicaciones.h"
#include "engine/mes/filas_persona.h"
#include "engine/mes/horas.h"
#include "engine/calculos/irp.h"
#include "engine/mes/irpf_lector.h"
#include "engine/mes/irpf_licencia.h"
#include "engine/calculos/liquido.h"

namespace nomira::engine {

using common::Dinero;

namespace {

// Sin retener las filas: así las que se escriban se llevan al día en su lugar.
bool conHaberes(const std::vector<FilaMes>& filas) {
    return std::any_of(filas.begin(), filas.end(), [](auto& f) { return f.tipo == "Hab"; });
}

bool jornaleroOPorHora(const std::string& tiposueldo) {
    return tiposueldo == "H" || tiposueldo == "J";
}

FilaLiquidada escribir(store::Conexion& base, const MesPersona& mp, FilaGenerada fila,
                       std::string explicacion) {
    escribirFila(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes, fila);
    return {std::move(fila), std::move(explicacion)};
}

// Paso 3: lo que se adelanta de la licencia a jornaleros y por hora, el
// salario vacacional del mes menos su IRPF.
std::optional<FilaLiquidada> adelantoLicencia(store::Conexion& base, const MesPersona& mp,
                                              ContextoFormula& ctx, double licencia,
                                              common::Dialogo& dialogo) {
    Dinero salvac;
    for (const auto& s : leerSalvacacional(base, mp.empresa, mp.nombre, mp.mes, mp.mes))
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
        const auto filaLic = filaPorConcepto(base, mp.empresa, mp.nombre, mp.mes, "LICENCIA");
        const auto r = irpfConAportesDeLicencia(ctx, Dinero::desdeDouble(licencia) + salvac,
                                                Dinero::desdeDouble(licencia),
                                                filaLic ? filaLic->total : Dinero(), dialogo);
        ctx.montograv = guardado;
        irpf = r.irpf.total;
        exp += "; " + r.explicacion + "IRPF de licencia y vacacional " + pesos(irpf);
    }
    salvac -= irpf;
    const auto c = conceptoPorNombre(base, "ADELANTOS LICENCIA");
    if (!c) return std::nullopt;
    auto fila = filaDeConcepto(*c, "Des");
    fila.cant = 1;
    fila.total = salvac;
    return escribir(base, mp, fila, exp + "; adelanto " + pesos(salvac));
}

// Paso 4: un mes anterior con más descuentos que haberes pasa como ADELANTOS.
std::optional<FilaLiquidada> arrastreNegativo(store::Conexion& base, const MesPersona& mp) {
    const auto anterior = mp.mes.anterior();
    Dinero neto;
    for (const auto& f :
         leerFilasDelMes(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, anterior)) {
        if (f.tipo == "Hab") neto += f.total;
        if (f.tipo == "Des") neto -= f.total;
    }
    if (!(neto < Dinero())) return std::nullopt;
    const auto c = conceptoPorNombre(base, "ADELANTOS");
    if (!c) return std::nullopt;
    auto fila = filaDeConcepto(*c, "Des");
    fila.cant = 1;
    fila.total = Dinero() - neto;
    std::string exp = "el " + anterior.texto() + " cerró en " + pesos(neto);
    // Sobre una fila que ya está se acumula.
    if (const auto previa = filaPorCodigo(base, mp.empresa, mp.nombre, mp.mes, fila.codigo)) {
        fila.total += previa->total;
        exp += "; más lo que ya había " + pesos(previa->total);
    }
    return escribir(base, mp, fila, exp);
}

// Paso 5: los permanentes de todos, menos el excluido por su aportación y
// vínculo, y los que concpermxpers le da a la persona; por código y cada código
// una vez. La primera consulta es la misma para todos los de una misma
// exclusión: en la corrida de la empresa se lee una vez.
std::vector<long> codigosDescuento(store::Conexion& base, const MesPersona& mp, double cantbfc) {
    const auto excluido = conceptoExcluido(cantbfc, mp.tipoaporte, mp.vinculofun);
    std::string sql = "SELECT codigo FROM conceptos WHERE tipo = 'Des' AND permanente = 'Si'";
    std::vector<store::Valor> p;
    if (!excluido.empty()) {
        sql += " AND concepto <> ?";
        p.push_back(excluido);
    }
    std::set<long> codigos;
    for (const auto& f : base.consulta(sql, p).filas)
        codigos.insert(static_cast<long>(f.entero(std::size_t{0})));
    if (!tieneConceptosPropios(base, mp, "Des")) return {codigos.begin(), codigos.end()};
    for (const auto& f :
         base.consulta("SELECT concpermxpers.codigo FROM concpermxpers JOIN conceptos ON "
                       "conceptos.codigo = concpermxpers.codigo WHERE concpermxpers.empresa = ? "
                       "AND concpermxpers.nombre = ? AND concpermxpers.tipo = 'Des'",
                       {mp.empresa, mp.nombre})
             .filas)
        codigos.insert(static_cast<long>(f.entero(std::size_t{0})));
    return {codigos.begin(), codigos.end()};
}

}  // namespace

ImporteImpuesto calcularImpuesto(store::Conexion& base, const MesPersona& mp, ContextoFormula& ctx,
                                 const std::string& concepto, common::Dialogo& dialogo) {
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
    const auto filas =
        leerFilasDelMes(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes);
    if (mp.mes.mes == 12) {
        if (excepcionLicencia(mp.tiposueldo, filas)) {
            r.explicacion = "diciembre: su único haber es una licencia, sin IRPF";
            return r;
        }
        const auto dic = CalculoIRPFDic(ctx, false, dialogo);
        r.total = dic.total;
        r.explicacion = dic.explicacion;
        r.irpfDiciembre = dic;
        return r;
    }
    const auto irpf = CalculoIRPF(ctx, mp.desglose.montoirpf, mp.desglose.montonominal,
                                  opcionesIRPFForm42(), dialogo);
    r.total = irpf.total;
    r.concepto = textoFilaIRPF(concepto, irpf, mp.desglose.montoirpf);
    r.explicacion = irpf.explicacion;
    r.irpfMes = irpf;
    return r;
}

std::vector<FilaLiquidada> generarDescuentos(store::Conexion& base, MesPersona& mp,
                                             ContextoFormula& ctx, common::Dialogo& dialogo) {
    std::vector<FilaLiquidada> hechas;
    hechas.reserve(8);  // las filas son grandes: sin mudarlas al crecer
    // Cuántos haberes hay y el total de la última licencia, sin retener las filas.
    std::size_t haberes = 0;
    double licencia = 0;
    for (const auto& f :
         leerFilasDelMes(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes)) {
        if (f.tipo != "Hab") continue;
        ++haberes;
        if (f.concepto == "LICENCIA" || f.concepto == "LICENCIA 2DA ACT")
            licencia = f.total.aDouble();
    }
    const bool unicoHaber = jornaleroOPorHora(mp.tiposueldo) && haberes == 1;

    if (jornaleroOPorHora(mp.tiposueldo) && haberes > 1)
        if (auto f = adelantoLicencia(base, mp, ctx, licencia, dialogo))
            hechas.push_back(std::move(*f));
    if (!unicoHaber)
        if (auto f = arrastreNegativo(base, mp)) hechas.push_back(std::move(*f));

    const auto opciones = opcionesAportesForm42();
    for (const long codigo : codigosDescuento(base, mp, ctx.cantbfc)) {
        const auto c = master::leerConcepto(base, codigo);
        if (!c) continue;
        const auto nombre = common::mayusculas(c->concepto);
        ctx.textoCant.clear();
        if (nombre == "IRP" || nombre == "IRPF") {
            const auto liquido =
                CalculoLiquidoNeto(base, mp.empresa, mp.nombre, mp.mes, opcionesLiquidoForm42());
            ctx.liquidoneto = liquido.liquidoneto;
            ctx.liquidonetograv = liquido.liquidonetograv;
            ctx.montogravalim = liquido.montogravalim;
            const auto imp = calcularImpuesto(base, mp, ctx, nombre, dialogo);
            auto fila = filaDeConcepto(*c, "Des");
            fila.concepto = imp.concepto;
            fila.cant = imp.cant;
            fila.total = imp.total;
            auto hecha = escribir(base, mp, fila, imp.explicacion);
            hecha.irpfMes = imp.irpfMes;
            hecha.irpfDiciembre = imp.irpfDiciembre;
            hechas.push_back(std::move(hecha));
            continue;
        }
        ConceptoDescuento d{codigo,     c->concepto,  c->formula, c->unidad, c->permanente,
                            c->gravado, c->aguinaldo, c->lic,     c->ipd};
        const auto g = generarDescuento(ctx, d, opciones, dialogo);
        auto fila = filaDeConcepto(*c, "Des");
        fila.concepto = g.fila.concepto;
        fila.cant = ctx.cant;
        fila.total = g.fila.total;
        hechas.push_back({fila, g.fila.explicacion});
    }
    guardarExplicaciones(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes, hechas);
    return hechas;
}

ResultadoPersona DescPerm(store::Conexion& base, master::LectorVariables& variables,
                          const std::string& empresa, const std::string& nombre,
                          const common::Mes& mes, common::Dialogo& dialogo) {
    ResultadoPersona r;
    r.empresa = empresa;
    r.nombre = nombre;
    r.mes = mes;
    if (empresa.empty() || nombre.empty()) {
        r.aviso = kFaltanCamposMes;
        dialogo.avisar(common::TipoAviso::Advertencia, r.aviso);
        return r;
    }
    if (hayEgresos(base, empresa, nombre, mes)) {
        r.aviso = kConEgresos;
        dialogo.avisar(common::TipoAviso::Advertencia, r.aviso);
        return r;
    }
    ContextoFormula ctx;
    auto mp = BuscarVerif(base, variables, empresa, nombre, mes, ctx, dialogo);
    if (!mp) {
        r.aviso = "sin empresa o persona";
        return r;
    }
    store::Transaccion t(base);
    r.filas = generarDescuentos(base, *mp, ctx, dialogo);
    t.confirmar();
    r.hecho = true;
    return r;
}

ResultadoEmpresa ActDesPermxEmpresa(store::Conexion& base, master::LectorVariables& variables,
                                    const std::string& empresa, const common::Mes& mes,
                                    common::Dialogo& dialogo, const ProgresoEmpresa& progreso,
                                    const CancelarEmpresa& cancelar) {
    LecturasDeLaCorrida corrida(base, variables, empresa, mes);
    auto porPersona = [&](store::Conexion& base, const master::PersonaCompartida& p) {
        ResultadoPersona r;
        r.empresa = empresa;
        r.nombre = p->nombre;
        r.mes = mes;
        if (hayEgresos(base, empresa, p->nombre, mes)) {
            r.aviso = kConEgresos;
            return r;
        }
        ContextoFormula ctx;
        auto mp = corrida.buscarVerif(base, p, ctx, dialogo);
        if (!mp) return r;
        // Sin haberes no hay descuentos.
        if (!conHaberes(leerFilasDelMes(base, TablaLiquidacion::Habydesc, empresa, p->nombre, mes)))
            return r;
        const auto horas = CalculoCant2(ctx, dialogo);
        for (const auto& f : horas.filas) r.filas.push_back({f, "archivo de horas"});
        auto hechas = generarDescuentos(base, *mp, ctx, dialogo);
        r.filas.insert(r.filas.end(), std::make_move_iterator(hechas.begin()),
                       std::make_move_iterator(hechas.end()));
        r.hecho = true;
        return r;
    };
    auto r = recorrerEmpresa(base, empresa, mes, porPersona, progreso, cancelar);
    if (!r.cancelado && !r.fallo)
        dialogo.avisar(common::TipoAviso::Informacion, kActualizacionFinalizada);
    return r;
}

namespace {

long eliminarDelMes(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                    const common::Mes& mes, const char* tipo, const char* titulo,
                    common::Dialogo& dialogo) {
    if (!dialogo.confirmar(titulo, "¿Desea continuar?")) return -1;
    store::Transaccion t(base);
    const auto borradas =
        borrarTipoDelMes(base, TablaLiquidacion::Habydesc, empresa, nombre, mes, tipo);
    if (std::string(tipo) == "Hab" && borradas > 0)
        base.ejecuta("DELETE FROM salvacacional WHERE empresa = ? AND nombre = ? AND fecha = ?",
                     {empresa, nombre, mes.primerDia().iso()});
    podarExplicaciones(base, TablaLiquidacion::Habydesc, empresa, mes, nombre);
    t.confirmar();
    return static_cast<long>(borradas);
}

}  // namespace

long eliminarDescuentosDelMes(store::Conexion& base, const std::string& empresa,
                              const std::string& nombre, const common::Mes& mes,
                              common::Dialogo& dialogo) {
    return eliminarDelMes(base, empresa, nombre, mes, "Des", "Eliminar Desc.Perm.", dialogo);
}

long eliminarHaberesDelMes(store::Conexion& base, const std::string& empresa,
                           const std::string& nombre, const common::Mes& mes,
                           common::Dialogo& dialogo) {
    return eliminarDelMes(base, empresa, nombre, mes, "Hab", "Eliminar Hab.Perm.", dialogo);
}

}  // namespace nomira::engine
