#pragma once
// El IRPF de una persona y un mes sobre lo leído: arma lo que calcularIRPF y
// calcularIRPFDic reciben hecho. El contexto trae el período, tipoaporte, la
// persona, sus filas, los maestros y la base del mes (montograv) que dejó el
// Desglose.
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "engine/calculos/irpf.h"
#include "engine/calculos/irpf_dic.h"
#include "engine/formulas/formula.h"

namespace nomira::engine {
inline namespace mes {

ResultadoIRPF CalculoIRPF(ContextoFormula& ctx, common::Dinero montoirpf,
                          common::Dinero montonominal, const OpcionesIRPF& opciones,
                          common::Dialogo& dialogo);

// Form42 en diciembre; conEgresos en Form45.
ResultadoIRPFDic CalculoIRPFDic(ContextoFormula& ctx, bool conEgresos, common::Dialogo& dialogo);

// Las deducciones del mes más los aportes del mes (y los de aguinaldos salvo
// en junio), como las muestra "M.Dedu."; sin aportes si las opciones no los
// deducen.
common::Dinero CalculomontodeduccionesIRPF(ContextoFormula& ctx, const OpcionesIRPF& opciones,
                                           common::Dialogo& dialogo);

}  // namespace mes
}  // namespace nomira::engine
