#pragma once
// Cómo se llegó al importe de cada fila liquidada: una fila de la tabla
// explicaciones por fila liquidada, que el escritor guarda y borra con ella
// (ver escritura.h). Aquí, la lectura para quien la pide.
#include <string>

#include "common/fechas.h"
#include "engine/mes/filas_mes.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

// La explicación de la fila de ese código en el mes; vacía si no hay.
std::string leerExplicacion(store::Conexion& base, TablaLiquidacion tabla,
                            const std::string& empresa, const std::string& nombre,
                            const common::Mes& mes, long codigo);

}  // namespace mes
}  // namespace nomira::engine
