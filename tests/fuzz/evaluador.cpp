// Objetivo de libFuzzer para el evaluador de fórmulas. Cualquier texto debe
// dar un número o un common::Fallo, nunca caerse; y las dos maneras de evaluar
// (de una vez, y analizada para repetir) deben dar lo mismo o el mismo error.
// Se compila y corre con scripts/fuzz-evaluador.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "common/fallo.h"
#include "engine/formulas/evaluador.h"

namespace {

struct Resultado {
    std::optional<double> valor;
    int error = 0;
};

template <class F>
Resultado probar(F&& f) {
    try {
        return {f(), 0};
    } catch (const nomira::common::Fallo& e) {
        return {std::nullopt, e.numero()};
    }
}

bool iguales(const Resultado& a, const Resultado& b) {
    if (a.error != b.error || a.valor.has_value() != b.valor.has_value()) return false;
    return !a.valor || *a.valor == *b.valor;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    using namespace nomira::engine;
    const std::string_view texto(reinterpret_cast<const char*>(datos), tamano);
    const Resultado directo = probar([&] { return evaluarExpresion(texto); });
    const Resultado analizado = probar([&] { return Expresion::analizar(texto).evaluar(); });
    // VBScript no tiene infinitos ni NaN: ningún resultado puede serlo.
    if ((directo.valor && !std::isfinite(*directo.valor)) || !iguales(directo, analizado)) {
        std::fprintf(stderr, "directo %g (error %d), analizado %g (error %d)\n",
                     directo.valor.value_or(0), directo.error, analizado.valor.value_or(0),
                     analizado.error);
        std::abort();
    }
    return 0;
}
