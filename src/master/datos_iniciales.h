#pragma once
// Los datos con que nace una base: catálogos de los organismos, valores legales
// fechados, franjas del IRPF y los conceptos que el motor conoce por su nombre.
// Viven en archivos de texto bajo la carpeta de datos, uno por tabla o variable:
//   catalogos/<tabla>.txt   columnas de la tabla en su orden, separadas por "|"
//   valores/<VARIABLE>.txt  fecha|valor|referencia (fecha dd/mm/aaaa)
//   valores/franjasirp.txt  franja|min|max|tasa|referencia
//   conceptos.txt           las once columnas de conceptos
// Las líneas que empiezan con "#" son comentarios. Un archivo mal escrito es
// un Fallo con el archivo y la línea, y la carga entera se deshace.
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "common/fechas.h"
#include "store/conexion.h"

namespace nomira::master {

struct LineaDatos {
    int numero = 0;  // línea del archivo, desde 1
    std::vector<std::string> campos;
};

// Fallo 53 si el archivo no existe; Fallo 13 si una línea no tiene `columnas` campos.
std::vector<LineaDatos> leerArchivoDatos(const std::filesystem::path& archivo,
                                         std::size_t columnas);

struct ResumenDatos {
    int catalogos = 0;  // filas de las tablas de referencia
    int conceptos = 0;
    int variables = 0;  // filas nuevas de definiciondevariables
    int franjas = 0;
    int pendientes = 0;  // valores de fecha posterior a hoy, que esperan su día
};

// Todo, en una base recién creada (sus tablas de referencia y conceptos vacíos).
ResumenDatos cargarDatosIniciales(store::Conexion& base, const std::filesystem::path& carpeta,
                                  const common::Fecha& hoy);

// Sólo valores y franjas: agrega las filas (nombre, fecha) y las franjas que la
// base no tiene. Nunca cambia ni borra una fila; correrla dos veces no agrega nada.
// Un valor con fecha posterior a hoy no entra: el lector toma siempre la fila más
// nueva, y un aumento decretado para julio no debe regir desde enero.
ResumenDatos actualizarValores(store::Conexion& base, const std::filesystem::path& carpeta,
                               const common::Fecha& hoy);

}  // namespace nomira::master
