#include "engine/calculos/vinculos.h"

#include <algorithm>
#include <array>

namespace nomira::engine {
inline namespace calculos {

bool cobraSueldoReal(const std::string& v) {
    static constexpr std::array<const char*, 7> kSinSueldo = {"Patron Unipersonal",
                                                              "Socio con actividad",
                                                              "Socio sin actividad",
                                                              "Socio cooperativista",
                                                              "Conyuge colaborador con actividad",
                                                              "Director con remuneración",
                                                              "Director sin remuneración"};
    return !v.ends_with("SAS") && std::none_of(kSinSueldo.begin(), kSinSueldo.end(),
                                               [&](const char* n) { return v == n; });
}

}  // namespace calculos
}  // namespace nomira::engine
