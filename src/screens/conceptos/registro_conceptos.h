#pragma once

namespace nomira::pantallas {

// Conceptos (Form4, Form40, Form41), variables fechadas (Form400 a Form405, Form409,
// Form410), franjas (Form406), sueldos mínimos (Form407) y aumentos (Form408).
void registrarPantallasConceptos();

}  // namespace nomira::pantallas
