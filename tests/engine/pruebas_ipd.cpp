// La indemnización por despido sin base: cuántos sueldos o jornales
// corresponden, con sus topes y umbrales, y el tramo del año móvil.
#include <gtest/gtest.h>

#include "engine/calculos/ipd.h"

namespace nomira::engine {
namespace {

// Un período por año desde 2019 con los días dados.
std::vector<PeriodoIpd> anios(std::initializer_list<double> dias) {
    std::vector<PeriodoIpd> v;
    int anio = 2019;
    for (const double d : dias) {
        v.push_back({common::Fecha{anio, 1, 1}, common::Fecha{anio, 12, 31}, d});
        ++anio;
    }
    return v;
}

int cant(const std::string& tipo, std::initializer_list<double> dias, int grupo = 0,
         int subgrupo = 0) {
    return CantIpdPorDia(tipo, grupo, subgrupo, anios(dias)).cant;
}

TEST(CantIpd, MensualUnSueldoPorAnioOFraccionHastaSeis) {
    EXPECT_EQ(cantIpdMensual(0.5), 1);
    EXPECT_EQ(cantIpdMensual(1), 1);
    EXPECT_EQ(cantIpdMensual(1.01), 2);
    EXPECT_EQ(cantIpdMensual(5), 5);
    EXPECT_EQ(cantIpdMensual(5.01), 6);
    EXPECT_EQ(cantIpdMensual(30), 6);
}

TEST(CantIpd, PromedioDe240OMasDa25PorAnioConTopeDe150) {
    // 200 y 280: promedio 240 justo, 25 x 2 = 50. Año por año habría sido
    // Int(200 / 25) x 2 + 25 = 41.
    EXPECT_EQ(cant("J", {200, 280}), 50);
    // Siete años de 300: 25 x 7 = 175, cortado en 150.
    const auto r = CantIpdPorDia("J", 0, 0, anios({300, 300, 300, 300, 300, 300, 300}));
    EXPECT_EQ(r.cant, 150);
    EXPECT_EQ(r.sumaPeriodos, 2100);
    EXPECT_EQ(r.traza,
              "Período: 01/01/19 al 31/12/19 = 300\r\n"
              "Período: 01/01/20 al 31/12/20 = 300\r\n"
              "Período: 01/01/21 al 31/12/21 = 300\r\n"
              "Período: 01/01/22 al 31/12/22 = 300\r\n"
              "Período: 01/01/23 al 31/12/23 = 300\r\n"
              "Período: 01/01/24 al 31/12/24 = 300\r\n"
              "Período: 01/01/25 al 31/12/25 = 300\r\n"
              " = SumaPeríodos: 2100\r\n"
              "Como 2100 >= 100 entonces hallo Promedio (SumaPeríodos / CantPeríodos)\r\n"
              "Como 300 >= 240 entonces CantIpd = 25 * 7 (CantPeríodos) = 175 (puede ser hasta "
              "150)\r\n");
}

TEST(CantIpd, PromedioMenorA240CuentaAnioPorAnio) {
    // 480 / 3 = 160: 25 por el año de 250, Int(5.2) x 2 = 10 y Int(4) x 2 = 8.
    const auto r = CantIpdPorDia("H", 0, 0, anios({250, 130, 100}));
    EXPECT_EQ(r.cant, 43);
    EXPECT_EQ(r.promedio, 160);
    EXPECT_NE(r.traza.find("Como 160 < 240 entonces por cada período suma 25 (si la cant. es "
                           ">= 240) o "),
              std::string::npos);
    // Siete años de 239 (18 cada uno) y uno de 240 (25): 151, promedio 239.125.
    EXPECT_EQ(cant("J", {239, 239, 239, 239, 239, 239, 239, 240}), 150);
}

TEST(CantIpd, MenosDe100DiasNoDanIndemnizacionSalvoLosPorHoraDeDosGrupos) {
    const auto j = CantIpdPorDia("J", 0, 0, anios({99}));
    EXPECT_EQ(j.cant, 0);
    EXPECT_EQ(j.traza,
              "Período: 01/01/19 al 31/12/19 = 99\r\n"
              " = SumaPeríodos: 99\r\n"
              "Como 99 < 100 entonces CantIpd = 0\r\n");
    EXPECT_EQ(cant("J", {100}), 8);  // 100 ya no es menos: Int(4) x 2

    // Por hora del grupo 8, subgrupo 1, con 70: Int(70 / 25) x 2 = 4.
    EXPECT_EQ(cant("H", {70}, 8, 1), 4);
    // En dos años de 40 y 30: 2 + 2, cada uno por su lado.
    EXPECT_EQ(cant("H", {40, 30}, 8, 1), 4);
    EXPECT_EQ(cant("H", {62.5}, 19, 10), 4);
    const auto poco = CantIpdPorDia("H", 8, 1, anios({60}));
    EXPECT_EQ(poco.cant, 0);
    EXPECT_NE(poco.traza.find("Como 60 < 62.5 entonces CantIpd = 0\r\n"), std::string::npos);
    // Otro subgrupo, o un jornalero del mismo grupo: nada.
    EXPECT_EQ(cant("H", {70}, 8, 2), 0);
    EXPECT_EQ(cant("J", {70}, 8, 1), 0);
}

TEST(AnioMobil, DoceMesesAntesDelEgresoSinPasarElIngreso) {
    const auto veinte = [](const common::Mes&) { return 20.0; };
    const auto a = CalculoAnioMobil({2026, 3, 15}, {2020, 1, 1}, veinte);
    EXPECT_EQ(a.cantMeses, 12);
    EXPECT_EQ(a.desde, (common::Fecha{2025, 3, 1}));
    EXPECT_EQ(a.hasta, (common::Fecha{2026, 2, 28}));
    EXPECT_EQ(a.dias, 240);

    // Ingresó el 10/11/25: noviembre, diciembre, enero y febrero.
    const auto corto = CalculoAnioMobil({2026, 3, 15}, {2025, 11, 10}, veinte);
    EXPECT_EQ(corto.cantMeses, 4);
    EXPECT_EQ(corto.desde, (common::Fecha{2025, 11, 1}));

    // Egresó en el mes en que ingresó: ningún mes atrás, que cuenta como uno.
    const auto nada = CalculoAnioMobil({2025, 11, 20}, {2025, 11, 10});
    EXPECT_TRUE(nada.meses.empty());
    EXPECT_EQ(nada.cantMeses, 1);
    EXPECT_EQ(nada.dias, 1);
}

TEST(IncidenciasIpd, ElTiempoPasaPorSuFormulaYTodoSeDividePorElTramo) {
    std::vector<IncidenciaLicencia> sumadas = {
        {40, "HORAS EXTRAS", "T", "[SUELDO]/200*[CANT]", 24, {}},
        {60, "PREMIO", "I", "", 0, common::Dinero::desdeDouble(1800)}};
    // 24 horas a 150 = 3600 / 12 = 300; 1800 / 12 = 150.
    const auto r =
        incidenciasIpd(sumadas, 12, [](const IncidenciaLicencia& i) { return 150 * i.cant; });
    ASSERT_EQ(r.lista.size(), 2u);
    EXPECT_EQ(r.lista[0].monto, common::Dinero::desdeDouble(300));
    EXPECT_EQ(r.lista[1].monto, common::Dinero::desdeDouble(150));
    EXPECT_EQ(r.suma, common::Dinero::desdeDouble(450));
}

}  // namespace
}  // namespace nomira::engine
