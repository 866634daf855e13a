#pragma once
// Registros con las columnas por nombre: una lista de (columna, campo) por tabla sirve
// para leer la fila, para el INSERT de todas las columnas y para los UPDATE por grupos.
// Los campos guardan el texto como lo dan las pantallas; al escribir, lo vacío en una
// columna de número o de fecha es Null, y una fecha se guarda como fecha.
#include <string>
#include <vector>

#include "store/conexion.h"
#include "store/esquema.h"

namespace nomira::master {

template <class T>
struct Campo {
    const char* columna;
    std::string T::*miembro;
};

template <class T>
using Campos = std::vector<Campo<T>>;

// El valor que se escribe en una columna del tipo dado. Lo que no se puede convertir
// se guarda como Null, igual que lo vacío.
store::Valor valorParaColumna(const std::string& texto, store::TipoColumna tipo);

// Columna por columna, con el tipo que dice el esquema de `tabla`.
std::vector<store::Valor> valoresParaColumnas(const std::string& tabla,
                                              const std::vector<const char*>& columnas,
                                              const std::vector<std::string>& textos);

std::string sqlInsertar(const std::string& tabla, const std::vector<const char*>& columnas);
// "UPDATE tabla SET a = ?, b = ? WHERE c = ? AND d = ?"
std::string sqlActualizar(const std::string& tabla, const std::vector<const char*>& columnas,
                          const std::vector<const char*>& claves);

template <class T>
std::vector<const char*> columnasDe(const Campos<T>& campos) {
    std::vector<const char*> c;
    for (const auto& campo : campos) c.push_back(campo.columna);
    return c;
}

template <class T>
std::vector<std::string> textosDe(const T& registro, const Campos<T>& campos) {
    std::vector<std::string> t;
    for (const auto& campo : campos) t.push_back(registro.*campo.miembro);
    return t;
}

template <class T>
T leerRegistro(const store::Fila& fila, const Campos<T>& campos) {
    T r;
    // Con SELECT * las columnas llegan en el orden de la lista: se prueba primero
    // la misma posición.
    const auto& columnas = fila.columnas();
    for (std::size_t i = 0; i < campos.size(); ++i) {
        const auto& campo = campos[i];
        r.*campo.miembro = i < columnas.size() && columnas[i] == campo.columna
                               ? fila.texto(i)
                               : fila.texto(campo.columna);
    }
    return r;
}

// INSERT de todas las columnas de la lista.
template <class T>
void insertarRegistro(store::Conexion& base, const std::string& tabla, const T& registro,
                      const Campos<T>& campos) {
    const auto columnas = columnasDe(campos);
    base.ejecuta(sqlInsertar(tabla, columnas),
                 valoresParaColumnas(tabla, columnas, textosDe(registro, campos)));
}

}  // namespace nomira::master
