#pragma once
// Ficha de una persona, páginas "D.Lab. 2da Act." y "D.Lab. 3ra Act.": las columnas
// de la segunda o la tercera actividad (sufijo 2 o 3).
#include <functional>
#include <string>

#include "screens/personal/campos_ficha.h"

namespace nomira::pantallas {

class PaginaOtraActividad : public PaginaFicha {
  public:
    // `n`: 2 o 3. `referencias`: las de la primera actividad, para la antigüedad.
    PaginaOtraActividad(CamposFicha& campos, int n, std::function<std::string()> referencias);

    CamposActividad actividad;
};

}  // namespace nomira::pantallas
