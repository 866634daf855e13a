#pragma once
// Antigüedad al egreso: días entre dos fechas con años de dos cifras y años
// enteros. La usan la ficha del personal y, más adelante, el egreso.
#include <string>
#include <string_view>

namespace nomira::common {

// Días desde la primera fecha hasta la segunda, con años de dos cifras: empieza
// en 1 - dia1, suma el largo de cada mes desde el primero hasta el anterior al
// último (febrero 29 cuando el año de dos cifras es múltiplo de 4), pasando de
// 12 a 1 y de 99 a 0, y al final suma dia2. Un mes fuera de 1..12 da 0.
long CantidadDias2(int dia1, int mes1, int anio1, int dia2, int mes2, int anio2);

// Desde cuándo se cuenta: la fecha de ingreso, salvo que las referencias tengan
// un texto entre "[" y "]": un reingresado conserva así un comienzo anterior.
std::string inicioDeAntiguedad(std::string_view fechaing, std::string_view referencias);

struct Antiguedad {
    long anios = 0;
    long diasRestantes = 0;
};

// Entre dos fechas "dd/mm/yy", leídas por posición: los días de CantidadDias2
// divididos por 365.
Antiguedad antiguedadEntre(std::string_view desde, std::string_view hasta);

}  // namespace nomira::common
