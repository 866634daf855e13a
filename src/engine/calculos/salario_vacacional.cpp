#include "engine/calculos/salario_vacacional.h"

#include <algorithm>

#include "common/fechas.h"
#include "common/numeros.h"
#include "engine/calculos/aportes.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/libro.h"
#include "engine/mes/maestros.h"

namespace nomira::engine {
inline namespace calculos {

namespace {

std::string fechaIso(const std::string& ddmmyy) {
    const auto f = common::Fecha::desdeTexto(ddmmyy);
    return f ? f->iso() : "";
}

}  // namespace

std::string conceptoVacacionalDe(const std::string& conceptoLicencia) {
    const std::string licencia = "LICENCIA";
    return "SALARIO VACACIONAL" +
           conceptoLicencia.substr(std::min(licencia.size(), conceptoLicencia.size()));
}

std::optional<SalarioVacacional> CalculoSalarioVacacionalNew(
    ContextoFormula& ctx, const std::string& conceptoLicencia, double dias, common::Dinero monto,
    const std::string& desde, const std::string& hasta, common::Dialogo& dialogo) {
    SalarioVacacional s;
    s.concepto = conceptoVacacionalDe(conceptoLicencia);
    const auto* concepto = maestrosDe(ctx).conceptos.porNombre(s.concepto);
    if (!concepto) return std::nullopt;
    s.codigo = static_cast<long>(common::textoANumero(concepto->codigo));

    const double tasas = tasasSobre(ctx, ctx.montograv.aDouble(), dialogo);
    s.total = CalculoDtosobreHaberesNew(monto, tasas);
    s.explicacion = s.concepto + ": licencia " + pesos(monto) + " menos aportes " + numero(tasas) +
                    "% = " + pesos(s.total) + ".";

    FilaMes fila;
    fila.codigo = s.codigo;
    fila.concepto = s.concepto;
    fila.unidad = concepto->unidad;
    fila.cant = dias;
    fila.total = s.total;
    fila.desdelic = fechaIso(desde);
    fila.hastalic = fechaIso(hasta);
    auto& libro = libroDe(ctx);
    libro.borrarCodigo(TablaLiquidacion::Salvacacional, ctx.periodo, s.codigo);
    libro.escribir(TablaLiquidacion::Salvacacional, ctx.periodo, fila);
    return s;
}

}  // namespace calculos
}  // namespace nomira::engine
