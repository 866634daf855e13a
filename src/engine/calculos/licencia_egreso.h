#pragma once
// CalculoLicenciaEgresos: la licencia que se lleva quien egresa en el año, la
// no gozada del año anterior y la generada en el año hasta el egreso, con su
// traza. Cálculo puro sobre lo que ya dio CalculoDiasaGozar.
#include <string>

#include "engine/calculos/licencia_dias.h"

namespace nomira::engine {
inline namespace calculos {

struct EntradaLicenciaEgreso {
    std::string tiposueldo;  // "S", "J" o "H"
    FechaCorta ingreso, egreso;
    double pendientesAnterior = 0;  // lo que CalculoDiasaGozar dejó a gozar
    double diasextras = 0;
    double licenciaDelAnio = 0;        // cant de las filas LICENCIA del año de egreso
    double ausenciasDelAnio = 0;       // mensuales: faltas, suspensiones... del año
    double diasTrabajadosDelAnio = 0;  // jornaleros y por hora
};

struct LicenciaEgreso {
    double diasAnterior = 0, diasActual = 0;
    std::string traza;  // líneas terminadas en CR LF
};

// Año anterior: lo pendiente menos lo tomado como LICENCIA en el año, nunca
// negativo. Año del egreso, mensuales: ((20 / 12) / 30) por día trabajado
// (en meses de 30 desde el 1 de enero, o días corridos desde un ingreso del
// mismo año) más los extras menos Int(ausencias / 15); jornaleros y por
// hora: (días trabajados / 300) x 20 más los extras.
LicenciaEgreso CalculoLicenciaEgresos(const EntradaLicenciaEgreso& e);

}  // namespace calculos
}  // namespace nomira::engine
