#include "common/formato.h"

#include "common/decimal.h"
#include "common/texto.h"

namespace nomira::common {

namespace {

struct Patron {
    bool agrupa = false;
    std::size_t enterasMinimas = 0;
    int decimales = 0;
};

Patron leerPatron(std::string_view patron) {
    Patron p;
    const auto punto = patron.find('.');
    const std::string_view enteras = patron.substr(0, punto);
    p.agrupa = enteras.find(',') != std::string_view::npos;
    for (char c : enteras) {
        if (c == '0') ++p.enterasMinimas;
    }
    if (punto != std::string_view::npos) {
        for (char c : patron.substr(punto + 1)) {
            if (c == '0') ++p.decimales;
        }
    }
    return p;
}

std::string agrupar(const std::string& enteras) {
    std::string r;
    const std::size_t n = enteras.size();
    for (std::size_t i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0) r += ',';
        r += enteras[i];
    }
    return r;
}

}  // namespace

std::string formatear(double x, std::string_view patron) {
    const Patron p = leerPatron(patron);
    std::string cifras;
    bool negativo;
    if (const auto r = diezmilesimos(x); r && p.decimales <= 4) {
        // El atajo de los importes: el mismo redondeo, en enteros.
        std::int64_t escala = 1;
        for (int i = p.decimales; i < 4; ++i) escala *= 10;
        const auto redondeado = *r / escala + (*r % escala * 2 >= escala ? 1 : 0);
        cifras = std::to_string(redondeado);
        negativo = x < 0 && redondeado != 0;
    } else {
        const Decimal d = descomponer(x);
        cifras = escalarRedondeando(d, p.decimales, Redondeo::MitadLejosDelCero);
        negativo = d.negativo && cifras != "0";
    }

    // Con decimales hacen falta al menos decimales + 1 cifras para separar.
    const std::size_t dec = static_cast<std::size_t>(p.decimales);
    if (cifras.size() <= dec) cifras.insert(0, dec + 1 - cifras.size(), '0');
    std::string enteras = cifras.substr(0, cifras.size() - dec);
    const std::string fraccion = cifras.substr(cifras.size() - dec);

    // Sin "0" en la parte entera, un cero entero no se muestra (".50").
    if (enteras == "0" && p.enterasMinimas == 0) enteras.clear();
    if (enteras.size() < p.enterasMinimas) {
        enteras.insert(0, p.enterasMinimas - enteras.size(), '0');
    }
    if (p.agrupa) enteras = agrupar(enteras);

    std::string r = negativo ? "-" : "";
    r += enteras;
    if (dec > 0) r += "." + fraccion;
    return r;
}

std::string alinearDerecha(std::string_view texto, std::size_t ancho) {
    const std::size_t largo = longitudCaracteres(texto);
    std::string r = largo < ancho ? std::string(ancho - largo, ' ') : std::string();
    return r.append(texto);
}

std::string alinearIzquierda(std::string_view texto, std::size_t ancho) {
    const std::size_t largo = longitudCaracteres(texto);
    std::string r(texto);
    if (largo < ancho) r.append(ancho - largo, ' ');
    return r;
}

std::string cortar(std::string_view texto, std::size_t n) {
    std::size_t caracteres = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const auto c = static_cast<unsigned char>(texto[i]);
        if ((c & 0xC0) != 0x80) {
            if (caracteres == n) return std::string(texto.substr(0, i));
            ++caracteres;
        }
    }
    return std::string(texto);
}

}  // namespace nomira::common
