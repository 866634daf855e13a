#include "engine/calculos/primas_antiguedad.h"

#include <cmath>
#include <tuple>

#include "common/antiguedad.h"
#include "common/numeros.h"
#include "engine/calculos/explicacion.h"
#include "engine/calculos/licencia_dias.h"

namespace nomira::engine {
inline namespace calculos {

namespace {

constexpr int kAnioVacio = 10000 + 2000;

struct FechaLeida {
    bool vacia = true;
    int dd = 1, mm = 1, yy = 1;
};

FechaLeida leer(const std::string& texto) {
    const auto f = common::Fecha::desdeTexto(texto);
    if (!f) return {};
    return {false, f->dia, f->mes, f->anio % 100};
}

int anioDe(const FechaLeida& f) {
    return f.vacia ? kAnioVacio : anioDeConvenio(f.yy);
}

// Las fechas de ingreso y egreso de la actividad 1, 2 o 3; las referencias
// con una fecha entre corchetes reemplazan el ingreso de las tres.
std::pair<FechaLeida, FechaLeida> fechasDe(const master::Persona& p, int actividad) {
    const std::string& ing = actividad == 2   ? p.fechaing2
                             : actividad == 3 ? p.fechaing3
                                              : p.fechaing;
    const std::string& eg = actividad == 2 ? p.fechaeg2 : actividad == 3 ? p.fechaeg3 : p.fechaeg;
    return {leer(common::inicioDeAntiguedad(ing, p.referencias)), leer(eg)};
}

int actividadDe(const master::Persona& p) {
    return p.impaclab == "2" ? 2 : p.impaclab == "3" ? 3 : 1;
}

const char* nombreBase(const MiembroAntiguedad& m) {
    switch (m.base) {
        case BaseAntiguedad::Sueldo:
            return "sueldo";
        case BaseAntiguedad::BPC:
            return "BPC";
        case BaseAntiguedad::SALMIN:
            return "SALMIN";
        case BaseAntiguedad::SueldoMinimo:
            return "sueldo mínimo";
    }
    return "";
}

}  // namespace

bool esConceptoAntiguedad(const std::string& c) {
    return c == "ANTIGUEDAD" || c == "ANTIGUEDAD 2DA ACT" || c == "ANTIGUEDAD 3RA ACT";
}

int anioDeConvenio(int yy) {
    return yy < 50 ? yy + 2000 : yy;
}

bool activaParaAntiguedad(const master::Persona& p, const common::Mes& periodo) {
    const int anio = periodo.anio % 100 + 2000;
    for (int i = 1; i <= 3; ++i) {
        const auto [ing, eg] = fechasDe(p, i);
        if (anioDe(ing) <= anio && anio < anioDe(eg)) return true;
    }
    return false;
}

ActividadAntiguedad actividadDeAntiguedad(const master::Persona& p) {
    const int i = actividadDe(p);
    ActividadAntiguedad a;
    a.sueldo = common::textoANumero(i == 2 ? p.sueldo2 : i == 3 ? p.sueldo3 : p.sueldo);
    a.sector = i == 2 ? p.sector2 : i == 3 ? p.sector3 : p.sector;
    a.categoria = i == 2 ? p.categoria2 : i == 3 ? p.categoria3 : p.categoria;
    const auto ing = fechasDe(p, i).first;
    a.dd = ing.dd;
    a.mm = ing.mm;
    a.yy = ing.yy;
    return a;
}

double aniosDeAntiguedad(const ActividadAntiguedad& a, const common::Mes& periodo,
                         const MiembroAntiguedad& m) {
    // El último día del mes: febrero siempre 29.
    const int mes = periodo.mes;
    const int ultimo = mes == 2 ? 29 : (mes == 4 || mes == 6 || mes == 9 || mes == 11) ? 30 : 31;
    int dd = a.dd, mm = a.mm, yy = a.yy;
    if (m.ingresoMinimo) {
        const int* d = m.ingresoMinimo;
        if (std::tuple(common::anioPivote50(yy), mm, dd) <
            std::tuple(common::anioPivote50(d[2]), d[1], d[0]))
            dd = d[0], mm = d[1], yy = d[2];
    }
    return CantidadDiasExtras(dd, mm, yy, ultimo, mes, periodo.anio % 100);
}

std::optional<PrimaAntiguedad> calcularPrimaAntiguedad(const master::Persona& p, int grupo,
                                                       int subgrupo, const std::string& textoCant,
                                                       const common::Mes& periodo,
                                                       const BaseDeMiembro& baseDe) {
    const auto cual = miembroPorConsejo(grupo, subgrupo);
    if (!cual || !activaParaAntiguedad(p, periodo)) return std::nullopt;
    const auto& m = miembroAntiguedad(*cual);
    PrimaAntiguedad r;
    r.miembro = m.numero;
    r.cant =
        textoCant.find_first_not_of(' ') == std::string::npos ? 1 : common::textoANumero(textoCant);
    const auto a = actividadDeAntiguedad(p);
    r.anios = aniosDeAntiguedad(a, periodo, m);
    r.porcentaje = porcentajeAntiguedad(m, r.anios);
    r.base = baseDe(m, a);
    double total = r.base * r.porcentaje / 100;
    if (!m.sinCantidad) total *= r.cant;
    r.total = common::Dinero::desdeDouble(total);
    r.explicacion = "Antigüedad grupo " + std::to_string(grupo) + " subgrupo " +
                    std::to_string(subgrupo) + " (miembro " + std::to_string(m.numero) +
                    "): " + numero(std::floor(r.anios)) + " años → " + numero(r.porcentaje) +
                    "% de " + pesos(r.base) + " (" + nombreBase(m) + ")" +
                    (m.sinCantidad ? "" : " x " + numero(r.cant)) + " = " + pesos(r.total);
    return r;
}

}  // namespace calculos
}  // namespace nomira::engine
