#pragma once
// CalculoDiasaGozar sobre la base: la persona, las filas del año anterior y lo
// gozado en el año, con los avisos de la pantalla que lo pide.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "engine/calculos/licencia_dias.h"
#include "store/conexion.h"

namespace nomira::engine {

// Qué avisa quien pide los días: la liquidación del mes (Form42) avisa además
// cuando lo gozado pasa lo generado; la de incidencias sólo muestra la traza.
enum class PantallaLicencia { Form42, Form76 };

// Los días a gozar en `anio` (el del mes que se liquida), generados en el año
// anterior. Nada si la persona no está o no le corresponde licencia; en ese
// caso lo dice el diálogo.
std::optional<DiasLicencia> CalculoDiasaGozar(store::Conexion& base, const std::string& empresa,
                                              const std::string& nombre, int anio,
                                              common::Dialogo& dialogo,
                                              PantallaLicencia pantalla = PantallaLicencia::Form42);

}  // namespace nomira::engine
