#pragma once
// Los líquidos que pueden leer las fórmulas (LIQUIDONETOGRAV, LIQUIDONETO,
// MONTOGRAVALIM): los haberes menos los descuentos legales ya generados. Las
// filas de código menor que ya se generaron cuentan para las siguientes.
#include <string>
#include <vector>

#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/mes/filas_mes.h"

namespace nomira::engine {
inline namespace calculos {

struct OpcionesLiquido {
    TablaLiquidacion tabla = TablaLiquidacion::Habydesc;
    bool soloLiquidoNeto = false;    // Form43: sólo LIQUIDONETO
    bool adelantosEnLegales = true;  // ADELANTOS LICENCIA y QUINCENA entran
};
OpcionesLiquido opcionesLiquidoForm42();
OpcionesLiquido opcionesLiquidoForm43();
OpcionesLiquido opcionesLiquidoForm45();

struct LiquidoNeto {
    common::Dinero liquidonetograv, liquidoneto, montogravalim;
    common::Dinero totalhab, gravado, alimentacion, descuentoslegales;
    bool soloLiquidoNeto = false;
};
// Cómo se llegó a cada cifra; se arma sólo cuando se pide (el líquido se
// calcula varias veces por persona).
std::string explicacion(const LiquidoNeto& l);

// Sobre las filas del mes de la tabla de la pantalla.
LiquidoNeto liquidoNeto(const std::vector<FilaMes>& filas, const OpcionesLiquido& opciones);

// CalculoAntAlim: sobre las filas del mes en habydesc y luego en egresos, la
// suma de las de antigüedad (las tres actividades) y la de todas.
struct AntAlim {
    common::Dinero antiguedad, total;
};
AntAlim antAlim(const std::vector<FilaMes>& filas);

}  // namespace calculos
}  // namespace nomira::engine
