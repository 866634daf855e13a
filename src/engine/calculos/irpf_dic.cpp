#include "engine/calculos/irpf_dic.h"

#include <algorithm>

#include "engine/calculos/explicacion.h"

namespace nomira::engine {
inline namespace calculos {

using common::Dinero;

int mesesDesde(const std::string& fechadesde, const common::Mes& periodo) {
    const auto f = common::Fecha::desdeTexto(fechadesde);
    if (fechadesde.find_first_not_of(' ') == std::string::npos || !f) return 12;
    const int anio = common::anioPivote50(f->anio % 100);
    if (anio < periodo.anio) return 12;
    if (anio > periodo.anio) return 0;
    return std::clamp(periodo.mes - f->mes + 1, 0, 12);
}

ResultadoIRPFDic calcularIRPFDic(const EntradaIRPFDic& e) {
    ResultadoIRPFDic r;
    const double bpc = e.bpc;

    for (const auto& ag : e.aguinaldosHab) r.inggrav += Dinero::desdeDouble(ag.aDouble() / 12);
    r.inggrav += e.salvacacional;
    for (const auto& f : e.ingresos) {
        if (f.tipo != "Hab" || f.ipd != "Si") continue;
        r.inggrav += f.total;
        if (f.concepto != "RELIQ. SAL. VAC. POR LAUDO" &&
            f.concepto != "RELIQ. AGUINALDO POR LAUDO")
            r.ingbase += f.total;
    }
    std::string exp = "ingresos " + pesos(r.inggrav) + ", base " + pesos(r.ingbase);

    // Deducciones por los meses en que corresponden. Un beneficiario que llegó
    // a la mayoría conserva el monto por los meses anteriores a su cumpleaños.
    Dinero ded;
    for (const auto& d : e.deducciones.dependientes) {
        Dependiente sinEdad = d;
        sinEdad.mayor = false;
        int meses = mesesDesde(d.fechadesde, e.periodo);
        if (d.mayor) meses = std::max(0, meses - (e.periodo.mes - d.mesNacimiento));
        ded += deduccionDependiente(sinEdad, bpc) * meses;
    }
    for (const auto& c : e.deducciones.casillas)
        ded += deduccionCasilla(c, bpc, 1.0 / 12) * mesesDesde(c.fechadesde, e.periodo);
    r.totalmontoded = ded + e.aportesDelAnio;
    exp += "; deducciones " + pesos(ded) + " + aportes " + pesos(e.aportesDelAnio);

    // Otro empleo: al revés que en el mes, se suma su ficto de 7 BPC por mes.
    Dinero multi;
    if (e.multiEmp) {
        const int meses = e.fechaMultiEmp.empty() ? 12 : mesesDesde(e.fechaMultiEmp, e.periodo);
        multi = Dinero::desdeDouble(meses * 7 * bpc);
        r.inggrav += multi;
        r.ingbase += multi;
        exp += "; otro empleo " + numero(meses) + " x 7 BPC = " + pesos(multi);
    }

    const auto escala = aplicarEscala(r.ingbase, e.escala, bpc, 12, false);
    r.escala = escala.impuesto;
    r.irpfag = Dinero::desdeDouble((r.inggrav - r.ingbase).aDouble() * escala.tasaAlcanzada / 100);
    exp += "; escala anual:" + escala.detalle + " = " + pesos(r.escala) +
           "; aguinaldo y vacacional a la tasa " + numero(escala.tasaAlcanzada) +
           "% = " + pesos(r.irpfag);

    Dinero ingbase = r.ingbase;
    if (r.totalmontoded != Dinero()) {
        ingbase -= multi;
        const double tasa = ingbase.aDouble() > 12 * 15 * bpc ? 8 : 14;
        r.credito = Dinero::desdeDouble(r.totalmontoded.aDouble() * tasa / 100);
        exp += "; crédito " + numero(tasa) + "% de " + pesos(r.totalmontoded) + " = " +
               pesos(r.credito);
    }
    Dinero irpf = r.escala - r.credito;
    if (e.nfam) irpf = irpf * 0.95;
    if (e.l19321 && ingbase.aDouble() <= 12 * e.exclusion) irpf = Dinero();
    if (irpf <= Dinero())
        irpf = Dinero();
    else
        irpf += r.irpfag;
    r.retenido = e.retenidoDelAnio;
    irpf -= r.retenido;
    if (irpf < Dinero()) irpf = Dinero();
    r.total = irpf;
    r.explicacion = exp + "; retenido en el año " + pesos(r.retenido) + "; IRPF " + pesos(irpf);
    return r;
}

}  // namespace calculos
}  // namespace nomira::engine
