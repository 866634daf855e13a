#pragma once
// Las obras de las empresas de la construcción: cada obra se declara aparte,
// con su número, cómo se realiza y la empresa titular.
#include <optional>
#include <string>
#include <vector>

#include "master/registro.h"
#include "store/conexion.h"

namespace nomira::master {

struct Obra {
    std::string empresa, nroobra, formarealizacion, actprincipal, empresatitular, direccion,
        telefono, bps, ruc;
};

// Las nueve columnas de `obras` en su orden.
const Campos<Obra>& camposObra();

// Los textos de las tres formas de realización, en el orden de sus valores 1 a 3.
const std::vector<std::string>& formasDeRealizacion();
// El texto de la forma guardada ("2" -> "obra por contrato"); "" si no es 1, 2 ni 3.
std::string textoFormaRealizacion(const std::string& forma);

// Las obras sólo se cargan para las empresas que aportan por Construcción:
// las de código de aportación 4.
bool aportaPorConstruccion(store::Conexion& base, const std::string& empresa);

// Las obras de la empresa por número.
std::vector<Obra> obrasDeEmpresa(store::Conexion& base, const std::string& empresa);
std::optional<Obra> leerObra(store::Conexion& base, const std::string& empresa,
                             const std::string& nroobra);

// Los números de obra de la empresa por orden y los que aparecen más de una
// vez (cada uno una sola vez): el número debe ser único y nada lo impide al cargar.
std::vector<std::string> numerosDeObra(store::Conexion& base, const std::string& empresa);
std::vector<std::string> numerosRepetidos(const std::vector<std::string>& numeros);

void agregarObra(store::Conexion& base, const Obra& obra);
// Todo menos empresa y número, que son la clave.
void modificarObra(store::Conexion& base, const Obra& obra);
void eliminarObra(store::Conexion& base, const std::string& empresa, const std::string& nroobra);

// El listado de las obras de una empresa (impresión y obras.txt) y la ficha impresa.
std::vector<std::string> lineasListadoObras(const std::string& empresa,
                                            const std::vector<Obra>& obras);
std::vector<std::string> lineasFichaObra(const Obra& obra);

}  // namespace nomira::master
