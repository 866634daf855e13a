#pragma once
// Registra todas las pantallas que abre el menú. main() la llama antes de crear la
// ventana principal; cada carpeta de pantallas tiene su propia función de registro.

namespace nomira::pantallas {

void registrarTodas();

}  // namespace nomira::pantallas
