#include "common/texto.h"

#include <vector>

#include "common/fallo.h"

namespace nomira::common {

namespace {

// Segundo byte UTF-8 (tras 0xC3) de las minúsculas acentuadas y sus mayúsculas.
constexpr unsigned char kMinusculas[] = {0xA1, 0xA9, 0xAD, 0xB3, 0xBA, 0xBC, 0xB1};
constexpr unsigned char kMayusculas[] = {0x81, 0x89, 0x8D, 0x93, 0x9A, 0x9C, 0x91};

template <std::size_t N>
std::string cambiarCaja(std::string_view texto, const unsigned char (&desde)[N],
                        const unsigned char (&hacia)[N], char asciiDesde, char asciiHasta,
                        int delta) {
    std::string r(texto);
    for (std::size_t i = 0; i < r.size(); ++i) {
        const char c = r[i];
        if (c >= asciiDesde && c <= asciiHasta) {
            r[i] = static_cast<char>(c + delta);
        } else if (static_cast<unsigned char>(c) == 0xC3 && i + 1 < r.size()) {
            const auto siguiente = static_cast<unsigned char>(r[i + 1]);
            for (std::size_t k = 0; k < N; ++k) {
                if (siguiente == desde[k]) r[i + 1] = static_cast<char>(hacia[k]);
            }
            ++i;
        }
    }
    return r;
}

// Un carácter UTF-8 por elemento, para que "?" tome un carácter y no un byte.
std::vector<std::string_view> caracteres(std::string_view t) {
    std::vector<std::string_view> r;
    std::size_t inicio = 0;
    for (std::size_t i = 1; i <= t.size(); ++i) {
        if (i == t.size() || (static_cast<unsigned char>(t[i]) & 0xC0) != 0x80) {
            r.push_back(t.substr(inicio, i - inicio));
            inicio = i;
        }
    }
    return r;
}

void reemplazar(std::string& t, char que, char por, ReemplazoNombre modo) {
    if (modo == ReemplazoNombre::Ninguno) return;
    for (char& c : t) {
        if (c == que) {
            c = por;
            if (modo == ReemplazoNombre::Primero) return;
        }
    }
}

}  // namespace

std::string mayusculas(std::string_view texto) {
    return cambiarCaja(texto, kMinusculas, kMayusculas, 'a', 'z', 'A' - 'a');
}

std::string minusculas(std::string_view texto) {
    return cambiarCaja(texto, kMayusculas, kMinusculas, 'A', 'Z', 'a' - 'A');
}

std::size_t longitudCaracteres(std::string_view texto) {
    std::size_t n = 0;
    for (char c : texto) {
        if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++n;
    }
    return n;
}

std::string codigoDeCatalogo(std::string_view valor) {
    const auto guion = valor.find('-');
    return guion == std::string_view::npos ? std::string() : std::string(valor.substr(0, guion));
}

std::string textoDeCatalogo(std::string_view valor) {
    const auto guion = valor.find('-');
    return std::string(guion == std::string_view::npos ? valor : valor.substr(guion + 1));
}

std::string patronCatalogo(std::string_view texto) {
    const bool vacio = texto.find_first_not_of(' ') == std::string_view::npos;
    return "*" + std::string(vacio ? "NADA" : texto);
}

bool coincideLike(std::string_view valor, std::string_view patron) {
    const std::string v = mayusculas(valor);
    const std::string p = mayusculas(patron);
    const auto cv = caracteres(v);
    const auto cp = caracteres(p);
    // Recorrido con retroceso al último "*": lineal salvo patrones patológicos.
    std::size_t i = 0, j = 0;
    std::size_t estrella = std::string::npos, marca = 0;
    while (i < cv.size()) {
        if (j < cp.size() && cp[j] == "*") {
            estrella = j++;
            marca = i;
        } else if (j < cp.size() && (cp[j] == "?" || cp[j] == cv[i])) {
            ++i;
            ++j;
        } else if (estrella != std::string::npos) {
            j = estrella + 1;
            i = ++marca;
        } else {
            return false;
        }
    }
    while (j < cp.size() && cp[j] == "*") ++j;
    return j == cp.size();
}

NombreSeparado separarNombre(std::string_view nombre, ReemplazoNombre modo) {
    const auto coma = nombre.find(',');
    if (coma == std::string_view::npos) {
        throw Fallo(5, "Llamada a procedimiento o argumento no válido");
    }
    auto partir = [modo](std::string_view lado, std::string& primero, std::string& segundo) {
        if (!lado.empty() && lado.front() == ' ') lado.remove_prefix(1);
        const auto blanco = lado.find(' ');
        primero = lado.substr(0, blanco);
        segundo = blanco == std::string_view::npos ? "" : lado.substr(blanco + 1);
        for (std::string* parte : {&primero, &segundo}) {
            reemplazar(*parte, '_', ' ', modo);
            reemplazar(*parte, '-', '\'', modo);
        }
    };
    NombreSeparado r;
    partir(nombre.substr(0, coma), r.apellido1, r.apellido2);
    partir(nombre.substr(coma + 1), r.nombre1, r.nombre2);
    return r;
}

}  // namespace nomira::common
