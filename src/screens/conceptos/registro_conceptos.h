#pragma once
// Conceptos y fórmulas (Form4), los conceptos de una persona (Form40) y la ficha
// de un concepto (Form41).

namespace nomira::pantallas {

void registrarPantallasConceptos();

}  // namespace nomira::pantallas
