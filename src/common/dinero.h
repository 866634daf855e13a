#pragma once
// Importes de dinero: punto fijo de cuatro decimales en 64 bits, como la moneda
// de la base. Las sumas son exactas; la conversión desde double redondea.
#include <compare>
#include <cstdint>
#include <iosfwd>
#include <string>

namespace nomira::common {

class Dinero {
  public:
    constexpr Dinero() = default;

    // Redondea a cuatro decimales, mitad al par, sobre la forma decimal del
    // double a 15 cifras (1.00005 -> 1.0000, 1.00015 -> 1.0002). Fuera de rango
    // lanza Fallo(6, "Desbordamiento").
    static Dinero desdeDouble(double x);
    static constexpr Dinero desdeDiezmilesimos(std::int64_t d) { return Dinero(d); }

    double aDouble() const { return static_cast<double>(diezmilesimos_) / 10000.0; }
    constexpr std::int64_t diezmilesimos() const { return diezmilesimos_; }

    // Sin ceros de más y con "." decimal: "1234.5", "-0.25", "0".
    std::string texto() const;

    Dinero operator+(Dinero otro) const;
    Dinero operator-(Dinero otro) const;
    Dinero operator-() const;
    Dinero& operator+=(Dinero otro) { return *this = *this + otro; }
    Dinero& operator-=(Dinero otro) { return *this = *this - otro; }
    // Tasas y productos intermedios van en double; el resultado vuelve a dinero.
    Dinero operator*(double factor) const;

    constexpr auto operator<=>(const Dinero&) const = default;

  private:
    constexpr explicit Dinero(std::int64_t d) : diezmilesimos_(d) {}
    std::int64_t diezmilesimos_ = 0;
};

inline Dinero operator*(double factor, Dinero d) {
    return d * factor;
}
std::ostream& operator<<(std::ostream& os, Dinero d);

// Entero de 32 bits para los archivos de los organismos: mitad al par sobre el
// valor binario, como la conversión a entero largo (2.5 -> 2, 3.5 -> 4).
// Fuera de rango lanza Fallo(6, "Desbordamiento").
std::int32_t enteroAgencia(double x);

// Round de las fórmulas: mitad al par en el decimal indicado, sobre la forma
// decimal a 15 cifras. decimales < 0 lanza Fallo(5, ...).
double redondearPar(double x, int decimales);

}  // namespace nomira::common
