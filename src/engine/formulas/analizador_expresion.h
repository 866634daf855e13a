#pragma once
// Piezas internas del evaluador: operaciones con la semántica de VBScript, el
// léxico y un analizador descendente con su precedencia. El analizador es una
// plantilla sobre qué hacer con cada operación: calcularla en el acto (una
// fórmula que se evalúa una vez) o emitir código para repetirla.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "engine/formulas/evaluador.h"

namespace nomira::engine::inline formulas::detalle {

enum class Operador : std::uint8_t {
    Potencia,
    Producto,
    Cociente,
    DivisionEntera,
    Modulo,
    Suma,
    Resta,
    Igual,
    Distinto,
    Menor,
    Mayor,
    MenorIgual,
    MayorIgual,
    Y,
    O,
    OExclusivo,
    Equivalencia,
    Implicacion,
};

enum class Funcion : std::uint8_t {
    Desconocida,
    Int,
    Fix,
    Abs,
    Sgn,
    Sqr,
    Exp,
    Log,
    Round,
    CInt,
    CLng,
    CDbl,
    CCur,
    CSng,
    CBool,
    CByte,
    Atn,
    Sin,
    Cos,
    Tan,
};

// Lanzan common::Fallo con el número de VBScript.
[[noreturn]] void fallar(int numero);
double aplicar(Operador op, double a, double b);
double negar(double x);
double negacionLogica(double x);
// args apunta a los dos primeros argumentos; cuantos es el total escrito.
double llamar(Funcion f, const double* args, int cuantos);

Funcion buscarFuncion(std::string_view nombre);

enum class Pieza : std::uint8_t {
    Fin,
    FinDeLinea,
    Numero,
    Nulo,
    Nombre,
    Abre,
    Cierra,
    Coma,
    Mas,
    Menos,
    Por,
    Entre,
    BarraInvertida,
    Circunflejo,
    Igual,
    Distinto,
    Menor,
    Mayor,
    MenorIgual,
    MayorIgual,
    Mod,
    And,
    Or,
    Xor,
    Eqv,
    Imp,
    Not,
    Is,
};

class Lexico {
  public:
    explicit Lexico(std::string_view texto) : texto_(texto) { avanzar(); }
    void avanzar();

    Pieza pieza = Pieza::Fin;
    double numero = 0;        // de Pieza::Numero
    bool desborde = false;    // un literal que no cabe en un double
    std::string_view nombre;  // de Pieza::Nombre

  private:
    void leerNumero();
    void leerHexOctal(int base);
    void leerNombre();

    std::string_view texto_;
    std::size_t pos_ = 0;
};

// C da: using Valor; numero(double); negar(Valor); no(Valor);
// binario(Operador, Valor, Valor); llamada(Funcion, Valor*, int); fallo(int).
template <class C>
class Analizador {
  public:
    using Valor = typename C::Valor;

    Analizador(std::string_view texto, C& c) : lex_(texto), c_(c) {}

    Valor todo() {
        if (lex_.pieza == Pieza::Fin || lex_.pieza == Pieza::FinDeLinea) {
            saltarLineas();
            if (lex_.pieza != Pieza::Fin) fallar(1025);
            return c_.numero(0);  // Empty
        }
        Valor v = imp();
        saltarLineas();
        if (lex_.pieza != Pieza::Fin) fallar(1025);
        return v;
    }

  private:
    // De menor a mayor precedencia: Imp, Eqv, Xor, Or, And, Not, comparaciones,
    // + -, Mod, \, * /, ^, signo. Todas asocian a la izquierda, también ^.
    Valor imp() { return izquierda<&Analizador::eqv>(Pieza::Imp, Operador::Implicacion); }
    Valor eqv() { return izquierda<&Analizador::xor_>(Pieza::Eqv, Operador::Equivalencia); }
    Valor xor_() { return izquierda<&Analizador::or_>(Pieza::Xor, Operador::OExclusivo); }
    Valor or_() { return izquierda<&Analizador::and_>(Pieza::Or, Operador::O); }
    Valor and_() { return izquierda<&Analizador::not_>(Pieza::And, Operador::Y); }

    // Una fila de Not no anida llamadas: se cuentan y se aplican al final.
    Valor not_() {
        std::size_t cuantos = 0;
        for (; lex_.pieza == Pieza::Not; lex_.avanzar()) ++cuantos;
        Valor v = comparacion();
        for (std::size_t i = 0; i < cuantos; ++i) v = c_.no(v);
        return v;
    }

    Valor comparacion() {
        Valor v = suma();
        for (;;) {
            Operador op;
            switch (lex_.pieza) {
                case Pieza::Igual:
                    op = Operador::Igual;
                    break;
                case Pieza::Distinto:
                    op = Operador::Distinto;
                    break;
                case Pieza::Menor:
                    op = Operador::Menor;
                    break;
                case Pieza::Mayor:
                    op = Operador::Mayor;
                    break;
                case Pieza::MenorIgual:
                    op = Operador::MenorIgual;
                    break;
                case Pieza::MayorIgual:
                    op = Operador::MayorIgual;
                    break;
                case Pieza::Is:
                    // Is compara objetos y aquí sólo hay números.
                    lex_.avanzar();
                    c_.binario(Operador::Igual, v, suma());
                    v = c_.fallo(424);
                    continue;
                default:
                    return v;
            }
            lex_.avanzar();
            v = c_.binario(op, v, suma());
        }
    }

    Valor suma() {
        Valor v = modulo();
        while (lex_.pieza == Pieza::Mas || lex_.pieza == Pieza::Menos) {
            const Operador op = lex_.pieza == Pieza::Mas ? Operador::Suma : Operador::Resta;
            lex_.avanzar();
            v = c_.binario(op, v, modulo());
        }
        return v;
    }

    Valor modulo() { return izquierda<&Analizador::divisionEntera>(Pieza::Mod, Operador::Modulo); }
    Valor divisionEntera() {
        return izquierda<&Analizador::producto>(Pieza::BarraInvertida, Operador::DivisionEntera);
    }

    Valor producto() {
        Valor v = potencia();
        while (lex_.pieza == Pieza::Por || lex_.pieza == Pieza::Entre) {
            const Operador op = lex_.pieza == Pieza::Por ? Operador::Producto : Operador::Cociente;
            lex_.avanzar();
            v = c_.binario(op, v, potencia());
        }
        return v;
    }

    // El signo liga más que ^: -2^2 es (-2)^2 y 2^-1 es válido.
    Valor potencia() {
        return izquierda<&Analizador::signo>(Pieza::Circunflejo, Operador::Potencia);
    }

    // Igual que Not: los signos seguidos se cuentan, sin recursión.
    Valor signo() {
        std::size_t menos = 0;
        for (;; lex_.avanzar()) {
            if (lex_.pieza == Pieza::Menos)
                ++menos;
            else if (lex_.pieza != Pieza::Mas)
                break;
        }
        Valor v = primario();
        for (std::size_t i = 0; i < menos; ++i) v = c_.negar(v);
        return v;
    }

    Valor primario() {
        switch (lex_.pieza) {
            case Pieza::Numero: {
                const bool desborde = lex_.desborde;
                const double x = lex_.numero;
                lex_.avanzar();
                return desborde ? c_.fallo(6) : c_.numero(x);
            }
            case Pieza::Nulo:
                lex_.avanzar();
                return c_.fallo(94);
            case Pieza::Abre: {
                lex_.avanzar();
                Valor v = anidada();
                cerrar();
                return v;
            }
            case Pieza::Nombre:
                return nombre();
            default:
                fallar(1002);
        }
    }

    Valor nombre() {
        const Funcion f = buscarFuncion(lex_.nombre);
        lex_.avanzar();
        if (lex_.pieza != Pieza::Abre) {
            // Un nombre suelto es una variable sin asignar (Empty, 0); una
            // función sin paréntesis se llama sin argumentos.
            return f == Funcion::Desconocida ? c_.numero(0) : c_.llamada(f, nullptr, 0);
        }
        lex_.avanzar();
        Valor args[2]{};
        int cuantos = 0;
        if (lex_.pieza != Pieza::Cierra) {
            for (;;) {
                Valor v = anidada();
                if (cuantos < 2) args[cuantos] = v;
                ++cuantos;
                if (lex_.pieza != Pieza::Coma) break;
                lex_.avanzar();
            }
        }
        cerrar();
        return c_.llamada(f, args, cuantos);
    }

    // Un paréntesis o un argumento es un nivel más de recursión. Con un tope,
    // un texto hostil da un error en vez de agotar la pila del proceso.
    Valor anidada() {
        if (anidamiento_ == kMaxAnidamiento) fallar(kErrorAnidamiento);
        ++anidamiento_;
        Valor v = imp();
        --anidamiento_;
        return v;
    }

    void cerrar() {
        if (lex_.pieza != Pieza::Cierra) fallar(1006);
        lex_.avanzar();
    }

    void saltarLineas() {
        while (lex_.pieza == Pieza::FinDeLinea) lex_.avanzar();
    }

    template <Valor (Analizador::*siguiente)()>
    Valor izquierda(Pieza pieza, Operador op) {
        Valor v = (this->*siguiente)();
        while (lex_.pieza == pieza) {
            lex_.avanzar();
            v = c_.binario(op, v, (this->*siguiente)());
        }
        return v;
    }

    Lexico lex_;
    C& c_;
    int anidamiento_ = 0;
};

}  // namespace nomira::engine::formulas::detalle
