#include "frame/ingreso.h"

#include "common/contrasena.h"
#include "common/numeros.h"
#include "common/texto.h"

namespace nomira::frame {

namespace {

// Un lugar de usuario que coincidió y la forma de lo escrito que dio su hash.
struct Coincidencia {
    int lugar;
    std::string forma;
};

std::optional<int> buscar(const master::Configuracion& c, const std::string& usuario,
                          const std::string& password, std::vector<Coincidencia>* coincidencias) {
    if (usuario.empty() || password.empty()) return std::nullopt;
    const auto usuMay = common::mayusculas(usuario), usuMin = common::minusculas(usuario);
    const auto pasMay = common::mayusculas(password), pasMin = common::minusculas(password);
    std::optional<int> categoria;
    for (int i = 0; i < master::kCantUsuarios; ++i) {
        const auto& u = c.usuarios[i];
        if (u.usu.empty() || (u.usu != usuMay && u.usu != usuMin)) continue;
        // El hash es caro: sólo se calcula cuando el nombre ya coincide.
        const std::string* forma = common::verificaContrasena(pasMay, u.pas)   ? &pasMay
                                   : common::verificaContrasena(pasMin, u.pas) ? &pasMin
                                                                               : nullptr;
        if (!forma) continue;
        if (coincidencias) coincidencias->push_back({i, *forma});
        categoria = static_cast<int>(common::textoANumero(u.cat));
    }
    return categoria;
}

}  // namespace

std::optional<int> verificarIngreso(const master::Configuracion& c, const std::string& usuario,
                                    const std::string& password) {
    return buscar(c, usuario, password, nullptr);
}

std::optional<int> ingresar(store::Conexion& base, const std::string& usuario,
                            const std::string& password) {
    const auto c = master::leerConfiguracion(base);
    std::vector<Coincidencia> coincidencias;
    const auto categoria = buscar(c, usuario, password, &coincidencias);
    for (const auto& [lugar, forma] : coincidencias) {
        const auto& guardado = c.usuarios[lugar].pas;
        if (!common::hashAnticuado(guardado)) continue;
        // Sólo esa columna, y sólo si nadie la cambió mientras tanto.
        const auto columna = "pas" + std::to_string(lugar + 1);
        base.ejecuta("UPDATE configuracion SET " + columna + " = ? WHERE " + columna + " = ?",
                     {common::hashContrasena(forma), guardado});
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
