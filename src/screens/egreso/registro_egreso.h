#pragma once
// Liquidación por Egreso (Form45).

namespace nomira::pantallas {

void registrarPantallasEgreso();

}  // namespace nomira::pantallas
