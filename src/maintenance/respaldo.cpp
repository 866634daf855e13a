#include "maintenance/respaldo.h"

#include <spawn.h>
#include <sys/wait.h>

#include <optional>
#include <string_view>
#include <vector>

#include "store/destino.h"

extern char** environ;

namespace nomira::maintenance {

namespace {

// El entorno de este proceso; con la contraseña en PGPASSWORD si se da una.
std::vector<std::string> entornoCon(const std::optional<std::string>& contrasena) {
    std::vector<std::string> entorno;
    for (char** e = environ; *e; ++e)
        if (!contrasena || !std::string_view(*e).starts_with("PGPASSWORD="))
            entorno.emplace_back(*e);
    if (contrasena) entorno.push_back("PGPASSWORD=" + *contrasena);
    return entorno;
}

std::vector<char*> punteros(std::vector<std::string>& textos) {
    std::vector<char*> r;
    for (auto& t : textos) r.push_back(t.data());
    r.push_back(nullptr);
    return r;
}

// pg_dump con sus argumentos, sin pasar por el shell. La contraseña no va en
// la línea de órdenes, que cualquiera ve con ps: va en el entorno.
void volcarPostgres(const std::string& cadena, const std::filesystem::path& archivo) {
    const auto separado = store::separarContrasena(cadena);
    std::vector<std::string> args = {"pg_dump", "--format=custom", "--no-owner",
                                     "--file=" + archivo.string(), "--dbname=" + separado.destino};
    auto entorno = entornoCon(separado.contrasena);
    auto argv = punteros(args);
    auto envp = punteros(entorno);
    pid_t pid = 0;
    if (posix_spawnp(&pid, "pg_dump", nullptr, nullptr, argv.data(), envp.data()) != 0)
        throw common::Fallo(53, "No se encontró pg_dump para respaldar la base del servidor.");
    int estado = 0;
    waitpid(pid, &estado, 0);
    if (!WIFEXITED(estado) || WEXITSTATUS(estado) != 0)
        throw common::Fallo(3108, "pg_dump no pudo respaldar la base del servidor.");
}

}  // namespace

void respaldarBase(store::Conexion& base, const std::filesystem::path& destino) {
    // Se escribe a un temporal al lado y se renombra al final: o la copia entera o nada.
    auto temporal = destino;
    temporal += ".parcial";
    std::filesystem::remove(temporal);
    try {
        if (base.motor() == store::Motor::Postgres)
            volcarPostgres(base.destino(), temporal);
        else
            base.ejecuta("VACUUM INTO ?", {temporal.string()});
        std::filesystem::rename(temporal, destino);
    } catch (...) {
        std::filesystem::remove(temporal);
        throw;
    }
}

}  // namespace nomira::maintenance
