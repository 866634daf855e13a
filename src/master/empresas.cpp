#include "master/empresas.h"

#include "master/catalogos.h"

namespace nomira::master {

std::optional<Empresa> leerEmpresa(store::Conexion& base, const std::string& empresa) {
    const auto r = base.consulta(
        "SELECT empresa, nroemp, tipocontrib, tipoaport, exon FROM empresas WHERE empresa = ?",
        {empresa});
    if (r.vacio()) return std::nullopt;
    const auto& f = r.primera();
    return Empresa{f.texto("empresa"), f.entero("nroemp"), f.texto("tipocontrib"),
                   f.texto("tipoaport"), f.texto("exon")};
}

std::string tipoaporteDe(store::Conexion& base, const Empresa& empresa) {
    return codigoEnCatalogo(base, "tipoaport", empresa.tipoaport);
}

}  // namespace nomira::master
