#pragma once
// Las obras de construcción de una empresa: la lista y la ficha.

namespace nomira::pantallas {

void registrarPantallasObras();

}  // namespace nomira::pantallas
