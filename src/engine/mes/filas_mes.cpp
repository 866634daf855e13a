#include "engine/mes/filas_mes.h"

namespace nomira::engine {
inline namespace mes {

const char* nombreTabla(TablaLiquidacion t) {
    switch (t) {
        case TablaLiquidacion::Habydesc:
            return "habydesc";
        case TablaLiquidacion::Aguinaldos:
            return "aguinaldos";
        case TablaLiquidacion::Egresos:
            return "egresos";
        case TablaLiquidacion::Salvacacional:
            return "salvacacional";
    }
    return "";
}

bool empiezaCon(const std::string& texto, const char* prefijo) {
    return texto.rfind(prefijo, 0) == 0;
}

bool esAporteLegal(const std::string& concepto) {
    return empiezaCon(concepto, "MONTEPIO") || empiezaCon(concepto, "SNIS") ||
           empiezaCon(concepto, "FRL");
}

common::Dinero sumaHab(const std::vector<FilaMes>& filas) {
    common::Dinero s;
    for (const auto& f : filas)
        if (f.tipo == "Hab") s += f.total;
    return s;
}

common::Dinero sumaPrefijo(const std::vector<FilaMes>& filas, const char* tipo,
                           const char* prefijo) {
    common::Dinero s;
    for (const auto& f : filas)
        if (f.tipo == tipo && empiezaCon(f.concepto, prefijo)) s += f.total;
    return s;
}

common::Dinero sumaConPrefijo(const std::vector<FilaMes>& filas, const char* prefijo) {
    common::Dinero s;
    for (const auto& f : filas)
        if (empiezaCon(f.concepto, prefijo)) s += f.total;
    return s;
}

common::Dinero sumaAportes(const std::vector<FilaMes>& filas) {
    common::Dinero s;
    for (const auto& f : filas)
        if (f.tipo == "Des" && esAporteLegal(f.concepto)) s += f.total;
    return s;
}

}  // namespace mes
}  // namespace nomira::engine
