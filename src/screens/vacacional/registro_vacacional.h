#pragma once
// Salario vacacional (Form44).

namespace nomira::pantallas {

void registrarPantallasVacacional();

}  // namespace nomira::pantallas
