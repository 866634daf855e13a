#pragma once
// Las veinte pantallas de catálogos, por su número de formulario.

namespace nomira::pantallas {

void registrarPantallasCatalogos();

}  // namespace nomira::pantallas
