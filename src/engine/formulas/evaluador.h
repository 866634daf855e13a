#pragma once
// Evaluador de fórmulas: el texto aritmético que queda después de reemplazar los
// corchetes, evaluado con las reglas de VBScript, que es como se calcularon
// siempre las fórmulas de los usuarios.
//
// Los fallos son common::Fallo con el número y la descripción de VBScript:
// 5 argumento no válido, 6 desbordamiento, 11 división por cero, 13 tipos que no
// coinciden, 94 uso de Null, 450 número de argumentos, y los de análisis 1002
// (sintaxis), 1006 (falta ")"), 1025 (sobra texto al final), 1032 (carácter no
// válido) y 28 (demasiados paréntesis o llamadas uno dentro de otro). Un error
// de análisis gana siempre a uno de cálculo, porque VBScript compila el texto
// entero antes de evaluarlo.
#include <cstdint>
#include <string_view>
#include <vector>

namespace nomira::engine {
inline namespace formulas {

// Paréntesis y llamadas que pueden ir uno dentro de otro. Una fórmula de
// concepto usa pocos; el tope cuida la pila, holgado aun con 1 MB.
inline constexpr int kMaxAnidamiento = 200;
inline constexpr int kErrorAnidamiento = 28;

// Evalúa una expresión aritmética ya sin corchetes, como lo hace VBScript.
// Un texto vacío o sólo de blancos vale 0 (Eval devuelve Empty).
double evaluarExpresion(std::string_view texto);

// Para repetir la misma fórmula muchas veces: se analiza una vez.
class Expresion {
  public:
    // La expresión vacía, que vale 0.
    Expresion() = default;

    // Lanza los errores de análisis; los de cálculo quedan para evaluar().
    static Expresion analizar(std::string_view texto);

    double evaluar() const;

    struct Instruccion {
        enum class Tipo : std::uint8_t { Numero, Negar, No, Binario, Llamada, Fallar };
        Tipo tipo;
        std::uint8_t cual;      // operador o función
        std::uint16_t cuantos;  // argumentos de una llamada
        double valor;           // número, o número de fallo
    };

  private:
    std::vector<Instruccion> codigo_;
    std::size_t profundidad_ = 0;  // lo más alto que llega la pila

    friend class Compilador;
};

}  // namespace formulas
}  // namespace nomira::engine
