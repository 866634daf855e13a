#pragma once
// Cómo se escriben los números dentro de las explicaciones que acompañan a
// cada importe calculado: dinero con "##,##0.00", porcentajes y factores como
// en las fórmulas.
#include <string>

#include "common/dinero.h"
#include "common/formato.h"
#include "common/numeros.h"
#include "engine/formulas/formula.h"

namespace nomira::engine {
inline namespace calculos {

inline std::string pesos(common::Dinero d) {
    return common::formatear(d.aDouble(), "##,##0.00");
}
inline std::string pesos(double x) {
    return common::formatear(x, "##,##0.00");
}
inline std::string numero(double x) {
    return common::numeroATexto(x);
}

// Una fila que sale sólo de su fórmula: la fórmula, lo que se evaluó, la
// cantidad y el importe.
inline std::string explicarFormula(const ContextoFormula& ctx) {
    return "Fórmula " + ctx.formula + " = " + ctx.formulaSustituida + " con cantidad " +
           numero(ctx.cant) + ": " + pesos(ctx.total) + ".";
}

}  // namespace calculos
}  // namespace nomira::engine
