#pragma once
// Lo de personal que leen los aportes y el IRPF: la persona entera y, a mano,
// beneficiarios, otras deducciones, socmedica y el tipo de sueldo en la forma que usan.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "engine/formulas/formula.h"
#include "engine/calculos/irpf.h"
#include "master/personal.h"
#include "master/variables.h"
#include "store/conexion.h"

namespace nomira::engine {

struct DatosPersona {
    // La fila entera (sexocon, causaben y fechanacben para la escalera).
    master::PersonaCompartida fila;
    std::string tiposueldo, vinculofun, socmedica;
    double sueldo = 0, cantbfc = 0;
    std::array<std::string, 3> porcentajeben, montoben, fechadesdeben;
    std::array<std::string, 3> codigoded, categoriaded, fechadesdeded;
};

// La persona del contexto, leída una vez por empresa y nombre.
std::optional<DatosPersona> datosPersona(ContextoFormula& ctx);

// Beneficiarios y casillas con sus códigos de catálogo, la edad al período y
// el valor de la variable de las casillas "03". Los catálogos se leen por
// `base`: en una corrida, la conexión que los recuerda.
Deducciones deduccionesDe(store::Conexion& base, const DatosPersona& p, const common::Mes& periodo,
                          master::LectorVariables& variables, common::Dialogo* dialogo);

}  // namespace nomira::engine
