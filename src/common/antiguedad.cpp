#include "common/antiguedad.h"

#include "common/numeros.h"

namespace nomira::common {

namespace {

// dd, mm y yy por posición, como se lee lo que haya escrito (un trozo sin cifras es 0).
int trozo(std::string_view texto, std::size_t desde) {
    if (desde >= texto.size()) return 0;
    return static_cast<int>(textoANumero(texto.substr(desde, 2)));
}

}  // namespace

long CantidadDias2(int dia1, int mes1, int anio1, int dia2, int mes2, int anio2) {
    if (mes1 < 1 || mes1 > 12 || mes2 < 1 || mes2 > 12) return 0;
    anio1 = ((anio1 % 100) + 100) % 100;
    anio2 = ((anio2 % 100) + 100) % 100;
    static constexpr int kLargo[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    long dias = 1 - dia1;
    int mes = mes1, anio = anio1;
    // Con años que dan la vuelta en 99 la llegada está a lo sumo a 100 años.
    for (int vueltas = 0; (mes != mes2 || anio != anio2) && vueltas < 1200; ++vueltas) {
        dias += (mes == 2 && anio % 4 == 0) ? 29 : kLargo[mes - 1];
        if (++mes > 12) {
            mes = 1;
            anio = anio == 99 ? 0 : anio + 1;
        }
    }
    return dias + dia2;
}

std::string inicioDeAntiguedad(std::string_view fechaing, std::string_view referencias) {
    const auto abre = referencias.find('[');
    const auto cierra = referencias.find(']');
    if (abre == std::string_view::npos || cierra == std::string_view::npos || cierra < abre)
        return std::string(fechaing);
    return std::string(referencias.substr(abre + 1, cierra - abre - 1));
}

Antiguedad antiguedadEntre(std::string_view desde, std::string_view hasta) {
    const long dias = CantidadDias2(trozo(desde, 0), trozo(desde, 3), trozo(desde, 6),
                                    trozo(hasta, 0), trozo(hasta, 3), trozo(hasta, 6));
    return {dias / 365, dias % 365};
}

}  // namespace nomira::common
