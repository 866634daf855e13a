#include "engine/calculos/licencia_egreso.h"

#include <algorithm>
#include <cmath>

#include "common/antiguedad.h"
#include "engine/calculos/explicacion.h"

namespace nomira::engine {
inline namespace calculos {

LicenciaEgreso CalculoLicenciaEgresos(const EntradaLicenciaEgreso& e) {
    const std::string linea = "\r\n";
    LicenciaEgreso r;
    r.diasAnterior = std::max(0.0, e.pendientesAnterior - e.licenciaDelAnio);
    r.traza = numero(e.pendientesAnterior) + " días a gozar año ant. - " +
              numero(e.licenciaDelAnio) +
              " días de LICENCIA en el año = " + numero(r.diasAnterior) +
              " días no goz. año anterior" + linea;

    const auto extras = " + " + numero(e.diasextras) + " días extras por antig.";
    if (e.tiposueldo != "S") {
        r.diasActual = (e.diasTrabajadosDelAnio / 300) * 20 + e.diasextras;
        r.traza += "(" + numero(e.diasTrabajadosDelAnio) + " días trab. año egreso / 300) * 20" +
                   extras + " = " + numero(r.diasActual) + " días año actual" + linea;
        return r;
    }
    const double faltas = std::floor(e.ausenciasDelAnio / 15);
    const bool ingresoEnElAnio = e.ingreso.yy == e.egreso.yy;
    const double trabajados =
        ingresoEnElAnio
            ? static_cast<double>(common::CantidadDias2(e.ingreso.dd, e.ingreso.mm, e.ingreso.yy,
                                                        e.egreso.dd, e.egreso.mm, e.egreso.yy))
            : CantidadDiasTrabEg(e.egreso.dd, e.egreso.mm, e.egreso.yy);
    r.diasActual = ((20.0 / 12) / 30) * trabajados + e.diasextras - faltas;
    r.traza += std::string(ingresoEnElAnio ? "El año de ingreso = año de egreso"
                                           : "El año de ingreso < año de egreso") +
               linea + "((20 días / 12) / 30) * " + numero(trabajados) + " días trab." + extras +
               " - " + numero(faltas) + " faltas = " + numero(r.diasActual) + " días año actual" +
               linea;
    return r;
}

}  // namespace calculos
}  // namespace nomira::engine
