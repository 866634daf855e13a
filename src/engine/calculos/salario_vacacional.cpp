#include "engine/calculos/salario_vacacional.h"

#include <algorithm>

#include "common/fechas.h"
#include "common/numeros.h"
#include "engine/calculos/aportes.h"
#include "engine/mes/aportes_lector.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/filas_persona.h"

namespace nomira::engine {

namespace {

store::Valor fechaONulo(const std::string& ddmmyy) {
    const auto f = common::Fecha::desdeTexto(ddmmyy);
    return f ? store::Valor(f->iso()) : store::Valor(store::Nulo{});
}

}  // namespace

std::string conceptoVacacionalDe(const std::string& conceptoLicencia) {
    const std::string licencia = "LICENCIA";
    return "SALARIO VACACIONAL" +
           conceptoLicencia.substr(std::min(licencia.size(), conceptoLicencia.size()));
}

std::optional<SalarioVacacional> CalculoSalarioVacacionalNew(
    store::Conexion& base, ContextoFormula& ctx, const std::string& conceptoLicencia, double dias,
    common::Dinero monto, const std::string& desde, const std::string& hasta,
    common::Dialogo& dialogo) {
    SalarioVacacional s;
    s.concepto = conceptoVacacionalDe(conceptoLicencia);
    const auto concepto = conceptoPorNombre(base, s.concepto);
    if (!concepto) return std::nullopt;
    s.codigo = static_cast<long>(common::textoANumero(concepto->codigo));

    const double tasas = tasasSobre(ctx, ctx.montograv.aDouble(), dialogo);
    s.total = CalculoDtosobreHaberesNew(monto, tasas);
    s.explicacion = s.concepto + ": licencia " + pesos(monto) + " menos aportes " + numero(tasas) +
                    "% = " + pesos(s.total) + ".";

    const std::string fecha = ctx.periodo.primerDia().iso();
    const std::int64_t codigo = s.codigo;
    base.ejecuta(
        "DELETE FROM salvacacional WHERE empresa = ? AND nombre = ? AND fecha = ? AND codigo = ?",
        {ctx.empresa, ctx.nombre, fecha, codigo});
    base.ejecuta(
        "INSERT INTO salvacacional (empresa, nombre, fecha, codigo, concepto, unidad, cant, "
        "total, desdelic, hastalic) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        {ctx.empresa, ctx.nombre, fecha, codigo, s.concepto, concepto->unidad, dias,
         s.total.aDouble(), fechaONulo(desde), fechaONulo(hasta)});
    return s;
}

}  // namespace nomira::engine
