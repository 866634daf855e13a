#pragma once
// Ficha de una persona, página "Otras Deducciones": tres deducciones con su código, su
// categoría (entre las del código) y sus fechas.
#include "screens/personal/campos_ficha.h"

namespace nomira::pantallas {

class PaginaDeducciones : public PaginaFicha {
  public:
    explicit PaginaDeducciones(CamposFicha& campos);
};

}  // namespace nomira::pantallas
