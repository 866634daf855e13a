#pragma once

namespace nomira::pantallas {

void registrarPantallasEgreso();

}  // namespace nomira::pantallas
