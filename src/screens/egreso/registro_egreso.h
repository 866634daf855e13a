#pragma once
// Liquidación por Egreso (Form45) y las incidencias del IPD (Form70) y de la
// licencia (Form76).

namespace nomira::pantallas {

void registrarPantallasEgreso();

}  // namespace nomira::pantallas
