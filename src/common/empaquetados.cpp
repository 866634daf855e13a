#include "common/empaquetados.h"

#include <limits>

#include "common/formato.h"

namespace nomira::common {

namespace {

constexpr std::size_t kHastaElFinal = std::numeric_limits<std::size_t>::max();

// Mid(texto, desde, largo) en caracteres, contando desde 1; "" si no alcanza.
std::string medio(std::string_view texto, std::size_t desde, std::size_t largo = kHastaElFinal) {
    std::size_t inicio = texto.size();
    std::size_t caracter = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if ((static_cast<unsigned char>(texto[i]) & 0xC0) != 0x80 && ++caracter == desde) {
            inicio = i;
            break;
        }
    }
    return cortar(texto.substr(inicio), largo);
}

}  // namespace

SocMedica SocMedica::leer(std::string_view v) {
    return SocMedica{medio(v, 1, 2), medio(v, 3, 1), medio(v, 4, 2),
                     medio(v, 6, 2), medio(v, 8, 2), medio(v, 10)};
}

std::string SocMedica::texto() const {
    return tafap + bseap + nfam + l19321 + multiemp + montoOtroEmpleo;
}

Horario Horario::leer(std::string_view v) {
    return Horario{medio(v, 1, kAnchoHorario), medio(v, kAnchoHorario + 1, kAnchoBanco),
                   medio(v, kAnchoHorario + kAnchoBanco + 1, kAnchoCuenta)};
}

std::string Horario::texto() const {
    return alinearIzquierda(cortar(horario, kAnchoHorario), kAnchoHorario) +
           alinearIzquierda(cortar(banco, kAnchoBanco), kAnchoBanco) +
           alinearIzquierda(cortar(cuenta, kAnchoCuenta), kAnchoCuenta);
}

SexoCon SexoCon::leer(std::string_view v) {
    return SexoCon{medio(v, 1, 1), medio(v, 2)};
}

ConCopiativo ConCopiativo::leer(std::string_view v) {
    return ConCopiativo{medio(v, 1, 2), medio(v, 3, 2)};
}

}  // namespace nomira::common
