#include "engine/formulas/evaluador.h"

#include <array>
#include <optional>

#include "common/fallo.h"
#include "engine/formulas/analizador_expresion.h"

namespace nomira::engine {
inline namespace formulas {

using detalle::Analizador;
using detalle::Funcion;
using detalle::Operador;

namespace {

// Calcula mientras analiza, sin armar nada en memoria. El primer fallo de
// cálculo se guarda y se lanza recién al terminar el análisis, porque un error
// de sintaxis más adelante en el texto tiene prioridad.
class Directo {
  public:
    using Valor = double;

    double numero(double x) { return x; }
    double negar(double x) { return detalle::negar(x); }
    double no(double x) {
        return proteger([&] { return detalle::negacionLogica(x); });
    }
    double binario(Operador op, double a, double b) {
        return proteger([&] { return detalle::aplicar(op, a, b); });
    }
    double llamada(Funcion f, const double* args, int cuantos) {
        return proteger([&] { return detalle::llamar(f, args, cuantos); });
    }
    double fallo(int numero) {
        return proteger([&]() -> double { detalle::fallar(numero); });
    }

    void lanzarPendiente() const {
        if (pendiente_) throw *pendiente_;
    }

  private:
    template <class F>
    double proteger(F&& f) {
        if (pendiente_) return 0;
        try {
            return f();
        } catch (const common::Fallo& e) {
            pendiente_ = e;
            return 0;
        }
    }

    std::optional<common::Fallo> pendiente_;
};

}  // namespace

// Emite código de pila: cada instrucción consume sus operandos y deja uno.
class Compilador {
  public:
    struct Valor {};
    using Tipo = Expresion::Instruccion::Tipo;

    explicit Compilador(Expresion& e) : e_(e) {}

    Valor numero(double x) { return emitir(Tipo::Numero, 0, 0, x, 0); }
    Valor negar(Valor) { return emitir(Tipo::Negar, 0, 0, 0, 1); }
    Valor no(Valor) { return emitir(Tipo::No, 0, 0, 0, 1); }
    Valor binario(Operador op, Valor, Valor) {
        return emitir(Tipo::Binario, static_cast<std::uint8_t>(op), 0, 0, 2);
    }
    Valor llamada(Funcion f, const Valor*, int cuantos) {
        if (cuantos > 0xFFFF) detalle::fallar(1002);
        return emitir(Tipo::Llamada, static_cast<std::uint8_t>(f),
                      static_cast<std::uint16_t>(cuantos), 0, cuantos);
    }
    Valor fallo(int numero) { return emitir(Tipo::Fallar, 0, 0, numero, 0); }

  private:
    Valor emitir(Tipo tipo, std::uint8_t cual, std::uint16_t cuantos, double valor, int consume) {
        e_.codigo_.push_back({tipo, cual, cuantos, valor});
        altura_ = altura_ - consume + 1;
        if (altura_ > e_.profundidad_) e_.profundidad_ = altura_;
        return {};
    }

    Expresion& e_;
    std::size_t altura_ = 0;
};

double evaluarExpresion(std::string_view texto) {
    Directo directo;
    const double r = Analizador<Directo>(texto, directo).todo();
    directo.lanzarPendiente();
    return r;
}

Expresion Expresion::analizar(std::string_view texto) {
    Expresion e;
    Compilador compilador(e);
    Analizador<Compilador>(texto, compilador).todo();
    return e;
}

double Expresion::evaluar() const {
    if (codigo_.empty()) return 0;
    std::array<double, 32> corta;
    std::vector<double> larga;
    double* pila = corta.data();
    if (profundidad_ > corta.size()) {
        larga.resize(profundidad_);
        pila = larga.data();
    }
    std::size_t tope = 0;  // cantidad de valores en la pila
    for (const Instruccion& i : codigo_) {
        switch (i.tipo) {
            case Instruccion::Tipo::Numero:
                pila[tope++] = i.valor;
                break;
            case Instruccion::Tipo::Negar:
                pila[tope - 1] = detalle::negar(pila[tope - 1]);
                break;
            case Instruccion::Tipo::No:
                pila[tope - 1] = detalle::negacionLogica(pila[tope - 1]);
                break;
            case Instruccion::Tipo::Binario:
                --tope;
                pila[tope - 1] =
                    detalle::aplicar(static_cast<Operador>(i.cual), pila[tope - 1], pila[tope]);
                break;
            case Instruccion::Tipo::Llamada: {
                tope -= i.cuantos;
                pila[tope] = detalle::llamar(static_cast<Funcion>(i.cual), pila + tope, i.cuantos);
                ++tope;
                break;
            }
            case Instruccion::Tipo::Fallar:
                detalle::fallar(static_cast<int>(i.valor));
        }
    }
    return pila[tope - 1];
}

}  // namespace formulas
}  // namespace nomira::engine
