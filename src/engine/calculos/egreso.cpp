#include "engine/calculos/egreso.h"

#include <algorithm>

#include "common/antiguedad.h"
#include "engine/calculos/explicacion.h"
#include "engine/calculos/licencia_dias.h"

namespace nomira::engine {
inline namespace calculos {

int diasDelUltimoMes(const common::Fecha& egreso, const std::optional<common::Fecha>& ingreso) {
    int dia = egreso.dia;
    if (dia == 31 || (egreso.mes == 2 && dia == common::diasDelMes(egreso.anio, 2))) dia = 30;
    if (ingreso && ingreso->anio == egreso.anio && ingreso->mes == egreso.mes)
        return std::max(0, dia - std::min(ingreso->dia, 30) + 1);
    return dia;
}

LicenciaEgreso licenciaDelAnioDelEgreso(const EntradaLicenciaEgreso& e) {
    LicenciaEgreso r;
    const auto extras = " + " + numero(e.diasextras) + " días extras por antig.";
    if (e.tiposueldo == "J" || e.tiposueldo == "H") {
        r.dias = e.diasTrabajados / 300 * 20 + e.diasextras;
        r.explicacion = "(" + numero(e.diasTrabajados) + " días trab. en el año / 300) * 20" +
                        extras + " = " + numero(r.dias);
        return r;
    }
    const bool ingresoEnElAnio = e.ingreso.anio == e.egreso.anio;
    const long trabajados =
        ingresoEnElAnio ? common::CantidadDias2(e.ingreso.dia, e.ingreso.mes, e.ingreso.anio % 100,
                                                e.egreso.dia, e.egreso.mes, e.egreso.anio % 100)
                        : CantidadDiasTrabEg(e.egreso.dia, e.egreso.mes, e.egreso.anio % 100);
    r.dias = ((20.0 / 12) / 30) * static_cast<double>(trabajados) + e.diasextras -
             static_cast<double>(e.faltas);
    r.explicacion = "((20 días / 12) / 30) * " + std::to_string(trabajados) + " días trab." +
                    (ingresoEnElAnio ? " desde el ingreso" : " en el año") + extras + " - " +
                    std::to_string(e.faltas) + " faltas = " + numero(r.dias);
    return r;
}

}  // namespace calculos
}  // namespace nomira::engine
