#pragma once
// Ingreso de usuarios: la regla de coincidencia de nombre y contraseña.
#include <optional>
#include <string>

#include "master/configuracion.h"

namespace nomira::frame {

inline constexpr const char* kFaltaUsuario = "Debe completar el campo USUARIO.";
inline constexpr const char* kFaltanCampos = "Debe completar los campos USUARIO y PASSWORD.";
inline constexpr const char* kIngresoCorrecto = "Usuario y Password correctos.";
inline constexpr const char* kIngresoIncorrecto = "Usuario y Password INCORRECTOS.";

// Recorre los diez usuarios; un usuario coincide cuando la forma en mayúsculas o en
// minúsculas de lo escrito es igual a `usuN` y lo mismo vale para la contraseña
// (comparando hashes). Devuelve la categoría del último que coincide.
std::optional<int> verificarIngreso(const master::Configuracion& c, const std::string& usuario,
                                    const std::string& password);

// Lo mismo leyendo la configuración de la base; si el hash de quien entró es de
// antes (menos iteraciones), lo guarda de nuevo con las de hoy.
std::optional<int> ingresar(store::Conexion& base, const std::string& usuario,
                            const std::string& password);

// Guarda el usuario N (1..10) con su contraseña ya convertida en hash.
void ponerUsuario(master::Configuracion& c, int n, const std::string& usuario,
                  const std::string& password, const std::string& categoria);

}  // namespace nomira::frame
