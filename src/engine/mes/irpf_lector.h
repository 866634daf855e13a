#pragma once
// Las lecturas del IRPF para una persona y un mes: lo que calcularIRPF y
// calcularIRPFDic reciben hecho. El contexto es el de la pantalla: empresa,
// nombre, período, tipoaporte, el lector de variables y la base del mes
// (montograv) que dejó el Desglose.
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "engine/formulas/formula.h"
#include "engine/calculos/irpf.h"
#include "engine/calculos/irpf_dic.h"

namespace nomira::engine {

// Las franjas de la escala mensual (< 1000) o de la del aguinaldo de junio (> 2000).
std::vector<FilaEscala> leerEscala(store::Conexion& base, bool delAguinaldo);

ResultadoIRPF CalculoIRPF(ContextoFormula& ctx, common::Dinero montoirpf,
                          common::Dinero montonominal, const OpcionesIRPF& opciones,
                          common::Dialogo& dialogo);

// Form42 en diciembre; conEgresos en Form45.
ResultadoIRPFDic CalculoIRPFDic(ContextoFormula& ctx, bool conEgresos, common::Dialogo& dialogo);

// Las deducciones del mes más los aportes del mes (y los de aguinaldos salvo
// en junio), como las muestra "M.Dedu.".
common::Dinero CalculomontodeduccionesIRPF(ContextoFormula& ctx, const OpcionesIRPF& opciones,
                                           common::Dialogo& dialogo);

}  // namespace nomira::engine
