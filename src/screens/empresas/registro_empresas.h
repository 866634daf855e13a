#pragma once
// Registra Empresas y su ficha, Obras y su ficha, y las pantallas de catálogos.

namespace nomira::pantallas {

void registrarPantallasEmpresas();

}  // namespace nomira::pantallas
