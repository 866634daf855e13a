#include "engine/mes/irpf_lector.h"

#include "common/empaquetados.h"
#include "engine/calculos/aportes.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/datos_persona.h"
#include "store/recordada.h"

namespace nomira::engine {

using common::Dinero;

namespace {

Dinero sumaConPrefijo(const std::vector<FilaMes>& filas, const char* prefijo) {
    Dinero s;
    for (const auto& f : filas)
        if (empiezaCon(f.concepto, prefijo)) s += f.total;
    return s;
}

Dinero sumaSalvacacional(const std::vector<FilaSalVac>& filas, const char* prefijo) {
    Dinero s;
    for (const auto& f : filas)
        if (empiezaCon(f.concepto, prefijo)) s += f.total;
    return s;
}

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
    auto& base = baseDe(ctx);
    const auto aguinaldos =
        leerFilasDelMes(base, TablaLiquidacion::Aguinaldos, ctx.empresa, ctx.nombre, ctx.periodo);
    const double psnis = psnisDeLaFormula(ctx, dialogo);
    return Dinero::desdeDouble(sumaHab(aguinaldos).aDouble() / 12 * psnis / 100 -
                               sumaConPrefijo(aguinaldos, "SNIS").aDouble());
}

}  // namespace

namespace {

void agregarFranja(std::vector<FilaEscala>& escala, const store::FilaAlPaso& f) {
    escala.push_back({static_cast<long>(f.entero(0)), f.real(1), f.real(2), f.real(3)});
}

}  // namespace

std::vector<FilaEscala> leerEscala(store::Conexion& base, bool delAguinaldo) {
    // La corrida de una empresa la pide por cada persona: se convierte una vez.
    return *store::consultaConvertida(
        base,
        delAguinaldo
            ? "SELECT franja, min, max, tasa FROM franjasirp WHERE franja > 2000 ORDER BY franja"
            : "SELECT franja, min, max, tasa FROM franjasirp WHERE franja < 1000 ORDER BY franja",
        {}, agregarFranja);
}

ResultadoIRPF CalculoIRPF(ContextoFormula& ctx, Dinero montoirpf, Dinero montonominal,
                          const OpcionesIRPF& op, common::Dialogo& dialogo) {
    auto& base = baseDe(ctx);
    auto& vars = *ctx.variables;
    const auto persona = datosPersona(ctx);
    const auto mes = ctx.periodo;

    EntradaIRPF e;
    e.montoirpf = montoirpf;
    e.montonominal = montonominal;
    e.mes = mes;
    e.bpc = vars.valor("BPC");
    e.exclusion = vars.valor("EXCLUSIONIRPF");
    if (persona) e.deducciones = deduccionesDe(base, *persona, mes, vars, &dialogo);
    e.escala = leerEscala(base, op.escalaAguinaldoEnJunio && mes.mes == 6);
    const auto b = banderas(persona);
    e.multiEmp = b.multiEmp;
    e.nfam = b.nfam;
    e.l19321 = b.l19321;

    const auto habydesc =
        leerFilasDelMes(base, TablaLiquidacion::Habydesc, ctx.empresa, ctx.nombre, mes);
    if (op.conAportes) {
        const Dinero ajuste = ajusteJunio(ctx, habydesc, persona, dialogo);
        const auto filas =
            op.tablaAportes == TablaLiquidacion::Habydesc
                ? habydesc
                : leerFilasDelMes(base, op.tablaAportes, ctx.empresa, ctx.nombre, mes);
        e.aportes = aportesDeducibles(filas, ajuste);
        if (op.aguinaldoDeEgreso) {
            Dinero aguinaldo;
            for (const auto& f : filas)
                if (f.concepto == "AGUINALDO") aguinaldo += f.total;
            const double tasas = CalculoTasasDesNewAguinaldo(ctx, dialogo);
            e.aportes -= Dinero::desdeDouble(aguinaldo.aDouble() * tasas / 100);
        }
    }
    e.irpfAguinaldo = sumaConPrefijo(
        leerFilasDelMes(base, TablaLiquidacion::Aguinaldos, ctx.empresa, ctx.nombre, mes), "IRPF");
    e.irpfSalvacacional =
        sumaSalvacacional(leerSalvacacional(base, ctx.empresa, ctx.nombre, mes, mes), "IRPF");
    return calcularIRPF(e, op);
}

ResultadoIRPFDic CalculoIRPFDic(ContextoFormula& ctx, bool conEgresos, common::Dialogo& dialogo) {
    auto& base = baseDe(ctx);
    auto& vars = *ctx.variables;
    const auto persona = datosPersona(ctx);
    const common::Mes enero{ctx.periodo.anio, 1}, diciembre{ctx.periodo.anio, 12};

    EntradaIRPFDic e;
    e.periodo = ctx.periodo;
    e.bpc = vars.valor("BPC");
    e.exclusion = vars.valor("EXCLUSIONIRPF");
    if (persona) e.deducciones = deduccionesDe(base, *persona, ctx.periodo, vars, &dialogo);
    e.escala = leerEscala(base, false);
    const auto b = banderas(persona);
    e.multiEmp = b.multiEmp;
    e.nfam = b.nfam;
    e.l19321 = b.l19321;
    e.fechaMultiEmp = b.fechaMultiEmp;

    const auto& empresa = ctx.empresa;
    const auto& nombre = ctx.nombre;
    const auto habydesc =
        leerFilas(base, TablaLiquidacion::Habydesc, empresa, nombre, enero, diciembre);
    const auto aguinaldos =
        leerFilas(base, TablaLiquidacion::Aguinaldos, empresa, nombre, enero, diciembre);
    const auto salvac = leerSalvacacional(base, empresa, nombre, enero, diciembre);
    e.ingresos = habydesc;
    e.aportesDelAnio = sumaAportes(habydesc) + sumaAportes(aguinaldos);
    if (conEgresos) {
        const auto egresos =
            leerFilas(base, TablaLiquidacion::Egresos, empresa, nombre, enero, diciembre);
        e.ingresos.insert(e.ingresos.end(), egresos.begin(), egresos.end());
        e.aportesDelAnio += sumaAportes(egresos);
    }
    for (int m = 1; m <= 12; ++m)
        e.aguinaldosHab[m - 1] = sumaHab(
            leerFilasDelMes(base, TablaLiquidacion::Aguinaldos, empresa, nombre, {enero.anio, m}));
    for (const auto& s : salvac)
        if (s.codigo == 606 || s.codigo == 636) e.salvacacional += s.total;
    // Lo ya retenido: una fila de diciembre ya guardada también cuenta.
    e.retenidoDelAnio = sumaConPrefijo(habydesc, "IRPF") + sumaConPrefijo(aguinaldos, "IRPF") +
                        sumaSalvacacional(salvac, "IRPF");
    return calcularIRPFDic(e);
}

Dinero CalculomontodeduccionesIRPF(ContextoFormula& ctx, const OpcionesIRPF& op,
                                   common::Dialogo& dialogo) {
    auto& base = baseDe(ctx);
    auto& vars = *ctx.variables;
    const auto persona = datosPersona(ctx);
    Dinero total;
    if (persona)
        total = deduccionesDelMes(deduccionesDe(base, *persona, ctx.periodo, vars, &dialogo),
                                  vars.valor("BPC"), op.factorSlot08);
    total += sumaAportes(
        leerFilasDelMes(base, TablaLiquidacion::Habydesc, ctx.empresa, ctx.nombre, ctx.periodo));
    if (ctx.periodo.mes != 6)
        total += sumaAportes(leerFilasDelMes(base, TablaLiquidacion::Aguinaldos, ctx.empresa,
                                             ctx.nombre, ctx.periodo));
    return total;
}

}  // namespace nomira::engine
