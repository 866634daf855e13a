#include "engine/egreso/ipd.h"

#include <algorithm>
#include <map>

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/aguinaldo/aguinaldo.h"
#include "engine/calculos/aguinaldo.h"
#include "engine/calculos/licencia_dias.h"
#include "engine/formulas/formula.h"
#include "master/personal.h"

namespace nomira::engine {
inline namespace egreso {

using common::Dinero;
using common::Fecha;
using common::Mes;

namespace {

Dinero dinero(double x) {
    return Dinero::desdeDouble(x);
}

// Los días trabajados de un mes en la actividad: lo liquidado en el mes y lo
// que dejó el egreso.
double diasTrabajados(const LibroPersona& libro, const Mes& mes, const std::string& tiposueldo,
                      int actividad) {
    double dias = 0;
    for (const auto t : {TablaLiquidacion::Habydesc, TablaLiquidacion::Egresos})
        for (const auto& f : libro.filas(t, mes)) {
            const auto c = common::mayusculas(f.concepto);
            if (esDiaTrabajado(c, tiposueldo) && esDeLaActividad(c, actividad)) dias += f.cant;
        }
    return dias;
}

// Un período por año, del ingreso al egreso, con sus días trabajados.
std::vector<PeriodoIpd> periodos(const LibroPersona& libro, const EgresoDeLaActividad& a,
                                 const std::string& tiposueldo) {
    std::vector<PeriodoIpd> v;
    for (int anio = a.ingreso->anio; anio <= a.egreso->anio; ++anio) {
        PeriodoIpd p;
        p.desde = std::max(*a.ingreso, Fecha{anio, 1, 1});
        p.hasta = std::min(*a.egreso, Fecha{anio, 12, 31});
        for (Mes m = Mes::de(p.desde); m <= Mes::de(p.hasta); m = m.siguiente())
            p.dias += diasTrabajados(libro, m, tiposueldo, a.numero);
        v.push_back(p);
    }
    return v;
}

// Por código, en orden: lo sumado en el año móvil de las filas con ipd = 'Si'.
std::vector<IncidenciaLicencia> sumadasConIpd(const LibroPersona& libro, const Maestros& maestros,
                                              const AnioMobil& anio, int actividad) {
    std::map<long, IncidenciaLicencia> porCodigo;
    for (const auto& m : anio.meses)
        for (const auto& f : libro.filas(TablaLiquidacion::Habydesc, m))
            if (f.ipd == "Si" && esDeLaActividad(f.concepto, actividad))
                sumarIncidencia(porCodigo, f);
    std::vector<IncidenciaLicencia> v;
    for (auto& [codigo, inc] : porCodigo) {
        if (const auto* c = maestros.conceptos.porCodigo(codigo)) inc.formula = c->formula;
        v.push_back(inc);
    }
    return v;
}

// CalculoTotalHaberesEgresos: los haberes del egreso en su mes.
Dinero totalHaberesEgresos(const LibroPersona& libro, const Mes& mes) {
    Dinero total;
    for (const auto& f : libro.filas(TablaLiquidacion::Egresos, mes))
        if (f.tipo == "Hab") total += f.total;
    return total;
}

// CalculoAntAlim: la antigüedad de un mes, en habydesc y luego en egresos.
Dinero antiguedadDelMes(const LibroPersona& libro, const Mes& mes) {
    Dinero total;
    for (const auto t : {TablaLiquidacion::Habydesc, TablaLiquidacion::Egresos})
        for (const auto& f : libro.filas(t, mes)) {
            const auto c = common::mayusculas(f.concepto);
            if (c == "ANTIGUEDAD" || c == "ANTIGUEDAD 2DA ACT" || c == "ANTIGUEDAD 3RA ACT")
                total += f.total;
        }
    return total;
}

// Los jornaleros y por hora deben tener tecleados los días del mes de egreso.
const char* faltaTecleado(const LibroPersona& libro, const Mes& mes, const std::string& tiposueldo,
                          int actividad) {
    const auto suf = sufijoActividad(actividad);
    const auto hay = [&](const std::string& concepto) {
        const auto& filas = libro.filas(TablaLiquidacion::Egresos, mes);
        return std::any_of(filas.begin(), filas.end(), [&](const FilaMes& f) {
            return common::mayusculas(f.concepto) == concepto + suf;
        });
    };
    if (tiposueldo == "J" && !hay("JORNALES")) return kJornalesManual;
    if (tiposueldo == "H" && !(hay("HORAS") && hay("JORNADAS EN EL MES"))) return kHorasManual;
    return nullptr;
}

Ipd avisar(common::Dialogo& dialogo, const char* texto) {
    dialogo.avisar(common::TipoAviso::Advertencia, texto);
    return Ipd{texto, std::nullopt};
}

}  // namespace

EgresoDeLaActividad egresoDe(const master::Persona& p, int actividad) {
    EgresoDeLaActividad a;
    a.numero = actividad == 2 || actividad == 3 ? actividad : 1;
    a.sufijo = sufijoActividad(a.numero);
    const auto elegir = [&](const std::string& x1, const std::string& x2, const std::string& x3) {
        return a.numero == 2 ? x2 : a.numero == 3 ? x3 : x1;
    };
    a.ingreso = fechaDeIngreso(elegir(p.fechaing, p.fechaing2, p.fechaing3));
    a.egreso = fechaDeEgreso(elegir(p.fechaeg, p.fechaeg2, p.fechaeg3));
    a.motivoeg = common::textoDeCatalogo(elegir(p.motivoeg, p.motivoeg2, p.motivoeg3));
    a.antiguedad = common::textoANumero(elegir(p.antiguedad, p.antiguedad2, p.antiguedad3));
    return a;
}

MesesALeer mesesDelIpd(const Fecha& ingreso, const Fecha& egreso) {
    MesesALeer m;
    const Mes salida = Mes::de(egreso);
    const Mes desde = std::min(Mes::de(ingreso), Mes{salida.anio - 1, salida.mes});
    m.escrito = salida;
    for (auto& t : m.tramos) t = {salida, salida};
    for (const auto t : {TablaLiquidacion::Habydesc, TablaLiquidacion::Egresos})
        m.tramos[static_cast<std::size_t>(t)] = {desde, salida};
    m.tramos[static_cast<std::size_t>(TablaLiquidacion::Salvacacional)] = {
        Mes{salida.anio - 1, salida.mes}, salida};
    return m;
}

Ipd CalculoIpd(const master::Persona& persona, LibroPersona& libro, const Maestros& maestros,
               const Fecha& fechaIpd, const OpcionesIpd& op, common::Dialogo& dialogo) {
    const auto a = egresoDe(persona, op.actividad);
    if (!a.ingreso || !a.egreso || common::mayusculas(a.motivoeg).empty() || a.antiguedad == 0)
        return avisar(dialogo, kFaltanDatosDeEgreso);
    if (*a.egreso != fechaIpd) return avisar(dialogo, kFechaIpdDistinta);
    if (common::mayusculas(a.motivoeg) != "DESPIDO") return {};

    const auto& tipo = persona.tiposueldo;
    const bool porDia = tipo == "J" || tipo == "H";
    const Mes salida = Mes::de(*a.egreso);
    if (porDia)
        if (const char* falta = faltaTecleado(libro, salida, tipo, a.numero))
            return avisar(dialogo, falta);

    ContextoFormula ctx;
    cargarPersona(ctx, persona);
    ctx.empresa = persona.empresa;
    ctx.nombre = persona.nombre;
    ctx.periodo = salida;
    ctx.persona = &persona;
    ctx.libro = &libro;
    ctx.maestros = &maestros;
    ctx.variables = &maestros.variables;

    ResultadoIpd r;
    r.nombre = persona.nombre;
    r.fechaIpd = fechaIpd;
    r.porDia = porDia;
    // Con antigüedad, el año móvil se cuenta desde el día anterior al egreso.
    const Fecha hasta = a.antiguedad > 0 ? a.egreso->diaAnterior() : *a.egreso;
    r.anio = CalculoAnioMobil(hasta, *a.ingreso, [&](const Mes& m) {
        return porDia ? diasTrabajados(libro, m, tipo, a.numero) : 0.0;
    });
    const double divisor = porDia ? r.anio.dias : r.anio.cantMeses;

    if (op.incidencias) {
        const auto evaluar = [&](const IncidenciaLicencia& inc) {
            ContextoFormula copia = ctx;
            copia.formula = inc.formula;
            copia.cant = inc.cant;
            calcularFormula(copia, opcionesForm76(), dialogo);
            return copia.total;
        };
        r.incidencias =
            incidenciasIpd(sumadasConIpd(libro, maestros, r.anio, a.numero), divisor, evaluar);
    }

    const bool convenio =
        grupoConConvenio(maestros.consejo.codigoGrupo, maestros.consejo.codigoSubgrupo);
    Dinero generado;
    for (const auto& m : r.anio.meses)
        generado +=
            aguinaldoGeneradoEnElMes(libro, maestros.conceptos, m, a.numero, convenio).total;
    // Con un año o menos, el mes del egreso también genera aguinaldo.
    if (a.antiguedad <= 1) generado += totalHaberesEgresos(libro, salida);

    const double sueldos = ctx.sueldo + ctx.sueldo2 + ctx.sueldo3;
    const Dinero ant = antiguedadDelMes(libro, r.anio.meses.empty() ? salida : r.anio.meses[0]);
    auto& m = r.monto;
    m.incidencias = r.incidencias.suma;
    m.aguinaldo = dinero(CalculoMontoAguin(generado, divisor) / 12);
    const auto& consejo = maestros.consejo;
    if (porDia) {
        // Por día, como el jornal de la licencia: la antigüedad del mes / 25 (o / 200 por hora).
        m.sueldo =
            dinero(jornalLicencia(tipo, sueldos, 0, ctx.htrab, consejo.grupo, consejo.subgrupo));
        m.antAlim = dinero(
            jornalLicencia(tipo, 0, ant.aDouble(), ctx.htrab, consejo.grupo, consejo.subgrupo));
        r.cant = CantIpdPorDia(tipo, consejo.grupo, consejo.subgrupo, periodos(libro, a, tipo));
    } else {
        m.sueldo = dinero(sueldos);
        m.antAlim = ant;
        r.cant = CantIpdPorMes(a.antiguedad);
    }
    m.licencia = op.licencia;
    m.salVacacional = op.salVacacional;
    r.totalIpd = totalIpd(r.cant.cant, m);
    return Ipd{"", std::move(r)};
}

Ipd incidenciasDelIpd(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                      const std::optional<Fecha>& fechaIpd, const OpcionesIpd& opciones,
                      common::Dialogo& dialogo) {
    if (empresa.empty() || nombre.empty() || !fechaIpd) return avisar(dialogo, kFaltanCamposIpd);
    const auto ficha = master::leerPersona(base, empresa, nombre);
    if (!ficha) return avisar(dialogo, kFaltanCamposIpd);
    const auto a = egresoDe(*ficha, opciones.actividad);
    if (!a.ingreso || !a.egreso) return avisar(dialogo, kFaltanDatosDeEgreso);
    auto lectura = leerCorrida(base, empresa, Mes::de(*a.egreso),
                               mesesDelIpd(*a.ingreso, *a.egreso), nombre, false);
    auto* p = lectura.persona(nombre);
    if (!p) return avisar(dialogo, kFaltanCamposIpd);
    return CalculoIpd(*p->ficha, p->libro, lectura.maestros, *fechaIpd, opciones, dialogo);
}

}  // namespace egreso
}  // namespace nomira::engine
