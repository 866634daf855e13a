#include "engine/calculos/licencia_dias.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

#include "common/antiguedad.h"
#include "common/fechas.h"
#include "common/numeros.h"
#include "common/texto.h"

namespace nomira::engine {
inline namespace calculos {

namespace {

using common::anioPivote50;

std::string n(double x) {
    return common::numeroATexto(x);
}

// Una fecha guardada ("aaaa-mm-dd" o "dd/mm/aa") en día, mes y dos cifras.
std::optional<FechaCorta> corta(const std::string& guardada) {
    const auto f = common::Fecha::desdeTexto(guardada);
    if (!f) return std::nullopt;
    return FechaCorta{f->dia, f->mes, f->anio % 100};
}

bool en(const std::string& concepto, std::initializer_list<const char*> nombres) {
    return std::any_of(nombres.begin(), nombres.end(),
                       [&](const char* x) { return concepto == x; });
}

// El nombre o el mismo con " 2DA ACT".
bool enConSegunda(const std::string& concepto, std::initializer_list<const char*> nombres) {
    const std::string sufijo = " 2DA ACT";
    if (en(concepto, nombres)) return true;
    if (concepto.size() <= sufijo.size() ||
        concepto.compare(concepto.size() - sufijo.size(), sufijo.size(), sufijo) != 0)
        return false;
    return en(concepto.substr(0, concepto.size() - sufijo.size()), nombres);
}

}  // namespace

void Decrementa1dia(int& dd, int& mm, int& yy) {
    if (dd > 1) {
        --dd;
        return;
    }
    if (mm == 1) {
        dd = 31;
        mm = 12;
        yy = yy == 0 ? 99 : yy - 1;
        return;
    }
    --mm;
    static constexpr std::array<int, 12> kLargo = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    dd = (mm == 2 && yy % 4 == 0) ? 29 : kLargo[static_cast<std::size_t>(mm - 1)];
}

int CantidadDiasTrab(int dd, int mm, int /*yy*/) {
    // Todo mes vale 30; el de ingreso, 31 - dd (el 31 cuenta como el 30).
    return 30 * (12 - mm) + 31 - std::min(dd, 30);
}

int CantidadDiasTrabEg(int dd, int mm, int /*yy*/) {
    return 30 * (mm - 1) + std::min(dd, 30);
}

double CantidadDiasExtras(int dd1, int mm1, int yy1, int dd2, int mm2, int yy2) {
    if (std::tuple(anioPivote50(yy1), mm1, dd1) > std::tuple(anioPivote50(yy2), mm2, dd2)) return 0;
    return static_cast<double>(common::CantidadDias2(dd1, mm1, yy1, dd2, mm2, yy2)) / 365.0;
}

int diasExtrasPorAntiguedad(double antiguedad) {
    // Desde cuántos años corresponde cada día extra; el primero a los 5, después
    // uno cada cuatro años hasta 12.
    static constexpr std::array<double, 12> kDesde = {5, 8, 12, 16, 20, 24, 28, 32, 36, 40, 44, 48};
    return static_cast<int>(
        std::count_if(kDesde.begin(), kDesde.end(), [&](double d) { return antiguedad >= d; }));
}

ActividadLicencia actividadDeLicencia(const master::Persona& p) {
    std::string ing = p.fechaing, eg = p.fechaeg;
    const bool otra = p.impaclab == "2" || p.impaclab == "3";
    if (p.impaclab == "2") ing = p.fechaing2, eg = p.fechaeg2;
    if (p.impaclab == "3") ing = p.fechaing3, eg = p.fechaeg3;
    if (otra && ing.empty()) ing = "01/01/01";
    const std::string referida = common::inicioDeAntiguedad(ing, p.referencias);
    ActividadLicencia a;
    a.ingreso = corta(referida).value_or(FechaCorta{});
    a.egreso = corta(eg);
    return a;
}

bool correspondeLicencia(const ActividadLicencia& a, int anio) {
    const int anioEgreso = a.egreso ? anioPivote50(a.egreso->yy) : 10000;
    return anioPivote50(a.ingreso.yy) <= anio - 1 && anioEgreso >= anio;
}

bool esAusencia(const std::string& c) {
    return enConSegunda(c, {"FALTAS", "SUSPENSIONES", "SEGURO DE PARO", "LICENCIA MATERNAL"});
}

bool esDiaTrabajado(const std::string& c, const std::string& tiposueldo) {
    if (tiposueldo == "H") {
        if (en(c, {"JORNADAS EN EL MES", "JORNADAS EN EL MES 2DA ACT", "JORNADAS EN SUBSIDIO"}))
            return true;
    } else if (en(c,
                  {"JORNALES", "JORNALES 2DA ACT", "JORNALES A DISPOSICION", "MINIMO ASEGURADO"})) {
        return true;
    }
    if (c.starts_with("DOMINGO") || c == "LICENCIA") return true;
    return enConSegunda(
        c, {"LICENCIA MATERNAL", "LICENCIA PATERNAL", "LICENCIA MEDICA", "SEGURO DE ENFERMEDAD",
            "SEGURO DE ACCIDENTE", "FERIADO PAGO", "FERIADO PAGO TRABAJADO"});
}

bool esLicenciaGozada(const std::string& c) {
    return en(c,
              {"SALARIO VACACIONAL", "SALARIO VACACIONAL 2DA ACT", "SALARIO VACACIONAL 3RA ACT"});
}

bool esLicenciaNoGozadaEgreso(const std::string& c) {
    return en(c, {"LICENCIA NO GOZ AÑO ANTERIOR", "LICENCIA NO GOZ AÑO ANTERIOR 2DA ACT",
                  "LICENCIA NO GOZ AÑO ANTERIOR 3RA ACT"});
}

DiasLicencia calcularDiasLicencia(const EntradaDiasLicencia& e) {
    DiasLicencia r;
    const int anterior = e.anio - 1;
    const int anioIngreso = anioPivote50(e.ingreso.yy);
    const auto& ing = e.ingreso;
    r.antiguedad = CantidadDiasExtras(ing.dd, ing.mm, ing.yy, 31, 12, anterior % 100);
    r.diasextras = diasExtrasPorAntiguedad(r.antiguedad);
    const std::string extras = " + " + n(r.diasextras) + " días extras por antig.";
    const std::string linea = "\r\n";

    if (e.tiposueldo == "S") {
        r.faltas = static_cast<long>(std::floor(e.ausencias / 15));
        const std::string faltas = " - " + n(static_cast<double>(r.faltas)) + " faltas = ";
        if (anioIngreso < anterior) {
            r.cantdiasgenerados = 20 + r.diasextras - r.faltas;
            r.traza = "El año de ingreso < año anterior" + linea + "20 días generados año ant." +
                      extras + faltas + n(r.cantdiasgenerados) + linea;
        } else if (anioIngreso == anterior) {
            r.cantdiastrab = CantidadDiasTrab(ing.dd, ing.mm, ing.yy);
            r.cantdiasgenerados = ((20.0 / 12) / 30) * r.cantdiastrab + r.diasextras - r.faltas;
            r.traza = "El año de ingreso = año anterior" + linea +
                      "((20 días generados año ant. / 12) / 30) * " + n(r.cantdiastrab) +
                      " días trab." + extras + faltas + n(r.cantdiasgenerados) + linea;
        } else {
            r.traza =
                "El año de ingreso > año anterior" + linea + "0 días generados año ant." + linea;
        }
    } else if (anioIngreso <= anterior) {
        // Jornaleros y por hora: sin faltas, por los días trabajados.
        r.cantdiasgenerados = (e.diasTrabajados / 300) * 20 + r.diasextras;
        r.traza = "El año de ingreso <= año anterior" + linea + "(" + n(e.diasTrabajados) +
                  " días generados año ant. / 300) * 20" + extras + " = " + n(r.cantdiasgenerados) +
                  linea;
    } else {
        r.traza = "El año de ingreso > año anterior" + linea + "0 días generados año ant." + linea;
    }

    double gozados = 0;
    std::string goce;
    for (std::size_t i = 0; i < e.periodosGozados.size() && i < 4; ++i) {
        r.diasgozados.push_back(e.periodosGozados[i]);
        gozados += e.periodosGozados[i];
        goce += (i == 0 ? " - " : " + ") + n(e.periodosGozados[i]) + " días goz. per. " +
                std::to_string(i + 1);
    }
    const double resto = r.cantdiasgenerados - gozados;
    r.gozadosDeMas = resto < 0;
    r.cantdiaspendientes = std::max(0.0, resto);
    if (!goce.empty())
        r.traza += n(r.cantdiasgenerados) + goce + " = " + n(r.cantdiaspendientes) + linea;

    r.explicacion = "Licencia " + std::to_string(anterior) + ": " + n(r.cantdiasgenerados) +
                    " días generados (" + n(r.diasextras) + " extras por " +
                    n(std::floor(r.antiguedad)) + " años, " + n(static_cast<double>(r.faltas)) +
                    " por faltas) - " + n(gozados) + " gozados = " + n(r.cantdiaspendientes) +
                    " a gozar";
    return r;
}

}  // namespace calculos
}  // namespace nomira::engine
