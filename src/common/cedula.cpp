#include "common/cedula.h"

namespace nomira::common {

VerificacionCedula DigitoVerificador(std::string_view documento) {
    std::string doc(documento);
    if (doc.find_first_of("./-") != std::string::npos)
        return {ResultadoCedula::ConSeparadores, doc};
    if (doc.size() == 7) doc = "0" + doc;
    if (doc.size() != 8) return {ResultadoCedula::LargoInvalido, doc};
    // Una letra cuenta como cero, como el valor numérico de un carácter que no es cifra.
    auto cifra = [&](std::size_t i) { return doc[i] >= '0' && doc[i] <= '9' ? doc[i] - '0' : 0; };
    static constexpr int kPesos[7] = {2, 9, 8, 7, 6, 3, 4};
    int suma = 0;
    for (std::size_t i = 0; i < 7; ++i) suma += kPesos[i] * cifra(i);
    const int digito = (10 - suma % 10) % 10;
    const bool correcta = doc[7] >= '0' && doc[7] <= '9' && digito == cifra(7);
    return {correcta ? ResultadoCedula::Correcta : ResultadoCedula::Invalida, doc};
}

std::string mensajeCedula(ResultadoCedula resultado) {
    switch (resultado) {
        case ResultadoCedula::ConSeparadores:
            return "El campo Documento debe ingresarse sin puntos ni barras ni guiones (incluír el "
                   "dígito que va después del guión).";
        case ResultadoCedula::LargoInvalido:
            return "El campo Documento deberá tener un largo de 7 u 8 dígitos (incluír el dígito "
                   "que va después del guión).";
        case ResultadoCedula::Correcta:
            return "La cédula es CORRECTA.";
        case ResultadoCedula::Invalida:
            return "La cédula es INVALIDA.";
    }
    return "";
}

}  // namespace nomira::common
