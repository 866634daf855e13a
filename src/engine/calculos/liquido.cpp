#include "engine/calculos/liquido.h"

#include "engine/calculos/explicacion.h"

namespace nomira::engine {
inline namespace calculos {

OpcionesLiquido opcionesLiquidoForm42() {
    return {TablaLiquidacion::Habydesc, false, true};
}
OpcionesLiquido opcionesLiquidoForm43() {
    return {TablaLiquidacion::Aguinaldos, true, false};
}
OpcionesLiquido opcionesLiquidoForm45() {
    return {TablaLiquidacion::Egresos, false, true};
}

LiquidoNeto liquidoNeto(const std::vector<FilaMes>& filas, const OpcionesLiquido& op) {
    LiquidoNeto r;
    for (const auto& f : filas) {
        if (f.tipo == "Hab") {
            r.totalhab += f.total;
            if (f.gravado == "Si") r.gravado += f.total;
            if (f.concepto == "ALIMENTACION") r.alimentacion += f.total;
        } else if (f.tipo == "Des") {
            const bool legal = esAporteLegal(f.concepto) || empiezaCon(f.concepto, "IRPF") ||
                               (op.adelantosEnLegales && (f.concepto == "ADELANTOS LICENCIA" ||
                                                          f.concepto == "ADELANTOS QUINCENA"));
            if (legal) r.descuentoslegales += f.total;
        }
    }
    r.liquidoneto = r.totalhab - r.descuentoslegales;
    r.soloLiquidoNeto = op.soloLiquidoNeto;
    if (op.soloLiquidoNeto) return r;
    r.liquidonetograv = r.gravado - r.descuentoslegales;
    r.montogravalim = r.gravado + r.alimentacion;
    return r;
}

std::string explicacion(const LiquidoNeto& r) {
    std::string texto = "LIQUIDONETO = haberes " + pesos(r.totalhab) + " - descuentos legales " +
                        pesos(r.descuentoslegales) + " = " + pesos(r.liquidoneto);
    if (r.soloLiquidoNeto) return texto;
    return texto + "; LIQUIDONETOGRAV = gravado " + pesos(r.gravado) + " - " +
           pesos(r.descuentoslegales) + " = " + pesos(r.liquidonetograv) +
           "; MONTOGRAVALIM = " + pesos(r.gravado) + " + alimentación " + pesos(r.alimentacion) +
           " = " + pesos(r.montogravalim);
}

AntAlim antAlim(const std::vector<FilaMes>& filas) {
    AntAlim r;
    for (const auto& f : filas) {
        r.total += f.total;
        if (f.concepto == "ANTIGUEDAD" || f.concepto == "ANTIGUEDAD 2DA ACT" ||
            f.concepto == "ANTIGUEDAD 3RA ACT")
            r.antiguedad += f.total;
    }
    return r;
}

}  // namespace calculos
}  // namespace nomira::engine
