#pragma once
// El dígito verificador de la cédula: se comprueba al dar Enter en Documento y
// nunca impide guardar; sólo avisa.
#include <string>
#include <string_view>

namespace nomira::common {

enum class ResultadoCedula { ConSeparadores, LargoInvalido, Correcta, Invalida };

struct VerificacionCedula {
    ResultadoCedula resultado;
    // El documento tal como vuelve al campo: con siete cifras se antepone un "0".
    std::string documento;
};

// Pesos 2 9 8 7 6 3 4 sobre las siete primeras cifras; el dígito es 10 menos el
// resto de dividir por 10, y un resto 0 da 0.
VerificacionCedula DigitoVerificador(std::string_view documento);

// El cuadro que corresponde a cada resultado.
std::string mensajeCedula(ResultadoCedula resultado);

}  // namespace nomira::common
