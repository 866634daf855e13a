#pragma once
// Haberes y Descuentos: el mes de una persona y las corridas de la empresa.

namespace nomira::pantallas {

void registrarPantallasHaberes();

}  // namespace nomira::pantallas
