#include "engine/calculos/base_irpf.h"

#include "engine/calculos/explicacion.h"

namespace nomira::engine {
inline namespace calculos {

bool vinculoSinAdicion(const std::string& v) {
    const bool sas = v.size() >= 3 && v.compare(v.size() - 3, 3, "SAS") == 0;
    return sas || v == "Patron Unipersonal" || v == "Director con remuneración" ||
           v == "Socio con actividad" || v == "Prof.del deporte ( No aplica Dec. 199/011)";
}

BaseMes Desglose(const EntradaDesglose& e) {
    BaseMes b;
    b.montogravag = common::Dinero::desdeDouble(e.aguinaldosHab.aDouble() / 12);
    b.montosv = e.salvacacional;
    b.parteVacacional = e.salvacacional;
    b.montoirpf = e.salvacacional;
    for (const auto& f : e.filas) {
        if (f.tipo != "Hab") continue;
        b.totalhab += f.total;
        if (f.gravado == "Si") b.montograv += f.total;
        // Lo que entra al IRPF lo dice ipd, no gravado.
        if (f.ipd != "Si") continue;
        if (f.concepto == "RELIQ. SAL. VAC." || f.concepto == "RELIQ. SAL. VAC. POR LAUDO")
            b.parteVacacional += f.total;
        if (f.concepto != "RELIQUIDACION AGUINALDO" && f.concepto != "RELIQ. AGUINALDO POR LAUDO")
            b.montoirpf += f.total;
    }
    b.montonominal = b.montoirpf - b.parteVacacional;
    if (e.tipoaporte != "04" && (e.sueldo != 0 || !vinculoSinAdicion(e.vinculofun)) &&
        b.montoirpf.aDouble() > 10 * e.bpc) {
        b.montoirpf =
            common::Dinero::desdeDouble(b.montoirpf.aDouble() + b.montograv.aDouble() * 6 / 100);
        b.conAdicion = true;
    }
    b.liquido = liquidoNeto(e.filas, opcionesLiquidoForm42());
    return b;
}

BaseMes leerDesglose(const LibroPersona& libro, const common::Mes& mes,
                     const std::string& tipoaporte, const std::string& vinculofun, double sueldo,
                     double bpc, TablaLiquidacion tabla) {
    EntradaDesglose e;
    e.filas = libro.filas(tabla, mes);
    e.aguinaldosHab = sumaHab(libro.filas(TablaLiquidacion::Aguinaldos, mes));
    for (const auto& s : libro.filas(TablaLiquidacion::Salvacacional, mes))
        if (s.codigo == 606 || s.codigo == 636) e.salvacacional += s.total;
    e.tipoaporte = tipoaporte;
    e.vinculofun = vinculofun;
    e.sueldo = sueldo;
    e.bpc = bpc;
    return Desglose(e);
}

std::string explicacion(const BaseMes& b) {
    // Antes del 6%, el monto del IRPF era el nominal más la parte vacacional.
    std::string texto = "gravado " + pesos(b.montograv) + ", IRPF " +
                        pesos(b.montonominal + b.parteVacacional) + " (vacacional " +
                        pesos(b.parteVacacional) + ")";
    if (b.conAdicion) texto += "; más de 10 BPC: + 6% del gravado = " + pesos(b.montoirpf);
    return texto;
}

void volcarEnContexto(const BaseMes& b, ContextoFormula& ctx) {
    ctx.montograv = b.montograv;
    ctx.montogravag = b.montogravag;
    ctx.montosv = b.montosv;
    ctx.totalhab = b.totalhab;
    ctx.liquidonetograv = b.liquido.liquidonetograv;
    ctx.liquidoneto = b.liquido.liquidoneto;
    ctx.montogravalim = b.liquido.montogravalim;
}

}  // namespace calculos
}  // namespace nomira::engine
