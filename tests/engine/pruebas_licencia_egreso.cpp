// La licencia de quien egresa en el año: lo no gozado del año anterior y lo
// generado hasta el egreso.
#include <gtest/gtest.h>

#include "engine/calculos/licencia_egreso.h"

namespace nomira::engine {
namespace {

TEST(LicenciaEgreso, MensualQueIngresoEnElAnioYJornalero) {
    EntradaLicenciaEgreso e;
    e.tiposueldo = "S";
    e.ingreso = {1, 3, 26};
    e.egreso = {15, 9, 26};
    e.pendientesAnterior = 5;
    e.licenciaDelAnio = 8;  // tomó más de lo pendiente: no queda nada, no se debe
    e.ausenciasDelAnio = 20;
    // Del 01/03 al 15/09, días corridos: 0 + 184 (marzo a agosto) + 15 = 199;
    // 199 / 18 + 0 extras - Int(20 / 15) = 10.0555...
    auto r = CalculoLicenciaEgresos(e);
    EXPECT_EQ(r.diasAnterior, 0);
    EXPECT_DOUBLE_EQ(r.diasActual, 199.0 / 18 - 1);
    EXPECT_NE(r.traza.find("El año de ingreso = año de egreso\r\n((20 días / 12) / 30) * 199 "
                           "días trab. + 0 días extras por antig. - 1 faltas = "),
              std::string::npos);

    // Ingresado antes: meses de 30 hasta el egreso, 8 x 30 + 15 = 255 días.
    e.ingreso = {1, 3, 20};
    e.diasextras = 1;
    r = CalculoLicenciaEgresos(e);
    EXPECT_DOUBLE_EQ(r.diasActual, 255.0 / 18 + 1 - 1);

    // El jornalero no tiene faltas: 150 días / 300 x 20 + 1 = 11.
    e.tiposueldo = "J";
    e.diasTrabajadosDelAnio = 150;
    e.pendientesAnterior = 12.5;
    e.licenciaDelAnio = 2.5;
    r = CalculoLicenciaEgresos(e);
    EXPECT_EQ(r.diasAnterior, 10);
    EXPECT_EQ(r.diasActual, 11);
    EXPECT_EQ(r.traza,
              "12.5 días a gozar año ant. - 2.5 días de LICENCIA en el año = 10 días no goz. año "
              "anterior\r\n"
              "(150 días trab. año egreso / 300) * 20 + 1 días extras por antig. = 11 días año "
              "actual\r\n");
}

}  // namespace
}  // namespace nomira::engine
