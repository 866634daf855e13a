#pragma once
// La indemnización por despido (IPD): el año móvil, las incidencias que se
// promedian en él, la cantidad de sueldos o jornales que corresponden y el
// importe, con la traza que imprime la pantalla de incidencias del IPD. Todo
// aquí es cálculo puro; lo que se lee de la base está en egreso/.
#include <functional>
#include <string>
#include <vector>

#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/calculos/calculo_licencia.h"

namespace nomira::engine {
inline namespace calculos {

// CalculoAnioMobil: desde el mes anterior al egreso hacia atrás, a lo sumo
// doce meses y no antes del mes de ingreso. Los jornaleros y por hora suman
// además los días trabajados de cada mes.
struct AnioMobil {
    std::vector<common::Mes> meses;  // del más reciente al más viejo
    common::Fecha desde, hasta;      // primer día del más viejo, último del más reciente
    int cantMeses = 0;               // 0 cuenta como 1
    double dias = 0;                 // días trabajados en el tramo (0 cuenta como 1)
};
using DiasDelMes = std::function<double(const common::Mes&)>;
AnioMobil CalculoAnioMobil(const common::Fecha& egreso, const common::Fecha& ingreso,
                           const DiasDelMes& diasDelMes = {});

// Una incidencia del IPD ya promediada, para la lista impresa.
struct IncidenciaIpd {
    std::string concepto;
    common::Dinero monto;
};
struct IncidenciasIpd {
    std::vector<IncidenciaIpd> lista;
    common::Dinero suma;
};
// Lo sumado en el tramo por código (cant en unidad "T", que pasa por la
// fórmula; total en las demás) dividido por `divisor`: los meses del año móvil
// (CalculoIncidenciasdelIPD) o sus días (CalculoIncidenciasdelIPD2).
IncidenciasIpd incidenciasIpd(const std::vector<IncidenciaLicencia>& sumadas, double divisor,
                              const EvaluarIncidencia& evaluar);

// CalculoMontoAguin: lo que generó aguinaldo en el tramo, dividido por los
// meses (o días) del tramo; el aguinaldo del mes (o del día) es eso / 12.
double CalculoMontoAguin(common::Dinero generado, double divisor);

// CantIpd de un mensual: un sueldo por año o fracción, hasta seis.
int cantIpdMensual(double aniosAntiguedad);

// Un año trabajado por un jornalero o por hora y sus días.
struct PeriodoIpd {
    common::Fecha desde, hasta;
    double dias = 0;
};
struct CantidadIpd {
    int cant = 0;
    double sumaPeriodos = 0, promedio = 0;
    std::string traza;  // líneas terminadas en CR LF
};
// CantIpd de jornaleros y por hora: por debajo de 100 días en total no hay
// indemnización (salvo los por hora de los grupos 8/1 y 19/10 desde 62.5);
// con un promedio de 240 días o más, 25 jornales por año; si no, 25 por cada
// año de 240 días o más y dos por cada 25 días en los demás. Nunca más de 150.
CantidadIpd CantIpdPorDia(const std::string& tiposueldo, int grupo, int subgrupo,
                          const std::vector<PeriodoIpd>& periodos);
// La traza del mensual: las reglas por años de antigüedad.
CantidadIpd CantIpdPorMes(double aniosAntiguedad);

// Lo que se multiplica: por mes para los mensuales, por día para los demás.
struct MontoIpd {
    common::Dinero incidencias, sueldo, aguinaldo, antAlim, licencia, salVacacional;
    common::Dinero total() const {
        return incidencias + sueldo + aguinaldo + antAlim + licencia + salVacacional;
    }
};

struct ResultadoIpd {
    std::string nombre;
    common::Fecha fechaIpd;
    bool porDia = false;  // jornaleros y por hora
    AnioMobil anio;
    IncidenciasIpd incidencias;
    MontoIpd monto;
    CantidadIpd cant;
    common::Dinero totalIpd;  // CantIpd x MontoIpd
};
common::Dinero totalIpd(int cantIpd, const MontoIpd& monto);

// El texto que se imprime, cada línea terminada en CR LF.
std::string trazaIpd(const ResultadoIpd& r);

}  // namespace calculos
}  // namespace nomira::engine
