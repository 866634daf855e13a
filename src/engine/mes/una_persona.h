#pragma once
// Lo que comparten los botones que liquidan a una sola persona (los haberes y
// descuentos del mes, el aguinaldo, el egreso): los campos completos, la
// lectura bajo su clave, el sueldo que debe ser un número, el cálculo en
// memoria y la escritura, todo en una transacción.
#include <functional>
#include <string>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "engine/mes/lectura.h"
#include "engine/mes/mes_persona.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

// El cálculo de la persona sobre lo leído. Lo que deje cambiado en su libro se
// escribe, salvo que un mensaje lo haya detenido (`detenido`).
using PasoPersona = std::function<ResultadoPersona(MesPersona&, ContextoFormula&)>;

// Sin empresa o persona avisa `faltanCampos`; sin ficha, el mensaje de la
// lectura; con un sueldo que no es número, el suyo. Ninguno escribe nada.
ResultadoPersona liquidarUnaPersona(store::Conexion& base, const std::string& empresa,
                                    const std::string& nombre, const common::Mes& mes,
                                    const MesesALeer& meses, const char* faltanCampos,
                                    common::Dialogo& dialogo, const PasoPersona& paso);

}  // namespace mes
}  // namespace nomira::engine
