#pragma once
// ¿Un beneficiario ya es mayor de edad en el mes que se liquida? Lo preguntan
// el porcentaje del SNIS, el IRPF y las pantallas de personal.
#include <string_view>

#include "common/dialogo.h"
#include "common/fechas.h"

namespace nomira::common {

// El mes de referencia: el que se liquida ("MM/yy" de la pantalla) o, si la
// casilla está vacía o no es un mes, el anterior al de hoy.
Mes mesDeReferencia(std::string_view text1);

// Con el nacimiento "dd/mm/yy" (o la fecha tal como se guarda, "aaaa-mm-dd"):
// el año de dos cifras es 19yy de 30 a 99 y 20yy si no; el del período, 2000 + yy.
// Nacido después de período - 18: no; ese mismo año: sólo si nació en un mes
// anterior; antes: sí, y avisa que hay que quitarlo de los beneficiarios.
bool EsMayorde18(std::string_view fechanac, const Mes& periodo, Dialogo* dialogo);

}  // namespace nomira::common
