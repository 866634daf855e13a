#pragma once
// "Reparar base" y "Compactar base": las preguntas, los mensajes y la copia "old".
#include <filesystem>
#include <memory>
#include <string>

#include "common/dialogo.h"
#include "store/conexion.h"

namespace nomira::frame {

inline constexpr const char* kTituloCerrarTodas =
    "Asegúrese de tener cerrado el Nomira en todas las PC's para continuar";

// La copia de seguridad de la compactación: la ruta hasta el "." de la extensión,
// "old" y la extensión ("nomira.db" -> "nomiraold.db").
std::filesystem::path rutaCopiaAntigua(const std::filesystem::path& base);

// Cada una pregunta, trabaja y avisa. Devuelven true cuando se hizo: entonces el
// programa termina. La conexión se cierra antes de tocar el archivo.
bool RepararBase(common::Dialogo& dialogo, std::unique_ptr<store::Conexion>& base);
bool CompactarBase(common::Dialogo& dialogo, std::unique_ptr<store::Conexion>& base);

}  // namespace nomira::frame
