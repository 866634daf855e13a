#pragma once
// Las cifras de abajo de la pantalla del salario vacacional, sobre las filas
// del mes en salvacacional, y los valores que las fórmulas de esa pantalla
// toman de ellas.
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "engine/formulas/formula.h"
#include "engine/mes/filas_mes.h"
#include "engine/mes/mes_persona.h"

namespace nomira::engine {
inline namespace vacacional {

// ¿Es una de las dos filas que son haber en esta liquidación?
bool esHaberVacacional(const std::string& concepto);

struct DesgloseVacacional {
    common::Dinero haberes;     // SALARIO VACACIONAL y su 2DA ACT
    common::Dinero montoirpf;   // de ellos, los códigos 606 y 636: la base del IRPF
    common::Dinero descuentos;  // las demás filas
    common::Dinero irpf;        // lo de las filas que empiezan con "IRPF"
    common::Dinero deducciones;
    common::Dinero liquido;  // haberes - descuentos, nunca negativo
};

// Las sumas de las filas del mes de la persona, sin las deducciones.
DesgloseVacacional sumarVacacional(const MesPersona& mp);
// Las cifras del mes de la persona. Las deducciones se calculan una vez por
// cada fila de IRPF (con varias, se suman).
DesgloseVacacional desgloseVacacional(const MesPersona& mp, ContextoFormula& ctx,
                                      common::Dialogo& dialogo);

// Las filas del mes en salvacacional, por código.
std::vector<FilaMes> filasVacacional(const MesPersona& mp);

// En esta pantalla SUELDO es el de la ficha, MONTOGRAV el salario vacacional
// del mes (MONTOSV, la base del IRPF) y LIQUIDONETO su líquido: se ponen en
// ctx sobre lo que dejó el mes.
void cargarContextoVacacional(const MesPersona& mp, ContextoFormula& ctx);

}  // namespace vacacional
}  // namespace nomira::engine
