#pragma once
// Las veinte pantallas de catálogos, cada una una fila de configuración.
#include <vector>

#include "screens/catalogos/pantalla_catalogo.h"

namespace nomira::pantallas {

const std::vector<ConfiguracionCatalogo>& catalogosDelSistema();
// La configuración de un formulario ("Form390"); nullptr si no es un catálogo.
const ConfiguracionCatalogo* configuracionCatalogo(const std::string& formulario);

}  // namespace nomira::pantallas
