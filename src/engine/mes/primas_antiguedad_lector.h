#pragma once
// La prima de antigüedad de una persona sobre lo leído por la corrida.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "engine/calculos/primas_antiguedad.h"
#include "engine/mes/maestros.h"
#include "master/personal.h"

namespace nomira::engine {
inline namespace mes {

// CalculoAntiguedad: con el consejo de la empresa, BPC, SALMIN y el sueldo
// mínimo de la categoría de los maestros. periodo es el del mes tecleado o,
// vacío, el anterior. Un fallo se avisa como "Error inesperado" con el miembro
// y deja la fórmula.
std::optional<PrimaAntiguedad> CalculoAntiguedad(
    const Maestros& maestros, const master::Persona& persona, const std::string& textoCant,
    const common::Mes& periodo, common::Dialogo& dialogo, const std::string& pantalla = "Form42");

}  // namespace mes
}  // namespace nomira::engine
