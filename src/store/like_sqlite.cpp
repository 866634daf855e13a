#include "store/like_sqlite.h"

#include <vector>

namespace nomira::store {

namespace {

// Un byte que no forma UTF-8 válido es un carácter por sí mismo, fuera del
// rango de Unicode: no se confunde con una letra (0xC1 no es "Á") ni se come
// el byte siguiente (un "\" de escape o un "%").
constexpr char32_t kByteSuelto = 0x110000;

// El largo de la secuencia UTF-8 bien formada que empieza en `i`, o 0.
std::size_t largoValido(std::string_view t, std::size_t i) {
    auto b = [&](std::size_t k) { return static_cast<unsigned char>(t[i + k]); };
    auto sigue = [&](std::size_t k, unsigned char min = 0x80, unsigned char max = 0xBF) {
        return i + k < t.size() && b(k) >= min && b(k) <= max;
    };
    const unsigned char p = b(0);
    if (p < 0x80) return 1;
    if (p >= 0xC2 && p <= 0xDF) return sigue(1) ? 2 : 0;
    // Sin formas largas de más, sin sustitutos (ED A0..BF) y sin pasar de U+10FFFF.
    if (p >= 0xE0 && p <= 0xEF) {
        const bool segundo = p == 0xE0   ? sigue(1, 0xA0)
                             : p == 0xED ? sigue(1, 0x80, 0x9F)
                                         : sigue(1);
        return segundo && sigue(2) ? 3 : 0;
    }
    if (p >= 0xF0 && p <= 0xF4) {
        const bool segundo = p == 0xF0   ? sigue(1, 0x90)
                             : p == 0xF4 ? sigue(1, 0x80, 0x8F)
                                         : sigue(1);
        return segundo && sigue(2) && sigue(3) ? 4 : 0;
    }
    return 0;
}

std::vector<char32_t> decodificar(std::string_view texto) {
    std::vector<char32_t> salida;
    salida.reserve(texto.size());
    for (std::size_t i = 0; i < texto.size();) {
        const auto b = static_cast<unsigned char>(texto[i]);
        const std::size_t largo = largoValido(texto, i);
        if (largo == 0) {
            salida.push_back(kByteSuelto + b);
            ++i;
            continue;
        }
        char32_t c = largo == 1 ? b : b & (0x7f >> largo);
        for (std::size_t k = 1; k < largo; ++k)
            c = (c << 6) | (static_cast<unsigned char>(texto[i + k]) & 0x3f);
        salida.push_back(c);
        i += largo;
    }
    return salida;
}

// Minúscula de ASCII y de Latin-1 (á é í ó ú ü ñ y compañía), que es lo que
// se escribe en nombres y catálogos.
char32_t minuscula(char32_t c) {
    if (c >= U'A' && c <= U'Z') return c + 32;
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;
    return c;
}

}  // namespace

bool coincideLike(std::string_view patronTexto, std::string_view valorTexto, char32_t escape) {
    std::vector<char32_t> p = decodificar(patronTexto), v = decodificar(valorTexto);
    for (auto& c : p) c = minuscula(c);
    for (auto& c : v) c = minuscula(c);
    escape = minuscula(escape);
    // Recorrido con vuelta atrás al último "%": lineal en la práctica.
    std::size_t ip = 0, iv = 0, estrella = std::string_view::npos, marca = 0;
    while (iv < v.size()) {
        if (ip < p.size() && p[ip] == U'%') {
            estrella = ip++;
            marca = iv;
            continue;
        }
        if (ip < p.size()) {
            bool literal = escape && p[ip] == escape && ip + 1 < p.size();
            char32_t esperado = literal ? p[ip + 1] : p[ip];
            if ((!literal && esperado == U'_') || esperado == v[iv]) {
                ip += literal ? 2 : 1;
                ++iv;
                continue;
            }
        }
        if (estrella == std::string_view::npos) return false;
        ip = estrella + 1;
        iv = ++marca;
    }
    while (ip < p.size() && p[ip] == U'%') ++ip;
    return ip == p.size();
}

namespace {

void funcionLike(sqlite3_context* contexto, int argc, sqlite3_value** argv) {
    for (int i = 0; i < argc; ++i)
        if (sqlite3_value_type(argv[i]) == SQLITE_NULL) return sqlite3_result_null(contexto);
    auto texto = [&](int i) {
        const auto* t = reinterpret_cast<const char*>(sqlite3_value_text(argv[i]));
        return std::string_view(t ? t : "", static_cast<std::size_t>(sqlite3_value_bytes(argv[i])));
    };
    char32_t escape = 0;
    if (argc == 3) {
        auto e = decodificar(texto(2));
        if (e.size() != 1)
            return sqlite3_result_error(contexto, "ESCAPE expression must be a single character",
                                        -1);
        escape = e[0];
    }
    sqlite3_result_int(contexto, coincideLike(texto(0), texto(1), escape) ? 1 : 0);
}

}  // namespace

void registrarLikeSinMayusculas(sqlite3* base) {
    int opciones = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_function(base, "like", 2, opciones, nullptr, funcionLike, nullptr, nullptr);
    sqlite3_create_function(base, "like", 3, opciones, nullptr, funcionLike, nullptr, nullptr);
}

}  // namespace nomira::store
