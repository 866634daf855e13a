#pragma once
// CalculoAntiguedad: la prima de "ANTIGUEDAD" (y sus " 2DA ACT" y " 3RA ACT")
// según el convenio del consejo de salarios de la empresa. Reemplaza cant y
// total de la fórmula; sin convenio, la fórmula queda.
#include <functional>
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/calculos/calculo_licencia.h"
#include "engine/calculos/primas_antiguedad_tablas.h"
#include "master/personal.h"
#include "master/variables.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace calculos {

// ¿Es una de las tres filas de antigüedad? (nombre en mayúsculas)
bool esConceptoAntiguedad(const std::string& concepto);

// Un año de dos cifras como lo leen los convenios: de 00 a 49 se le suma 2000,
// de 50 a 99 queda como está (95 es menor que cualquier año de este siglo).
int anioDeConvenio(int yy);

// La actividad a la que va la prima (impaclab), con su sueldo, su sector y
// categoría, y la fecha desde la que se cuentan los años.
struct ActividadAntiguedad {
    double sueldo = 0;
    std::string sector, categoria;
    int dd = 1, mm = 1, yy = 1;  // lo vacío cuenta "01"
};

// La persona está activa en el año del período en alguna de sus tres
// actividades: año de ingreso <= año < año de egreso (vacío: 12000).
bool activaParaAntiguedad(const master::Persona& p, const common::Mes& periodo);
ActividadAntiguedad actividadDeAntiguedad(const master::Persona& p);

// Años de servicio al último día del mes del período (febrero siempre 29).
double aniosDeAntiguedad(const ActividadAntiguedad& a, const common::Mes& periodo,
                         const MiembroAntiguedad& m);

struct PrimaAntiguedad {
    int miembro = 0;
    double cant = 0, anios = 0, porcentaje = 0, base = 0;
    common::Dinero total;
    std::string explicacion;
};

// El importe de la base del miembro para la actividad.
using BaseDeMiembro = std::function<double(const MiembroAntiguedad&, const ActividadAntiguedad&)>;

// Los pasos comunes sobre la persona ya leída; nada si el grupo no tiene
// convenio o la persona no está activa. textoCant vacío o en blanco es 1.
std::optional<PrimaAntiguedad> calcularPrimaAntiguedad(const master::Persona& p, int grupo,
                                                       int subgrupo, const std::string& textoCant,
                                                       const common::Mes& periodo,
                                                       const BaseDeMiembro& baseDe);

}  // namespace calculos
}  // namespace nomira::engine
