#include "common/numeros.h"

#include <charconv>

#include "common/decimal.h"
#include "common/fallo.h"

namespace nomira::common {

std::string numeroATexto(double x) {
    // Un entero (casi todas las variables de las fórmulas) son sus cifras.
    if (const auto r = diezmilesimos(x); r && *r % 10000 == 0)
        return std::to_string(x < 0 ? -(*r / 10000) : *r / 10000);
    const Decimal d = descomponer(x);
    if (d.cifras.empty()) return "0";
    const int largo = static_cast<int>(d.cifras.size());
    const int exponente = d.enteras - 1;
    std::string r = d.negativo ? "-" : "";
    if (exponente >= 15 || exponente < -4) {
        r += d.cifras[0];
        if (largo > 1) r += "." + d.cifras.substr(1);
        r += exponente < 0 ? "E-" : "E+";
        std::string e = std::to_string(exponente < 0 ? -exponente : exponente);
        if (e.size() < 2) e.insert(0, "0");
        return r + e;
    }
    if (d.enteras <= 0) return r + "0." + std::string(-d.enteras, '0') + d.cifras;
    if (d.enteras >= largo) return r + d.cifras + std::string(d.enteras - largo, '0');
    return r + d.cifras.substr(0, d.enteras) + "." + d.cifras.substr(d.enteras);
}

namespace {

bool esBlanco(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool esCifra(char c) {
    return c >= '0' && c <= '9';
}

// Largo del número decimal que empieza en texto[0], 0 si no hay ninguno.
std::size_t largoNumero(std::string_view t) {
    std::size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
    std::size_t cifras = 0;
    while (i < t.size() && esCifra(t[i])) ++i, ++cifras;
    if (i < t.size() && t[i] == '.') {
        ++i;
        while (i < t.size() && esCifra(t[i])) ++i, ++cifras;
    }
    if (cifras == 0) return 0;
    // El exponente cuenta solo si trae cifras: "2e" se lee como 2.
    if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < t.size() && (t[j] == '+' || t[j] == '-')) ++j;
        if (j < t.size() && esCifra(t[j])) {
            while (j < t.size() && esCifra(t[j])) ++j;
            i = j;
        }
    }
    return i;
}

std::string_view sinBlancos(std::string_view t) {
    while (!t.empty() && esBlanco(t.front())) t.remove_prefix(1);
    while (!t.empty() && esBlanco(t.back())) t.remove_suffix(1);
    return t;
}

}  // namespace

double textoANumero(std::string_view texto) {
    texto = sinBlancos(texto);
    const std::size_t largo = largoNumero(texto);
    if (largo == 0) return 0;
    std::string_view numero = texto.substr(0, largo);
    // from_chars no acepta "+" y no depende de la configuración regional.
    if (numero.front() == '+') numero.remove_prefix(1);
    double valor = 0;
    const auto r = std::from_chars(numero.data(), numero.data() + numero.size(), valor);
    if (r.ec == std::errc::result_out_of_range) {
        // Un exponente negativo es un número demasiado chico: vale cero. Lo
        // demasiado grande desborda, como en la lectura de números de siempre.
        const auto e = numero.find_first_of("eE");
        const bool chico = e != std::string_view::npos
                               ? numero[e + 1] == '-'
                               : numero.find_first_of("123456789") > numero.find('.');
        if (chico) return 0;
        throw Fallo(6, "Desbordamiento");
    }
    return valor;
}

bool esNumerico(std::string_view texto) {
    texto = sinBlancos(texto);
    return !texto.empty() && largoNumero(texto) == texto.size();
}

}  // namespace nomira::common
