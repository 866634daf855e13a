#pragma once
// Texto en UTF-8: mayúsculas del castellano, valores de catálogo "código-texto",
// comparación con Like y separación de nombres "apellidos, nombres".
#include <cstddef>
#include <string>
#include <string_view>

namespace nomira::common {

// ASCII más á é í ó ú ü ñ y sus mayúsculas; los demás bytes quedan igual.
std::string mayusculas(std::string_view texto);
std::string minusculas(std::string_view texto);

// Cantidad de caracteres UTF-8 (no de bytes).
std::size_t longitudCaracteres(std::string_view texto);

// "01-Privada": el código es lo anterior al primer guion ("" sin guion) y el
// texto lo posterior. Sin guion el texto es el valor entero; quien necesite
// distinguir ese caso pregunta por el guion.
std::string codigoDeCatalogo(std::string_view valor);
std::string textoDeCatalogo(std::string_view valor);

// Patrón con que se busca en un catálogo el valor que guarda un registro:
// "*texto". Un texto vacío o en blanco busca "NADA", que no encuentra nada.
std::string patronCatalogo(std::string_view texto);

// Like sin distinguir mayúsculas: "*" cualquier tramo, "?" un carácter.
bool coincideLike(std::string_view valor, std::string_view patron);

struct NombreSeparado {
    std::string apellido1, apellido2, nombre1, nombre2;
    bool operator==(const NombreSeparado&) const = default;
};

// Qué se reemplaza en cada parte: "_" por blanco y "-" por apóstrofo, en todas
// sus apariciones (archivo del BPS), solo la primera (FOCER) o ninguna.
enum class ReemplazoNombre { Todos, Primero, Ninguno };

// "APELLIDO1 APELLIDO2, NOMBRE1 NOMBRE2": se corta en la primera coma; cada lado
// pierde un blanco inicial y se corta en su primer blanco. Sin coma lanza
// Fallo(5, "Llamada a procedimiento o argumento no válido").
NombreSeparado separarNombre(std::string_view nombre, ReemplazoNombre modo);

}  // namespace nomira::common
