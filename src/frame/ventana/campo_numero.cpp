#include "frame/ventana/campo_numero.h"

#include <algorithm>
#include <cctype>

#include "common/formato.h"
#include "frame/ventana/texto_qt.h"

namespace nomira::ventana {

namespace {

bool soloCifras(std::string_view s) {
    if (s.empty()) return false;
    for (char c : s)
        if (!std::isdigit(static_cast<unsigned char>(c))) return false;
    return true;
}

// "1,234,567" -> "1234567"; nada si algún grupo después del primero no tiene tres cifras.
std::optional<std::string> sinMiles(std::string_view entera) {
    std::string r;
    std::size_t desde = 0;
    bool primero = true;
    while (true) {
        const auto coma = entera.find(',', desde);
        const auto grupo =
            entera.substr(desde, coma == std::string_view::npos ? coma : coma - desde);
        if (!soloCifras(grupo) || (!primero && grupo.size() != 3) ||
            (primero && grupo.size() > 3 && coma != std::string_view::npos))
            return std::nullopt;
        r += grupo;
        if (coma == std::string_view::npos) return r;
        desde = coma + 1;
        primero = false;
    }
}

}  // namespace

std::optional<std::string> numeroTecleado(std::string_view texto, ClaseNumero clase) {
    while (!texto.empty() && std::isspace(static_cast<unsigned char>(texto.front())))
        texto.remove_prefix(1);
    while (!texto.empty() && std::isspace(static_cast<unsigned char>(texto.back())))
        texto.remove_suffix(1);
    if (texto.empty()) return std::string();
    std::string signo;
    if (texto.front() == '-' || texto.front() == '+') {
        if (texto.front() == '-') signo = "-";
        texto.remove_prefix(1);
    }
    const auto punto = texto.find('.');
    const auto comas = std::count(texto.begin(), texto.end(), ',');
    std::string_view entera = texto, decimales;
    bool conDecimales = false;
    if (punto != std::string_view::npos) {
        entera = texto.substr(0, punto);
        decimales = texto.substr(punto + 1);
        conDecimales = true;
    } else if (comas == 1) {
        const auto coma = texto.find(',');
        entera = texto.substr(0, coma);
        decimales = texto.substr(coma + 1);
        conDecimales = true;
    }
    if (entera.empty() && conDecimales) entera = "0";
    const auto cifras = sinMiles(entera);
    if (!cifras) return std::nullopt;
    if (conDecimales && !decimales.empty() && !soloCifras(decimales)) return std::nullopt;
    if (conDecimales && decimales.empty() && entera == "0") return std::nullopt;
    if (clase == ClaseNumero::Entero) {
        // "12.00" es un entero escrito con sus decimales.
        if (decimales.find_first_not_of('0') != std::string_view::npos) return std::nullopt;
        return signo + *cifras;
    }
    std::string r = signo + *cifras;
    if (!decimales.empty()) r += "." + std::string(decimales);
    return r;
}

CampoNumero::CampoNumero(ClaseNumero clase, QWidget* padre) : QLineEdit(padre), clase_(clase) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

std::string CampoNumero::valor() const {
    return numeroTecleado(text().toStdString(), clase_).value_or("");
}

bool CampoNumero::esValido() const {
    return numeroTecleado(text().toStdString(), clase_).has_value();
}

void CampoNumero::ponerImporte(double importe) {
    setText(aQt(common::formatear(importe, "##,##0.00")));
}

}  // namespace nomira::ventana
