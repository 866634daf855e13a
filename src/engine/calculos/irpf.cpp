#include "engine/calculos/irpf.h"

#include "common/formato.h"
#include "engine/calculos/explicacion.h"

namespace nomira::engine {
inline namespace calculos {

using common::Dinero;

OpcionesIRPF opcionesIRPFForm42() {
    return {};
}

OpcionesIRPF opcionesIRPFForm43() {
    OpcionesIRPF o;
    o.tablaAportes = TablaLiquidacion::Aguinaldos;
    o.escalaAguinaldoEnJunio = true;
    o.saltaMultiEmpEnJunio = false;
    o.factorSlot08 = 1;
    o.credito = CreditoIRPF::Ninguno;
    o.filasLicencia = false;
    o.restaAguinaldos = false;
    o.restaSalvacEnJunio = false;
    o.resultadoCero = true;
    return o;
}

OpcionesIRPF opcionesIRPFForm44() {
    OpcionesIRPF o;
    o.conAportes = false;
    o.factorSlot08 = 1;
    o.credito = CreditoIRPF::PorPrimerArgumento;
    o.filasLicencia = false;
    o.restaAguinaldos = false;
    o.restaSalvacacional = false;
    return o;
}

OpcionesIRPF opcionesIRPFForm45() {
    OpcionesIRPF o;
    o.tablaAportes = TablaLiquidacion::Egresos;
    o.aguinaldoDeEgreso = true;
    o.factorSlot08 = 1;
    o.filasLicencia = false;
    return o;
}

Dinero deduccionDependiente(const Dependiente& d, double bpc) {
    double monto = 0;
    if (d.causa == "01" || d.causa == "04")
        monto = bpc * 20 / 12;
    else if (d.causa == "02" || d.causa == "03")
        monto = bpc * 40 / 12;
    if (d.mayor) monto = 0;
    if (d.porcentaje == "00")
        monto = 0;
    else if (d.porcentaje == "01")
        monto /= 2;
    return Dinero::desdeDouble(monto * d.multiplicador);
}

Dinero deduccionCasilla(const Casilla& c, double bpc, double factorSlot08) {
    double monto = 0;
    if (c.codigo == "03") {
        monto = c.valorVariable;
    } else if (c.codigo == "02") {
        if (c.categoria == "01") monto = bpc / 2 / 12;
        if (c.categoria == "02") monto = bpc / 12;
        if (c.categoria == "03") monto = bpc * 2 / 12;
        if (c.categoria == "04") monto = bpc * 11 / 6 / 12;
        if (c.categoria == "05") monto = bpc * 17 / 6 / 12;
    } else if (c.codigo == "08" && c.categoria == "01") {
        monto = bpc * factorSlot08;
    }
    return Dinero::desdeDouble(monto);
}

Dinero deduccionesDelMes(const Deducciones& d, double bpc, double factorSlot08,
                         std::string* detalle) {
    Dinero total;
    for (const auto& dep : d.dependientes) {
        const Dinero m = deduccionDependiente(dep, bpc);
        total += m;
        if (detalle && m != Dinero()) *detalle += " beneficiario " + dep.causa + " " + pesos(m);
    }
    for (const auto& c : d.casillas) {
        const Dinero m = deduccionCasilla(c, bpc, factorSlot08);
        total += m;
        if (detalle && m != Dinero())
            *detalle += " deducción " + c.codigo + "/" + c.categoria + " " + pesos(m);
    }
    return total;
}

Dinero aportesDeducibles(const std::vector<FilaMes>& filas, Dinero ajuste) {
    Dinero s;
    for (const auto& f : filas) {
        if (f.tipo != "Des" || !esAporteLegal(f.concepto)) continue;
        s += f.total;
        if (empiezaCon(f.concepto, "SNIS")) s -= ajuste;
    }
    return s;
}

ResultadoEscala aplicarEscala(Dinero monto, const std::vector<FilaEscala>& escala, double bpc,
                              double factor, bool saltarPrimera) {
    ResultadoEscala r;
    Dinero resto = monto;
    for (std::size_t i = saltarPrimera ? 1 : 0; i < escala.size(); ++i) {
        const auto& f = escala[i];
        const double tramo = f.hasta * factor * bpc - f.desde * factor * bpc;
        r.tasaAlcanzada = f.tasa;
        resto = Dinero::desdeDouble(resto.aDouble() - tramo);
        if (resto < Dinero()) {
            const Dinero parte = Dinero::desdeDouble((resto.aDouble() + tramo) * f.tasa / 100);
            r.impuesto += parte;
            r.detalle += " " + pesos(resto.aDouble() + tramo) + " x " + numero(f.tasa) + "%";
            break;
        }
        r.impuesto += Dinero::desdeDouble(tramo * f.tasa / 100);
        r.detalle += " " + pesos(tramo) + " x " + numero(f.tasa) + "%";
    }
    return r;
}

ResultadoIRPF calcularIRPF(const EntradaIRPF& e, const OpcionesIRPF& op) {
    ResultadoIRPF r;
    std::string exp = "deducciones:";
    r.totalmontoded = deduccionesDelMes(e.deducciones, e.bpc, op.factorSlot08, &exp);
    r.totalmontoded += e.aportes;
    exp += " aportes " + pesos(e.aportes) + " = " + pesos(r.totalmontoded);

    const bool junio = e.mes.mes == 6;
    const bool salta = e.multiEmp && (op.saltaMultiEmpEnJunio || !junio);
    const auto escala = aplicarEscala(e.montoirpf, e.escala, e.bpc, 1, salta);
    r.irpfbruto = escala.impuesto;
    exp += "; escala sobre " + pesos(e.montoirpf) + (salta ? " sin la primera franja:" : ":") +
           escala.detalle + " = " + pesos(r.irpfbruto);

    // El crédito mira el nominal (o el primer argumento), no el monto con el 6%.
    if (r.totalmontoded != Dinero() && op.credito != CreditoIRPF::Ninguno) {
        const Dinero base = op.credito == CreditoIRPF::PorNominal ? e.montonominal : e.montoirpf;
        const double tasa = base.aDouble() > 15 * e.bpc ? 8 : 14;
        r.credito = Dinero::desdeDouble(r.totalmontoded.aDouble() * tasa / 100);
        exp += "; crédito " + numero(tasa) + "% = " + pesos(r.credito);
    }
    Dinero irpf = r.irpfbruto - r.credito;
    if (e.nfam) {
        irpf = irpf * 0.95;
        exp += "; N.Fam. x 0.95";
    }
    if (e.l19321 && e.montonominal.aDouble() <= e.exclusion) {
        irpf = Dinero();
        exp += "; L.19321 bajo la exclusión: 0";
    }
    if (irpf < Dinero()) irpf = Dinero();
    if (op.restaAguinaldos && !junio) {
        r.restadoAguinaldo = e.irpfAguinaldo;
        irpf -= e.irpfAguinaldo;
        if (e.irpfAguinaldo != Dinero()) exp += "; - aguinaldo " + pesos(e.irpfAguinaldo);
    }
    if (op.restaSalvacacional && (op.restaSalvacEnJunio || !junio)) {
        r.irpfsalvac = e.irpfSalvacacional;
        irpf -= e.irpfSalvacacional;
        if (e.irpfSalvacacional != Dinero())
            exp += "; - salario vacacional " + pesos(e.irpfSalvacacional);
    }
    // No hay devolución.
    if (irpf < Dinero()) irpf = Dinero();
    if (op.resultadoCero) {
        irpf = Dinero();
        exp += "; el aguinaldo no retiene: 0";
    }
    r.total = irpf;
    r.explicacion = exp + "; IRPF " + pesos(r.total);
    return r;
}

std::string textoFilaIRPF(const std::string& concepto, const ResultadoIRPF& r, Dinero montoirpf) {
    using common::alinearDerecha;
    using common::formatear;
    if (r.total == Dinero())
        return "IRPF    " + alinearDerecha(formatear(montoirpf.aDouble(), "##,##0.00"), 10) +
               "      ";
    const auto bruto = alinearDerecha(formatear(r.irpfbruto.aDouble(), "##,##0"), 8);
    const auto credito = alinearDerecha(formatear(r.credito.aDouble(), "##,##0"), 8);
    if (r.irpfsalvac != Dinero()) return "IRPF" + bruto + "-" + credito + "-SV";
    return concepto + bruto + " - " + credito;
}

}  // namespace calculos
}  // namespace nomira::engine
