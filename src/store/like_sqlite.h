#pragma once
// LIKE de SQLite sin distinguir mayúsculas también en las letras acentuadas.
#include <sqlite3.h>

#include <string_view>

namespace nomira::store {

// Reemplaza like(patrón, valor[, escape]) en la conexión: el LIKE propio de
// SQLite sólo iguala mayúsculas ASCII, y "PEÑA" debe hallar "Peña" como en
// PostgreSQL con ILIKE.
void registrarLikeSinMayusculas(sqlite3* base);

// La comparación misma: "%" cualquier tramo, "_" un carácter, escape delante
// de un comodín lo vuelve literal. escape 0 es sin escape.
bool coincideLike(std::string_view patron, std::string_view valor, char32_t escape);

}  // namespace nomira::store
