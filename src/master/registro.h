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

// Registros de las filas de una consulta (Fila o FilaAlPaso): la columna de
// cada campo se busca en la primera fila, no en cada una.
template <class T>
class LectorRegistros {
  public:
    explicit LectorRegistros(const Campos<T>& campos) : campos_(campos) {}

    template <class F>
    void leer(const F& fila, T& registro) {
        if (posiciones_.empty()) {
            // Con SELECT * llegan en el orden de la lista: cada una se busca
            // desde la que sigue a la anterior.
            std::size_t desde = 0;
            for (const auto& campo : campos_) {
                posiciones_.push_back(store::posicionDe(fila.columnas(), campo.columna, desde));
                desde = posiciones_.back() + 1;
            }
        }
        for (std::size_t i = 0; i < campos_.size(); ++i)
            fila.textoEn(posiciones_[i], registro.*campos_[i].miembro);
    }
    template <class F>
    T leer(const F& fila) {
        T r;
        leer(fila, r);
        return r;
    }

  private:
    const Campos<T>& campos_;
    std::vector<std::size_t> posiciones_;
};

template <class T, class F>
T leerRegistro(const F& fila, const Campos<T>& campos) {
    return LectorRegistros<T>(campos).leer(fila);
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
