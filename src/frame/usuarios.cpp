#include "frame/usuarios.h"

#include "common/texto.h"
#include "frame/ingreso.h"
#include "master/configuracion.h"

namespace nomira::frame {

bool sinMayusculasMezcladas(std::string_view texto) {
    return texto == common::mayusculas(texto) || texto == common::minusculas(texto);
}

std::optional<std::string> rechazoUsuario(const std::string& usuario, const std::string& password,
                                          const std::string& categoria) {
    if (!sinMayusculasMezcladas(usuario)) return kUsuarioMezclado;
    if (!sinMayusculasMezcladas(password)) return kPasswordMezclado;
    if (!categoria.empty() && categoria != "1" && categoria != "2" && categoria != "3")
        return kCategoriaInvalida;
    return std::nullopt;
}

std::optional<UsuarioGuardado> guardarUsuario(store::Conexion& base, const std::string& usuario,
                                              const std::string& password,
                                              const std::string& categoria, std::string& mensaje) {
    if (usuario.empty() || password.empty()) {
        mensaje = kFaltanCampos;
        return std::nullopt;
    }
    if (auto r = rechazoUsuario(usuario, password, categoria)) {
        mensaje = *r;
        return std::nullopt;
    }
    store::Transaccion t(base);
    auto c = master::leerConfiguracion(base);
    const auto buscado = common::mayusculas(usuario);
    int lugar = 0, libre = 0;
    for (int n = master::kCantUsuarios; n >= 1; --n) {
        const auto& u = c.usuarios[n - 1];
        if (u.usu.empty())
            libre = n;
        else if (common::mayusculas(u.usu) == buscado)
            lugar = n;
    }
    if (lugar == 0 && libre == 0) {
        mensaje = kSinLugarUsuario;
        return std::nullopt;
    }
    const int n = lugar ? lugar : libre;
    const std::string anterior = c.usuarios[n - 1].cat;
    ponerUsuario(c, n, usuario, password,
                 !categoria.empty() ? categoria : (lugar ? anterior : std::string("1")));
    master::guardarConfiguracion(base, c);
    t.confirmar();
    return lugar ? UsuarioGuardado::Cambiado : UsuarioGuardado::Agregado;
}

}  // namespace nomira::frame
