// IRPF: la escala en los bordes de las franjas, el crédito a 15 BPC, las
// deducciones por beneficiario y por casilla, N.Fam., L.19321, lo ya
// retenido, y el cierre de diciembre con un beneficiario desde octubre.
#include <gtest/gtest.h>

#include "engine/apoyo_formula.h"
#include "engine/calculos/base_irpf.h"
#include "engine/calculos/irpf.h"
#include "engine/calculos/irpf_dic.h"
#include "engine/mes/irpf_lector.h"

namespace nomira::engine {
namespace {

using common::Dinero;
Dinero d(double x) {
    return Dinero::desdeDouble(x);
}

constexpr double kBPC = 6864;
// 0-7 BPC 0%, 7-10 10%, 10-15 15%, 15-30 24%. En pesos: 48048, 68640, 102960, 205920.
const std::vector<FilaEscala> kEscala = {
    {1, 0, 7, 0}, {2, 7, 10, 10}, {3, 10, 15, 15}, {4, 15, 30, 24}};

TEST(EscalaIRPF, BordesDeFranjaYUltimaFranja) {
    // Justo 10 BPC: 20592 x 10% = 2059.20; el resto queda en 0 y la franja
    // siguiente suma 0 y corta.
    auto r = aplicarEscala(d(68640), kEscala, kBPC, 1, false);
    EXPECT_EQ(r.impuesto, d(2059.20));
    EXPECT_EQ(r.tasaAlcanzada, 15);
    // Un peso más paga el 15%.
    EXPECT_EQ(aplicarEscala(d(68641), kEscala, kBPC, 1, false).impuesto, d(2059.35));
    // 40 BPC: 2059.20 + 34320 x 15% + 102960 x 24% = 2059.20 + 5148 + 24710.40;
    // lo que pasa de 30 BPC no paga.
    EXPECT_EQ(aplicarEscala(d(274560), kEscala, kBPC, 1, false).impuesto, d(31917.60));
    // Multi Emp.: sin la franja del 0%, 10 BPC recorren 20592 al 10%, 34320 al
    // 15% y los 13728 que quedan al 24% = 2059.20 + 5148 + 3294.72.
    EXPECT_EQ(aplicarEscala(d(68640), kEscala, kBPC, 1, true).impuesto, d(10501.92));
    // Anual: los límites por 12.
    EXPECT_EQ(aplicarEscala(d(68640 * 12), kEscala, kBPC, 12, false).impuesto, d(24710.40));
    EXPECT_EQ(aplicarEscala(d(99999), {}, kBPC, 1, false).impuesto, Dinero());
}

TEST(DeduccionesIRPF, BeneficiariosYCasillas) {
    Dependiente hijo{"01", "", 1, false, 0, ""};
    EXPECT_EQ(deduccionDependiente(hijo, kBPC), d(11440));  // 6864 x 20 / 12
    hijo.porcentaje = "01";
    EXPECT_EQ(deduccionDependiente(hijo, kBPC), d(5720));
    hijo.multiplicador = 2;  // la mitad por dos: el monto entero
    EXPECT_EQ(deduccionDependiente(hijo, kBPC), d(11440));
    hijo.porcentaje = "00";
    EXPECT_EQ(deduccionDependiente(hijo, kBPC), Dinero());
    EXPECT_EQ(deduccionDependiente({"03", "", 1, false, 0, ""}, kBPC), d(22880));
    EXPECT_EQ(deduccionDependiente({"03", "", 1, true, 0, ""}, kBPC), Dinero());
    EXPECT_EQ(deduccionDependiente({"05", "", 1, false, 0, ""}, kBPC), Dinero());

    EXPECT_EQ(deduccionCasilla({"02", "04", 0, ""}, kBPC, 1.0 / 12), d(1048.6667));  // x11/6/12
    EXPECT_EQ(deduccionCasilla({"02", "05", 0, ""}, kBPC, 1.0 / 12), d(1620.6667));  // x17/6/12
    EXPECT_EQ(deduccionCasilla({"02", "01", 0, ""}, kBPC, 1.0 / 12), d(286));
    EXPECT_EQ(deduccionCasilla({"08", "01", 0, ""}, kBPC, 1.0 / 12), d(572));
    EXPECT_EQ(deduccionCasilla({"08", "01", 0, ""}, kBPC, 1), d(6864));
    EXPECT_EQ(deduccionCasilla({"08", "02", 0, ""}, kBPC, 1), Dinero());
    EXPECT_EQ(deduccionCasilla({"03", "07", 1234.5, ""}, kBPC, 1), d(1234.5));
    EXPECT_EQ(deduccionCasilla({"00", "00", 1234.5, ""}, kBPC, 1), Dinero());
}

TEST(IRPFMensual, CreditoBanderasYRestas) {
    EntradaIRPF e;
    e.montoirpf = e.montonominal = d(102960);  // justo 15 BPC
    e.mes = {2026, 3};
    e.bpc = kBPC;
    e.deducciones.dependientes[0] = {"01", "", 1, false, 0, ""};
    e.escala = kEscala;
    e.aportes = d(20000);
    // Escala: 2059.20 + 5148 = 7207.20. Deducciones 11440 + 20000 = 31440, al
    // 14% por no pasar de 15 BPC: 4401.60. Queda 2805.60.
    auto r = calcularIRPF(e, opcionesIRPFForm42());
    EXPECT_EQ(r.irpfbruto, d(7207.20));
    EXPECT_EQ(r.totalmontoded, d(31440));
    EXPECT_EQ(r.credito, d(4401.60));
    EXPECT_EQ(r.total, d(2805.60));
    EXPECT_EQ(textoFilaIRPF("IRPF", r, e.montoirpf), "IRPF   7,207 -    4,402");
    // El crédito mira el nominal: un peso más es 8% = 2515.20.
    e.montonominal = d(102961);
    EXPECT_EQ(calcularIRPF(e, opcionesIRPFForm42()).total, d(4692));
    e.montonominal = d(102960);
    e.nfam = true;  // 2805.60 x 0.95
    EXPECT_EQ(calcularIRPF(e, opcionesIRPFForm42()).total, d(2665.32));
    e.nfam = false;
    e.l19321 = true;
    e.exclusion = 102960;  // nominal igual a la exclusión: 0
    EXPECT_EQ(calcularIRPF(e, opcionesIRPFForm42()).total, Dinero());
    e.exclusion = 102959.99;
    EXPECT_EQ(calcularIRPF(e, opcionesIRPFForm42()).total, d(2805.60));
    e.l19321 = false;
    // Lo retenido en aguinaldo (no en junio) y en salario vacacional.
    e.irpfAguinaldo = d(500);
    e.irpfSalvacacional = d(300);
    r = calcularIRPF(e, opcionesIRPFForm42());
    EXPECT_EQ(r.total, d(2005.60));
    EXPECT_EQ(textoFilaIRPF("IRPF", r, e.montoirpf), "IRPF   7,207-   4,402-SV");
    e.mes = {2026, 6};
    EXPECT_EQ(calcularIRPF(e, opcionesIRPFForm42()).total, d(2505.60));
    e.irpfSalvacacional = d(9000);  // sin devolución
    r = calcularIRPF(e, opcionesIRPFForm42());
    EXPECT_EQ(r.total, Dinero());
    EXPECT_EQ(textoFilaIRPF("IRPF", r, d(5000)), "IRPF      5,000.00      ");
    // El aguinaldo calcula todo pero siempre escribe 0.
    e.irpfSalvacacional = Dinero();
    EXPECT_EQ(calcularIRPF(e, opcionesIRPFForm43()).total, Dinero());
    // Form44: sin crédito por nominal sino por el primer argumento.
    EXPECT_EQ(calcularIRPF(e, opcionesIRPFForm44()).credito, d(4401.60));
}

TEST(IRPFDiciembre, MesesDeDeduccionYTasaMarginal) {
    const common::Mes dic{2026, 12};
    EXPECT_EQ(mesesDesde("2026-10-01", dic), 3);
    EXPECT_EQ(mesesDesde("", dic), 12);
    EXPECT_EQ(mesesDesde("2025-05-01", dic), 12);
    EXPECT_EQ(mesesDesde("2027-01-01", dic), 0);
    EXPECT_EQ(mesesDesde("01/03/45", dic), 0);  // 45 es 2045 para este cálculo
    EXPECT_EQ(mesesDesde("2026-05-01", {2026, 3}), 0);

    EntradaIRPFDic e;
    e.periodo = dic;
    e.bpc = kBPC;
    e.escala = kEscala;
    for (int m = 1; m <= 12; ++m) e.ingresos.push_back({1, "SUELDO", "Hab", "Si", "Si", d(80000)});
    e.ingresos.push_back({2, "RELIQ. AGUINALDO POR LAUDO", "Hab", "Si", "Si", d(1000)});
    e.aguinaldosHab[5] = d(228000);  // junio: doceavo 19000
    e.deducciones.dependientes[0] = {"01", "", 1, false, 0, "2026-10-01"};
    e.aportesDelAnio = d(100000);
    e.retenidoDelAnio = d(25000);
    // Base 960000: 576576 al 0%, 247104 al 10% = 24710.40, 136320 al 15% = 20448.
    // Aguinaldo y reliquidación (20000) al 15% = 3000. Deducciones 11440 x 3 +
    // 100000 = 134320 al 14% (960000 <= 180 BPC) = 18804.80.
    // 45158.40 - 18804.80 + 3000 - 25000 = 4353.60.
    auto r = calcularIRPFDic(e);
    EXPECT_EQ(r.inggrav, d(980000));
    EXPECT_EQ(r.ingbase, d(960000));
    EXPECT_EQ(r.escala, d(45158.40));
    EXPECT_EQ(r.irpfag, d(3000));
    EXPECT_EQ(r.totalmontoded, d(134320));
    EXPECT_EQ(r.total, d(4353.60));
    // Un hijo que cumplió 18 en mayo cuenta de enero a mayo: 11440 x 5.
    e.deducciones.dependientes[0] = {"01", "", 1, true, 5, ""};
    EXPECT_EQ(calcularIRPFDic(e).totalmontoded, d(157200));
    // Lo retenido de más no se devuelve, y sin impuesto no se suma el aguinaldo.
    e.retenidoDelAnio = d(90000);
    EXPECT_EQ(calcularIRPFDic(e).total, Dinero());
}

class IRPFMes : public pruebas::BaseFormula {
  protected:
    void SetUp() override {
        BaseFormula::SetUp();
        if (IsSkipped()) return;
        variable("BPC", "2026-01-01", kBPC);
        c.periodo = {2026, 3};
        for (const auto& f : kEscala)
            base->ejecuta("INSERT INTO franjasirp (franja, min, max, tasa) VALUES (?, ?, ?, ?)",
                          {std::int64_t{f.franja}, f.desde, f.hasta, f.tasa});
        base->ejecuta("INSERT INTO franjasirp (franja, min, max, tasa) VALUES (2001, 0, 99, 50)");
        base->ejecuta("INSERT INTO codigodeducciones (nombre) VALUES ('02-Aportes a caja')");
        base->ejecuta(
            "INSERT INTO categoriadeducciones (nombre, nombre2) VALUES ('02-Aportes a caja', "
            "'04-Categoría IV')");
    }
    void fila(long codigo, const std::string& concepto, const char* tipo, double total) {
        base->ejecuta(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, gravado, ipd, "
            "cant, total) VALUES ('ACME', ?, ?, ?, ?, ?, ?, ?, 1, ?)",
            {c.nombre, c.periodo.primerDia().iso(), std::int64_t{codigo}, concepto,
             std::string(tipo), std::string(*tipo == 'H' ? "Si" : ""),
             std::string(*tipo == 'H' ? "Si" : ""), total});
    }
};
NOMIRA_PARA_CADA_MOTOR(IRPFMes);

TEST_P(IRPFMes, SobreDiezBPCConHijoYCasilla02Categoria04) {
    persona("PEREZ, JUAN", {{"sueldo", "102960"},
                            {"causaben", "02-Hijo con discapacidad"},
                            {"codigoded", "Aportes a caja"},
                            {"categoriaded", "Categoría IV"},
                            {"socmedica", "SiCNoNoNo"}});
    fila(1, "SUELDO", "Hab", 102960);
    fila(501, "MONTEPIO 15%", "Des", 15444);
    fila(502, "SNIS 4.5%", "Des", 4633.20);
    fila(503, "FRL 0.10%", "Des", 102.96);
    fila(600, "ADELANTOS", "Des", 5000);  // no es aporte: no se deduce
    const auto b = leerDesglose(*leerMes(), c.periodo, "", "", 102960, kBPC);
    // Pasa de 10 BPC: + 6% de 102960 = 6177.60; el nominal no lo lleva.
    EXPECT_EQ(b.montoirpf, d(109137.60));
    EXPECT_EQ(b.montonominal, d(102960));
    EXPECT_EQ(explicacion(b),
              "gravado 102,960.00, IRPF 102,960.00 (vacacional 0.00); más de 10 BPC: + 6% del "
              "gravado = 109,137.60");
    volcarEnContexto(b, c);
    const auto r = CalculoIRPF(c, b.montoirpf, b.montonominal, opcionesIRPFForm42(), dialogo);
    // Escala: 2059.20 + 5148 + 6177.60 x 24% (1482.624) = 8689.824.
    // Deducciones: 22880 + 1048.6667 + aportes 20180.16 = 44108.8267, al 14%
    // (nominal justo 15 BPC) = 6175.2357. IRPF 2514.5883.
    EXPECT_EQ(r.irpfbruto, d(8689.824));
    EXPECT_EQ(r.totalmontoded, d(44108.8267));
    EXPECT_EQ(r.credito, d(6175.2357));
    EXPECT_EQ(r.total, d(2514.5883));
    EXPECT_EQ(textoFilaIRPF("IRPF", r, b.montoirpf), "IRPF   8,690 -    6,175");
    EXPECT_EQ(CalculomontodeduccionesIRPF(c, opcionesIRPFForm42(), dialogo), d(44108.8267));
}

TEST_P(IRPFMes, DiciembreConBeneficiarioDesdeOctubre) {
    persona("PEREZ, JUAN",
            {{"causaben", "01-Hijo"}, {"fechadesdeben", "2026-10-01"}, {"socmedica", "SiC"}});
    c.periodo = {2026, 12};
    for (int m = 1; m <= 12; ++m)
        base->ejecuta(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, ipd, total) "
            "VALUES ('ACME', ?, ?, 1, 'SUELDO', 'Hab', 'Si', 80000)",
            {c.nombre, common::Mes{2026, m}.primerDia().iso()});
    fila(801, "IRPF", "Des", 1000);  // diciembre ya guardado: cuenta como retenido
    base->ejecuta(
        "INSERT INTO aguinaldos (empresa, nombre, fecha, concepto, total, tipo) VALUES "
        "('ACME', ?, '2026-06-01', 'AGUINALDO', 240000, 'Hab')",
        {c.nombre});
    // Base 960000: 45158.40 de escala; aguinaldo 20000 al 15% = 3000.
    // Deducciones 11440 x 3 = 34320 al 14% = 4804.80.
    // 45158.40 - 4804.80 + 3000 - 1000 = 42353.60.
    leerMes();
    const auto r = CalculoIRPFDic(c, false, dialogo);
    EXPECT_EQ(r.totalmontoded, d(34320));
    EXPECT_EQ(r.total, d(42353.60));
}

}  // namespace
}  // namespace nomira::engine
