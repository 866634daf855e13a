#include "common/dinero.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <ostream>

#include "common/decimal.h"
#include "common/fallo.h"

namespace nomira::common {

namespace {

[[noreturn]] void desborde() {
    throw Fallo(6, "Desbordamiento");
}

}  // namespace

Dinero Dinero::desdeDouble(double x) {
    // Atajo para lo común, un importe que ya tiene cuatro decimales o está lejos
    // de la mitad: con |x| < 1e10, la forma de 15 cifras y el producto binario
    // difieren en menos de 0,06 diezmilésimos, así que si x * 10000 queda a menos
    // de 0,4 de un entero, ese entero es también el redondeo de la forma
    // decimal. Cerca de la mitad decide la forma decimal.
    if (std::fabs(x) < 1e10) {
        const double y = x * 10000.0;
        const double r = std::nearbyint(y);
        if (std::fabs(y - r) < 0.4) return Dinero(static_cast<std::int64_t>(r));
    }
    const Decimal d = descomponer(x);
    const std::string cifras = escalarRedondeando(d, 4, Redondeo::MitadAlPar);
    std::int64_t valor = 0;
    const auto [fin, error] = std::from_chars(cifras.data(), cifras.data() + cifras.size(), valor);
    if (error != std::errc() || fin != cifras.data() + cifras.size()) desborde();
    return Dinero(d.negativo ? -valor : valor);
}

std::string Dinero::texto() const {
    // Se arma desde el entero para no perder cifras en importes grandes.
    const bool negativo = diezmilesimos_ < 0;
    const auto absoluto = negativo ? -static_cast<std::uint64_t>(diezmilesimos_)
                                   : static_cast<std::uint64_t>(diezmilesimos_);
    std::string resultado = std::to_string(absoluto / 10000);
    std::string fraccion = std::to_string(absoluto % 10000);
    fraccion.insert(0, 4 - fraccion.size(), '0');
    while (!fraccion.empty() && fraccion.back() == '0') fraccion.pop_back();
    if (!fraccion.empty()) resultado += "." + fraccion;
    return negativo ? "-" + resultado : resultado;
}

Dinero Dinero::operator+(Dinero otro) const {
    std::int64_t r;
    if (__builtin_add_overflow(diezmilesimos_, otro.diezmilesimos_, &r)) desborde();
    return Dinero(r);
}

Dinero Dinero::operator-(Dinero otro) const {
    std::int64_t r;
    if (__builtin_sub_overflow(diezmilesimos_, otro.diezmilesimos_, &r)) desborde();
    return Dinero(r);
}

Dinero Dinero::operator-() const {
    if (diezmilesimos_ == std::numeric_limits<std::int64_t>::min()) desborde();
    return Dinero(-diezmilesimos_);
}

Dinero Dinero::operator*(double factor) const {
    return desdeDouble(aDouble() * factor);
}

std::ostream& operator<<(std::ostream& os, Dinero d) {
    return os << d.texto();
}

std::int32_t enteroAgencia(double x) {
    // nearbyint usa el modo de redondeo vigente, que es al más cercano y al par.
    const double r = std::nearbyint(x);
    if (!(r >= std::numeric_limits<std::int32_t>::min() &&
          r <= std::numeric_limits<std::int32_t>::max())) {
        desborde();
    }
    return static_cast<std::int32_t>(r);
}

double redondearPar(double x, int decimales) {
    if (decimales < 0) throw Fallo(5, "Llamada a procedimiento o argumento no válido");
    const Decimal d = descomponer(x);
    const std::string cifras = escalarRedondeando(d, decimales, Redondeo::MitadAlPar);
    if (cifras == "0") return 0.0;
    const std::string texto = (d.negativo ? "-" : "") + cifras + "e-" + std::to_string(decimales);
    return std::strtod(texto.c_str(), nullptr);
}

}  // namespace nomira::common
