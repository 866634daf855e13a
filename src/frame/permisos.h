#pragma once
// Permisos por grupo de menú y categoría de usuario, leídos de `configuracion`.
#include "master/configuracion.h"

namespace nomira::frame {

// En el orden de las columnas check1..check6 de cada categoría.
enum class Grupo { Configuracion, Empresas, Personal, Liquidaciones, Informes, Utilidades, Ninguno };

// Columna `checkN` (1..18) del grupo para la categoría 1, 2 o 3; 0 si no corresponde.
int columnaPermiso(Grupo grupo, int categoria);

// Una entrada abre su pantalla sólo si la columna de su grupo y categoría vale 1.
bool permitido(const master::Configuracion& c, int categoria, Grupo grupo);

}  // namespace nomira::frame
