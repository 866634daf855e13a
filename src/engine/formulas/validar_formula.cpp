#include "engine/formulas/validar_formula.h"

#include <cctype>
#include <optional>
#include <vector>

#include "common/fallo.h"
#include "engine/formulas/evaluador.h"

namespace nomira::engine {
inline namespace formulas {

namespace {

// Lo que vale un [TOKEN] mientras se revisa: cualquier número sirve para analizar.
constexpr const char* kNeutro = "1";

RevisionFormula rechazo(int numero, const std::string& descripcion, std::size_t posicion) {
    return {false, std::to_string(numero) + " " + descripcion, posicion};
}

// El texto sin corchetes y, por cada carácter suyo, el de la fórmula de donde vino.
struct Sustituida {
    std::string texto;
    std::vector<std::size_t> origen;
};

Sustituida sustituir(std::string_view f) {
    Sustituida s;
    for (std::size_t i = 0; i < f.size(); ++i) {
        if (f[i] == '[') {
            const auto cierre = f.find(']', i);
            for (const char* c = kNeutro; *c; ++c) {
                s.texto += *c;
                s.origen.push_back(i);
            }
            i = cierre;
            continue;
        }
        s.texto += f[i];
        s.origen.push_back(i);
    }
    return s;
}

std::optional<int> fallaAlAnalizar(std::string_view texto) {
    try {
        Expresion::analizar(texto);
    } catch (const common::Fallo& f) {
        return f.numero();
    }
    return std::nullopt;
}

bool esLetra(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) || c == '_';
}

}  // namespace

RevisionFormula revisarFormula(std::string_view f) {
    // Corchetes: sin anidar y cada uno con su pareja.
    std::optional<std::size_t> abierto;
    for (std::size_t i = 0; i < f.size(); ++i) {
        if (f[i] == '[') {
            if (abierto) return rechazo(1002, "Falta el corchete de cierre ']'", *abierto + 1);
            abierto = i;
        } else if (f[i] == ']') {
            if (!abierto) return rechazo(1002, "Sobra el corchete de cierre ']'", i + 1);
            abierto.reset();
        }
    }
    if (abierto) return rechazo(1002, "Falta el corchete de cierre ']'", *abierto + 1);

    const auto s = sustituir(f);
    std::string descripcion;
    int numero = 0;
    try {
        Expresion::analizar(s.texto);
    } catch (const common::Fallo& e) {
        numero = e.numero();
        descripcion = e.descripcion();
    }
    if (numero != 0) {
        // Un paréntesis sin pareja se señala donde está.
        std::vector<std::size_t> abiertos;
        for (std::size_t i = 0; i < s.texto.size(); ++i) {
            if (s.texto[i] == '(') abiertos.push_back(i);
            if (s.texto[i] == ')') {
                if (abiertos.empty()) return rechazo(numero, descripcion, s.origen[i] + 1);
                abiertos.pop_back();
            }
        }
        if (!abiertos.empty()) return rechazo(numero, descripcion, s.origen[abiertos.back()] + 1);
        // Si no, donde el texto empieza a fallar: el primer trozo que ya no se analiza
        // con el mismo error.
        for (std::size_t k = 1; k <= s.texto.size(); ++k)
            if (fallaAlAnalizar(std::string_view(s.texto).substr(0, k)) == numero)
                return rechazo(numero, descripcion, s.origen[k - 1] + 1);
        return rechazo(numero, descripcion, f.size());
    }

    // Una función que no existe sólo falla al evaluar: se prueba cada nombre seguido
    // de "(" con un argumento neutro.
    for (std::size_t i = 0; i < s.texto.size(); ++i) {
        if (!esLetra(s.texto[i]) ||
            (i > 0 &&
             (esLetra(s.texto[i - 1]) || std::isdigit(static_cast<unsigned char>(s.texto[i - 1])))))
            continue;
        std::size_t fin = i;
        while (fin < s.texto.size() &&
               (esLetra(s.texto[fin]) || std::isdigit(static_cast<unsigned char>(s.texto[fin]))))
            ++fin;
        std::size_t j = fin;
        while (j < s.texto.size() && s.texto[j] == ' ') ++j;
        if (j >= s.texto.size() || s.texto[j] != '(') continue;
        const auto nombre = s.texto.substr(i, fin - i);
        try {
            evaluarExpresion(nombre + "(" + kNeutro + ")");
        } catch (const common::Fallo& e) {
            if (e.numero() == 13)
                return rechazo(13, e.descripcion() + ": la función " + nombre + " no existe",
                               s.origen[i] + 1);
        }
    }
    return {};
}

}  // namespace formulas
}  // namespace nomira::engine
