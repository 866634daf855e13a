#pragma once
// El porcentaje de SNIS de la persona: 3, 4.5 o 6, más 2 con cónyuge que
// ingresa al sistema, y 3 menos con la aportación "04".
#include <string>

#include "common/dialogo.h"
#include "engine/formula.h"

namespace nomira::engine {

struct DatosSNIS {
    double montograv = 0;
    double bpc = 0;
    bool conyuge = false;     // el cónyuge ingresa al SNS
    bool hijoACargo = false;  // algún beneficiario menor con causa "01" o "02"
    std::string tipoaporte;
};

double porcentajeSNIS(const DatosSNIS& d);

// Lo calcula con la fila de la persona (sin fila: sin cónyuge ni hijos) y lo
// deja en ctx.psnis; el último beneficiario con fecha deja su resultado en
// ctx.esmayor.
void calcularPSNIS(ContextoFormula& ctx, double bpc, common::Dialogo& dialogo);

}  // namespace nomira::engine
