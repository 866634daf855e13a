#include "engine/calculos/aguinaldo.h"

#include <algorithm>
#include <string_view>

namespace nomira::engine {
inline namespace calculos {

namespace {

// Grupos con los subgrupos que tienen convenio; sin subgrupos, todo el grupo.
struct Convenio {
    std::string_view grupo;
    std::vector<std::string_view> subgrupos;
};

const std::vector<Convenio>& convenios() {
    static const std::vector<Convenio> tabla = {
        {"01", {"01", "12"}},
        {"07", {"01", "12"}},
        {"02", {}},
        {"09", {}},
        {"11", {}},
        {"12", {}},
        {"15", {}},
        {"20", {}},
        {"05", {"01", "03", "05", "06"}},
        {"08", {"01", "03", "05", "06"}},
        {"06", {"02"}},
        {"10", {"08", "09", "17", "18"}},
        {"13", {"01", "06"}},
        {"18", {"03", "04", "06"}},
        {"19", {"06", "08", "10", "13", "15", "16", "21", "22"}},
    };
    return tabla;
}

bool anioDeDosCifras(const std::string& texto) {
    // "dd/mm/yy": lo que sigue a la última barra tiene dos cifras.
    const auto barra = texto.rfind('/');
    return barra != std::string::npos && texto.size() - barra - 1 == 2;
}

}  // namespace

bool esMesDeAguinaldo(const common::Mes& pago) {
    return pago.mes == 6 || pago.mes == 12;
}

std::string sufijoActividad(int actividad) {
    return actividad == 2 ? " 2DA ACT" : actividad == 3 ? " 3RA ACT" : "";
}

std::string conceptoAguinaldo(int actividad) {
    return "AGUINALDO" + sufijoActividad(actividad);
}

bool esDeLaActividad(const std::string& concepto, int actividad) {
    const bool segunda = concepto.ends_with("2DA ACT");
    const bool tercera = concepto.ends_with("3RA ACT");
    if (actividad == 2) return segunda;
    if (actividad == 3) return tercera;
    return !segunda && !tercera;
}

bool grupoConConvenio(const std::string& grupo, const std::string& subgrupo) {
    for (const auto& c : convenios()) {
        if (c.grupo != grupo) continue;
        return c.subgrupos.empty() ||
               std::find(c.subgrupos.begin(), c.subgrupos.end(), subgrupo) != c.subgrupos.end();
    }
    return false;
}

std::optional<common::Fecha> fechaDeIngreso(const std::string& texto) {
    auto f = common::Fecha::desdeTexto(texto);
    if (f && anioDeDosCifras(texto)) f->anio = common::anioPivote50(f->anio % 100);
    return f;
}

std::optional<common::Fecha> fechaDeEgreso(const std::string& texto) {
    auto f = common::Fecha::desdeTexto(texto);
    if (f && anioDeDosCifras(texto)) f->anio = 2000 + f->anio % 100;
    return f;
}

std::string motivoSinAguinaldo(double cantbfc, const std::optional<common::Fecha>& ingreso,
                               const std::optional<common::Fecha>& egreso,
                               const common::Mes& pago) {
    if (cantbfc != 0) return "cobra sobre un ficto (cantbfc)";
    if (ingreso &&
        (ingreso->anio > pago.anio || (ingreso->anio == pago.anio && ingreso->mes > pago.mes)))
        return "ingresó después del " + pago.texto();
    if (egreso &&
        (egreso->anio < pago.anio || (egreso->anio == pago.anio && pago.mes > egreso->mes)))
        return "egresó antes del " + pago.texto();
    return "";
}

std::vector<common::Mes> mesesDelSemestre(const common::Mes& pago,
                                          const std::optional<common::Fecha>& ingreso) {
    std::vector<common::Mes> meses;
    const bool ingresoEnElAnio = ingreso && ingreso->anio == pago.anio;
    if (pago.mes == 12) {
        int desde = 6;
        if (ingresoEnElAnio) desde = std::clamp(ingreso->mes, 6, 11);
        for (int m = desde; m <= 11; ++m) meses.push_back({pago.anio, m});
    } else if (pago.mes == 6) {
        // 0 es diciembre del año anterior.
        int desde = 0;
        if (ingresoEnElAnio) desde = std::min(ingreso->mes, 5);
        for (int i = desde; i <= 5; ++i)
            meses.push_back(i == 0 ? common::Mes{pago.anio - 1, 12} : common::Mes{pago.anio, i});
    }
    return meses;
}

}  // namespace calculos
}  // namespace nomira::engine
