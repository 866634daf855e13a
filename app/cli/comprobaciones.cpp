// Lo que varias órdenes revisan antes de tocar la base.
#include <cmath>
#include <iostream>

#include "cli/ordenes.h"
#include "common/numeros.h"
#include "master/empresas.h"

namespace nomira::cli {

bool empresaAceptada(store::Conexion& base, const std::string& empresa) {
    const auto rechazo = master::rechazoEmpresa(base, empresa);
    if (rechazo) std::cerr << *rechazo << '\n';
    return !rechazo;
}

bool nombreAceptado(const std::optional<std::string>& nombre) {
    if (!nombre || nombre->find_first_not_of(' ') != std::string::npos) return true;
    // Vacío no es "toda la empresa": para eso la opción no se da.
    std::cerr << "Debe completar el campo Nombre del Personal (sin --nombre se toma toda la "
                 "empresa).\n";
    return false;
}

std::optional<double> leerNumero(const std::string& texto) {
    if (!common::esNumerico(texto)) return std::nullopt;
    try {
        const double x = common::textoANumero(texto);
        if (std::isfinite(x)) return x;
    } catch (const common::Fallo&) {
        // Un número que no cabe en un double: tan inválido como "abc".
    }
    return std::nullopt;
}

}  // namespace nomira::cli
