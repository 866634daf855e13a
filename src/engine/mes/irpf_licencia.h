#pragma once
// El IRPF de una licencia (la que se teclea o la adelantada a jornaleros y por
// hora): los aportes de esa licencia se escriben un momento en habydesc para
// que cuenten entre las deducciones, y se deshacen al terminar. Van en una
// transacción que nunca se confirma, así no queda nada aunque falle.
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "engine/calculos/irpf.h"
#include "engine/formulas/formula.h"

namespace nomira::engine {
inline namespace mes {

// Los aportes que lleva la licencia: con cantbfc 0 los tres, o SNIS y FRL con
// la aportación "04"; con sueldo ficto MONTEPIO y FRL, o SNIS y FRL con "04".
std::vector<std::string> aportesDeLicencia(double cantbfc, const std::string& tipoaporte);

struct IRPFLicencia {
    ResultadoIRPF irpf;
    std::string explicacion;  // los aportes que contaron
};

// CalculoIRPF(montoirpf, montonominal) con los aportes calculados sobre
// `gravadoLicencia` (el tope del montepío aplicado) entre las filas del mes.
IRPFLicencia irpfConAportesDeLicencia(ContextoFormula& ctx, common::Dinero montoirpf,
                                      common::Dinero montonominal, common::Dinero gravadoLicencia,
                                      common::Dialogo& dialogo);

}  // namespace mes
}  // namespace nomira::engine
