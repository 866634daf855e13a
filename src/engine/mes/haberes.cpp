#include "engine/mes/haberes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/explicaciones.h"
#include "engine/mes/filas_persona.h"
#include "engine/mes/horas.h"
#include "engine/calculos/primas_antiguedad.h"
#include "store/recordada.h"

namespace nomira::engine {

namespace {

// Vínculos que no cobran un sueldo real: no sirven de referencia al ficto.
constexpr std::array<const char*, 7> kVinculosSinSueldo = {"Patron Unipersonal",
                                                           "Socio con actividad",
                                                           "Socio sin actividad",
                                                           "Socio cooperativista",
                                                           "Conyuge colaborador con actividad",
                                                           "Director con remuneración",
                                                           "Director sin remuneración"};

bool terminaEn(const std::string& s, const std::string& fin) {
    return s.size() >= fin.size() && s.compare(s.size() - fin.size(), fin.size(), fin) == 0;
}

std::string fecha(const common::Mes& mes) {
    return mes.primerDia().iso();
}

// cant de las filas del mes con ese texto (las licencias de un SUELDO).
std::vector<double> cantidadesDe(store::Conexion& base, const MesPersona& mp,
                                 const std::string& concepto) {
    std::vector<double> cants;
    for (const auto& f :
         leerFilasDelMes(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes))
        if (f.concepto == concepto) cants.push_back(f.cant);
    return cants;
}

std::string explicarFormula(const ContextoFormula& ctx) {
    return "Fórmula " + ctx.formula + " = " + ctx.formulaSustituida + " con cantidad " +
           numero(ctx.cant) + ": " + pesos(ctx.total) + ".";
}

// La fila de DIASNOTRABAJADOS de un ingreso a mitad de mes.
void escribirDiasNoTrabajados(store::Conexion& base, const MesPersona& mp, double sueldo, int dias,
                              std::set<long>& codigos, ResultadoPersona& r) {
    const auto c = conceptoPorNombre(base, "DIASNOTRABAJADOS");
    if (!c) return;
    FilaLiquidada fl{filaDeConcepto(*c, "Hab"), ""};
    fl.fila.cant = dias;
    fl.fila.total = common::Dinero::desdeDouble(-(sueldo / 30 * dias));
    fl.explicacion = "Ingreso el " + mp.persona->fechaing + ": " + std::to_string(dias) +
                     " días sin trabajar, -(" + pesos(sueldo) + " / 30 x " + std::to_string(dias) +
                     ") = " + pesos(fl.fila.total) + ".";
    escribirFila(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes, fl.fila, codigos);
    r.filas.push_back(std::move(fl));
}

// Un código repetido en conceptos cuenta una vez: el primero (llegan por código).
void agregarSinRepetir(std::vector<master::Concepto>& lista, const store::FilaAlPaso& f) {
    auto c = master::leerRegistro(f, master::camposConcepto());
    if (lista.empty() || lista.back().codigo != c.codigo) lista.push_back(std::move(c));
}

}  // namespace

std::shared_ptr<const std::vector<master::Concepto>> conceptosPermanentes(store::Conexion& base,
                                                                          const MesPersona& mp,
                                                                          double cantbfc) {
    if (cantbfc != 0) {
        auto lista = std::make_shared<std::vector<master::Concepto>>();
        if (auto c = conceptoPorNombre(base, "SUELDO FICTO")) lista->push_back(std::move(*c));
        return lista;
    }
    // Los permanentes de todos (o de su tipo de sueldo) más los que concpermxpers
    // le da a la persona, por código y cada código una vez. La primera consulta
    // es la misma para todos los de un tipo de sueldo: en la corrida de la
    // empresa se lee una vez.
    auto deTodos = store::consultaConvertida(
        base,
        "SELECT * FROM conceptos WHERE (especificode = ? OR especificode = 'G') AND tipo = 'Hab' "
        "AND permanente = 'Si' ORDER BY codigo",
        {mp.tiposueldo}, agregarSinRepetir);
    if (!tieneConceptosPropios(base, mp, "Hab")) return deTodos;
    const auto propios = master::leerConceptos(base.consulta(
        "SELECT conceptos.* FROM conceptos JOIN concpermxpers ON conceptos.codigo = "
        "concpermxpers.codigo WHERE concpermxpers.empresa = ? AND concpermxpers.nombre = ? AND "
        "concpermxpers.tipo = 'Hab' ORDER BY conceptos.codigo",
        {mp.empresa, mp.nombre}));
    if (propios.empty()) return deTodos;  // ya van por código
    auto lista = std::make_shared<std::vector<master::Concepto>>(*deTodos);
    std::set<std::string> vistos;
    for (const auto& c : *lista) vistos.insert(c.codigo);
    for (const auto& c : propios)
        if (vistos.insert(c.codigo).second) lista->push_back(c);
    std::stable_sort(lista->begin(), lista->end(), [](const auto& a, const auto& b) {
        return common::textoANumero(a.codigo) < common::textoANumero(b.codigo);
    });
    return lista;
}

OpcionesHaberes conArchivoDeHoras() {
    return {CalculoCant};
}

int diasNoTrabajados(const std::string& fechaing, const common::Mes& mes) {
    const auto ing = common::Fecha::desdeTexto(fechaing);
    if (!ing || ing->anio != mes.anio || ing->mes != mes.mes || ing->dia == 1) return 0;
    int dia = ing->dia;
    if (dia == 31) dia = 30;
    // Bisiesto como lo cuenta la planilla: año divisible por 4.
    const bool bisiesto = ing->anio % 4 == 0;
    if (ing->mes == 2 && ((dia == 28 && !bisiesto) || (dia == 29 && bisiesto))) dia = 30;
    return dia - 1;
}

MayorSueldo mayorSueldoDeLaEmpresa(store::Conexion& base, const std::string& empresa,
                                   const common::Mes& mes) {
    MayorSueldo mayor;
    bool hay = false;
    const auto r = base.consulta(
        "SELECT personal.nombre AS nombre, personal.vinculofun AS vinculofun, SUM(habydesc.total) "
        "AS suma FROM personal JOIN habydesc ON habydesc.empresa = personal.empresa AND "
        "habydesc.nombre = personal.nombre WHERE personal.empresa = ? AND habydesc.fecha = ? AND "
        "habydesc.tipo = 'Hab' AND habydesc.gravado = 'Si' GROUP BY personal.nombre, "
        "personal.vinculofun ORDER BY personal.nombre",
        {empresa, fecha(mes)});
    for (const auto& f : r.filas) {
        const std::string v = f.texto("vinculofun");
        if (terminaEn(v, "SAS") || std::find(kVinculosSinSueldo.begin(), kVinculosSinSueldo.end(),
                                             v) != kVinculosSinSueldo.end())
            continue;
        const auto suma = common::Dinero::desdeDouble(f.real("suma"));
        if (!hay || mayor.total < suma) {
            mayor = {f.texto("nombre"), suma};
            hay = true;
        }
    }
    return mayor;
}

ResultadoPersona HabPerm(store::Conexion& base, MesPersona& mp, ContextoFormula& ctx,
                         common::Dialogo& dialogo, const OpcionesHaberes& opciones) {
    ResultadoPersona r{mp.empresa, mp.nombre, mp.mes, false, "", {}};
    if (hayEgresos(base, mp.empresa, mp.nombre, mp.mes)) {
        dialogo.avisar(common::TipoAviso::Advertencia, kYaEnEgresos);
        r.aviso = kYaEnEgresos;
        return r;
    }
    const auto borradas = opciones.borrarDescuentos
                              ? borrarTipoDelMes(base, TablaLiquidacion::Habydesc, mp.empresa,
                                                 mp.nombre, mp.mes, "Des")
                              : 0;
    if (borradas > 0)
        podarExplicaciones(base, TablaLiquidacion::Habydesc, mp.empresa, mp.mes, mp.nombre);
    const bool conHoras = opciones.calculoCant && !opciones.calculoCant(ctx, dialogo).filas.empty();
    // La base del mes que dejó BuscarVerif sólo cambia si se fue algo o llegaron horas.
    if (borradas > 0 || conHoras) refrescarDesglose(base, mp, ctx);

    const auto& cs = mp.consejo;
    auto codigos = codigosDelMes(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes);
    const auto conceptos = conceptosPermanentes(base, mp, ctx.cantbfc);
    r.filas.reserve(r.filas.size() + conceptos->size() + 1);  // y DIASNOTRABAJADOS
    for (const auto& c : *conceptos) {
        ctx.cantarchivo = 0;
        ctx.importearchivo = {};
        ctx.formula = c.formula;
        ctx.textoCant.clear();
        FilaLiquidada fl{filaDeConcepto(c, "Hab"), ""};
        CalculoFormula(ctx, dialogo);
        std::string expl = explicarFormula(ctx);
        const std::string nombre = common::mayusculas(c.concepto);
        double cant = ctx.cant;
        common::Dinero total = common::Dinero::desdeDouble(ctx.total);

        if (nombre == "ALIMENTACION") {
            total = common::Dinero::desdeDouble(std::floor(ctx.total));
            expl += " Sin decimales: " + pesos(total) + ".";
        } else if (esConceptoAntiguedad(nombre)) {
            if (auto prima = CalculoAntiguedad(base, *ctx.variables, *mp.persona, mp.consejo,
                                               ctx.textoCant, mp.mes, dialogo)) {
                cant = prima->cant;
                total = prima->total;
                expl = prima->explicacion;
            }
        } else if (nombre == "SUELDO" || nombre == "SUELDO 2DA ACT") {
            const auto licencias =
                cantidadesDe(base, mp, nombre == "SUELDO" ? "LICENCIA" : "LICENCIA 2DA ACT");
            if (!licencias.empty()) {
                std::string detalle;
                total = sueldoConLicencia(ctx.total, licencias, cs.grupo, cs.subgrupo, &detalle);
                expl += " Con licencia: " + detalle;
            } else if (nombre == "SUELDO") {
                if (const int dias = diasNoTrabajados(mp.persona->fechaing, mp.mes); dias > 0)
                    escribirDiasNoTrabajados(base, mp, ctx.total, dias, codigos, r);
            }
        } else if (nombre == "SUELDO FICTO" && ctx.cantbfc != 30) {
            const auto mayor = mayorSueldoDeLaEmpresa(base, mp.empresa, mp.mes);
            if (!mayor.nombre.empty() && total < mayor.total) {
                dialogo.avisar(common::TipoAviso::Informacion,
                               "El SUELDO FICTO de " + mp.nombre + " corresponde a " +
                                   mayor.nombre + " que es el mayor sueldo.");
                expl += " Menor que el mayor sueldo de la empresa (" + mayor.nombre + ", " +
                        pesos(mayor.total) + "): se toma ese.";
                total = mayor.total;
            }
        }
        fl.fila.cant = cant;
        fl.fila.total = total;
        fl.explicacion = std::move(expl);
        escribirFila(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes, fl.fila,
                     codigos);
        r.filas.push_back(std::move(fl));
    }
    guardarExplicaciones(base, TablaLiquidacion::Habydesc, mp.empresa, mp.nombre, mp.mes, r.filas);
    r.hecho = true;
    return r;
}

ResultadoPersona generarHaberesPermanentes(store::Conexion& base, const std::string& empresa,
                                           const std::string& nombre, const common::Mes& mes,
                                           common::Dialogo& dialogo,
                                           const OpcionesHaberes& opciones) {
    master::LectorVariables variables(base);
    ContextoFormula ctx;
    auto mp = BuscarVerif(base, variables, empresa, nombre, mes, ctx, dialogo);
    if (!mp) return ResultadoPersona{empresa, nombre, mes, false, "", {}};
    store::Transaccion t(base);
    auto r = HabPerm(base, *mp, ctx, dialogo, opciones);
    t.confirmar();
    return r;
}

ResultadoEmpresa ActHamPermxEmpresa(store::Conexion& base, const std::string& empresa,
                                    const common::Mes& mes, common::Dialogo& dialogo,
                                    const OpcionesHaberes& opciones,
                                    const ProgresoEmpresa& progreso,
                                    const CancelarEmpresa& cancelar) {
    {
        store::Transaccion t(base);
        base.ejecuta("DELETE FROM habydesc WHERE empresa = ? AND fecha = ? AND tipo = 'Des'",
                     {empresa, fecha(mes)});
        podarExplicaciones(base, TablaLiquidacion::Habydesc, empresa, mes);
        t.confirmar();
    }
    // Una lectura de las variables y de la empresa para toda la corrida.
    master::LectorVariables variables(base);
    LecturasDeLaCorrida corrida(base, variables, empresa, mes);
    auto deLaCorrida = opciones;
    deLaCorrida.borrarDescuentos = false;
    const auto porPersona = [&](store::Conexion& base, const master::PersonaCompartida& p) {
        ContextoFormula ctx;
        auto mp = corrida.buscarVerif(base, p, ctx, dialogo);
        if (!mp) return ResultadoPersona{empresa, p->nombre, mes, false, "", {}};
        return HabPerm(base, *mp, ctx, dialogo, deLaCorrida);
    };
    return recorrerEmpresa(base, empresa, mes, porPersona, progreso, cancelar);
}

}  // namespace nomira::engine
