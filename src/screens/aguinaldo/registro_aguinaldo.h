#pragma once
// Aguinaldos (Form43).

namespace nomira::pantallas {

void registrarPantallasAguinaldo();

}  // namespace nomira::pantallas
