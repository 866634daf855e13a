#pragma once
// Lo que vale una fila de licencia: el jornal con el divisor del consejo de
// salarios más lo que los conceptos con licencia dejaron por día en el último
// año. También el SUELDO de un mes con licencia, que usa el mismo divisor.
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/formulas/formula.h"
#include "engine/mes/filas_mes.h"
#include "master/empresas.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace calculos {

// Grupo y subgrupo del consejo de salarios de la empresa: los textos que guarda
// (vacíos como "NADA") y sus códigos, lo anterior al guion en grupoconsal y en
// subgrupoconsal (nombre Like '*grupo' And nombre2 Like '*subgrupo'); "" si no
// hay fila. grupo y subgrupo son el Val de los códigos.
struct ConsejoSalarios {
    std::string textoGrupo, textoSubgrupo, codigoGrupo, codigoSubgrupo;
    int grupo = 0, subgrupo = 0;
};
ConsejoSalarios consejoDeLaEmpresa(store::Conexion& base, const std::string& empresa);
ConsejoSalarios consejoDeLaEmpresa(store::Conexion& base, const master::Empresa& empresa);

// El mes de licencia se divide en 25 días en los grupos 12 y 14 y en el 8
// subgrupo 5, en 24 en el 19 subgrupo 10, y en 30 en los demás.
int divisorLicencia(int grupo, int subgrupo);

// SUELDO de un mes con filas LICENCIA: cada una lo reduce a total / D x (D - cant),
// una tras otra sobre lo que va quedando.
common::Dinero sueldoConLicencia(double total, const std::vector<double>& cantLicencias, int grupo,
                                 int subgrupo, std::string* explicacion = nullptr);

// El jornal de un día de licencia, con sueldos = SUELDO + SUELDO2 + SUELDO3 y
// ant = ANTIGUEDAD y ALIMENTACION del mes. Las precedencias de "J" y "H" son
// las de siempre: ant se divide antes de sumar.
double jornalLicencia(const std::string& tiposueldo, double sueldos, double ant, double htrab,
                      int grupo, int subgrupo);

// Los meses que se miran hacia atrás desde el anterior al de la licencia: a lo
// sumo 12 y no antes del mes de ingreso. Si se ingresó en el mismo mes de la
// licencia, ninguno y diasmes empieza en 1.
struct TramoLicencia {
    std::vector<common::Mes> meses;  // del más reciente al más viejo
    double diasmesInicial = 0;
};
TramoLicencia tramoLicencia(const common::Mes& periodo, const common::Mes& ingreso);

// Las filas que dan días en el promedio de jornaleros y por hora.
bool cuentaEnDiasmes(const std::string& concepto, const std::string& tiposueldo);

// Lo sumado en el tramo de un código con lic = 'Si': cant si la unidad es "T",
// total si no.
struct IncidenciaLicencia {
    long codigo = 0;
    std::string concepto, unidad, formula;
    double cant = 0;
    common::Dinero total;
};
inline constexpr std::size_t kMaxIncidenciasLicencia = 50;
// Suma la fila en la incidencia de su código; la primera fija concepto y
// unidad. También la usan las incidencias del IPD.
void sumarIncidencia(std::map<long, IncidenciaLicencia>& porCodigo, const FilaMes& f);

struct EntradaLicencia {
    std::string tiposueldo;
    int grupo = 0, subgrupo = 0;
    double sueldos = 0, htrab = 0, ant = 0;
    double dias = 1;
    double diasmes = 0;
    std::vector<IncidenciaLicencia> incidencias;
};

struct ImporteLicencia {
    common::Dinero total;
    double jornal = 0, porDia = 0, diasmes = 0;
    std::string explicacion;
};

// El valor de la fórmula de un concepto "T" con cant = lo sumado.
using EvaluarIncidencia = std::function<double(const IncidenciaLicencia&)>;

// (suma por día de las incidencias + jornal) x dias. Dividir por un diasmes 0
// con incidencias falla como la división por cero.
ImporteLicencia calcularLicencia(const EntradaLicencia& e, const EvaluarIncidencia& evaluar);

// Sobre lo leído: ctx trae la persona, sus filas, el período, las variables y
// los sueldos de la persona; textoDias es la casilla de cantidad (vacía = 1).
ImporteLicencia CalculoLicencia(const ContextoFormula& ctx, const std::string& textoDias, int grupo,
                                int subgrupo, common::Dialogo& dialogo);

}  // namespace calculos
}  // namespace nomira::engine
