#include "maintenance/respaldo.h"

#include <spawn.h>
#include <sys/wait.h>

#include <vector>

extern char** environ;

namespace nomira::maintenance {

namespace {

// pg_dump con sus argumentos, sin pasar por el shell: la cadena de conexión va tal cual.
void volcarPostgres(const std::string& cadena, const std::filesystem::path& archivo) {
    std::vector<std::string> args = {"pg_dump", "--format=custom", "--no-owner",
                                     "--file=" + archivo.string(), "--dbname=" + cadena};
    std::vector<char*> argv;
    for (auto& a : args) argv.push_back(a.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    if (posix_spawnp(&pid, "pg_dump", nullptr, nullptr, argv.data(), environ) != 0)
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
