// Primas por antigüedad: el convenio de cada grupo y subgrupo, las tablas de
// porcentajes contra el texto de cada convenio y los pasos comunes sobre la
// persona (actividad, años al último día del mes, base y cantidad).
#include <gtest/gtest.h>

#include "engine/calculos/primas_antiguedad.h"

namespace nomira::engine {
namespace {

TEST(Antiguedad, ConvenioPorGrupoYSubgrupo) {
    struct Caso {
        int grupo, subgrupo;
        std::optional<int> miembro;
    };
    const Caso casos[] = {
        {1, 7, 2},   {1, 12, 3},   {1, 3, 1},   {1, 0, 1},  // "cualquier otro" después
        {2, 1, 4},   {2, 2, {}},   {5, 2, 5},   {10, 1, 6},   {10, 4, 7},   {10, 5, 8},
        {10, 12, 9}, {10, 17, 10}, {10, 2, {}}, {11, 99, 11}, {12, 3, 13},  {12, 6, 14},
        {12, 7, 12}, {12, 0, 12},  {13, 7, 15}, {13, 10, 16}, {13, 71, 17}, {13, 1, {}},
        {15, 4, 18}, {16, 1, 19},  {16, 2, 19}, {16, 3, {}},  {16, 4, 20},  {18, 4, 21},
        {19, 3, 22}, {19, 7, 23},  {19, 8, 24}, {19, 15, 25}, {19, 17, 26}, {19, 10, {}},
        {20, 1, 27}, {21, 5, 28},  {3, 1, {}},  {0, 0, {}},
    };
    for (const auto& c : casos)
        EXPECT_EQ(miembroPorConsejo(c.grupo, c.subgrupo), c.miembro)
            << "grupo " << c.grupo << " subgrupo " << c.subgrupo;
    for (int m = 1; m <= 28; ++m) EXPECT_EQ(miembroAntiguedad(m).numero, m);
    EXPECT_THROW(miembroAntiguedad(29), common::Fallo);
}

double p(int miembro, double anios) {
    return porcentajeAntiguedad(miembroAntiguedad(miembro), anios);
}

TEST(Antiguedad, TablasEnSusBordes) {
    // Miembro 1: los años enteros de 5 a 19, desde 20 siempre 20.
    EXPECT_EQ(p(1, 4.9), 0);
    EXPECT_EQ(p(1, 5), 5);
    EXPECT_EQ(p(1, 19.99), 19);
    EXPECT_EQ(p(1, 20), 20);
    EXPECT_EQ(p(1, 45), 20);
    // Miembro 11: de 1,25 en 1,25 hasta 5; salta a 7,25; de 10 a 11, 18,75.
    EXPECT_EQ(p(11, 0.99), 0);
    EXPECT_EQ(p(11, 1), 1.25);
    EXPECT_EQ(p(11, 4.99), 5);
    EXPECT_EQ(p(11, 5), 7.25);
    EXPECT_EQ(p(11, 9.5), 16.25);
    EXPECT_EQ(p(11, 10), 18.75);
    EXPECT_EQ(p(11, 13.99), 26.25);
    EXPECT_EQ(p(11, 14), 28.75);
    // Miembro 16: 0,17 por año entero, desde el primero.
    EXPECT_EQ(p(16, 0.99), 0);
    EXPECT_DOUBLE_EQ(p(16, 7.5), 0.17 * 7);
    // Miembro 22: uno por año hasta 28; de 29 a 30 salta a 30 y ahí queda.
    EXPECT_EQ(p(22, 28.99), 28);
    EXPECT_EQ(p(22, 29), 30);
    EXPECT_EQ(p(22, 45), 30);
    // Miembro 26: medio por año hasta 4,5; desde 10, 5.
    EXPECT_EQ(p(26, 0.99), 0);
    EXPECT_EQ(p(26, 1), 0.5);
    EXPECT_EQ(p(26, 9.99), 4.5);
    EXPECT_EQ(p(26, 10), 5);

    // Los demás, leídos de cada convenio: años y porcentaje.
    const std::tuple<int, double, double> otros[] = {
        {2, 2.9, 0},     {2, 3, 2},         {2, 18.5, 32},   {2, 19.5, 34},  {2, 20, 36},
        {3, 4, 1},       {3, 6, 2},         {3, 7.5, 2},     {3, 8, 4},      {4, 0.9, 0},
        {4, 7.9, 14},    {5, 5, 1},         {5, 13.5, 9},    {5, 14, 10},    {6, 3, 3},
        {6, 9.5, 9},     {6, 10, 10},       {7, 6.5, 6.5},   {7, 8.5, 9.5},  {7, 9.5, 12.5},
        {7, 30, 12.5},   {8, 9.5, 9},       {9, 10, 10},     {10, 3, 3.75},  {10, 9.5, 11.25},
        {10, 10, 12.5},  {12, 2.9, 0},      {13, 3, 3},      {14, 1.9, 0},   {14, 2, 2},
        {14, 14.5, 14},  {14, 15, 15},      {15, 1, 1},      {15, 14.5, 14}, {15, 15, 15},
        {17, 4.99, 0},   {17, 5, 2},        {17, 8, 4.04},   {17, 12, 6.12}, {17, 16, 8.24},
        {17, 20, 10.41}, {17, 27.9, 12.62}, {17, 28, 14.87}, {18, 4.5, 4},   {18, 5.5, 10},
        {18, 9.5, 14},   {18, 10.5, 20},    {18, 23.5, 33},  {18, 24.5, 34}, {18, 25, 40},
        {19, 12.3, 24},  {20, 1, 2},        {20, 18.5, 36},  {20, 19.5, 38}, {20, 20, 40},
        {21, 1.99, 0},   {21, 2, 3},        {21, 8, 4},      {21, 17.99, 5}, {21, 18, 6},
        {23, 1, 2},      {23, 8.5, 9},      {23, 9, 10},     {24, 11.5, 11}, {24, 12, 12},
        {25, 39.5, 39},  {25, 40, 40},      {27, 9.5, 9},    {27, 10, 10},   {28, 1.99, 0},
        {28, 2, 0.5},    {28, 10.5, 4.5},   {28, 11, 5},
    };
    for (const auto& [m, anios, pct] : otros)
        EXPECT_EQ(p(m, anios), pct) << "miembro " << m << " " << anios;
}

// Bases de prueba: el sueldo de la actividad, y fijas para las demás.
double basePrueba(const MiembroAntiguedad& m, const ActividadAntiguedad& a) {
    return m.base == BaseAntiguedad::Sueldo ? a.sueldo : 10000;
}

TEST(Antiguedad, PasosComunesSobreLaPersona) {
    master::Persona per;
    per.sueldo = "30000";
    per.fechaing = "2021-03-03";
    const common::Mes febrero{2026, 2};
    // Febrero termina el 29 aunque no sea bisiesto: del 03/03/21 al "29/02/26"
    // hay 1825 días, 5 años justos, 5% de 30000.
    auto r = calcularPrimaAntiguedad(per, 1, 3, "", febrero, basePrueba);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->miembro, 1);
    EXPECT_EQ(r->cant, 1);
    EXPECT_DOUBLE_EQ(r->anios, 5);
    EXPECT_EQ(r->total, common::Dinero::desdeDouble(1500));
    EXPECT_NE(r->explicacion.find("grupo 1 subgrupo 3 (miembro 1): 5 años → 5% de 30,000.00"),
              std::string::npos);
    // Un día después: 4,997 años, 0% y la fila se escribe igual con total 0.
    per.fechaing = "2021-03-04";
    r = calcularPrimaAntiguedad(per, 1, 3, "", febrero, basePrueba);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->total, common::Dinero());

    // Segunda actividad: su sueldo y su ingreso; 10 años al 31/12/25, x 2.
    per.impaclab = "2";
    per.sueldo2 = "20000";
    per.fechaing2 = "2016-01-01";
    r = calcularPrimaAntiguedad(per, 1, 3, "2", {2025, 12}, basePrueba);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->total, common::Dinero::desdeDouble(4000));  // 20000 x 10 / 100 x 2
    // Con impaclab vacío vuelve la primera: 4,8 años al 31/12/25, nada.
    per.impaclab = "";
    EXPECT_EQ(calcularPrimaAntiguedad(per, 1, 3, "2", {2025, 12}, basePrueba)->total,
              common::Dinero());
    // Las referencias cambian el comienzo: desde 2000, 20%.
    per.referencias = "[01/01/00]";
    EXPECT_EQ(calcularPrimaAntiguedad(per, 1, 3, " ", {2025, 12}, basePrueba)->total,
              common::Dinero::desdeDouble(6000));

    // Sin convenio la fórmula queda.
    EXPECT_FALSE(calcularPrimaAntiguedad(per, 3, 1, "", febrero, basePrueba));
}

TEST(Antiguedad, ActivaSoloAntesDelAnioDeEgreso) {
    master::Persona per;
    per.sueldo = "30000";
    per.fechaing = "2010-05-01";
    per.fechaeg = "2026-06-30";
    EXPECT_TRUE(activaParaAntiguedad(per, {2025, 12}));
    // En el mismo año del egreso ya no: año de ingreso <= año < año de egreso.
    EXPECT_FALSE(activaParaAntiguedad(per, {2026, 3}));
    EXPECT_FALSE(calcularPrimaAntiguedad(per, 1, 3, "", {2026, 3}, basePrueba));
    // Otra actividad sin egreso la mantiene activa.
    per.fechaing3 = "2020-01-01";
    EXPECT_TRUE(activaParaAntiguedad(per, {2026, 3}));
    // Un ingreso en 1995 queda como 95: anterior a cualquier año de este siglo.
    per.fechaing = "1995-01-01";
    per.fechaeg = "";
    per.fechaing3 = "";
    EXPECT_TRUE(activaParaAntiguedad(per, {2026, 3}));
    EXPECT_EQ(anioDeConvenio(95), 95);
    EXPECT_EQ(anioDeConvenio(26), 2026);
}

TEST(Antiguedad, MiembrosConReglasPropias) {
    master::Persona per;
    per.sueldo = "25000";
    per.fechaing = "2019-01-01";
    // Miembro 16 (grupo 13, subgrupo 10): 7,5 años al 30/06/26 son Int 7,
    // 0,17 x 7 = 1,19% de 25000 = 297,50, y cant no multiplica.
    auto r = calcularPrimaAntiguedad(per, 13, 10, "3", {2026, 6}, basePrueba);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->miembro, 16);
    EXPECT_EQ(r->cant, 3);
    EXPECT_EQ(r->total, common::Dinero::desdeDouble(297.5));

    // Miembro 26 (grupo 19, subgrupo 17): un ingreso de 2010 cuenta desde el
    // 01/07/18; al 31/03/26 son 2831 días, 7,76 años: 0,5 + 6 x 0,5 = 3,5%.
    per.fechaing = "2010-02-01";
    std::string categoria;
    const auto base = [&](const MiembroAntiguedad& m, const ActividadAntiguedad& a) {
        categoria = m.categoria ? m.categoria : a.categoria;
        return 40000.0;
    };
    per.categoria = "Peón";
    r = calcularPrimaAntiguedad(per, 19, 17, "", {2026, 3}, base);
    ASSERT_TRUE(r);
    EXPECT_NEAR(r->anios, 2831.0 / 365, 1e-12);
    EXPECT_EQ(r->porcentaje, 3.5);
    EXPECT_EQ(r->total, common::Dinero::desdeDouble(1400));
    EXPECT_EQ(categoria, "Peón");  // la categoría de la persona
    // Uno posterior cuenta desde el suyo: 01/01/20 al 31/03/26, 6,25 años: 3%.
    per.fechaing = "2020-01-01";
    EXPECT_EQ(calcularPrimaAntiguedad(per, 19, 17, "", {2026, 3}, base)->porcentaje, 3);

    // Miembro 6: la categoría del convenio, no la de la persona.
    calcularPrimaAntiguedad(per, 10, 1, "", {2026, 3}, base);
    EXPECT_EQ(categoria, "Cadete");
}

}  // namespace
}  // namespace nomira::engine
