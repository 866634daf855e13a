#include "engine/mes/irpf_licencia.h"

#include "common/empaquetados.h"
#include "engine/calculos/aportes.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/datos_persona.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/filas_persona.h"
#include "engine/mes/irpf_lector.h"

namespace nomira::engine {

using common::Dinero;

std::vector<std::string> aportesDeLicencia(double cantbfc, const std::string& tipoaporte) {
    if (tipoaporte == "04") return {"SNIS", "FRL"};
    if (cantbfc != 0) return {"MONTEPIO", "FRL"};
    return {"MONTEPIO", "SNIS", "FRL"};
}

IRPFLicencia irpfConAportesDeLicencia(ContextoFormula& ctx, Dinero montoirpf, Dinero montonominal,
                                      Dinero gravadoLicencia, common::Dialogo& dialogo) {
    if (!ctx.variables) throw common::Fallo(91, "Variable de objeto o bloque With no establecida");
    auto& base = baseDe(ctx);
    const auto persona = datosPersona(ctx);
    const double cantbfc = persona ? persona->cantbfc : 0;

    IRPFLicencia r;
    store::Transaccion temporal(base);
    for (const auto& nombre : aportesDeLicencia(cantbfc, ctx.tipoaporte)) {
        const auto c = base.consulta(
            "SELECT codigo, formula FROM conceptos WHERE concepto = ? AND tipo = 'Des' "
            "ORDER BY codigo LIMIT 1",
            {nombre});
        if (c.vacio()) continue;
        ContextoFormula copia = ctx;
        copia.formula = c.primera().texto("formula");
        copia.montograv = gravadoLicencia;
        copia.psnis = 0;
        CalculoFormula2(copia, dialogo);
        double total = copia.total;
        if (nombre == "MONTEPIO" && persona && ctx.tipoaporte != "04" &&
            common::SocMedica::leer(persona->socmedica).tafap == "Si") {
            const double tope = topeAfap(base, persona->socmedica);
            if (gravadoLicencia.aDouble() > tope) total = 15 * tope / 100;
        }
        const auto importe = Dinero::desdeDouble(total);
        base.ejecuta(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, unidad, "
            "permanente, gravado, aguinaldo, cant, total, lic, ipd) VALUES (?, ?, ?, ?, ?, 'Des', "
            "'', '', '', '', 1, ?, '', '')",
            {ctx.empresa, ctx.nombre, ctx.periodo.primerDia().iso(), c.primera().entero("codigo"),
             nombre, importe.aDouble()});
        r.explicacion += nombre + " de la licencia " + pesos(importe) + "; ";
    }
    r.irpf = CalculoIRPF(ctx, montoirpf, montonominal, opcionesIRPFForm42(), dialogo);
    // La transacción no se confirma: los aportes de la licencia se van.
    return r;
}

}  // namespace nomira::engine
