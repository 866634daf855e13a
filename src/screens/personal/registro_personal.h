#pragma once
// El personal de una empresa: la lista y la ficha de una persona.

namespace nomira::pantallas {

void registrarPantallasPersonal();

}  // namespace nomira::pantallas
