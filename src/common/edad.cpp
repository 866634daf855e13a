#include "common/edad.h"

#include <string>

#include "common/numeros.h"
#include "common/reloj.h"

namespace nomira::common {

namespace {

struct MesAnio {
    int mes, yy;
};

// Lo que importa del nacimiento: el mes y las dos cifras del año. Una fecha que
// no se entiende se lee por posición, como la tomaba siempre la pantalla.
MesAnio mesYAnio(std::string_view fechanac) {
    if (auto f = Fecha::desdeTexto(fechanac)) return {f->mes, f->anio % 100};
    auto trozo = [&](std::size_t desde) {
        return desde < fechanac.size() ? static_cast<int>(textoANumero(fechanac.substr(desde, 2)))
                                       : 0;
    };
    return {trozo(3), trozo(6)};
}

}  // namespace

Mes mesDeReferencia(std::string_view text1) {
    if (auto m = Mes::desdeTexto(text1)) return *m;
    return *Mes::desdeTexto(CalculaMesAnterior(hoy()));
}

bool EsMayorde18(std::string_view fechanac, const Mes& periodo, Dialogo* dialogo) {
    const auto nac = mesYAnio(fechanac);
    const int anioNac = anioPivote30(nac.yy);
    const int tope = 2000 + periodo.anio % 100 - 18;
    if (anioNac > tope) return false;
    if (anioNac == tope) return nac.mes < periodo.mes;
    if (dialogo)
        dialogo->avisar(TipoAviso::Advertencia,
                        "Uno de los hijos de este funcionario cumplió 18 años el año pasado, "
                        "deberá quitarlo de Datos Beneficiarios.");
    return true;
}

}  // namespace nomira::common
