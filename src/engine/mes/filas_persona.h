#pragma once
// Una fila del mes tal como la muestran las grillas, los conceptos por nombre
// en la base (para las pantallas) y la regla que lleva las horas a "JORNADAS EN
// EL MES".
#include <optional>
#include <string>

#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/mes/libro.h"
#include "engine/mes/maestros.h"
#include "master/conceptos.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

// La fila del mes como la muestran las grillas.
struct FilaGuardada {
    long codigo = 0;
    std::string concepto, tipo, unidad;
    double cant = 0;
    common::Dinero total;
};

// El primer concepto (por código) con ese nombre exacto, leído de la base.
std::optional<master::Concepto> conceptoPorNombre(store::Conexion& base,
                                                  const std::string& concepto);

// ¿Es "HORAS" o "HORAS NOCTURNAS" (en mayúsculas)?
bool esConceptoHoras(const std::string& concepto);

// Las jornadas siguen a la suma de horas comunes y nocturnas: `cant` es la de
// la fila recién escrita de `concepto` y, si es una del par, se le suma la de
// la otra.
// Sin concepto "JORNADAS EN EL MES" no hace nada; htrab 0 es división por cero.
// Devuelve la fila escrita. En `tabla`: habydesc, o egresos en el egreso.
std::optional<FilaGenerada> actualizarJornadas(LibroPersona& libro, const Maestros& maestros,
                                               const common::Mes& mes, const std::string& concepto,
                                               double cant, double htrab,
                                               TablaLiquidacion tabla = TablaLiquidacion::Habydesc);

}  // namespace mes
}  // namespace nomira::engine
