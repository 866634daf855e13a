#pragma once
// Las filas de la liquidación como texto fijo, igual sobre los dos motores:
// cada tabla con sus columnas en su orden y sus filas ordenadas por valor
// (los números como números), sin depender del orden que dé la base.
#include <string>

#include "store/conexion.h"

namespace nomira::pruebas::escenarios {

// habydesc, explicaciones, aguinaldos, salvacacional y egresos, las columnas
// separadas con "|" (sin blancos, que un editor podría recortar al final de
// la línea). El dinero con
// sus cuatro decimales sin ceros de más, los reales en su forma más corta que
// vuelve al mismo número, Null como <null>.
std::string volcarLiquidacion(store::Conexion& c);

}  // namespace nomira::pruebas::escenarios
