#pragma once
// Mudar un estudio: copiar una base entera de SQLite a PostgreSQL o al revés.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "store/conexion.h"

namespace nomira::maintenance {

struct TablaCopiada {
    std::string tabla;
    std::int64_t filas;
};

// Copia todas las tablas de `origen` en `destino`, tabla por tabla, en una sola
// transacción sobre el destino, y comprueba que cada tabla quede con las mismas filas.
// El destino debe estar vacío (sin tablas, o recién creado y sin datos: su fila de
// configuración se reemplaza por la del origen); si algo falla
// el destino queda como estaba. Las tablas se leen fila por fila y se escriben
// por tramos (COPY en PostgreSQL): la memoria no crece con la base. Un texto con
// el carácter nulo no se copia a PostgreSQL, que lo cortaría: la copia se
// rechaza nombrando tabla, fila y columna. Después, PostgreSQL analiza las tablas
// llenas. Un origen de una versión anterior se pone al día
// antes, como al abrirlo en el programa. `avance` recibe cada tabla terminada.
std::vector<TablaCopiada> copiarBase(store::Conexion& origen, store::Conexion& destino,
                                     const std::function<void(const TablaCopiada&)>& avance = {});

}  // namespace nomira::maintenance
