#pragma once
// El porcentaje de SNIS de la persona: 3, 4.5 o 6, más 2 con cónyuge que
// ingresa al sistema, y 3 menos con la aportación "04". La misma escalera
// sirve al token [PSNIS] y a las tasas de los recibos (CalculoTasasDesNew),
// que sólo le pasan otra base.
#include <string>

#include "common/dialogo.h"
#include "engine/formulas/formula.h"

namespace nomira::engine {
inline namespace calculos {

struct DatosSNIS {
    double montograv = 0;
    double bpc = 0;
    bool conyuge = false;     // el cónyuge ingresa al SNS
    bool hijoACargo = false;  // algún beneficiario menor con causa "01" o "02"
    std::string tipoaporte;
};

double porcentajeSNIS(const DatosSNIS& d);

// Cónyuge e hijos de la fila de personal, con la edad de cada beneficiario al
// período. Si `esmayor` no es nulo, queda con el resultado del último
// beneficiario con fecha (como lo deja la pantalla).
void conyugeEHijosSNIS(DatosSNIS& d, const master::Persona& p, const common::Mes& periodo,
                       common::Dialogo* dialogo, bool* esmayor = nullptr);

// Lo calcula con la fila de la persona (sin fila: sin cónyuge ni hijos) y lo
// deja en ctx.psnis; el último beneficiario con fecha deja su resultado en
// ctx.esmayor.
void calcularPSNIS(ContextoFormula& ctx, double bpc, common::Dialogo& dialogo);

}  // namespace calculos
}  // namespace nomira::engine
