// Las incidencias del IPD sobre la base, en los dos motores: lo que se lee de
// cada tabla en el año móvil y en los años del jornalero, los avisos que lo
// detienen y la traza entera de un mensual, escrita a mano en
// tests/escenarios/ipd_mensual/traza.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "engine/apoyo_formula.h"
#include "engine/egreso/ipd.h"

namespace nomira::engine {
namespace {

using common::Dinero;
using common::Fecha;
using common::Mes;

std::string leerTraza(const char* escenario) {
    const auto ruta = std::filesystem::path(__FILE__).parent_path().parent_path() / "escenarios" /
                      escenario / "traza";
    std::ifstream f(ruta, std::ios::binary);
    std::ostringstream s;
    s << f.rdbuf();
    return s.str();
}

class IpdBase : public pruebas::BaseFormula {
  protected:
    void SetUp() override {
        BaseFormula::SetUp();
        if (IsSkipped()) return;
        base->ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('ACME', 1)");
        // codigo, concepto, formula, unidad, aguinaldo, ipd
        concepto(1, "SUELDO", "[SUELDO]", "I", "Si", "No");
        concepto(10, "JORNALES", "[SUELDO]*[CANT]", "T", "Si", "No");
        concepto(40, "HORAS EXTRAS", "[SUELDO]/200*[CANT]", "T", "Si", "Si");
        concepto(50, "ANTIGUEDAD", "0", "I", "Si", "No");
        concepto(60, "PREMIO", "", "I", "Si", "Si");
        concepto(61, "PREMIO 2DA ACT", "", "I", "Si", "Si");
        concepto(70, "SALARIO VACACIONAL", "", "I", "Si", "No");
    }

    void concepto(long codigo, const std::string& nombre, const std::string& formula,
                  const std::string& unidad, const std::string& aguinaldo, const std::string& ipd) {
        base->ejecuta(
            "INSERT INTO conceptos (codigo, concepto, especificode, formula, tipo, unidad, "
            "permanente, gravado, aguinaldo, lic, ipd) VALUES (?, ?, 'G', ?, 'Hab', ?, 'No', "
            "'Si', ?, 'No', ?)",
            {std::int64_t{codigo}, nombre, formula, unidad, aguinaldo, ipd});
    }

    // Una fila de haberes con las marcas de su concepto, en habydesc o egresos.
    void fila(const std::string& nombre, const Mes& mes, long codigo, double cant, double total,
              const char* tabla = "habydesc") {
        const auto c = base->consulta(
            "SELECT concepto, unidad, aguinaldo, ipd FROM conceptos WHERE codigo = ?",
            {std::int64_t{codigo}});
        const auto& f = c.primera();
        base->ejecuta(std::string("INSERT INTO ") + tabla +
                          " (empresa, nombre, fecha, codigo, concepto, tipo, unidad, permanente, "
                          "gravado, aguinaldo, cant, total, lic, ipd) VALUES ('ACME', ?, ?, ?, ?, "
                          "'Hab', ?, 'No', 'Si', ?, ?, ?, 'No', ?)",
                      {nombre, mes.primerDia().iso(), std::int64_t{codigo}, f.texto("concepto"),
                       f.texto("unidad"), f.texto("aguinaldo"), cant, total, f.texto("ipd")});
    }

    Ipd ipd(const std::string& nombre, const Fecha& fecha, OpcionesIpd op = {}) {
        return incidenciasDelIpd(*base, "ACME", nombre, fecha, op, dialogo);
    }
};
NOMIRA_PARA_CADA_MOTOR(IpdBase);

TEST_P(IpdBase, MensualDespedidoConCincoAniosYFraccion) {
    const std::string juan = "PEREZ, JUAN";
    persona(juan, {{"tiposueldo", "S"},
                   {"sueldo", "30000"},
                   {"fechaing", "2021-03-01"},
                   {"fechaeg", "2026-03-15"},
                   {"motivoeg", "Despido"},
                   {"antiguedad", "5.01"}});
    // El año móvil va del 03/25 al 02/26: doce SUELDO de 30000 (el de 02/25 queda afuera).
    for (Mes m{2025, 2}; m <= Mes{2026, 2}; m = m.siguiente()) fila(juan, m, 1, 1, 30000);
    fila(juan, {2025, 6}, 40, 10, 1500);  // horas extras: 24 en el tramo
    fila(juan, {2026, 1}, 40, 14, 2100);
    fila(juan, {2025, 3}, 60, 1, 600);  // premios: 1800 en el tramo
    fila(juan, {2025, 12}, 60, 1, 1200);
    fila(juan, {2025, 11}, 61, 1, 5000);  // de la segunda actividad: no cuenta
    fila(juan, {2026, 1}, 50, 1, 800);    // antigüedad: la del último mes es la que va
    fila(juan, {2026, 2}, 50, 1, 900);
    fila(juan, {2026, 3}, 1, 15, 15000, "egresos");  // con más de un año no genera aguinaldo
    base->ejecuta(
        "INSERT INTO salvacacional (empresa, nombre, fecha, codigo, concepto, unidad, cant, total) "
        "VALUES ('ACME', ?, '2026-01-01', 70, 'SALARIO VACACIONAL', 'I', 10, 8000)",
        {juan});

    OpcionesIpd op;
    op.licencia = Dinero::desdeDouble(1000);
    op.salVacacional = Dinero::desdeDouble(800);
    const auto r = ipd(juan, {2026, 3, 15}, op);
    ASSERT_TRUE(r.aviso.empty()) << r.aviso;
    ASSERT_TRUE(r.resultado);
    const auto& m = r.resultado->monto;
    // Incidencias: 24 x 30000 / 200 = 3600 / 12 = 300; 1800 / 12 = 150.
    EXPECT_EQ(r.resultado->incidencias.suma, Dinero::desdeDouble(450));
    // Aguinaldo: 360000 + 3600 + 1800 + 800 + 900 + 8000 de vacacional = 375100,
    // / 12 meses = 31258.3333, / 12 = 2604.8611 (el dinero lleva cuatro decimales).
    EXPECT_EQ(m.aguinaldo, Dinero::desdeDouble(2604.8611));
    EXPECT_EQ(m.antAlim, Dinero::desdeDouble(900));
    // 450 + 30000 + 2604.8611 + 900 + 1000 + 800 = 35754.8611; 5.01 años: 6
    // sueldos, 214529.1666.
    EXPECT_EQ(r.resultado->cant.cant, 6);
    EXPECT_EQ(r.resultado->totalIpd, Dinero::desdeDouble(214529.1666));
    EXPECT_EQ(r.traza(), leerTraza("ipd_mensual"));

    // Sin las incidencias el monto pierde los 450: 35304.8611 x 6 = 211829.1666.
    op.incidencias = false;
    EXPECT_EQ(ipd(juan, {2026, 3, 15}, op).resultado->totalIpd,
              Dinero::desdeDouble(211829.1666));
    EXPECT_TRUE(dialogo.mensajes.empty());
}

TEST_P(IpdBase, JornaleroPorSusAniosTrabajados) {
    const std::string ana = "LOPEZ, ANA";
    persona(ana, {{"tiposueldo", "J"},
                  {"sueldo", "1000"},
                  {"fechaing", "2023-03-01"},
                  {"fechaeg", "2026-02-20"},
                  {"motivoeg", "Despido"},
                  {"antiguedad", "2.97"}});
    for (Mes m{2023, 3}; m <= Mes{2023, 12}; m = m.siguiente()) fila(ana, m, 10, 20, 20000);
    for (Mes m{2024, 1}; m <= Mes{2024, 12}; m = m.siguiente()) fila(ana, m, 10, 22, 22000);
    for (Mes m{2025, 1}; m <= Mes{2025, 12}; m = m.siguiente()) fila(ana, m, 10, 21, 21000);
    fila(ana, {2026, 1}, 10, 18, 18000);
    fila(ana, {2025, 12}, 60, 1, 2490);

    // Sin los jornales del mes de egreso no se calcula.
    auto r = ipd(ana, {2026, 2, 20});
    EXPECT_EQ(r.aviso, kJornalesManual);
    EXPECT_FALSE(r.resultado);
    ASSERT_EQ(dialogo.mensajes.size(), 1u);

    fila(ana, {2026, 2}, 10, 14, 14000, "egresos");
    r = ipd(ana, {2026, 2, 20});
    ASSERT_TRUE(r.resultado) << r.aviso;
    const auto& res = *r.resultado;
    // Años: 200, 264, 252 y 18 + 14 = 32; promedio 187: 16 + 25 + 25 + 2 = 68.
    EXPECT_EQ(res.cant.sumaPeriodos, 748);
    EXPECT_EQ(res.cant.cant, 68);
    // Año móvil del 02/25 al 01/26: 11 x 21 + 18 = 249 días.
    EXPECT_EQ(res.anio.dias, 249);
    // Por día: premio 2490 / 249 = 10; sueldo 1000; aguinaldo (249000 + 2490) /
    // 249 / 12 = 84.1667. (10 + 1000 + 84.1667) x 68 = 74403.3356.
    EXPECT_EQ(res.monto.incidencias, Dinero::desdeDouble(10));
    EXPECT_EQ(res.monto.aguinaldo, Dinero::desdeDouble(84.1667));
    EXPECT_EQ(res.totalIpd, Dinero::desdeDouble(74403.3356));
    const auto traza = r.traza();
    EXPECT_NE(traza.find("Promedio días año móbil: 249\r\n"), std::string::npos);
    EXPECT_NE(traza.find("Período: 01/01/26 al 20/02/26 = 32\r\n"), std::string::npos);
}

TEST_P(IpdBase, LosAvisosYElMotivoQueNoEsDespido) {
    persona("SIN DATOS, UNO", {{"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    persona("RENUNCIA, DOS", {{"tiposueldo", "S"},
                              {"sueldo", "20000"},
                              {"fechaing", "2020-01-01"},
                              {"fechaeg", "2026-01-31"},
                              {"motivoeg", "Renuncia"},
                              {"antiguedad", "6"}});
    EXPECT_EQ(ipd("SIN DATOS, UNO", {2026, 1, 31}).aviso, kFaltanDatosDeEgreso);
    EXPECT_EQ(ipd("RENUNCIA, DOS", {2026, 1, 30}).aviso, kFechaIpdDistinta);
    const auto renuncia = ipd("RENUNCIA, DOS", {2026, 1, 31});
    EXPECT_TRUE(renuncia.aviso.empty());
    EXPECT_FALSE(renuncia.resultado);
    EXPECT_EQ(renuncia.traza(), "");
    EXPECT_EQ(incidenciasDelIpd(*base, "ACME", "", Fecha{2026, 1, 31}, {}, dialogo).aviso,
              kFaltanCamposIpd);
    EXPECT_EQ(dialogo.mensajes.size(), 3u);
}

}  // namespace
}  // namespace nomira::engine
