#pragma once
// La generación de una fila de descuento (MONTEPIO, SNIS, FRL y los demás que
// no son IRP ni IRPF) sobre el contexto de la pantalla, y las lecturas que
// piden los aportes: el tope de AFAP, el porcentaje de SNIS de la fórmula y
// las tasas de la liquidación de egreso.
#include <string>

#include "common/dialogo.h"
#include "engine/calculos/aportes.h"
#include "engine/calculos/liquido.h"
#include "engine/formulas/formula.h"
#include "engine/mes/maestros.h"

namespace nomira::engine {
inline namespace mes {

struct OpcionesAportes {
    TablaLiquidacion tabla = TablaLiquidacion::Habydesc;  // donde se lee y escribe
    OpcionesLiquido liquido;
    OpcionesFormula formula;
    // El tope del montepío es la mitad en el aguinaldo: se paga sobre medio año.
    double factorTope = 1;
};
OpcionesAportes opcionesAportesForm42();
OpcionesAportes opcionesAportesForm43();
OpcionesAportes opcionesAportesForm45();

// El concepto que se genera, como está en conceptos.
struct ConceptoDescuento {
    long codigo = 0;
    std::string concepto, formula, unidad, permanente, gravado, aguinaldo, lic, ipd;
};

struct DescuentoGenerado {
    FilaAporte fila;
    bool escrita = false;  // en habydesc no se escribe si la persona tiene egresos
};

// Limpia psnis y pfocer, calcula los líquidos, evalúa la fórmula, aplica los
// ajustes y escribe la fila. El contexto trae la base del mes (volcarEnContexto).
DescuentoGenerado generarDescuento(ContextoFormula& ctx, const ConceptoDescuento& concepto,
                                   const OpcionesAportes& opciones, common::Dialogo& dialogo);

// TOPEAFAP, o TOPEAFAPA con la letra "A" de socmedica; 106549 sin variable.
double topeAfap(const Maestros& maestros, const std::string& socmedica);

// El porcentaje que deja la fórmula del concepto SNIS (CalculoFormula2), sin
// tocar el contexto; 0 si no hay concepto SNIS.
double psnisDeLaFormula(const ContextoFormula& ctx, common::Dialogo& dialogo);

// Los porcentajes de MONTEPIO y FRL escritos en sus fórmulas; 0 si falta el concepto.
struct PorcentajesFormula {
    double montepio = 0, frl = 0;
};
PorcentajesFormula porcentajesDeConceptos(const Maestros& maestros);

// La suma de los tres porcentajes de aporte de la persona: SNIS por la escalera
// sobre `montograv`, MONTEPIO y FRL de sus fórmulas.
double tasasSobre(ContextoFormula& ctx, double montograv, common::Dialogo& dialogo);

// CalculoTasasDesNewAguinaldo: las tasas sobre lo gravado del egreso (sin la
// fila AGUINALDO). Con la casilla del período vacía la pantalla pasa el mes 01/01.
double CalculoTasasDesNewAguinaldo(ContextoFormula& ctx, common::Dialogo& dialogo);

}  // namespace mes
}  // namespace nomira::engine
