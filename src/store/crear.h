#pragma once
// Creación y puesta al día de una base: las 39 tablas, sus índices, la fila de
// configuracion y la versión del esquema.
//
// La versión vive en una tabla aparte, versionesquema(version INTEGER), con
// una sola fila, para que los dos motores la lleven igual. La versión 2 agrega
// las tablas auxiliares del programa (tablasAuxiliares()); la 5 guarda una
// explicación por fila liquidada (la 3 y la 4 las guardaban juntas por persona
// y mes) y busca las filas de una empresa por mes.
#include <string>
#include <vector>

#include "store/conexion.h"

namespace nomira::store {

constexpr int kVersionEsquema = 5;

// Crea lo que falte, en una transacción: tablas en su orden, índices, la fila
// de configuracion con sus valores iniciales y la versión. Sobre una base ya
// creada no cambia nada.
void crearBase(Conexion& c);

// 0 para una base sin versión (vacía o de otra procedencia).
int versionEsquema(Conexion& c);

// Lleva la base a kVersionEsquema, un paso por versión y una transacción por
// paso. Sobre una base al día no hace nada.
void migrar(Conexion& c);

// Verdadero si están las 39 tablas.
bool existeEsquema(Conexion& c);

// Nombres de las tablas de la base, en minúsculas.
std::vector<std::string> tablasDeLaBase(Conexion& c);

}  // namespace nomira::store
