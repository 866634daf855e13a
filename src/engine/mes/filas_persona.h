#pragma once
// Lecturas y escrituras sueltas de una fila del mes en habydesc, por código o
// por nombre, con su cantidad; los conceptos por nombre; y la regla que lleva
// las horas a "JORNADAS EN EL MES".
#include <optional>
#include <string>

#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/mes/filas_mes.h"
#include "master/conceptos.h"
#include "store/conexion.h"

namespace nomira::engine {

// La fila del mes de un código o de un nombre (la primera por código).
struct FilaGuardada {
    long codigo = 0;
    std::string concepto, tipo, unidad;
    double cant = 0;
    common::Dinero total;
};
std::optional<FilaGuardada> filaPorCodigo(store::Conexion& base, const std::string& empresa,
                                          const std::string& nombre, const common::Mes& mes,
                                          long codigo);
std::optional<FilaGuardada> filaPorConcepto(store::Conexion& base, const std::string& empresa,
                                            const std::string& nombre, const common::Mes& mes,
                                            const std::string& concepto);

// El primer concepto (por código) con ese nombre exacto.
std::optional<master::Concepto> conceptoPorNombre(store::Conexion& base,
                                                  const std::string& concepto);

// ¿Es "HORAS" o "HORAS NOCTURNAS" (en mayúsculas)?
bool esConceptoHoras(const std::string& concepto);

// Las jornadas siguen a la suma de horas comunes y nocturnas: `cant` es la de
// la fila recién escrita de `concepto` y, si es una del par, se le suma la de
// la otra.
// Sin concepto "JORNADAS EN EL MES" no hace nada; htrab 0 es división por cero.
// Devuelve la fila escrita.
std::optional<FilaGenerada> actualizarJornadas(store::Conexion& base, const std::string& empresa,
                                               const std::string& nombre, const common::Mes& mes,
                                               const std::string& concepto, double cant,
                                               double htrab);

}  // namespace nomira::engine
