#pragma once
// Los cambios de categoría de la primera actividad. La categoría, el sueldo, su
// fecha, el número de orden y FCatVig no se guardan con el resto de la ficha:
// se decide aquí qué queda, con dos lugares de historia. El primer cambio va al
// lugar 3 y el segundo al 2, cada uno con la fecha en que dejó de valer, para que
// los meses anteriores a ella se declaren con la categoría vieja.
#include <optional>
#include <string>

#include "master/personal.h"

namespace nomira::master {

// El marco "Eliminar Cambio Categoría": "0" ninguno, "1" el primero, "2" el segundo.
enum class DeshacerCambio { Ninguno, Primero, Segundo };

struct DecisionCategoria {
    // Las quince columnas de categoría que quedan; nada si no se guarda ninguna.
    std::optional<Persona> categoria;
    // El cuadro de advertencia, si lo hay.
    std::string mensaje;
};

// `guardada` es la fila tal como está en la base, `pantalla` lo escrito en la
// ficha y `nuevoNroord` el mayor número de orden de la empresa más uno.
DecisionCategoria decidirCambioCategoria(const Persona& guardada, const Persona& pantalla,
                                         DeshacerCambio opcion, const std::string& nuevoNroord);

// Lee la fila guardada, decide y escribe las columnas de categoría. Devuelve el
// mensaje de advertencia ("" si no hay).
std::string aplicarCambioCategoria(store::Conexion& base, const Persona& pantalla,
                                   DeshacerCambio opcion);

}  // namespace nomira::master
