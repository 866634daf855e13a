#include "engine/mes/irpf_lector.h"

#include "common/empaquetados.h"
#include "engine/calculos/aportes.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/datos_persona.h"
#include "engine/mes/libro.h"

namespace nomira::engine {
inline namespace mes {

using common::Dinero;

namespace {

struct Banderas {
    bool multiEmp = false, nfam = false, l19321 = false;
    std::string fechaMultiEmp;
};

Banderas banderas(const std::optional<DatosPersona>& p) {
    if (!p) return {};
    const auto s = common::SocMedica::leer(p->socmedica);
    // Desde el carácter 10 va la fecha desde la que rige "Multi Emp.".
    return {s.multiemp == "Si", s.nfam == "Si", s.l19321 == "Si", s.montoOtroEmpleo};
}

// El SNIS de junio: lo que el aguinaldo ya pagó se descuenta de cada fila
// de SNIS al sumar los aportes deducibles.
Dinero ajusteJunio(ContextoFormula& ctx, const std::vector<FilaMes>& habydesc,
                   const std::optional<DatosPersona>& p, common::Dialogo& dialogo) {
    if (ctx.periodo.mes != 6 || ctx.tipoaporte == "04") return {};
    if (excepcionLicencia(p ? p->tiposueldo : "", habydesc)) return {};
    const auto& aguinaldos = libroDe(ctx).filas(TablaLiquidacion::Aguinaldos, ctx.periodo);
    const double psnis = psnisDeLaFormula(ctx, dialogo);
    return Dinero::desdeDouble(sumaHab(aguinaldos).aDouble() / 12 * psnis / 100 -
                               sumaConPrefijo(aguinaldos, "SNIS").aDouble());
}

}  // namespace

ResultadoIRPF CalculoIRPF(ContextoFormula& ctx, Dinero montoirpf, Dinero montonominal,
                          const OpcionesIRPF& op, common::Dialogo& dialogo) {
    const auto& maestros = maestrosDe(ctx);
    const auto& libro = libroDe(ctx);
    const auto& vars = variablesDe(ctx);
    const auto persona = datosPersona(ctx);
    const auto mes = ctx.periodo;

    EntradaIRPF e;
    e.montoirpf = montoirpf;
    e.montonominal = montonominal;
    e.mes = mes;
    e.bpc = vars.valor("BPC");
    e.exclusion = vars.valor("EXCLUSIONIRPF");
    if (persona) e.deducciones = deduccionesDe(maestros, *persona, mes, &dialogo);
    e.escala =
        op.escalaAguinaldoEnJunio && mes.mes == 6 ? maestros.escalaAguinaldo : maestros.escala;
    const auto b = banderas(persona);
    e.multiEmp = b.multiEmp;
    e.nfam = b.nfam;
    e.l19321 = b.l19321;

    const auto& habydesc = libro.filas(TablaLiquidacion::Habydesc, mes);
    if (op.conAportes) {
        const Dinero ajuste = ajusteJunio(ctx, habydesc, persona, dialogo);
        const auto& filas = libro.filas(op.tablaAportes, mes);
        e.aportes = aportesDeducibles(filas, ajuste);
        if (op.aguinaldoDeEgreso) {
            Dinero aguinaldo;
            for (const auto& f : filas)
                if (f.concepto == "AGUINALDO") aguinaldo += f.total;
            const double tasas = CalculoTasasDesNewAguinaldo(ctx, dialogo);
            e.aportes -= Dinero::desdeDouble(aguinaldo.aDouble() * tasas / 100);
        }
    }
    e.irpfAguinaldo = sumaConPrefijo(libro.filas(TablaLiquidacion::Aguinaldos, mes), "IRPF");
    e.irpfSalvacacional = sumaConPrefijo(libro.filas(TablaLiquidacion::Salvacacional, mes), "IRPF");
    return calcularIRPF(e, op);
}

ResultadoIRPFDic CalculoIRPFDic(ContextoFormula& ctx, bool conEgresos, common::Dialogo& dialogo) {
    const auto& maestros = maestrosDe(ctx);
    const auto& libro = libroDe(ctx);
    const auto& vars = variablesDe(ctx);
    const auto persona = datosPersona(ctx);
    const common::Mes enero{ctx.periodo.anio, 1}, diciembre{ctx.periodo.anio, 12};

    EntradaIRPFDic e;
    e.periodo = ctx.periodo;
    e.bpc = vars.valor("BPC");
    e.exclusion = vars.valor("EXCLUSIONIRPF");
    if (persona) e.deducciones = deduccionesDe(maestros, *persona, ctx.periodo, &dialogo);
    e.escala = maestros.escala;
    const auto b = banderas(persona);
    e.multiEmp = b.multiEmp;
    e.nfam = b.nfam;
    e.l19321 = b.l19321;
    e.fechaMultiEmp = b.fechaMultiEmp;

    const auto habydesc = libro.filas(TablaLiquidacion::Habydesc, enero, diciembre);
    const auto aguinaldos = libro.filas(TablaLiquidacion::Aguinaldos, enero, diciembre);
    const auto salvac = libro.filas(TablaLiquidacion::Salvacacional, enero, diciembre);
    e.ingresos = habydesc;
    e.aportesDelAnio = sumaAportes(habydesc) + sumaAportes(aguinaldos);
    if (conEgresos) {
        const auto egresos = libro.filas(TablaLiquidacion::Egresos, enero, diciembre);
        e.ingresos.insert(e.ingresos.end(), egresos.begin(), egresos.end());
        e.aportesDelAnio += sumaAportes(egresos);
    }
    for (int m = 1; m <= 12; ++m)
        e.aguinaldosHab[m - 1] =
            sumaHab(libro.filas(TablaLiquidacion::Aguinaldos, common::Mes{enero.anio, m}));
    for (const auto& s : salvac)
        if (s.codigo == 606 || s.codigo == 636) e.salvacacional += s.total;
    // Lo ya retenido: una fila de diciembre ya guardada también cuenta.
    e.retenidoDelAnio = sumaConPrefijo(habydesc, "IRPF") + sumaConPrefijo(aguinaldos, "IRPF") +
                        sumaConPrefijo(salvac, "IRPF");
    return calcularIRPFDic(e);
}

Dinero CalculomontodeduccionesIRPF(ContextoFormula& ctx, const OpcionesIRPF& op,
                                   common::Dialogo& dialogo) {
    const auto& libro = libroDe(ctx);
    const auto persona = datosPersona(ctx);
    Dinero total;
    if (persona)
        total = deduccionesDelMes(deduccionesDe(maestrosDe(ctx), *persona, ctx.periodo, &dialogo),
                                  variablesDe(ctx).valor("BPC"), op.factorSlot08);
    // Sin aportes en las deducciones (Form44), tampoco se muestran aquí.
    if (!op.conAportes) return total;
    total += sumaAportes(libro.filas(TablaLiquidacion::Habydesc, ctx.periodo));
    if (ctx.periodo.mes != 6)
        total += sumaAportes(libro.filas(TablaLiquidacion::Aguinaldos, ctx.periodo));
    return total;
}

}  // namespace mes
}  // namespace nomira::engine
