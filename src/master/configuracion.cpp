#include "master/configuracion.h"

namespace nomira::master {

std::vector<std::pair<std::string, std::string*>> Configuracion::campos() {
    std::vector<std::pair<std::string, std::string*>> c = {
        {"impresorarecibos", &impresorarecibos},
        {"impresorainformes", &impresorainformes},
        {"impresoracomanda", &impresoracomanda},
    };
    for (int i = 0; i < kCantUsuarios; ++i) {
        const auto n = std::to_string(i + 1);
        c.emplace_back("usu" + n, &usuarios[i].usu);
        c.emplace_back("pas" + n, &usuarios[i].pas);
        c.emplace_back("cat" + n, &usuarios[i].cat);
    }
    for (int i = 0; i < kCantPermisos; ++i) c.emplace_back("check" + std::to_string(i + 1), &checks[i]);
    c.insert(c.end(), {{"tiporec", &tiporec},
                       {"tipoinf", &tipoinf},
                       {"tipocom", &tipocom},
                       {"tamrec", &tamrec},
                       {"taminf", &taminf},
                       {"tamcom", &tamcom},
                       {"contitulos", &contitulos},
                       {"cantpers", &cantpers},
                       {"tipodepapel", &tipodepapel},
                       {"concopiativo", &concopiativo},
                       {"cortehoja", &cortehoja},
                       {"cantlineasarr", &cantlineasarr},
                       {"cantespizq", &cantespizq},
                       {"desdenrofun", &desdenrofun},
                       {"hastanrofun", &hastanrofun},
                       {"nroempges", &nroempges}});
    return c;
}

Configuracion leerConfiguracion(store::Conexion& base) {
    Configuracion c;
    const auto r = base.consulta("SELECT * FROM configuracion");
    if (r.vacio()) throw store::ErrorBase(3021, "La tabla configuracion no tiene su fila.");
    for (auto& [columna, campo] : c.campos()) *campo = r.primera().texto(columna);
    return c;
}

void guardarConfiguracion(store::Conexion& base, Configuracion& c) {
    std::string sql = "UPDATE configuracion SET ";
    std::vector<store::Valor> valores;
    for (auto& [columna, campo] : c.campos()) {
        if (!valores.empty()) sql += ", ";
        sql += columna + " = ?";
        valores.emplace_back(*campo);
    }
    base.ejecuta(sql, valores);
}

}  // namespace nomira::master
