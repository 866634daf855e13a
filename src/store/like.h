#pragma once
// Like del sistema: "*" como comodín y sin distinguir mayúsculas, escrito una
// vez para los dos motores.
//
//   c.consulta("SELECT * FROM paises WHERE " + condicionLike(c, "nombre"),
//              {patronLike("*" + texto)});
//
// condicionLike da "nombre LIKE ? ESCAPE '\'" en SQLite (cuyo LIKE
// reemplazamos por uno que iguala también las acentuadas) y
// "nombre ILIKE ? ESCAPE '\'" en PostgreSQL. patronLike convierte "*" en "%"
// y antepone "\" a "%", "_" y "\" del texto, que así se buscan literalmente.
#include <string>
#include <string_view>

#include "store/conexion.h"

namespace nomira::store {

// "LIKE" o "ILIKE", para quien arme la condición a mano (con ESCAPE '\').
std::string like(Motor m);
std::string like(const Conexion& c);

// "<columna> LIKE ? ESCAPE '\'" o su equivalente en PostgreSQL.
std::string condicionLike(Motor m, std::string_view columna);
std::string condicionLike(const Conexion& c, std::string_view columna);

std::string patronLike(std::string_view patronConAsterisco);

}  // namespace nomira::store
