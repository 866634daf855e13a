#pragma once
// nomira --captura CARPETA: dibuja fuera de pantalla la ventana principal, sus menús y
// cada pantalla que abre el menú, en PNG con el número de formulario como nombre.
#include <filesystem>

#include "frame/sesion.h"

namespace nomira::ventana {

// Devuelve cuántas imágenes escribió.
int capturarPantallas(frame::Sesion& sesion, const std::filesystem::path& carpeta);

}  // namespace nomira::ventana
