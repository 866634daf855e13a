#pragma once
// Lo de personal que leen los aportes y el IRPF: la persona entera y, a mano,
// beneficiarios, otras deducciones, socmedica y el tipo de sueldo en la forma que usan.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "engine/calculos/irpf.h"
#include "engine/formulas/formula.h"
#include "engine/mes/maestros.h"
#include "master/personal.h"
#include "master/variables.h"

namespace nomira::engine {
inline namespace mes {

struct DatosPersona {
    // La fila entera (sexocon, causaben y fechanacben para la escalera).
    const master::Persona* fila = nullptr;
    std::string tiposueldo, vinculofun, socmedica;
    double sueldo = 0, cantbfc = 0;
    std::array<std::string, 3> porcentajeben, montoben, fechadesdeben;
    std::array<std::string, 3> codigoded, categoriaded, fechadesdeded;
};

// La persona del contexto; nada si no la trae.
std::optional<DatosPersona> datosPersona(const ContextoFormula& ctx);

// Beneficiarios y casillas con sus códigos de catálogo (de los maestros), la
// edad al período y el valor de la variable de las casillas "03".
Deducciones deduccionesDe(const Maestros& maestros, const DatosPersona& p,
                          const common::Mes& periodo, common::Dialogo* dialogo);

}  // namespace mes
}  // namespace nomira::engine
