#pragma once
// Una fila liquidada tal como la usan los cálculos y la escribe el escritor: la
// misma para las cuatro tablas de liquidación, cada una con las columnas que
// tiene. Y las sumas por prefijo del texto de la fila.
#include <string>
#include <vector>

#include "common/dinero.h"

namespace nomira::engine {
inline namespace mes {

// Las tablas de filas liquidadas: Form42 habydesc, Form43 aguinaldos, Form44
// salvacacional, Form45 egresos.
enum class TablaLiquidacion { Habydesc, Aguinaldos, Egresos, Salvacacional };
inline constexpr int kCantTablas = 4;
const char* nombreTabla(TablaLiquidacion t);

// habydesc y egresos tienen todas las columnas menos mes, aclab, desdelic y
// hastalic; aguinaldos, concepto, total, tipo, mes y aclab; salvacacional,
// codigo, concepto, unidad, cant, total, desdelic y hastalic. Lo que la tabla no
// tiene queda en 0 o "". Las fechas, "yyyy-mm-dd" o "".
struct FilaMes {
    long codigo = 0;
    std::string concepto{}, tipo{}, gravado{}, ipd{};
    common::Dinero total{};
    double cant = 0;
    std::string unidad{}, permanente{}, aguinaldo{}, lic{};
    std::string mes{}, aclab{}, desdelic{}, hastalic{};
    // Cómo se llegó al importe; se guarda y se borra con la fila.
    std::string explicacion{};
};
// La fila que arma una generación antes de escribirla.
using FilaGenerada = FilaMes;

// Las filas llevan su porcentaje en el texto ("MONTEPIO 15%"): se reconocen
// por el comienzo.
bool esAporteLegal(const std::string& concepto);  // MONTEPIO, SNIS, FRL
bool empiezaCon(const std::string& texto, const char* prefijo);

common::Dinero sumaHab(const std::vector<FilaMes>& filas);
// Las filas de tipo `tipo` cuyo texto empieza con `prefijo`.
common::Dinero sumaPrefijo(const std::vector<FilaMes>& filas, const char* tipo,
                           const char* prefijo);
// Las de cualquier tipo cuyo texto empieza con `prefijo`.
common::Dinero sumaConPrefijo(const std::vector<FilaMes>& filas, const char* prefijo);
common::Dinero sumaAportes(const std::vector<FilaMes>& filas);  // Des MONTEPIO/SNIS/FRL

}  // namespace mes
}  // namespace nomira::engine
