#pragma once
// CalculoDiasaGozar sobre lo leído: la persona, sus filas del año anterior y lo
// gozado en el año, con los avisos de la pantalla que lo pide.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "engine/calculos/licencia_dias.h"
#include "engine/mes/libro.h"
#include "master/personal.h"

namespace nomira::engine {
inline namespace mes {

// Qué avisa quien pide los días: la liquidación del mes (Form42) avisa además
// cuando lo gozado pasa lo generado; la de incidencias sólo muestra la traza.
enum class PantallaLicencia { Form42, Form76 };

// Los días a gozar en `anio` (el del mes que se liquida), generados en el año
// anterior. Nada si no le corresponde licencia; en ese caso lo dice el diálogo.
// Las filas deben traer habydesc del año anterior y salvacacional y egresos
// del año.
std::optional<DiasLicencia> CalculoDiasaGozar(const master::Persona& persona,
                                              const LibroPersona& libro, int anio,
                                              common::Dialogo& dialogo,
                                              PantallaLicencia pantalla = PantallaLicencia::Form42);

}  // namespace mes
}  // namespace nomira::engine
