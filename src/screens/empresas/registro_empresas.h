#pragma once
// Empresas (Form2) y la ficha de una empresa (Form21).

namespace nomira::pantallas {

void registrarPantallasEmpresas();

}  // namespace nomira::pantallas
