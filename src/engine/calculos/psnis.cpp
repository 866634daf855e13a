#include "engine/calculos/psnis.h"

#include <array>

#include "common/edad.h"
#include "common/empaquetados.h"
#include "common/texto.h"

namespace nomira::engine {
inline namespace calculos {

namespace {

bool enBlanco(const std::string& s) {
    return s.find_first_not_of(' ') == std::string::npos;
}

}  // namespace

double porcentajeSNIS(const DatosSNIS& d) {
    const double tope = d.bpc * 2.5;
    double p;
    if (d.montograv <= tope)
        p = d.conyuge ? 5 : 3;
    else if (d.hijoACargo)
        p = d.conyuge ? 8 : 6;
    else
        p = d.conyuge ? 6.5 : 4.5;
    return d.tipoaporte == "04" ? p - 3 : p;
}

void conyugeEHijosSNIS(DatosSNIS& d, const master::Persona& p, const common::Mes& periodo,
                       common::Dialogo* dialogo, bool* esmayor) {
    d.conyuge = common::SexoCon::leer(p.sexocon).ingresa();
    const std::array<std::pair<const std::string*, const std::string*>, 3> beneficiarios = {{
        {&p.causaben, &p.fechanacben},
        {&p.causaben2, &p.fechanacben2},
        {&p.causaben3, &p.fechanacben3},
    }};
    for (const auto& [causa, fechanac] : beneficiarios) {
        std::string codigo = enBlanco(*causa) ? "" : common::codigoDeCatalogo(*causa);
        if (!enBlanco(*fechanac)) {
            const bool mayor = common::EsMayorde18(*fechanac, periodo, dialogo);
            if (esmayor) *esmayor = mayor;
            if (mayor) codigo.clear();
        }
        if (codigo == "01" || codigo == "02") d.hijoACargo = true;
    }
}

void calcularPSNIS(ContextoFormula& ctx, double bpc, common::Dialogo& dialogo) {
    DatosSNIS d{ctx.montograv.aDouble(), bpc, false, false, ctx.tipoaporte};
    if (const auto* p = ctx.persona) conyugeEHijosSNIS(d, *p, ctx.periodo, &dialogo, &ctx.esmayor);
    ctx.psnis = porcentajeSNIS(d);
}

}  // namespace calculos
}  // namespace nomira::engine
