// Días de licencia: el día anterior, los días del año de ingreso y de egreso,
// los años de antigüedad, los días extra, los generados y los gozados, con la
// traza que imprime la pantalla de incidencias.
#include <gtest/gtest.h>

#include "engine/calculos/licencia_dias.h"

namespace nomira::engine {
namespace {

FechaCorta menos1(int dd, int mm, int yy) {
    Decrementa1dia(dd, mm, yy);
    return {dd, mm, yy};
}

TEST(Licencia, Decrementa1diaEnFinesDeMesYDeAnio) {
    EXPECT_EQ(menos1(15, 6, 26), (FechaCorta{14, 6, 26}));
    EXPECT_EQ(menos1(1, 5, 26), (FechaCorta{30, 4, 26}));
    EXPECT_EQ(menos1(1, 8, 26), (FechaCorta{31, 7, 26}));
    EXPECT_EQ(menos1(1, 1, 26), (FechaCorta{31, 12, 25}));
    EXPECT_EQ(menos1(1, 1, 0), (FechaCorta{31, 12, 99}));  // 01/01/2000 - 1 = 31/12/99
    // Febrero: 29 cuando yy Mod 4 es 0 (también el 00).
    EXPECT_EQ(menos1(1, 3, 24), (FechaCorta{29, 2, 24}));
    EXPECT_EQ(menos1(1, 3, 0), (FechaCorta{29, 2, 0}));
    EXPECT_EQ(menos1(1, 3, 23), (FechaCorta{28, 2, 23}));
}

TEST(Licencia, DiasTrabajadosEnElAnioDeIngresoYDeEgreso) {
    // 1 de julio: agosto a diciembre 5 x 30 = 150, más 31 - 1 = 30.
    EXPECT_EQ(CantidadDiasTrab(1, 7, 25), 180);
    EXPECT_EQ(CantidadDiasTrab(1, 1, 25), 360);  // 11 x 30 + 30
    EXPECT_EQ(CantidadDiasTrab(31, 12, 25), 1);  // el 31 cuenta como el 30
    EXPECT_EQ(CantidadDiasTrab(30, 12, 25), 1);
    EXPECT_EQ(CantidadDiasTrab(31, 7, 25), CantidadDiasTrab(30, 7, 25));
    // Febrero guarda su 31 - dd: 10 x 30 + 31 - 28 = 303.
    EXPECT_EQ(CantidadDiasTrab(28, 2, 25), 303);
    // Egreso el 15 de marzo: 2 x 30 + 15; el 31 vale 30.
    EXPECT_EQ(CantidadDiasTrabEg(15, 3, 25), 75);
    EXPECT_EQ(CantidadDiasTrabEg(31, 3, 25), 90);
    EXPECT_EQ(CantidadDiasTrabEg(31, 12, 25), 360);
}

TEST(Licencia, AniosDeAntiguedadYDiasExtra) {
    // Del 01/01/20 al 31/12/24 hay 1827 días corridos (dos bisiestos).
    EXPECT_DOUBLE_EQ(CantidadDiasExtras(1, 1, 20, 31, 12, 24), 1827.0 / 365);
    // Pasando de 99 a 00: diciembre y enero, 62 días.
    EXPECT_DOUBLE_EQ(CantidadDiasExtras(1, 12, 99, 31, 1, 0), 62.0 / 365);
    EXPECT_EQ(CantidadDiasExtras(2, 1, 26, 1, 1, 26), 0);  // fin antes del comienzo
    EXPECT_EQ(CantidadDiasExtras(1, 1, 99, 31, 12, 98), 0);

    EXPECT_EQ(diasExtrasPorAntiguedad(0), 0);
    EXPECT_EQ(diasExtrasPorAntiguedad(4.999), 0);
    EXPECT_EQ(diasExtrasPorAntiguedad(5), 1);
    EXPECT_EQ(diasExtrasPorAntiguedad(7.999), 1);
    EXPECT_EQ(diasExtrasPorAntiguedad(8), 2);
    EXPECT_EQ(diasExtrasPorAntiguedad(12), 3);
    EXPECT_EQ(diasExtrasPorAntiguedad(43.9), 10);
    EXPECT_EQ(diasExtrasPorAntiguedad(44), 11);
    EXPECT_EQ(diasExtrasPorAntiguedad(47.99), 11);
    EXPECT_EQ(diasExtrasPorAntiguedad(48), 12);
    EXPECT_EQ(diasExtrasPorAntiguedad(70), 12);
}

EntradaDiasLicencia mensual(FechaCorta ingreso, double ausencias = 0) {
    EntradaDiasLicencia e;
    e.tiposueldo = "S";
    e.ingreso = ingreso;
    e.anio = 2026;
    e.ausencias = ausencias;
    return e;
}

TEST(Licencia, GeneradosDeUnMensual) {
    // Ingreso el 01/01/25: ((20 / 12) / 30) x 360 = 20; un año justo, sin extras.
    const auto enero = calcularDiasLicencia(mensual({1, 1, 25}));
    EXPECT_EQ(enero.cantdiastrab, 360);
    EXPECT_DOUBLE_EQ(enero.cantdiasgenerados, 20);
    EXPECT_EQ(enero.traza,
              "El año de ingreso = año anterior\r\n"
              "((20 días generados año ant. / 12) / 30) * 360 días trab. + 0 días extras por "
              "antig. - 0 faltas = 20\r\n");
    // Lo mismo que alguien de antes con menos de cinco años.
    const auto antes = calcularDiasLicencia(mensual({1, 1, 23}));
    EXPECT_EQ(antes.cantdiasgenerados, enero.cantdiasgenerados);
    EXPECT_EQ(antes.traza,
              "El año de ingreso < año anterior\r\n"
              "20 días generados año ant. + 0 días extras por antig. - 0 faltas = 20\r\n");
    // 1 de julio: 20 / 360 x 180 = 10, con decimales si no es justo.
    EXPECT_DOUBLE_EQ(calcularDiasLicencia(mensual({1, 7, 25})).cantdiasgenerados, 10);
    EXPECT_NEAR(calcularDiasLicencia(mensual({10, 7, 25})).cantdiasgenerados, 171.0 / 18,
                1e-12);  // 150 + 21 = 171 días: 171 / 18

    // 30 días de ausencia: Int(30 / 15) = 2 menos; 14 no llegan a uno; 29, uno.
    EXPECT_EQ(calcularDiasLicencia(mensual({1, 1, 23}, 30)).cantdiasgenerados, 18);
    EXPECT_EQ(calcularDiasLicencia(mensual({1, 1, 23}, 14)).cantdiasgenerados, 20);
    EXPECT_EQ(calcularDiasLicencia(mensual({1, 1, 23}, 29)).faltas, 1);

    // 48 años al 31/12/25 desde el 13/01/78: 17520 días = 48 x 365, 12 extras.
    const auto viejo = calcularDiasLicencia(mensual({13, 1, 78}, 30));
    EXPECT_DOUBLE_EQ(viejo.antiguedad, 48);
    EXPECT_EQ(viejo.diasextras, 12);
    EXPECT_EQ(viejo.traza,
              "El año de ingreso < año anterior\r\n"
              "20 días generados año ant. + 12 días extras por antig. - 2 faltas = 30\r\n");
    EXPECT_EQ(calcularDiasLicencia(mensual({14, 1, 78})).diasextras, 11);  // un día menos
    EXPECT_EQ(calcularDiasLicencia(mensual({1, 1, 50})).diasextras, 12);   // 1950: más de 48

    const auto despues = calcularDiasLicencia(mensual({2, 1, 26}));
    EXPECT_EQ(despues.cantdiasgenerados, 0);
    EXPECT_EQ(despues.traza, "El año de ingreso > año anterior\r\n0 días generados año ant.\r\n");
}

TEST(Licencia, GeneradosDeJornalerosYPorHora) {
    EntradaDiasLicencia e;
    e.tiposueldo = "J";
    e.ingreso = {2, 1, 21};  // 5 años justos al 31/12/25: 1825 / 365, un día extra
    e.anio = 2026;
    e.diasTrabajados = 300;
    e.ausencias = 60;  // no cuentan para jornaleros
    const auto j = calcularDiasLicencia(e);
    EXPECT_EQ(j.faltas, 0);
    EXPECT_EQ(j.cantdiasgenerados, 21);  // (300 / 300) x 20 + 1
    EXPECT_EQ(j.traza,
              "El año de ingreso <= año anterior\r\n"
              "(300 días generados año ant. / 300) * 20 + 1 días extras por antig. = 21\r\n");
    e.tiposueldo = "H";
    e.ingreso = {1, 7, 25};  // en el año anterior también
    e.diasTrabajados = 150;
    EXPECT_EQ(calcularDiasLicencia(e).cantdiasgenerados, 10);  // 150 / 300 x 20
    e.ingreso = {1, 7, 26};
    EXPECT_EQ(calcularDiasLicencia(e).traza,
              "El año de ingreso > año anterior\r\n0 días generados año ant.\r\n");
}

TEST(Licencia, GozadosEnPeriodosYLoQueQueda) {
    auto e = mensual({1, 1, 23});
    e.periodosGozados = {10, 5.5};
    const auto r = calcularDiasLicencia(e);
    EXPECT_DOUBLE_EQ(r.cantdiaspendientes, 4.5);
    EXPECT_FALSE(r.gozadosDeMas);
    EXPECT_NE(r.traza.find("\r\n20 - 10 días goz. per. 1 + 5.5 días goz. per. 2 = 4.5\r\n"),
              std::string::npos);
    // Más gozados que generados: nada pendiente y el aviso queda marcado.
    e.periodosGozados = {10, 5, 3, 4};
    const auto de_mas = calcularDiasLicencia(e);
    EXPECT_EQ(de_mas.cantdiaspendientes, 0);
    EXPECT_TRUE(de_mas.gozadosDeMas);
    EXPECT_NE(de_mas.traza.find("20 - 10 días goz. per. 1 + 5 días goz. per. 2 + 3 días goz. "
                                "per. 3 + 4 días goz. per. 4 = 0\r\n"),
              std::string::npos);
}

TEST(Licencia, ActividadQueCuentaYQuienCorresponde) {
    master::Persona p;
    p.fechaing = "2015-03-10";
    p.fechaing2 = "";
    p.fechaeg2 = "2025-06-30";
    auto a = actividadDeLicencia(p);
    EXPECT_EQ(a.ingreso, (FechaCorta{10, 3, 15}));
    EXPECT_FALSE(a.egreso);
    EXPECT_TRUE(correspondeLicencia(a, 2026));
    // Segunda actividad sin ingreso: 01/01/01; egresó en 2025, antes de 2026.
    p.impaclab = "2";
    a = actividadDeLicencia(p);
    EXPECT_EQ(a.ingreso, (FechaCorta{1, 1, 1}));
    EXPECT_FALSE(correspondeLicencia(a, 2026));
    EXPECT_TRUE(correspondeLicencia(a, 2025));
    // Un ingreso entre corchetes vale para la actividad que sea.
    p.referencias = "reingreso [20/05/09]";
    EXPECT_EQ(actividadDeLicencia(p).ingreso, (FechaCorta{20, 5, 9}));
    // Ingresó este año: todavía no le corresponde.
    p.impaclab = "1";
    p.referencias = "";
    p.fechaing = "2026-01-05";
    EXPECT_FALSE(correspondeLicencia(actividadDeLicencia(p), 2026));
}

TEST(Licencia, FilasQueCuentan) {
    EXPECT_TRUE(esAusencia("SEGURO DE PARO 2DA ACT"));
    EXPECT_FALSE(esAusencia("FALTAS 3RA ACT"));
    EXPECT_TRUE(esDiaTrabajado("JORNALES A DISPOSICION", "J"));
    EXPECT_FALSE(esDiaTrabajado("JORNALES", "H"));
    EXPECT_TRUE(esDiaTrabajado("JORNADAS EN SUBSIDIO", "H"));
    EXPECT_TRUE(esDiaTrabajado("DOMINGO TRABAJADO", "H"));
    EXPECT_TRUE(esDiaTrabajado("FERIADO PAGO TRABAJADO 2DA ACT", "J"));
    EXPECT_FALSE(esDiaTrabajado("LICENCIA 2DA ACT", "J"));  // sólo las siete últimas
    EXPECT_FALSE(esDiaTrabajado("SUELDO", "J"));
}

}  // namespace
}  // namespace nomira::engine
