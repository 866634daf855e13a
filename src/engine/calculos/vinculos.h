#pragma once
// Los vínculos funcionales que cobran un sueldo real: el "staff" de la empresa.
// Patrones, socios, cónyuges colaboradores, directores y SAS no lo son: no
// sirven de referencia al ficto ni a los controles sobre el personal.
#include <string>

namespace nomira::engine {
inline namespace calculos {

bool cobraSueldoReal(const std::string& vinculofun);

}  // namespace calculos
}  // namespace nomira::engine
