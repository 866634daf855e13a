#pragma once
// Una fila de `empresas`, con las columnas por su nombre y como texto.
#include <optional>
#include <string>

#include "master/registro.h"
#include "store/conexion.h"

namespace nomira::master {

struct Empresa {
    std::string empresa, nroemp, direccion, telefono, fax, mail, depto, localidad, codpostal;
    std::string actividad, ruc, bps, bse, mtss, fechainsc, fechainiact, tipocontrib, tipoaport;
    std::string grupoact, subgrupoact, grupoconsal, perscont;
    std::string direccionsuc2, deptosuc2, locsuc2, direccionsuc3, deptosuc3, locsuc3;
    std::string exon, persrep, seccional, centralplanilla;
    std::string fechainiact2, fechafinact2, estado2, fechainiact3, fechafinact3, estado3;
    std::string subgrupoconsal;
};

// Las 39 columnas en su orden.
const Campos<Empresa>& camposEmpresa();

std::optional<Empresa> leerEmpresa(store::Conexion& base, const std::string& empresa);

// El código de aportación de la empresa: las dos cifras de su fila de
// `tipoaport` ("04" apaga el montepío y baja el SNIS); "" si no hay fila.
std::string tipoaporteDe(store::Conexion& base, const Empresa& empresa);

}  // namespace nomira::master
