#include "frame/ingreso.h"

#include "common/contrasena.h"
#include "common/numeros.h"
#include "common/texto.h"

namespace nomira::frame {

std::optional<int> verificarIngreso(const master::Configuracion& c, const std::string& usuario,
                                    const std::string& password) {
    if (usuario.empty() || password.empty()) return std::nullopt;
    const auto usuMay = common::mayusculas(usuario), usuMin = common::minusculas(usuario);
    const auto pasMay = common::mayusculas(password), pasMin = common::minusculas(password);
    std::optional<int> categoria;
    for (const auto& u : c.usuarios) {
        if (u.usu.empty() || (u.usu != usuMay && u.usu != usuMin)) continue;
        // El hash es caro: sólo se calcula cuando el nombre ya coincide.
        if (!common::verificaContrasena(pasMay, u.pas) && !common::verificaContrasena(pasMin, u.pas))
            continue;
        categoria = static_cast<int>(common::textoANumero(u.cat));
    }
    return categoria;
}

void ponerUsuario(master::Configuracion& c, int n, const std::string& usuario,
                  const std::string& password, const std::string& categoria) {
    auto& u = c.usuarios.at(n - 1);
    u.usu = usuario;
    u.pas = password.empty() ? "" : common::hashContrasena(password);
    u.cat = categoria;
}

}  // namespace nomira::frame
