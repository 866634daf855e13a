#pragma once
// Ficha de una persona, página "Datos Beneficiarios": los tres beneficiarios lado a lado,
// un campo por fila.
#include "screens/personal/campos_ficha.h"

namespace nomira::pantallas {

class PaginaBeneficiarios : public PaginaFicha {
  public:
    explicit PaginaBeneficiarios(CamposFicha& campos);
};

}  // namespace nomira::pantallas
