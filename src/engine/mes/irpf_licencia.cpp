#include "engine/mes/irpf_licencia.h"

#include "common/empaquetados.h"
#include "common/numeros.h"
#include "engine/calculos/aportes.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/datos_persona.h"
#include "engine/mes/irpf_lector.h"
#include "engine/mes/libro.h"

namespace nomira::engine {
inline namespace mes {

using common::Dinero;

std::vector<std::string> aportesDeLicencia(double cantbfc, const std::string& tipoaporte) {
    if (tipoaporte == "04") return {"SNIS", "FRL"};
    if (cantbfc != 0) return {"MONTEPIO", "FRL"};
    return {"MONTEPIO", "SNIS", "FRL"};
}

IRPFLicencia irpfConAportesDeLicencia(ContextoFormula& ctx, Dinero montoirpf, Dinero montonominal,
                                      Dinero gravadoLicencia, common::Dialogo& dialogo) {
    const auto& maestros = maestrosDe(ctx);
    const auto persona = datosPersona(ctx);
    const double cantbfc = persona ? persona->cantbfc : 0;

    IRPFLicencia r;
    // Los aportes de la licencia cuentan sólo para este IRPF: van a una copia
    // de las filas de la persona, que se tira después.
    LibroPersona conAportes = libroDe(ctx);
    for (const auto& nombre : aportesDeLicencia(cantbfc, ctx.tipoaporte)) {
        const auto* c = maestros.conceptos.porNombre(nombre, "Des");
        if (!c) continue;
        ContextoFormula copia = ctx;
        copia.formula = c->formula;
        copia.montograv = gravadoLicencia;
        copia.psnis = 0;
        CalculoFormula2(copia, dialogo);
        double total = copia.total;
        if (nombre == "MONTEPIO" && persona && ctx.tipoaporte != "04" &&
            common::SocMedica::leer(persona->socmedica).tafap == "Si") {
            const double tope = topeAfap(maestros, persona->socmedica);
            if (gravadoLicencia.aDouble() > tope) total = 15 * tope / 100;
        }
        const auto importe = Dinero::desdeDouble(total);
        FilaMes aporte;
        aporte.codigo = static_cast<long>(common::textoANumero(c->codigo));
        aporte.concepto = nombre;
        aporte.tipo = "Des";
        aporte.cant = 1;
        aporte.total = Dinero::desdeDouble(importe.aDouble());
        conAportes.agregarLeida(TablaLiquidacion::Habydesc, ctx.periodo, std::move(aporte));
        r.explicacion += nombre + " de la licencia " + pesos(importe) + "; ";
    }
    ContextoFormula conLicencia = ctx;
    conLicencia.libro = &conAportes;
    r.irpf = CalculoIRPF(conLicencia, montoirpf, montonominal, opcionesIRPFForm42(), dialogo);
    return r;
}

}  // namespace mes
}  // namespace nomira::engine
