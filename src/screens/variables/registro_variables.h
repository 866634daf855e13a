#pragma once
// Las pantallas de valores legales: variables con fecha, franjas del IRPF,
// sueldos mínimos y aumentos.

namespace nomira::pantallas {

void registrarPantallasVariables();

}  // namespace nomira::pantallas
