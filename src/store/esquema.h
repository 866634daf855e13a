#pragma once
// La definición única de las 39 tablas, cada columna en su posición: el orden
// es parte del diseño, porque hay lectores que cuentan columnas de SELECT *.
#include <string>
#include <string_view>
#include <vector>

#include "store/conexion.h"

namespace nomira::store {

// Dinero: REAL en SQLite, numeric(19,4) en PostgreSQL; se lee con Dinero.
// Fecha: texto 'aaaa-mm-dd' en SQLite, date en PostgreSQL; vacía es Null.
enum class TipoColumna { Texto, Entero, Real, Dinero, Fecha };

struct Columna {
    std::string nombre;
    TipoColumna tipo;
};

struct Tabla {
    std::string nombre;
    std::vector<Columna> columnas;

    // Posición de la columna, o -1 si no la tiene.
    int posicion(std::string_view columna) const;
};

// Las quince tablas con contenido propio y luego las 24 de referencia.
const std::vector<Tabla>& esquema();
// Las tablas del programa que no son de las 39: explicaciones, el cómo se
// llegó al importe de cada fila liquidada.
const std::vector<Tabla>& tablasAuxiliares();
// Lanza ErrorBase si la tabla no existe.
const Tabla& tabla(std::string_view nombre);

// El tipo de la columna en cada motor, y el CREATE TABLE completo.
std::string tipoSql(TipoColumna tipo, Motor motor);
std::string ddl(const Tabla& tabla, Motor motor);

}  // namespace nomira::store
