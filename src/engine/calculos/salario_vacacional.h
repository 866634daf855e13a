#pragma once
// El salario vacacional que acompaña a una licencia tecleada en el mes
// (CalculoSalarioVacacionalNew): lo que vale la licencia, menos los tres
// aportes de la persona, queda en salvacacional como la fila del mes de
// "SALARIO VACACIONAL" (o su 2DA o 3RA ACT), con el período de la licencia.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "engine/formulas/formula.h"

namespace nomira::engine {
inline namespace calculos {

// "SALARIO VACACIONAL", "SALARIO VACACIONAL 2DA ACT"... según la licencia.
std::string conceptoVacacionalDe(const std::string& conceptoLicencia);

struct SalarioVacacional {
    long codigo = 0;
    std::string concepto;
    common::Dinero total;  // el neto que se guarda
    std::string explicacion;
};

// Escribe (o reescribe) la fila del mes en las filas de la persona. Nada si
// falta el concepto.
// `monto` es lo que vale la licencia; desde y hasta, "dd/mm/yy" (vacías: Null).
std::optional<SalarioVacacional> CalculoSalarioVacacionalNew(
    ContextoFormula& ctx, const std::string& conceptoLicencia, double dias, common::Dinero monto,
    const std::string& desde, const std::string& hasta, common::Dialogo& dialogo);

}  // namespace calculos
}  // namespace nomira::engine
