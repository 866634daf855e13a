#pragma once
// Lo que se imprime y se guarda de las empresas: la grilla de la pantalla, el
// listado "EMPRESAS" (también el archivo empresas.txt) y la ficha impresa.
#include <string>
#include <vector>

#include "master/empresas.h"

namespace nomira::master {

// "Nro" y las 39 columnas; una fila por empresa con su número corrido y las
// fechas como "dd/mm/aa".
std::vector<std::string> encabezadosGrillaEmpresas();
std::vector<std::vector<std::string>> filasGrillaEmpresas(const std::vector<Empresa>& empresas);

// Empresa, Dirección y Teléfono en columnas de ancho fijo, con su encabezado.
// `titulo` vacío omite el título (el archivo lleva sólo la tabla).
std::vector<std::string> lineasListadoEmpresas(const std::vector<Empresa>& empresas,
                                               const std::string& titulo = "EMPRESAS");

// "INFORMACION DE LA EMPRESA" y una línea por campo, de Empresa a P.Contacto.
std::vector<std::string> lineasFichaEmpresa(const Empresa& e);

}  // namespace nomira::master
