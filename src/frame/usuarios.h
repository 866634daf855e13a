#pragma once
// Alta de usuarios y cambio de password. El ingreso compara la forma en
// mayúsculas o en minúsculas de lo que se escribe: un USUARIO o un PASSWORD
// guardado con las dos mezcladas ("Admin") no coincidiría nunca y dejaría al
// usuario afuera para siempre. Por eso se rechazan al guardar.
#include <optional>
#include <string>
#include <string_view>

#include "store/conexion.h"

namespace nomira::frame {

inline constexpr const char* kUsuarioMezclado =
    "El USUARIO debe escribirse todo en mayúsculas o todo en minúsculas.";
inline constexpr const char* kPasswordMezclado =
    "El PASSWORD debe escribirse todo en mayúsculas o todo en minúsculas.";
inline constexpr const char* kCategoriaInvalida = "La categoría debe ser 1, 2 o 3.";
inline constexpr const char* kSinLugarUsuario =
    "Ya hay diez usuarios: borre uno en Configuración antes de agregar otro.";

// ¿Es el texto igual a su forma en mayúsculas o a su forma en minúsculas?
bool sinMayusculasMezcladas(std::string_view texto);

// El mensaje que rechaza este usuario, o nada si se puede guardar. Un password
// vacío es "sin cambios" y no se revisa; una categoría vacía tampoco.
std::optional<std::string> rechazoUsuario(const std::string& usuario, const std::string& password,
                                          const std::string& categoria = "");

enum class UsuarioGuardado { Agregado, Cambiado };

// El usuario que se llama así, sin mirar mayúsculas, toma el nombre escrito,
// el password y, si se da, la categoría; si no hay ninguno se agrega en el
// primer lugar libre, con la categoría dada o 1. Nada si está rechazado o no
// hay lugar: el mensaje queda en `mensaje`.
std::optional<UsuarioGuardado> guardarUsuario(store::Conexion& base, const std::string& usuario,
                                              const std::string& password,
                                              const std::string& categoria, std::string& mensaje);

}  // namespace nomira::frame
