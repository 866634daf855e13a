#pragma once
// Dónde está la base y cómo se prepara una nueva.
#include <memory>
#include <optional>
#include <string>

#include "master/configuracion.h"
#include "store/conexion.h"

namespace nomira::frame {

// La primera línea de base.txt, si existe y no está vacía; una ruta relativa
// se toma desde la carpeta de base.txt.
std::optional<std::string> destinoConfigurado();

inline constexpr const char* kContrasenaEnBaseTxt =
    "La cadena de conexión lleva la contraseña, y la contraseña no se guarda en base.txt. "
    "Escriba la cadena sin ella y ponga la contraseña en ~/.pgpass (una línea "
    "servidor:5432:base:usuario:CONTRASEÑA, con permisos chmod 600).";
// Escribe base.txt; rechaza con kContrasenaEnBaseTxt una cadena con contraseña.
void guardarDestino(const std::string& destino);
// "<raíz>/Software/Nomira/nomira.db": la base de un primer arranque.
std::string destinoPorDefecto();

// Abre la base y la pone al día con el esquema de esta versión. Una base que
// no existe es un error: no se crea.
std::unique_ptr<store::Conexion> abrirBase(const std::string& destino);

// Crea una base nueva: tablas, fila de configuración y, si se da, el primer usuario
// (categoría 1). Falla si el destino ya tiene las tablas.
std::unique_ptr<store::Conexion> crearBaseNueva(const std::string& destino,
                                                const std::string& usuario = "",
                                                const std::string& password = "");

bool hayUsuarios(const master::Configuracion& c);

// Agrega un usuario en el primer lugar libre; false si los diez están ocupados.
bool agregarUsuario(store::Conexion& base, const std::string& usuario, const std::string& password,
                    const std::string& categoria);

}  // namespace nomira::frame
