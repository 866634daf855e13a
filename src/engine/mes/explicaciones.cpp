#include "engine/mes/explicaciones.h"

namespace nomira::engine {
inline namespace mes {

std::string leerExplicacion(store::Conexion& base, TablaLiquidacion tabla,
                            const std::string& empresa, const std::string& nombre,
                            const common::Mes& mes, long codigo) {
    const auto r = base.consulta(
        "SELECT texto FROM explicaciones WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
        "tabla = ? AND codigo = ? LIMIT 1",
        {empresa, nombre, mes.primerDia().iso(), std::string(nombreTabla(tabla)),
         std::int64_t{codigo}});
    return r.vacio() ? std::string() : r.primera().texto(std::size_t{0});
}

}  // namespace mes
}  // namespace nomira::engine
