#pragma once
// La base del mes para el IRPF y los aportes (Desglose): gravado, total de
// haberes, doceavo del aguinaldo, salario vacacional y el monto del IRPF con
// el 6% que se le suma por encima de 10 BPC.
#include <string>
#include <vector>

#include "common/dinero.h"
#include "engine/calculos/liquido.h"
#include "engine/formulas/formula.h"
#include "engine/mes/filas_mes.h"
#include "engine/mes/libro.h"

namespace nomira::engine {
inline namespace calculos {

struct EntradaDesglose {
    std::vector<FilaMes> filas;    // habydesc del mes, haberes y descuentos
    common::Dinero aguinaldosHab;  // filas Hab de aguinaldos del mes
    common::Dinero salvacacional;  // salvacacional del mes, códigos 606 y 636
    std::string tipoaporte, vinculofun;
    double sueldo = 0, bpc = 0;
};

struct BaseMes {
    common::Dinero montogravag, montosv, montograv, totalhab;
    common::Dinero parteVacacional;          // salvacacional más las reliquidaciones de vacacional
    common::Dinero montoirpf, montonominal;  // montonominal es también "M.Dedu."
    bool conAdicion = false;                 // se sumó el 6% del gravado
    LiquidoNeto liquido;
};

// ¿Tiene el vínculo la excepción de los dueños y directores (sin el 6%, sin
// el aumento de la licencia adelantada)?
bool vinculoSinAdicion(const std::string& vinculofun);

BaseMes Desglose(const EntradaDesglose& e);
// Cómo se llegó a la base, para quien la pide.
std::string explicacion(const BaseMes& b);

// La base del mes sobre las filas de la persona: las de habydesc, o las de
// egresos en la liquidación por egreso.
BaseMes leerDesglose(const LibroPersona& libro, const common::Mes& mes,
                     const std::string& tipoaporte, const std::string& vinculofun, double sueldo,
                     double bpc, TablaLiquidacion tabla = TablaLiquidacion::Habydesc);

// Lo que las fórmulas leen de la base: MONTOGRAV, MONTOGRAVAG, MONTOSV, TOTALHAB
// y los tres líquidos.
void volcarEnContexto(const BaseMes& b, ContextoFormula& ctx);

}  // namespace calculos
}  // namespace nomira::engine
