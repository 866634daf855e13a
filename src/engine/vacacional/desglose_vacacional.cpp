#include "engine/vacacional/desglose_vacacional.h"

#include <algorithm>

#include "engine/calculos/irpf.h"
#include "engine/mes/irpf_lector.h"
#include "engine/mes/libro.h"

namespace nomira::engine {
inline namespace vacacional {

using common::Dinero;

bool esHaberVacacional(const std::string& concepto) {
    return concepto == "SALARIO VACACIONAL" || concepto == "SALARIO VACACIONAL 2DA ACT";
}

std::vector<FilaMes> filasVacacional(const MesPersona& mp) {
    auto filas = mp.libro().filas(TablaLiquidacion::Salvacacional, mp.mes);
    std::stable_sort(filas.begin(), filas.end(),
                     [](const FilaMes& a, const FilaMes& b) { return a.codigo < b.codigo; });
    return filas;
}

DesgloseVacacional sumarVacacional(const MesPersona& mp) {
    DesgloseVacacional d;
    for (const auto& f : mp.libro().filas(TablaLiquidacion::Salvacacional, mp.mes)) {
        if (esHaberVacacional(f.concepto)) {
            d.haberes += f.total;
            if (f.codigo == 606 || f.codigo == 636) d.montoirpf += f.total;
            continue;
        }
        d.descuentos += f.total;
        if (empiezaCon(f.concepto, "IRPF")) d.irpf += f.total;
    }
    d.liquido = d.haberes - d.descuentos;
    if (d.liquido < Dinero()) d.liquido = Dinero();
    return d;
}

DesgloseVacacional desgloseVacacional(const MesPersona& mp, ContextoFormula& ctx,
                                      common::Dialogo& dialogo) {
    auto d = sumarVacacional(mp);
    for (const auto& f : mp.libro().filas(TablaLiquidacion::Salvacacional, mp.mes))
        if (!esHaberVacacional(f.concepto) && empiezaCon(f.concepto, "IRPF"))
            d.deducciones += CalculomontodeduccionesIRPF(ctx, opcionesIRPFForm44(), dialogo);
    return d;
}

void cargarContextoVacacional(const MesPersona& mp, ContextoFormula& ctx) {
    const auto d = sumarVacacional(mp);
    ctx.montograv = d.haberes;
    ctx.montosv = d.montoirpf;
    ctx.liquidoneto = d.liquido;
}

}  // namespace vacacional
}  // namespace nomira::engine
