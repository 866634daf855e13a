#include "common/decimal.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "common/fallo.h"

namespace nomira::common {

std::optional<std::int64_t> diezmilesimos(double x) {
    // Si x * 10000 da exactamente un entero r de menos de 15 cifras, x está a
    // menos de 1,2e-16 |x| de r / 10000, que es un número de 15 cifras; la
    // separación entre números de 15 cifras cerca de x es de al menos
    // 1e-15 |x|, así que r / 10000 es la forma de 15 cifras de x.
    const double y = std::fabs(x * 10000.0);
    if (y < 1e15 && y == std::trunc(y)) return static_cast<std::int64_t>(y);
    return std::nullopt;
}

Decimal descomponer(double x) {
    if (const auto r = diezmilesimos(x); r && x != 0) {
        Decimal d;
        d.negativo = x < 0;
        d.cifras = std::to_string(*r);
        d.enteras = static_cast<int>(d.cifras.size()) - 4;
        while (d.cifras.back() == '0') d.cifras.pop_back();
        return d;
    }
    return descomponerPorTexto(x);
}

Decimal descomponerPorTexto(double x) {
    if (!std::isfinite(x)) throw Fallo(6, "Desbordamiento");
    Decimal d;
    if (x == 0) return d;
    // Como "%.14e", exactamente 15 cifras significativas: "-1.23450000000000e+05";
    // to_chars redondea igual que printf y no pasa por el locale.
    char buf[40];
    *std::to_chars(buf, buf + sizeof buf - 1, x, std::chars_format::scientific, 14).ptr = '\0';
    const char* p = buf;
    if (*p == '-') {
        d.negativo = true;
        ++p;
    }
    for (; *p != 'e'; ++p) {
        if (*p != '.') d.cifras += *p;
    }
    d.enteras = std::atoi(p + 1) + 1;
    while (!d.cifras.empty() && d.cifras.back() == '0') d.cifras.pop_back();
    return d;
}

namespace {

// Suma uno a un texto de cifras decimales.
void incrementar(std::string& cifras) {
    for (auto i = cifras.size(); i-- > 0;) {
        if (cifras[i] != '9') {
            ++cifras[i];
            return;
        }
        cifras[i] = '0';
    }
    cifras.insert(cifras.begin(), '1');
}

}  // namespace

std::string escalarRedondeando(const Decimal& d, int decimales, Redondeo modo) {
    const int largo = static_cast<int>(d.cifras.size());
    const int conservadas = d.enteras + decimales;
    std::string resultado;
    std::string descartadas;
    if (conservadas <= 0) {
        resultado = "0";
        // Con conservadas < 0 la primera cifra descartada es un cero implícito.
        if (conservadas == 0) descartadas = d.cifras;
    } else if (conservadas >= largo) {
        resultado = d.cifras + std::string(conservadas - largo, '0');
    } else {
        resultado = d.cifras.substr(0, conservadas);
        descartadas = d.cifras.substr(conservadas);
    }

    bool subir = false;
    if (!descartadas.empty()) {
        const char primera = descartadas[0];
        if (primera > '5') {
            subir = true;
        } else if (primera == '5') {
            // Las cifras no tienen ceros a la derecha: si hay más, pasa de la mitad.
            const bool exactaMitad = descartadas.size() == 1;
            if (!exactaMitad || modo == Redondeo::MitadLejosDelCero) {
                subir = true;
            } else {
                subir = (resultado.back() - '0') % 2 == 1;
            }
        }
    }
    if (subir) incrementar(resultado);

    const auto noCero = resultado.find_first_not_of('0');
    return noCero == std::string::npos ? "0" : resultado.substr(noCero);
}

}  // namespace nomira::common
