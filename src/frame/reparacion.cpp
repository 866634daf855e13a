#include "frame/reparacion.h"

#include "common/fallo.h"

namespace nomira::frame {

namespace fs = std::filesystem;

namespace {

// Comprueba la integridad de un archivo SQLite; REINDEX arregla los índices dañados,
// que es lo que suele romperse. Si sigue mal, se informa lo que dice el motor.
void repararSqlite(store::Conexion& base) {
    auto revisar = [&] { return base.consulta("PRAGMA integrity_check").primera().texto(0); };
    if (revisar() == "ok") return;
    base.ejecuta("REINDEX");
    if (const auto estado = revisar(); estado != "ok")
        throw common::Fallo(3049, "No se pudo reparar la base de datos: " + estado);
}

void compactarSqlite(std::unique_ptr<store::Conexion>& base) {
    const fs::path ruta = base->destino();
    base.reset();  // cierra y vuelca el diario al archivo
    if (fs::exists(ruta.string() + "-wal"))
        throw common::Fallo(3045, "La base de datos está en uso en otra PC o programa.");
    const auto old = rutaCopiaAntigua(ruta);
    fs::remove(old);
    fs::rename(ruta, old);
    try {
        auto vieja = store::abrir(old.string());
        vieja->ejecuta("VACUUM INTO ?", {ruta.string()});
    } catch (...) {
        // Nada se pierde: la base vuelve a su nombre.
        fs::remove(ruta);
        fs::rename(old, ruta);
        throw;
    }
}

}  // namespace

fs::path rutaCopiaAntigua(const fs::path& base) {
    const auto ext = base.extension().string();
    auto sin = base;
    sin.replace_extension();
    return sin.string() + "old" + ext;
}

bool RepararBase(common::Dialogo& dialogo, std::unique_ptr<store::Conexion>& base) {
    if (!dialogo.confirmar(kTituloCerrarTodas, "¿Desea reparar la base de datos?")) return false;
    if (base->motor() == store::Motor::Postgres)
        base->ejecuta("VACUUM ANALYZE");
    else
        repararSqlite(*base);
    dialogo.avisar(common::TipoAviso::Confirmacion, "La base de datos ha sido reparada.");
    return true;
}

bool CompactarBase(common::Dialogo& dialogo, std::unique_ptr<store::Conexion>& base) {
    if (!dialogo.confirmar(kTituloCerrarTodas, "¿Desea compactar la base de datos?")) return false;
    if (base->motor() == store::Motor::Postgres)
        base->ejecuta("VACUUM FULL ANALYZE");
    else
        compactarSqlite(base);
    dialogo.avisar(common::TipoAviso::Confirmacion, "La base de datos ha sido compactada.");
    return true;
}

}  // namespace nomira::frame
