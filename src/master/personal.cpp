#include "master/personal.h"

#include <utility>
#include <vector>

namespace nomira::master {

namespace {

// Columna y campo: una sola lista arma el SELECT y reparte la fila.
std::vector<std::pair<const char*, std::string Persona::*>> campos() {
    return {{"empresa", &Persona::empresa},
            {"nombre", &Persona::nombre},
            {"otrotelefono", &Persona::otrotelefono},
            {"fechaing", &Persona::fechaing},
            {"sueldo", &Persona::sueldo},
            {"tiposueldo", &Persona::tiposueldo},
            {"htrab", &Persona::htrab},
            {"cantbfc", &Persona::cantbfc},
            {"sueldo2", &Persona::sueldo2},
            {"sueldo3", &Persona::sueldo3},
            {"sexocon", &Persona::sexocon},
            {"fechanacben", &Persona::fechanacben},
            {"causaben", &Persona::causaben},
            {"fechanacben2", &Persona::fechanacben2},
            {"causaben2", &Persona::causaben2},
            {"fechanacben3", &Persona::fechanacben3},
            {"causaben3", &Persona::causaben3}};
}

}  // namespace

std::optional<Persona> leerPersona(store::Conexion& base, const std::string& empresa,
                                   const std::string& nombre) {
    static const auto lista = campos();
    static const std::string sql = [] {
        std::string s = "SELECT ";
        for (std::size_t i = 0; i < lista.size(); ++i)
            s += (i ? ", " : "") + std::string(lista[i].first);
        return s + " FROM personal WHERE empresa = ? AND nombre = ?";
    }();
    const auto r = base.consulta(sql, {empresa, nombre});
    if (r.vacio()) return std::nullopt;
    Persona p;
    for (const auto& [columna, campo] : lista) p.*campo = r.primera().texto(columna);
    return p;
}

}  // namespace nomira::master
