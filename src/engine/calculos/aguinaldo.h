#pragma once
// Las reglas del aguinaldo que no leen nada: quién lo cobra en un pago, qué
// meses del semestre suma, qué filas son de cada actividad y en qué grupos el
// salario vacacional cuenta siempre.
#include <optional>
#include <string>
#include <vector>

#include "common/fechas.h"

namespace nomira::engine {
inline namespace calculos {

// El aguinaldo se paga en junio y en diciembre.
bool esMesDeAguinaldo(const common::Mes& pago);

// "AGUINALDO", "AGUINALDO 2DA ACT", "AGUINALDO 3RA ACT".
std::string conceptoAguinaldo(int actividad);
// " 2DA ACT", " 3RA ACT"; "" para la primera.
std::string sufijoActividad(int actividad);
// ¿Es de esa actividad la fila con este texto? La primera se queda con las que
// no terminan en " 2DA ACT" ni en " 3RA ACT" (se mira el final, como Like '*2DA ACT').
bool esDeLaActividad(const std::string& concepto, int actividad);

// Grupos y subgrupos de los Consejos de Salarios con convenio: en ellos el
// salario vacacional entra en el aguinaldo aunque el concepto no lo diga.
bool grupoConConvenio(const std::string& grupo, const std::string& subgrupo);

// Las fechas de ingreso y egreso como las lee el aguinaldo: un año de dos
// cifras de ingreso es 19yy de 50 a 99 y 20yy si no; el de egreso, siempre 20yy.
std::optional<common::Fecha> fechaDeIngreso(const std::string& texto);
std::optional<common::Fecha> fechaDeEgreso(const std::string& texto);

// Por qué no se le liquida el aguinaldo a alguien; "" si se le liquida.
std::string motivoSinAguinaldo(double cantbfc, const std::optional<common::Fecha>& ingreso,
                               const std::optional<common::Fecha>& egreso, const common::Mes& pago);

// Los meses del semestre que suma el pago, en orden: en diciembre de junio a
// noviembre, en junio de diciembre del año anterior a mayo; quien ingresó en el
// año del pago empieza en su mes (llevado a junio o noviembre en diciembre, a
// mayo como tope en junio). Vacío si el mes no es de aguinaldo.
std::vector<common::Mes> mesesDelSemestre(const common::Mes& pago,
                                          const std::optional<common::Fecha>& ingreso);

}  // namespace calculos
}  // namespace nomira::engine
