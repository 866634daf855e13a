#include "master/sueldos_minimos.h"

#include "common/dinero.h"

namespace nomira::master {

namespace {

constexpr const char* kCategoria = "nombre = ? AND nombre2 = ? AND nombre3 = ? AND nombre4 = ?";
constexpr const char* kPeriodo = " AND fechaini = ? AND fechafin = ?";

std::vector<store::Valor> parametros(const CategoriaLaboral& c) {
    return {c.grupo, c.subgrupo, c.sector, c.categoria};
}

std::vector<store::Valor> parametros(const CategoriaLaboral& c, const common::Fecha& ini,
                                     const common::Fecha& fin) {
    auto p = parametros(c);
    p.emplace_back(ini.iso());
    p.emplace_back(fin.iso());
    return p;
}

common::Fecha fecha(const store::Fila& f, const char* columna) {
    return common::Fecha::desdeTexto(f.texto(columna)).value_or(common::Fecha{});
}

SueldoMinimo leer(const store::Fila& f) {
    return {{f.texto("nombre"), f.texto("nombre2"), f.texto("nombre3"), f.texto("nombre4")},
            fecha(f, "fechaini"),
            fecha(f, "fechafin"),
            f.real("sueldo")};
}

}  // namespace

void agregarSueldoMinimo(store::Conexion& base, const SueldoMinimo& s) {
    auto p = parametros(s.categoria, s.fechaini, s.fechafin);
    p.emplace_back(common::Dinero::desdeDouble(s.sueldo).aDouble());
    base.ejecuta(
        "INSERT INTO histsueldosmin (nombre, nombre2, nombre3, nombre4, fechaini, fechafin, sueldo) "
        "VALUES (?, ?, ?, ?, ?, ?, ?)",
        p);
}

std::optional<SueldoMinimo> buscarSueldoMinimo(store::Conexion& base, const CategoriaLaboral& c,
                                               const common::Fecha& fechaini,
                                               const common::Fecha& fechafin) {
    const auto r = base.consulta(std::string("SELECT * FROM histsueldosmin WHERE ") + kCategoria +
                                     kPeriodo,
                                 parametros(c, fechaini, fechafin));
    if (r.vacio()) return std::nullopt;
    return leer(r.primera());
}

std::int64_t eliminarSueldoMinimo(store::Conexion& base, const CategoriaLaboral& c,
                                  const common::Fecha& fechaini, const common::Fecha& fechafin) {
    return base.ejecuta(std::string("DELETE FROM histsueldosmin WHERE ") + kCategoria + kPeriodo,
                        parametros(c, fechaini, fechafin));
}

std::vector<SueldoMinimo> listarSueldosMinimos(store::Conexion& base, const CategoriaLaboral& c) {
    std::vector<SueldoMinimo> lista;
    for (const auto& f :
         base.consulta("SELECT * FROM histsueldosmin WHERE nombre = ? AND nombre2 = ? AND "
                       "nombre3 = ? ORDER BY nombre4, fechaini",
                       {c.grupo, c.subgrupo, c.sector})
             .filas)
        lista.push_back(leer(f));
    return lista;
}

std::optional<SueldoMinimo> ultimoSueldoMinimo(store::Conexion& base, const CategoriaLaboral& c) {
    const auto r = base.consulta(std::string("SELECT * FROM histsueldosmin WHERE ") + kCategoria +
                                     " ORDER BY fechaini IS NULL, fechaini DESC LIMIT 1",
                                 parametros(c));
    if (r.vacio()) return std::nullopt;
    return leer(r.primera());
}

}  // namespace nomira::master
