#include "master/catalogos.h"

#include <algorithm>
#include <array>

#include "common/texto.h"
#include "store/like.h"

namespace nomira::master {

namespace {

// El nombre de la tabla va dentro del SQL: sólo estos, nunca un texto de afuera.
constexpr std::array<std::string_view, 24> kReferencia = {"tipocontrib",
                                                          "tipocontrib2",
                                                          "tipoaport",
                                                          "grupoact",
                                                          "subgrupoact",
                                                          "depto",
                                                          "local",
                                                          "localmtss",
                                                          "paises",
                                                          "tiporemmtss",
                                                          "tiporembps",
                                                          "segurosalud",
                                                          "vinculofuncional",
                                                          "socmedica",
                                                          "motivodeegreso",
                                                          "sectores",
                                                          "categorias",
                                                          "causpresplantrab",
                                                          "grupoconsal",
                                                          "subgrupoconsal",
                                                          "actividadprincipal",
                                                          "codigodeducciones",
                                                          "categoriadeducciones",
                                                          "deptocaja"};

}  // namespace

bool esTablaDeReferencia(std::string_view tabla) {
    return std::find(kReferencia.begin(), kReferencia.end(), tabla) != kReferencia.end();
}

std::string codigoEnCatalogo(store::Conexion& base, std::string_view tabla,
                             std::string_view texto) {
    if (!esTablaDeReferencia(tabla))
        throw common::Fallo(5, "No es una tabla de referencia: " + std::string(tabla));
    const auto r = base.consulta("SELECT nombre FROM " + std::string(tabla) + " WHERE " +
                                     store::condicionLike(base, "nombre") + " LIMIT 1",
                                 {store::patronLike(common::patronCatalogo(texto))});
    return r.vacio() ? std::string() : common::codigoDeCatalogo(r.primera().texto("nombre"));
}

}  // namespace nomira::master
