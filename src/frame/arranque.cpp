#include "frame/arranque.h"

#include <filesystem>

#include "common/reloj.h"
#include "frame/carpeta.h"
#include "frame/ingreso.h"
#include "master/datos_iniciales.h"
#include "store/crear.h"
#include "store/destino.h"

namespace nomira::frame {

std::optional<std::string> destinoConfigurado() {
    auto linea = leerLinea("base.txt");
    if (!linea || linea->empty()) return std::nullopt;
    // Una ruta relativa es relativa a la carpeta de base.txt, no a la carpeta
    // desde donde se arrancó el programa.
    if (!store::esDestinoPostgres(*linea) && std::filesystem::path(*linea).is_relative())
        return (rutaNomira() / *linea).lexically_normal().string();
    return linea;
}

void guardarDestino(const std::string& destino) {
    if (store::llevaContrasena(destino)) throw common::Fallo(53, kContrasenaEnBaseTxt);
    escribirLinea("base.txt", destino);
}

std::string destinoPorDefecto() {
    return rutaNomira("nomira.db").string();
}

std::unique_ptr<store::Conexion> abrirBase(const std::string& destino) {
    // Sólo init, demo y copiar-base crean una base: una ruta mal escrita no deja
    // un archivo vacío.
    auto base = store::abrir(destino, store::Apertura::Existente);
    if (!store::existeEsquema(*base))
        throw store::ErrorBase(3024, "La base de datos '" + store::destinoParaMostrar(destino) +
                                         "' no tiene las tablas de Nomira.");
    store::migrar(*base);
    return base;
}

std::unique_ptr<store::Conexion> crearBaseNueva(const std::string& destino,
                                                const std::string& usuario,
                                                const std::string& password) {
    // Un archivo nuevo puede ir en una carpeta que todavía no existe.
    if (!store::esDestinoPostgres(destino)) {
        const auto carpeta = std::filesystem::path(destino).parent_path();
        if (!carpeta.empty()) std::filesystem::create_directories(carpeta);
    }
    auto base = store::abrir(destino);
    if (store::existeEsquema(*base))
        throw store::ErrorBase(
            3010, "La base de datos '" + store::destinoParaMostrar(destino) + "' ya existe.");
    store::Transaccion t(*base);
    store::crearBase(*base);
    master::cargarDatosIniciales(*base, carpetaDatos(), common::hoy());
    if (!usuario.empty()) agregarUsuario(*base, usuario, password, "1");
    t.confirmar();
    return base;
}

bool hayUsuarios(const master::Configuracion& c) {
    for (const auto& u : c.usuarios)
        if (!u.usu.empty()) return true;
    return false;
}

bool agregarUsuario(store::Conexion& base, const std::string& usuario, const std::string& password,
                    const std::string& categoria) {
    auto c = master::leerConfiguracion(base);
    for (int n = 1; n <= master::kCantUsuarios; ++n) {
        if (!c.usuarios[n - 1].usu.empty()) continue;
        ponerUsuario(c, n, usuario, password, categoria);
        master::guardarConfiguracion(base, c);
        return true;
    }
    return false;
}

}  // namespace nomira::frame
