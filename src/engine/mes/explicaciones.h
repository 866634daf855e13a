#pragma once
// Cómo se llegó al importe de cada fila liquidada. Se guarda aparte de las
// filas, en la tabla explicacionesmes (una fila por empresa, persona, mes, tabla
// y tipo de fila, con las de todos sus códigos),
// para que la pantalla la muestre cuando se la pidan; la escriben las
// generaciones y la fila tecleada, y se poda cuando se borran filas.
#include <string>
#include <vector>

#include "common/fechas.h"
#include "engine/mes/filas_mes.h"
#include "engine/mes/mes_persona.h"
#include "store/conexion.h"

namespace nomira::engine {

// Las explicaciones de las filas de una generación, en una sentencia; reemplazan
// las que hubiera de esos códigos. Las filas sin explicación no tocan nada.
void guardarExplicaciones(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                          const std::string& nombre, const common::Mes& mes,
                          const std::vector<FilaLiquidada>& filas);

// La de una fila de ese código y tipo ("Hab" o "Des").
void guardarExplicacion(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                        const std::string& nombre, const common::Mes& mes, long codigo,
                        const std::string& tipo, const std::string& texto);

// La explicación de la fila de ese código en el mes; vacía si no hay.
std::string leerExplicacion(store::Conexion& base, TablaLiquidacion tabla,
                            const std::string& empresa, const std::string& nombre,
                            const common::Mes& mes, long codigo);

// Borra las explicaciones del mes cuya fila ya no existe: las de la persona, o
// las de toda la empresa con `nombre` vacío.
void podarExplicaciones(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                        const common::Mes& mes, const std::string& nombre = {});

}  // namespace nomira::engine
