// El valor de una fila de licencia: divisor del consejo, jornal de cada tipo de
// sueldo, los meses que se miran hacia atrás y lo que dejan por día los
// conceptos con licencia; sobre la base, en los dos motores.
#include <gtest/gtest.h>

#include "engine/apoyo_formula.h"
#include "engine/calculos/calculo_licencia.h"

namespace nomira::engine {
namespace {

using common::Dinero;

TEST(LicenciaValor, DivisorYSueldoDelMesConLicencia) {
    EXPECT_EQ(divisorLicencia(12, 1), 25);
    EXPECT_EQ(divisorLicencia(14, 9), 25);
    EXPECT_EQ(divisorLicencia(8, 5), 25);
    EXPECT_EQ(divisorLicencia(8, 1), 30);
    EXPECT_EQ(divisorLicencia(19, 10), 24);
    EXPECT_EQ(divisorLicencia(19, 3), 30);
    // 10 días en el grupo 12 con sueldo 25000: 25000 / 25 x 15 = 15000.
    std::string texto;
    EXPECT_EQ(sueldoConLicencia(25000, {10}, 12, 1, &texto), Dinero::desdeDouble(15000));
    EXPECT_EQ(texto, "SUELDO 25,000.00 / 25 x (25 - 10 días de licencia) = 15,000.00");
    // Dos filas reducen dos veces, cada una sobre lo que quedó:
    // 30000 / 30 x 25 = 25000; 25000 / 30 x 25 = 20833.3333.
    EXPECT_EQ(sueldoConLicencia(30000, {5, 5}, 3, 1), Dinero::desdeDouble(20833.3333));
    // Grupo 19 subgrupo 10: 24000 / 24 x 14 = 14000.
    EXPECT_EQ(sueldoConLicencia(24000, {10}, 19, 10), Dinero::desdeDouble(14000));
}

TEST(LicenciaValor, JornalPorTipoDeSueldo) {
    // Mensual: (sueldos + ant) / divisor.
    EXPECT_DOUBLE_EQ(jornalLicencia("S", 29500, 500, 0, 1, 1), 1000);
    EXPECT_DOUBLE_EQ(jornalLicencia("S", 24500, 500, 0, 12, 1), 1000);
    // Jornal: ant se divide antes de sumar, 1000 + 500 / 25.
    EXPECT_DOUBLE_EQ(jornalLicencia("J", 1000, 500, 0, 12, 1), 1020);
    // Por hora: (100 + 2000 / 200) x 8.
    EXPECT_DOUBLE_EQ(jornalLicencia("H", 100, 2000, 8, 1, 1), 880);
}

TEST(LicenciaValor, MesesHaciaAtras) {
    const common::Mes marzo{2026, 3};
    auto t = tramoLicencia(marzo, {2020, 1});
    ASSERT_EQ(t.meses.size(), 12u);  // de febrero 26 a marzo 25
    EXPECT_EQ(t.meses.front(), (common::Mes{2026, 2}));
    EXPECT_EQ(t.meses.back(), (common::Mes{2025, 3}));
    EXPECT_EQ(t.diasmesInicial, 0);
    t = tramoLicencia(marzo, {2025, 12});
    EXPECT_EQ(t.meses.size(), 3u);  // no antes del mes de ingreso
    t = tramoLicencia(marzo, marzo);
    EXPECT_TRUE(t.meses.empty());
    EXPECT_EQ(t.diasmesInicial, 1);
}

TEST(LicenciaValor, IncidenciasPorDia) {
    EntradaLicencia e;
    e.tiposueldo = "S";
    e.sueldos = 30000;
    e.dias = 10;
    e.diasmes = 360;
    e.incidencias = {{10, "HORAS EXTRAS", "T", "[SUELDO]/200*[CANT]", 18, {}},
                     {20, "PRIMA", "$", "", 0, Dinero::desdeDouble(3600)}};
    double cantEvaluada = 0;
    const auto evaluar = [&](const IncidenciaLicencia& i) {
        cantEvaluada = i.cant;
        return 2250.0;  // la fórmula con cant 18
    };
    // jornal 1000; 2250 / 360 = 6.25 y 3600 / 360 = 10 por día; x 10 días.
    const auto r = calcularLicencia(e, evaluar);
    EXPECT_EQ(cantEvaluada, 18);
    EXPECT_DOUBLE_EQ(r.porDia, 16.25);
    EXPECT_EQ(r.total, Dinero::desdeDouble(10162.5));
    // Sin meses para promediar, una incidencia divide por cero.
    e.diasmes = 0;
    EXPECT_THROW(calcularLicencia(e, evaluar), common::Fallo);
    e.incidencias.clear();
    EXPECT_EQ(calcularLicencia(e, evaluar).total, Dinero::desdeDouble(10000));
}

class LicenciaBase : public pruebas::BaseFormula {
  protected:
    void SetUp() override {
        BaseFormula::SetUp();
        if (IsSkipped()) return;
        base->ejecuta("INSERT INTO grupoconsal (nombre) VALUES ('12-Hoteles')");
        base->ejecuta(
            "INSERT INTO subgrupoconsal (nombre, nombre2) VALUES ('12-Hoteles', '01-General')");
        base->ejecuta(
            "INSERT INTO empresas (empresa, grupoconsal, subgrupoconsal) VALUES ('ACME', "
            "'Hoteles', 'General')");
        c.periodo = {2026, 3};
    }
    void fila(const common::Mes& m, long codigo, const std::string& concepto,
              const std::string& unidad, const std::string& lic, double cant, double total) {
        base->ejecuta(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, unidad, cant, "
            "total, lic) VALUES ('ACME', ?, ?, ?, ?, 'Hab', ?, ?, ?, ?)",
            {c.nombre, m.primerDia().iso(), std::int64_t{codigo}, concepto, unidad, cant, total,
             lic});
    }
    ImporteLicencia licencia(const std::string& dias) {
        const auto consejo = consejoDeLaEmpresa(*base, "ACME");
        leerMes();
        return CalculoLicencia(c, dias, consejo.grupo, consejo.subgrupo, dialogo);
    }
};
NOMIRA_PARA_CADA_MOTOR(LicenciaBase);

TEST_P(LicenciaBase, MensualDelGrupo12ConIncidencias) {
    const auto consejo = consejoDeLaEmpresa(*base, "ACME");
    EXPECT_EQ(consejo.codigoGrupo, "12");
    EXPECT_EQ(consejo.subgrupo, 1);
    persona(c.nombre, {{"tiposueldo", "S"}, {"sueldo", "25000"}, {"fechaing", "2020-01-15"}});
    c.sueldo = 25000;
    base->ejecuta(
        "INSERT INTO conceptos (codigo, concepto, formula, unidad) VALUES "
        "(10, 'HORAS EXTRAS', '[SUELDO]/200*[CANT]', 'T')");
    fila({2026, 3}, 5, "ANTIGUEDAD", "$", "No", 1, 500);
    fila({2026, 2}, 10, "HORAS EXTRAS", "T", "Si", 10, 1250);
    fila({2026, 1}, 10, "HORAS EXTRAS", "T", "Si", 8, 1000);
    fila({2025, 12}, 20, "PRIMA", "$", "Si", 1, 3600);
    fila({2025, 2}, 20, "PRIMA", "$", "Si", 1, 99999);  // trece meses atrás
    fila({2026, 3}, 20, "PRIMA", "$", "Si", 1, 99999);  // el mismo mes
    fila({2026, 2}, 30, "VIATICOS", "$", "No", 1, 99999);
    // jornal (25000 + 500) / 25 = 1020; horas: 25000 / 200 x 18 = 2250 / 360 =
    // 6.25; prima 3600 / 360 = 10; (1020 + 16.25) x 10 = 10362.5.
    const auto r = licencia("10");
    EXPECT_DOUBLE_EQ(r.jornal, 1020);
    EXPECT_EQ(r.diasmes, 360);
    EXPECT_EQ(r.total, Dinero::desdeDouble(10362.5));
    EXPECT_EQ(licencia("").total, Dinero::desdeDouble(1036.25));  // vacío: un día
}

TEST_P(LicenciaBase, JornaleroPromediaLosDiasDesdeSuIngreso) {
    persona(c.nombre, {{"tiposueldo", "J"}, {"sueldo", "1000"}, {"fechaing", "2026-01-10"}});
    c.sueldo = 1000;
    fila({2026, 2}, 1, "JORNALES", "J", "No", 20, 20000);
    fila({2026, 2}, 2, "FERIADO PAGO", "J", "No", 2, 2000);
    fila({2026, 2}, 3, "LICENCIA", "J", "No", 3, 3000);
    fila({2026, 2}, 4, "DOMINGO TRABAJADO", "J", "No", 4, 4000);  // no suma días aquí
    fila({2026, 1}, 1, "JORNALES", "J", "No", 25, 25000);
    fila({2026, 1}, 20, "PRIMA", "$", "Si", 1, 500);
    fila({2025, 12}, 1, "JORNALES", "J", "No", 30, 30000);  // antes del ingreso
    // diasmes 20 + 2 + 3 + 25 = 50; 500 / 50 = 10 por día; (1000 + 10) x 5.
    const auto r = licencia("5");
    EXPECT_EQ(r.diasmes, 50);
    EXPECT_EQ(r.total, Dinero::desdeDouble(5050));
    // Ingreso en el mismo mes: diasmes 1 y sólo el jornal.
    base->ejecuta("UPDATE personal SET fechaing = '2026-03-02'");
    EXPECT_EQ(licencia("5").diasmes, 1);
    EXPECT_EQ(licencia("5").total, Dinero::desdeDouble(5000));
}

}  // namespace
}  // namespace nomira::engine
