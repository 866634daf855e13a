#include "engine/calculos/aportes.h"

#include <cmath>

#include "common/fallo.h"
#include "common/numeros.h"
#include "engine/calculos/explicacion.h"

namespace nomira::engine {
inline namespace calculos {

namespace {

bool terminaEn(const std::string& s, const char* fin) {
    const std::string f(fin);
    return s.size() >= f.size() && s.compare(s.size() - f.size(), f.size(), f) == 0;
}

}  // namespace

bool excepcionLicencia(const std::string& tiposueldo, const std::vector<FilaMes>& filas) {
    if (tiposueldo != "H" && tiposueldo != "J") return false;
    const FilaMes* unica = nullptr;
    for (const auto& f : filas) {
        if (f.tipo != "Hab") continue;
        if (unica) return false;
        unica = &f;
    }
    return unica && (unica->concepto == "LICENCIA" || unica->concepto == "LICENCIA 2DA ACT");
}

std::string conceptoExcluido(double cantbfc, const std::string& tipoaporte,
                             const std::string& vinculofun) {
    if (tipoaporte == "04") return "MONTEPIO";
    if (cantbfc != 0 && !terminaEn(vinculofun, "SAS")) return "SNIS";
    return "";
}

bool mesConComplementoSNIS(const common::Mes& mes, const std::string& tipoaporte, double psnis,
                           bool excepcion) {
    return tipoaporte != "04" && (mes.mes == 6 || mes.mes == 12) && psnis > 3 && !excepcion;
}

std::string textoFilaAporte(const std::string& concepto, bool hayag, double psnisag, double psnis) {
    // Los porcentajes de MONTEPIO y FRL son palabras fijas: no siguen la fórmula.
    if (concepto == "MONTEPIO") return "MONTEPIO 15%";
    if (concepto == "FRL") return "FRL 0.10%";
    if (concepto == "SNIS")
        return hayag ? "SNIS AG. " + numero(psnisag) + "% + MG. " + numero(psnis) + "%"
                     : "SNIS " + numero(psnis) + "%";
    return concepto;
}

FilaAporte ajustarAporte(const EntradaAporte& e) {
    FilaAporte r;
    r.psnis = e.psnis;
    double total = e.totalFormula;
    std::string exp = "fórmula " + numero(total);

    if (e.concepto == "SNIS" && e.cantbfc != 0 && e.tipoaporte != "04" &&
        terminaEn(e.vinculofun, "SAS")) {
        total = e.bpc * 6.5 * e.psnis / 100;
        exp += "; SAS con ficto: BPC " + numero(e.bpc) + " x 6.5 x " + numero(e.psnis) +
               "% = " + numero(total);
    }
    if (e.concepto == "TICKETS ALIMENTACION" || e.concepto == "ALIMENTACION") {
        total = std::floor(total);
        exp += "; sin decimales " + numero(total);
    }
    if (mesConComplementoSNIS(e.mes, e.tipoaporte, e.psnis, e.excepcionLicencia)) {
        // El aguinaldo pagó 3; el mes completa la diferencia sobre su doceavo.
        const common::Dinero ag = common::Dinero::desdeDouble(e.aguinaldosHab.aDouble() / 12);
        total = total + ag.aDouble() * e.psnis / 100 - e.snisAguinaldo.aDouble();
        exp += "; complemento aguinaldo " + pesos(ag) + " x " + numero(e.psnis) + "% - " +
               pesos(e.snisAguinaldo) + " ya retenido";
        if (ag != common::Dinero()) {
            r.psnisag = e.psnis - 3;
            r.hayag = true;
        }
    }
    r.concepto = textoFilaAporte(e.concepto, r.hayag, r.psnisag, r.psnis);
    if (e.concepto == "MONTEPIO" && e.tafap && e.tipoaporte != "04" &&
        e.montograv.aDouble() > e.tope) {
        total = 15 * e.tope / 100;
        exp += "; tope AFAP: gravado " + pesos(e.montograv) + " > " + pesos(e.tope) +
               ", 15% del tope = " + numero(total);
    }
    r.total = common::Dinero::desdeDouble(total);
    r.explicacion = exp + "; total " + pesos(r.total);
    return r;
}

double porcentajeDeFormula(const std::string& formula) {
    // Como InStr y Mid: posiciones desde 1, 0 si no está.
    const auto a = formula.find('*'), b = formula.find(')');
    const long pa = a == std::string::npos ? 0 : static_cast<long>(a) + 1;
    const long pb = b == std::string::npos ? 0 : static_cast<long>(b) + 1;
    const long largo = pb - pa - 1;
    if (largo < 0) throw common::Fallo(5, "Llamada a procedimiento o argumento no válido");
    return common::textoANumero(formula.substr(static_cast<std::size_t>(pa), largo));
}

TasasDes tasasDes(const EntradaTasas& e) {
    TasasDes t;
    t.psnis = porcentajeSNIS(e.snis);
    if (mesConComplementoSNIS(e.mes, e.snis.tipoaporte, t.psnis, e.excepcionLicencia) &&
        e.montoag != common::Dinero()) {
        t.psnisag = t.psnis - 3;
        t.hayag = true;
    }
    t.pmontepio = porcentajeDeFormula(e.formulaMontepio);
    t.pfrl = porcentajeDeFormula(e.formulaFrl);
    t.pirpf = e.montoirpf == common::Dinero() ? 0 : e.irpf.aDouble() / e.montoirpf.aDouble();
    t.explicacion = "SNIS " + numero(t.psnis) + "% sobre " + pesos(e.snis.montograv) +
                    (t.hayag ? " (aguinaldo " + numero(t.psnisag) + "%)" : "") + ", MONTEPIO " +
                    numero(t.pmontepio) + "%, FRL " + numero(t.pfrl) + "%, IRPF " + pesos(e.irpf) +
                    " / " + pesos(e.montoirpf);
    return t;
}

double sumaTasas(double psnis, double pmontepio, double pfrl) {
    return psnis + pmontepio + pfrl;
}

common::Dinero CalculoDtosobreHaberesNew(common::Dinero monto, double sumaDeTasas) {
    return common::Dinero::desdeDouble(monto.aDouble() * (1 - sumaDeTasas / 100));
}

}  // namespace calculos
}  // namespace nomira::engine
