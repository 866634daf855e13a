#pragma once
// La revisión de una fórmula al guardar un concepto: cada [TOKEN] se cambia por un
// número neutro y el texto pasa por el analizador del evaluador. Sólo se rechaza lo
// que nunca podrá evaluarse (corchetes o paréntesis sin pareja, sintaxis, una
// función que no existe); lo que depende de los valores (una división por cero)
// queda para la liquidación.
#include <string>
#include <string_view>

namespace nomira::engine {
inline namespace formulas {

struct RevisionFormula {
    bool valida = true;
    // El mensaje del evaluador, con su número ("1006 Se esperaba ')'").
    std::string mensaje;
    // El carácter de la fórmula donde se nota el error, contando desde 1; 0 si valida.
    std::size_t posicion = 0;
};

RevisionFormula revisarFormula(std::string_view formula);

}  // namespace formulas
}  // namespace nomira::engine
