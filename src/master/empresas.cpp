#include "master/empresas.h"

#include "master/catalogos.h"

namespace nomira::master {

const Campos<Empresa>& camposEmpresa() {
    using E = Empresa;
    static const Campos<Empresa> c = {
        {"empresa", &E::empresa},       {"nroemp", &E::nroemp},
        {"direccion", &E::direccion},   {"telefono", &E::telefono},
        {"fax", &E::fax},               {"mail", &E::mail},
        {"depto", &E::depto},           {"localidad", &E::localidad},
        {"codpostal", &E::codpostal},   {"actividad", &E::actividad},
        {"ruc", &E::ruc},               {"bps", &E::bps},
        {"bse", &E::bse},               {"mtss", &E::mtss},
        {"fechainsc", &E::fechainsc},   {"fechainiact", &E::fechainiact},
        {"tipocontrib", &E::tipocontrib}, {"tipoaport", &E::tipoaport},
        {"grupoact", &E::grupoact},     {"subgrupoact", &E::subgrupoact},
        {"grupoconsal", &E::grupoconsal}, {"perscont", &E::perscont},
        {"direccionsuc2", &E::direccionsuc2}, {"deptosuc2", &E::deptosuc2},
        {"locsuc2", &E::locsuc2},       {"direccionsuc3", &E::direccionsuc3},
        {"deptosuc3", &E::deptosuc3},   {"locsuc3", &E::locsuc3},
        {"exon", &E::exon},             {"persrep", &E::persrep},
        {"seccional", &E::seccional},   {"centralplanilla", &E::centralplanilla},
        {"fechainiact2", &E::fechainiact2}, {"fechafinact2", &E::fechafinact2},
        {"estado2", &E::estado2},       {"fechainiact3", &E::fechainiact3},
        {"fechafinact3", &E::fechafinact3}, {"estado3", &E::estado3},
        {"subgrupoconsal", &E::subgrupoconsal},
    };
    return c;
}

std::optional<Empresa> leerEmpresa(store::Conexion& base, const std::string& empresa) {
    const auto r = base.consulta("SELECT * FROM empresas WHERE empresa = ?", {empresa});
    if (r.vacio()) return std::nullopt;
    return leerRegistro(r.primera(), camposEmpresa());
}

std::string tipoaporteDe(store::Conexion& base, const Empresa& empresa) {
    return codigoEnCatalogo(base, "tipoaport", empresa.tipoaport);
}

}  // namespace nomira::master
