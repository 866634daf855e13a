#pragma once
// Una fila de `empresas`, con las columnas por su nombre.
#include <cstdint>
#include <optional>
#include <string>

#include "store/conexion.h"

namespace nomira::master {

struct Empresa {
    std::string empresa;
    std::int64_t nroemp = 0;
    std::string tipocontrib, tipoaport, exon;
};

std::optional<Empresa> leerEmpresa(store::Conexion& base, const std::string& empresa);

// El código de aportación de la empresa: las dos cifras de su fila de
// `tipoaport` ("04" apaga el montepío y baja el SNIS); "" si no hay fila.
std::string tipoaporteDe(store::Conexion& base, const Empresa& empresa);

}  // namespace nomira::master
