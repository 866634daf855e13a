#pragma once
// Forma decimal de un double a 15 cifras significativas, la que muestran los
// números del sistema. Todo redondeo de dinero, de Round y de los formatos se
// hace sobre esta forma y no sobre el valor binario: así 1.005 es "1.005" y no
// 1.00499999999999989..., y el resultado coincide con lo que el usuario ve.
#include <cstdint>
#include <optional>
#include <string>

namespace nomira::common {

struct Decimal {
    bool negativo = false;
    std::string cifras;  // cifras significativas, sin ceros a la derecha; vacío para cero
    int enteras = 0;     // cuántas cifras van antes del punto (puede ser <= 0)
};

enum class Redondeo { MitadAlPar, MitadLejosDelCero };

// |x| * 10000 cuando es un entero exacto de menos de 15 cifras (los importes
// de hasta cuatro decimales): entonces la forma de 15 cifras de x es ese entero
// con cuatro decimales. Vacío si no.
std::optional<std::int64_t> diezmilesimos(double x);

// Lanza Fallo(6, "Desbordamiento") para infinitos y NaN.
Decimal descomponer(double x);
// Lo mismo por el camino largo, el texto "%.14e"; descomponer toma un atajo
// para los importes de hasta cuatro decimales y da siempre lo mismo que esta.
Decimal descomponerPorTexto(double x);

// |x| * 10^decimales redondeado a entero, como texto de cifras sin ceros a la
// izquierda ("0" para cero). El signo queda en el Decimal.
std::string escalarRedondeando(const Decimal& d, int decimales, Redondeo modo);

}  // namespace nomira::common
