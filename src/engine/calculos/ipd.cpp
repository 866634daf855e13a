#include "engine/calculos/ipd.h"

#include <algorithm>
#include <cmath>

#include "common/texto.h"
#include "engine/calculos/explicacion.h"

namespace nomira::engine {
inline namespace calculos {

namespace {

constexpr const char* kLinea = "\r\n";
constexpr int kTopeIpd = 150;

std::string blancos(std::size_t n) {
    return std::string(n, ' ');
}

// A la izquierda, completado con blancos hasta `ancho` caracteres (no bytes:
// los nombres llevan tildes).
std::string aLaIzquierda(const std::string& s, std::size_t ancho) {
    const auto largo = common::longitudCaracteres(s);
    return largo >= ancho ? s : s + blancos(ancho - largo);
}
std::string aLaDerecha(const std::string& s, std::size_t ancho) {
    const auto largo = common::longitudCaracteres(s);
    return largo >= ancho ? s : blancos(ancho - largo) + s;
}

int dosPorCada25(double dias) {
    return static_cast<int>(std::floor(dias / 25)) * 2;
}

bool porHoraConMinimoMenor(const std::string& tiposueldo, int grupo, int subgrupo) {
    return tiposueldo == "H" && ((grupo == 8 && subgrupo == 1) || (grupo == 19 && subgrupo == 10));
}

}  // namespace

AnioMobil CalculoAnioMobil(const common::Fecha& egreso, const common::Fecha& ingreso,
                           const DiasDelMes& diasDelMes) {
    AnioMobil a;
    const auto primero = common::Mes::de(ingreso);
    common::Mes m = common::Mes::de(egreso).anterior();
    for (int i = 0; i < 12 && m >= primero; ++i, m = m.anterior()) {
        a.meses.push_back(m);
        if (diasDelMes) a.dias += diasDelMes(m);
    }
    a.cantMeses = static_cast<int>(a.meses.size());
    if (a.meses.empty()) {
        // Egresó en el mes de ingreso: el tramo es ese mes.
        a.desde = common::Mes::de(egreso).primerDia();
        a.hasta = egreso;
    } else {
        a.desde = a.meses.back().primerDia();
        a.hasta = a.meses.front().ultimoDia();
    }
    if (a.cantMeses == 0) a.cantMeses = 1;
    if (a.dias == 0) a.dias = 1;
    return a;
}

IncidenciasIpd incidenciasIpd(const std::vector<IncidenciaLicencia>& sumadas, double divisor,
                              const EvaluarIncidencia& evaluar) {
    IncidenciasIpd r;
    for (const auto& inc : sumadas) {
        const double monto = inc.unidad == "T" ? evaluar(inc) : inc.total.aDouble();
        const auto promedio = common::Dinero::desdeDouble(monto / divisor);
        r.lista.push_back({inc.concepto, promedio});
        r.suma += promedio;
    }
    return r;
}

double CalculoMontoAguin(common::Dinero generado, double divisor) {
    return generado.aDouble() / divisor;
}

int cantIpdMensual(double anios) {
    if (anios <= 1) return 1;
    if (anios <= 2) return 2;
    if (anios <= 3) return 3;
    if (anios <= 4) return 4;
    if (anios <= 5) return 5;
    return 6;
}

CantidadIpd CantIpdPorMes(double anios) {
    CantidadIpd c;
    c.cant = cantIpdMensual(anios);
    c.traza = std::string("si aniosantiguedad <= 1 entonces CantIpd = 1") + kLinea;
    for (int n = 1; n <= 4; ++n)
        c.traza += "si aniosantiguedad > " + std::to_string(n) + " y <= " + std::to_string(n + 1) +
                   " entonces CantIpd = " + std::to_string(n + 1) + kLinea;
    c.traza += std::string("si aniosantiguedad > 5 entonces CantIpd = 6") + kLinea;
    return c;
}

CantidadIpd CantIpdPorDia(const std::string& tiposueldo, int grupo, int subgrupo,
                          const std::vector<PeriodoIpd>& periodos) {
    CantidadIpd c;
    for (const auto& p : periodos) {
        c.sumaPeriodos += p.dias;
        c.traza += "Período: " + p.desde.ddmmyy() + " al " + p.hasta.ddmmyy() + " = " +
                   numero(p.dias) + kLinea;
    }
    const auto suma = numero(c.sumaPeriodos);
    c.traza += " = SumaPeríodos: " + suma + kLinea;
    const int cantPeriodos = static_cast<int>(periodos.size());

    if (c.sumaPeriodos < 100) {
        if (porHoraConMinimoMenor(tiposueldo, grupo, subgrupo)) {
            if (c.sumaPeriodos < 62.5) {
                c.traza += "Como " + suma + " < 62.5 entonces CantIpd = 0" + kLinea;
                return c;
            }
            for (const auto& p : periodos) c.cant += dosPorCada25(p.dias);
            c.traza += "Como " + suma +
                       " >= 62.5 entonces por cada período suma Int(cant. / 25) * 2" + kLinea;
            return c;
        }
        c.traza += "Como " + suma + " < 100 entonces CantIpd = 0" + kLinea;
        return c;
    }

    c.promedio = c.sumaPeriodos / cantPeriodos;
    const auto promedio = numero(c.promedio);
    c.traza +=
        "Como " + suma + " >= 100 entonces hallo Promedio (SumaPeríodos / CantPeríodos)" + kLinea;
    if (c.promedio >= 240) {
        const int cant = 25 * cantPeriodos;
        c.traza += "Como " + promedio + " >= 240 entonces CantIpd = 25 * " +
                   std::to_string(cantPeriodos) + " (CantPeríodos) = " + std::to_string(cant) +
                   " (puede ser hasta 150)" + kLinea;
        c.cant = std::min(cant, kTopeIpd);
        return c;
    }
    int cant = 0;
    for (const auto& p : periodos) cant += p.dias >= 240 ? 25 : dosPorCada25(p.dias);
    c.traza += "Como " + promedio +
               " < 240 entonces por cada período suma 25 (si la cant. es >= 240) o Int(cant. / "
               "25) * 2 (si la cant. es < 240), hasta 150" +
               kLinea;
    c.cant = std::min(cant, kTopeIpd);
    return c;
}

common::Dinero totalIpd(int cantIpd, const MontoIpd& monto) {
    return common::Dinero::desdeDouble(cantIpd * monto.total().aDouble());
}

std::string trazaIpd(const ResultadoIpd& r) {
    std::string t =
        aLaIzquierda(r.nombre, 40) + blancos(10) + "Fecha Ipd: " + r.fechaIpd.ddmmyy() + kLinea;
    t += "Período año móbil: (" + r.anio.desde.ddmmyy() + " al " + r.anio.hasta.ddmmyy() + ")" +
         blancos(8) +
         (r.porDia ? "Promedio días año móbil: " + numero(r.anio.dias)
                   : "Promedio meses año móbil: " + std::to_string(r.anio.cantMeses)) +
         kLinea;
    t += blancos(30) + "Incidencias" + kLinea;
    for (const auto& i : r.incidencias.lista)
        t += aLaIzquierda(i.concepto, 20) + blancos(9) + aLaDerecha(pesos(i.monto), 10) + kLinea;
    const auto& m = r.monto;
    t += blancos(30) + "MontoIpd" + kLinea;
    t += "Incidencias: " + pesos(m.incidencias) + " + Sueldo: " + pesos(m.sueldo) +
         " + Aguinaldo: " + pesos(m.aguinaldo) + " + Ant.+Alim: " + pesos(m.antAlim) +
         " + Licencia: " + pesos(m.licencia) + " + SalVacacional: " + pesos(m.salVacacional) +
         " = MontoIpd: " + pesos(m.total()) + kLinea;
    t += blancos(30) + "CantIpd " + kLinea;
    t += r.cant.traza;
    t += "CantIpd: " + std::to_string(r.cant.cant) + kLinea;
    t += "TotalIpd: " + pesos(r.totalIpd) + kLinea;
    return t;
}

}  // namespace calculos
}  // namespace nomira::engine
