#pragma once
// Formatos de número de los listados y archivos ("##,##0.00" y compañía), y
// alineación de textos a un ancho en caracteres.
#include <cstddef>
#include <string>
#include <string_view>

namespace nomira::common {

// Formatea como los patrones del sistema: "##,##0.00", "#0.00", "##,##0",
// "####0.00", "#####0.00", "00", "0000". La coma agrupa de a tres a cualquier
// tamaño, los "0" antes del punto fijan las cifras enteras mínimas y los de
// después los decimales. Redondea la mitad lejos del cero sobre la forma
// decimal a 15 cifras (0.125 -> "0.13", 1.005 -> "1.01", -2.5 -> "-3"). Lo que
// redondea a cero se muestra sin signo.
std::string formatear(double x, std::string_view patron);

// Rellenan con blancos hasta `ancho` caracteres (no bytes); un texto más largo
// queda como está.
std::string alinearDerecha(std::string_view texto, std::size_t ancho);
std::string alinearIzquierda(std::string_view texto, std::size_t ancho);

// Los primeros `n` caracteres del texto.
std::string cortar(std::string_view texto, std::size_t n);

}  // namespace nomira::common
