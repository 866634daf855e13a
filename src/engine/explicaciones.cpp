#include "engine/explicaciones.h"

#include <map>

namespace nomira::engine {

void guardarExplicaciones(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                          const std::string& nombre, const common::Mes& mes,
                          const std::vector<FilaLiquidada>& filas) {
    // Un código escrito dos veces queda con la última.
    std::map<long, const std::string*> porCodigo;
    for (const auto& f : filas)
        if (!f.explicacion.empty()) porCodigo[f.fila.codigo] = &f.explicacion;
    if (porCodigo.empty()) return;

    const std::string t = nombreTabla(tabla);
    const std::string fecha = mes.primerDia().iso();
    std::vector<store::Valor> borrar = {empresa, nombre, fecha, t};
    std::vector<store::Valor> insertar;
    std::string marcas, tuplas;
    for (const auto& [codigo, texto] : porCodigo) {
        borrar.emplace_back(std::int64_t{codigo});
        marcas += marcas.empty() ? "?" : ", ?";
        tuplas += tuplas.empty() ? "(?, ?, ?, ?, ?, ?)" : ", (?, ?, ?, ?, ?, ?)";
        insertar.insert(insertar.end(), {empresa, nombre, fecha, t, std::int64_t{codigo}, *texto});
    }
    base.ejecuta(
        "DELETE FROM explicaciones WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
        "tabla = ? AND codigo IN (" +
            marcas + ")",
        borrar);
    base.ejecuta(
        "INSERT INTO explicaciones (empresa, nombre, fecha, tabla, codigo, texto) VALUES " + tuplas,
        insertar);
}

void guardarExplicacion(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                        const std::string& nombre, const common::Mes& mes, long codigo,
                        const std::string& texto) {
    FilaGenerada fila;
    fila.codigo = codigo;
    guardarExplicaciones(base, tabla, empresa, nombre, mes, {{fila, texto}});
}

std::string leerExplicacion(store::Conexion& base, TablaLiquidacion tabla,
                            const std::string& empresa, const std::string& nombre,
                            const common::Mes& mes, long codigo) {
    const auto r = base.consulta(
        "SELECT texto FROM explicaciones WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
        "tabla = ? AND codigo = ?",
        {empresa, nombre, mes.primerDia().iso(), std::string(nombreTabla(tabla)),
         std::int64_t{codigo}});
    return r.vacio() ? std::string() : r.primera().texto("texto");
}

void podarExplicaciones(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                        const common::Mes& mes, const std::string& nombre) {
    const std::string t = nombreTabla(tabla);
    std::vector<store::Valor> valores = {empresa, mes.primerDia().iso(), t};
    if (!nombre.empty()) valores.emplace_back(nombre);
    base.ejecuta("DELETE FROM explicaciones WHERE empresa = ? AND fecha = ? AND tabla = ?" +
                     std::string(nombre.empty() ? "" : " AND nombre = ?") +
                     " AND NOT EXISTS (SELECT 1 FROM " + t +
                     " f WHERE f.empresa = explicaciones.empresa AND f.nombre = "
                     "explicaciones.nombre AND f.fecha = explicaciones.fecha AND f.codigo = "
                     "explicaciones.codigo)",
                 valores);
}

}  // namespace nomira::engine
