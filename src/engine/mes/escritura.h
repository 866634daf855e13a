#pragma once
// El último paso de una liquidación: llevar a la base lo que cambió en el libro
// de una persona. Las filas de cada código que cambió se reescriben con sus
// explicaciones, en una transacción y bajo la clave de empresa, persona y mes:
// dos puestos que liquidan a la misma persona a la vez quedan uno después del
// otro, como si hubieran liquidado uno tras otro.
#include <string>

#include "common/fechas.h"
#include "engine/mes/libro.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

// La clave que toman quienes escriben el mes de una persona.
void bloquearMes(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                 const common::Mes& mes);

// Escribe los meses cambiados del libro y los da por escritos. Dentro de la
// transacción de quien llama, si la hay (como un punto de guardado).
void escribirLibro(store::Conexion& base, LibroPersona& libro);

// Borra las filas de ese tipo ("Hab" o "Des") del mes de toda la empresa en
// habydesc, con sus explicaciones, en una transacción.
void borrarTipoDeLaEmpresa(store::Conexion& base, const std::string& empresa,
                           const common::Mes& mes, const std::string& tipo);
// Lo mismo para una persona, bajo su clave; si se fueron haberes, también su
// salario vacacional del mes. Devuelve cuántas filas de habydesc se borraron.
std::int64_t borrarTipoDelMes(store::Conexion& base, const std::string& empresa,
                              const std::string& nombre, const common::Mes& mes,
                              const std::string& tipo);

}  // namespace mes
}  // namespace nomira::engine
