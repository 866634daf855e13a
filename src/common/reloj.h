#pragma once
// El único reloj del programa. NOMIRA_HOY=dd/mm/yyyy fija el día de hoy, para
// las pruebas y para rehacer un mes pasado.
#include <string>

#include "common/fechas.h"

namespace nomira::common {

// La fecha de NOMIRA_HOY si está puesta y no vacía; si no, la del reloj local.
// Un valor que no es dd/mm/yyyy lanza Fallo(13, "NOMIRA_HOY mal formado: ...").
Fecha hoy();

// La hora local como "HH:mm".
std::string horaActual();

}  // namespace nomira::common
