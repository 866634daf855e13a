#pragma once
// El impuesto viejo a los sueldos (fila "IRP"): la tasa de la franja en que cae
// el gravado, sin que el paso de una franja a la siguiente deje un neto menor
// que el tope neto de la anterior. La RELIQUIDACION del mes va aparte.
#include <vector>

#include "engine/calculos/irpf.h"
#include "engine/formulas/formula.h"

namespace nomira::engine {
inline namespace calculos {

// El impuesto de un monto sobre todas las franjas (por número de franja).
// Fuera de toda franja, 0.
double irpDe(double monto, const std::vector<FilaEscala>& franjas, double bpc);

struct ResultadoIRP {
    double cant = 1, total = 0;
};

// Con la cantidad tecleada (vacía: 1), el gravado del contexto y la fila
// RELIQUIDACION del mes de la persona.
ResultadoIRP CalculoIRP(ContextoFormula& ctx);

}  // namespace calculos
}  // namespace nomira::engine
