#pragma once
// Los sueldos mínimos de cada categoría en el tiempo (`histsueldosmin`). Las
// cuatro columnas de la categoría guardan el texto posterior al código del
// catálogo; la tabla es su propia historia.
#include <optional>
#include <string>
#include <vector>

#include "common/fechas.h"
#include "store/conexion.h"

namespace nomira::master {

// Grupo y subgrupo del consejo de salarios, sector y categoría, como textos.
struct CategoriaLaboral {
    std::string grupo, subgrupo, sector, categoria;
};

struct SueldoMinimo {
    CategoriaLaboral categoria;
    common::Fecha fechaini, fechafin;
    double sueldo = 0;
};

void agregarSueldoMinimo(store::Conexion& base, const SueldoMinimo& s);
// El de esa categoría con ese período exacto.
std::optional<SueldoMinimo> buscarSueldoMinimo(store::Conexion& base, const CategoriaLaboral& c,
                                               const common::Fecha& fechaini,
                                               const common::Fecha& fechafin);
std::int64_t eliminarSueldoMinimo(store::Conexion& base, const CategoriaLaboral& c,
                                  const common::Fecha& fechaini, const common::Fecha& fechafin);
// Los del grupo, subgrupo y sector (la categoría no cuenta), por categoría y fecha
// de inicio.
std::vector<SueldoMinimo> listarSueldosMinimos(store::Conexion& base, const CategoriaLaboral& c);
// El período más reciente de la categoría (el de mayor fecha de inicio).
std::optional<SueldoMinimo> ultimoSueldoMinimo(store::Conexion& base, const CategoriaLaboral& c);

}  // namespace nomira::master
