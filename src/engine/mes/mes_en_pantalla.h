#pragma once
// El mes de una persona tal como lo muestra Form42: las filas de las dos
// grillas con su unidad y cantidad, las cifras de abajo, y el personal que se
// recorre en el mes (la lista de nombres, el número de funcionario, la
// anterior y la siguiente persona activa).
#include <optional>
#include <string>
#include <vector>

#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/calculos/base_irpf.h"
#include "engine/mes/filas_persona.h"
#include "master/personal.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

// Las filas del mes de la persona por código, haberes y descuentos juntos.
std::vector<FilaGuardada> filasParaGrillas(store::Conexion& base, const std::string& empresa,
                                           const std::string& nombre, const common::Mes& mes);

// T.Haberes, Total Descuentos, Líquido Neto, Líquido a Cobrar (nunca
// negativo), M.Irpf y M.Dedu.
struct CifrasMes {
    common::Dinero totalhab, totaldes, liquidoneto, aCobrar, montoirpf, montodedu;
};
CifrasMes cifrasDelMes(const BaseMes& desglose, const std::vector<FilaGuardada>& filas);

// ¿Trabaja en el mes en alguna de sus tres actividades? La segunda y la
// tercera cuentan sólo con fecha de ingreso.
bool activaEnAlgunaActividad(const master::Persona& p, const common::Mes& mes);
// La actividad que nombra impaclab ("2", "3"; cualquier otro valor, la primera).
bool activaEnSuActividad(const master::Persona& p, const common::Mes& mes);

// Los nombres del personal de la empresa que trabaja en el mes, por nombre.
std::vector<std::string> nombresDelMes(store::Conexion& base, const std::string& empresa,
                                       const common::Mes& mes);

// La persona de ese número de funcionario en la empresa.
std::optional<master::Persona> personaPorNrofun(store::Conexion& base, const std::string& empresa,
                                                const std::string& nrofun);

// La persona del número de funcionario más cercano hacia atrás (paso -1) o
// hacia adelante (+1) que esté activa en el mes en su actividad; los números
// sin fila se saltean. Nada si no hay más.
std::optional<master::Persona> personaVecina(store::Conexion& base, const std::string& empresa,
                                             const std::string& nrofun, const common::Mes& mes,
                                             int paso);

}  // namespace mes
}  // namespace nomira::engine
