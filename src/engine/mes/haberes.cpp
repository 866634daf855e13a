#include "engine/mes/haberes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/explicacion.h"
#include "engine/calculos/vinculos.h"
#include "engine/mes/escritura.h"
#include "engine/mes/horas.h"
#include "engine/mes/primas_antiguedad_lector.h"

namespace nomira::engine {
inline namespace mes {

namespace {

// cant de las filas del mes con ese texto (las licencias de un SUELDO).
std::vector<double> cantidadesDe(const MesPersona& mp, const std::string& concepto) {
    std::vector<double> cants;
    for (const auto& f : mp.libro().filas(TablaLiquidacion::Habydesc, mp.mes))
        if (f.concepto == concepto) cants.push_back(f.cant);
    return cants;
}

// La fila de DIASNOTRABAJADOS de un ingreso a mitad de mes.
void escribirDiasNoTrabajados(const MesPersona& mp, double sueldo, int dias, ResultadoPersona& r) {
    const auto* c = mp.maestros().conceptos.porNombre("DIASNOTRABAJADOS");
    if (!c) return;
    FilaLiquidada fl{filaDeConcepto(*c, "Hab"), ""};
    fl.fila.cant = dias;
    fl.fila.total = common::Dinero::desdeDouble(-(sueldo / 30 * dias));
    fl.explicacion = "Ingreso el " + mp.persona->fechaing + ": " + std::to_string(dias) +
                     " días sin trabajar, -(" + pesos(sueldo) + " / 30 x " + std::to_string(dias) +
                     ") = " + pesos(fl.fila.total) + ".";
    fl.fila.explicacion = fl.explicacion;
    mp.libro().escribir(TablaLiquidacion::Habydesc, mp.mes, fl.fila);
    r.filas.push_back(std::move(fl));
}

long codigoDe(const master::Concepto& c) {
    return static_cast<long>(common::textoANumero(c.codigo));
}

}  // namespace

std::vector<const master::Concepto*> conceptosPermanentes(const Maestros& maestros,
                                                          const MesPersona& mp, double cantbfc) {
    std::vector<const master::Concepto*> lista;
    if (cantbfc != 0) {
        if (const auto* c = maestros.conceptos.porNombre("SUELDO FICTO")) lista.push_back(c);
        return lista;
    }
    // Los permanentes de todos (o de su tipo de sueldo) más los que concpermxpers
    // le da a la persona, por código y cada código una vez (el primero).
    const auto propios = maestros.propiosDe(mp.nombre, "Hab");
    for (const auto& c : maestros.conceptos.todos()) {
        const bool permanente = (c.especificode == mp.tiposueldo || c.especificode == "G") &&
                                c.tipo == "Hab" && c.permanente == "Si";
        const bool propio = std::find(propios.begin(), propios.end(), codigoDe(c)) != propios.end();
        if (!permanente && !propio) continue;
        if (!lista.empty() && codigoDe(*lista.back()) == codigoDe(c)) continue;
        lista.push_back(&c);
    }
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

MayorSueldo mayorSueldoDeLaEmpresa(const Lectura& lectura) {
    // Por nombre, como los recorre la planilla: en un empate queda el primero.
    std::vector<std::pair<std::string, common::Dinero>> sumas;
    for (const auto& p : lectura.personas) {
        if (!cobraSueldoReal(p.ficha->vinculofun)) continue;
        common::Dinero suma;
        bool tiene = false;
        for (const auto& f : p.libro.filas(TablaLiquidacion::Habydesc, lectura.mes))
            if (f.tipo == "Hab" && f.gravado == "Si") {
                suma += f.total;
                tiene = true;
            }
        if (tiene) sumas.emplace_back(p.ficha->nombre, suma);
    }
    std::sort(sumas.begin(), sumas.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    MayorSueldo mayor;
    bool hay = false;
    for (const auto& [nombre, suma] : sumas)
        if (!hay || mayor.total < suma) {
            mayor = {nombre, suma};
            hay = true;
        }
    return mayor;
}

ResultadoPersona haberesDelMes(MesPersona& mp, ContextoFormula& ctx, common::Dialogo& dialogo,
                               const OpcionesHaberes& opciones) {
    ResultadoPersona r{mp.empresa, mp.nombre, mp.mes, false, "", {}};
    auto& libro = mp.libro();
    if (libro.hayEgresos(mp.mes)) {
        dialogo.avisar(common::TipoAviso::Advertencia, kYaEnEgresos);
        r.aviso = kYaEnEgresos;
        return r;
    }
    if (const auto m = sueldoNoNumerico(*mp.persona)) {
        dialogo.avisar(common::TipoAviso::Advertencia, *m);
        r.aviso = *m;
        return r;
    }
    const auto borradas =
        opciones.borrarDescuentos ? libro.borrarTipo(TablaLiquidacion::Habydesc, mp.mes, "Des") : 0;
    const bool conHoras = opciones.calculoCant && !opciones.calculoCant(ctx, dialogo).filas.empty();
    // La base del mes sólo cambia si se fue algo o llegaron horas.
    if (borradas > 0 || conHoras) refrescarDesglose(mp, ctx);

    const auto& cs = mp.consejo;
    const auto conceptos = conceptosPermanentes(mp.maestros(), mp, ctx.cantbfc);
    r.filas.reserve(conceptos.size() + 1);  // y DIASNOTRABAJADOS
    for (const auto* c : conceptos) {
        ctx.cantarchivo = 0;
        ctx.importearchivo = {};
        ctx.formula = c->formula;
        ctx.textoCant.clear();
        FilaLiquidada fl{filaDeConcepto(*c, "Hab"), ""};
        try {
            CalculoFormula(ctx, dialogo);
        } catch (const common::Fallo& f) {
            throw fallaEnConcepto(f, *c);
        }
        std::string expl = explicarFormula(ctx);
        const std::string nombre = common::mayusculas(c->concepto);
        double cant = ctx.cant;
        common::Dinero total = common::Dinero::desdeDouble(ctx.total);

        if (nombre == "ALIMENTACION") {
            total = common::Dinero::desdeDouble(std::floor(ctx.total));
            expl += " Sin decimales: " + pesos(total) + ".";
        } else if (esConceptoAntiguedad(nombre)) {
            if (auto prima =
                    CalculoAntiguedad(mp.maestros(), *mp.persona, ctx.textoCant, mp.mes, dialogo)) {
                cant = prima->cant;
                total = prima->total;
                expl = prima->explicacion;
            }
        } else if (nombre == "SUELDO" || nombre == "SUELDO 2DA ACT") {
            const auto licencias =
                cantidadesDe(mp, nombre == "SUELDO" ? "LICENCIA" : "LICENCIA 2DA ACT");
            if (!licencias.empty()) {
                std::string detalle;
                total = sueldoConLicencia(ctx.total, licencias, cs.grupo, cs.subgrupo, &detalle);
                expl += " Con licencia: " + detalle;
            } else if (nombre == "SUELDO") {
                if (const int dias = diasNoTrabajados(mp.persona->fechaing, mp.mes); dias > 0)
                    escribirDiasNoTrabajados(mp, ctx.total, dias, r);
            }
        } else if (nombre == "SUELDO FICTO" && ctx.cantbfc != 30) {
            const auto mayor = mayorSueldoDeLaEmpresa(*mp.lectura);
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
        fl.fila.explicacion = expl;
        fl.explicacion = std::move(expl);
        libro.escribir(TablaLiquidacion::Habydesc, mp.mes, fl.fila);
        r.filas.push_back(std::move(fl));
    }
    r.hecho = true;
    return r;
}

ResultadoPersona generarHaberesPermanentes(store::Conexion& base, const std::string& empresa,
                                           const std::string& nombre, const common::Mes& mes,
                                           common::Dialogo& dialogo,
                                           const OpcionesHaberes& opciones) {
    store::Transaccion t(base);
    bloquearMes(base, empresa, nombre, mes);
    ContextoFormula ctx;
    auto mp = leerMesDeLaPersona(base, empresa, nombre, mes, ctx, dialogo);
    if (!mp) return ResultadoPersona{empresa, nombre, mes, false, "", {}};
    if (opciones.calculoCant && jornaleroOPorHora(mp->tiposueldo))
        avisarSinArchivoDeHoras(mp->maestros(), dialogo);
    auto r = haberesDelMes(*mp, ctx, dialogo, opciones);
    escribirLibro(base, mp->libro());
    t.confirmar();
    return r;
}

ResultadoEmpresa haberesDeLaEmpresa(store::Conexion& base, const std::string& empresa,
                                    const common::Mes& mes, common::Dialogo& dialogo,
                                    const OpcionesHaberes& opciones,
                                    const ProgresoEmpresa& progreso,
                                    const CancelarEmpresa& cancelar) {
    borrarTipoDeLaEmpresa(base, empresa, mes, "Des");
    auto lectura = std::make_shared<Lectura>(leerCorrida(base, empresa, mes, mesesDelMes(mes)));
    // Una vez por corrida, si alguien cobra por jornal o por hora.
    if (opciones.calculoCant &&
        std::any_of(lectura->personas.begin(), lectura->personas.end(), [&](const auto& p) {
            return jornaleroOPorHora(p.ficha->tiposueldo) && activaEnElMes(*p.ficha, mes);
        }))
        avisarSinArchivoDeHoras(lectura->maestros, dialogo);
    auto deLaCorrida = opciones;
    deLaCorrida.borrarDescuentos = false;
    const auto porPersona = [&](const std::shared_ptr<Lectura>& l, PersonaDelMes& p, bool activa) {
        ContextoFormula ctx;
        auto mp = mesDeLaPersona(l, p, ctx);
        if (activa) return haberesDelMes(mp, ctx, dialogo, deLaCorrida);
        // Quien no trabaja en el mes igual recibe lo que el reloj le marcó.
        if (opciones.calculoCant) opciones.calculoCant(ctx, dialogo);
        return ResultadoPersona{empresa, p.ficha->nombre, mes, false, "", {}};
    };
    return recorrerEmpresa(base, std::move(lectura), porPersona, progreso, cancelar);
}

}  // namespace mes
}  // namespace nomira::engine
