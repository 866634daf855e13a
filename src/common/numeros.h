#pragma once
// Números como texto, con "." decimal, sin depender de la configuración regional.
#include <string>
#include <string_view>

namespace nomira::common {

// El número como lo escriben las fórmulas: hasta 15 cifras significativas, sin
// agrupar ni ceros de más, "0" para cero, "-0.5" y notación exponencial para
// exponentes >= 15 o < -4 ("1E+15", "1.5E-05").
std::string numeroATexto(double x);

// Lectura tolerante de una columna de número como texto: salta blancos, toma
// el número que encabeza el texto y da 0 si no hay ninguno ("", "abc"). Un
// número que no cabe en un double lanza Fallo(6, "Desbordamiento").
double textoANumero(std::string_view texto);

// ¿Es el texto un número decimal simple? Blancos alrededor, signo, cifras con a
// lo sumo un punto y exponente opcional. "" y " " no lo son.
bool esNumerico(std::string_view texto);

}  // namespace nomira::common
