#include "engine/calculos/irp.h"

#include <cmath>

#include "common/fallo.h"
#include "common/numeros.h"
#include "engine/mes/libro.h"
#include "engine/mes/maestros.h"

namespace nomira::engine {
inline namespace calculos {

namespace {

// Format(x, "#####0.00") vuelto a número.
double aCentesimos(double x) {
    return std::round(x * 100) / 100;
}

const FilaEscala* franjaNumero(const std::vector<FilaEscala>& franjas, long n) {
    for (const auto& f : franjas)
        if (f.franja == n) return &f;
    return nullptr;
}

}  // namespace

double irpDe(double monto, const std::vector<FilaEscala>& franjas, double bpc) {
    if (bpc == 0) return 0;
    const double enBpc = monto / bpc;
    const FilaEscala* fila = nullptr;
    for (const auto& f : franjas)
        if (enBpc >= f.desde && enBpc < f.hasta) {
            fila = &f;
            break;
        }
    if (!fila) return 0;
    const FilaEscala* previa =
        fila->franja == 1 ? nullptr : franjaNumero(franjas, fila->franja - 1);
    if (!previa) return monto * fila->tasa / 100;
    const double topeNeto = previa->hasta * bpc * (1 - previa->tasa / 100);
    const double neto = aCentesimos(monto * (1 - fila->tasa / 100));
    if (neto > aCentesimos(topeNeto)) return monto * fila->tasa / 100;
    return monto - topeNeto;
}

ResultadoIRP CalculoIRP(ContextoFormula& ctx) {
    const auto& maestros = maestrosDe(ctx);
    ResultadoIRP r;
    r.cant = ctx.textoCant.empty() ? 1 : common::textoANumero(ctx.textoCant);
    double reliquidacion = 0;
    if (!ctx.empresa.empty() && !ctx.nombre.empty())
        if (const auto* f =
                libroDe(ctx).porConcepto(TablaLiquidacion::Habydesc, ctx.periodo, "RELIQUIDACION"))
            reliquidacion = f->total.aDouble();
    const auto& franjas = maestros.franjas;
    const double bpc = variablesDe(ctx).valor("BPC");
    const double gravado = ctx.montograv.aDouble() - reliquidacion;
    r.total = irpDe(gravado, franjas, bpc);
    if (reliquidacion != 0) r.total += irpDe(reliquidacion, franjas, bpc);
    return r;
}

}  // namespace calculos
}  // namespace nomira::engine
