// Aportes personales: la escalera de SNIS vista desde la fila, el tope del
// montepío, los textos con el porcentaje, el complemento de aguinaldo y los
// líquidos que se van formando en el orden de los códigos.
#include <gtest/gtest.h>

#include "engine/calculos/aportes.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/escritura.h"
#include "engine/apoyo_formula.h"
#include "engine/calculos/base_irpf.h"

namespace nomira::engine {
namespace {

using common::Dinero;
Dinero d(double x) {
    return Dinero::desdeDouble(x);
}

TEST(Aportes, TextosYPorcentajeDeLaFormula) {
    EXPECT_EQ(textoFilaAporte("MONTEPIO", false, 0, 0), "MONTEPIO 15%");
    EXPECT_EQ(textoFilaAporte("FRL", false, 0, 0), "FRL 0.10%");
    EXPECT_EQ(textoFilaAporte("SNIS", false, 0, 4.5), "SNIS 4.5%");
    EXPECT_EQ(textoFilaAporte("SNIS", true, 5, 8), "SNIS AG. 5% + MG. 8%");
    EXPECT_EQ(textoFilaAporte("ADELANTOS", true, 5, 8), "ADELANTOS");
    EXPECT_EQ(porcentajeDeFormula("([MONTOGRAV]*15)/100"), 15);
    EXPECT_EQ(porcentajeDeFormula("([MONTOGRAV]*0.1)/100"), 0.1);
    EXPECT_THROW(porcentajeDeFormula("(1)*2"), common::Fallo);
    // El egreso descuenta los tres aportes de una vez: 10000 x (1 - 22.1 / 100).
    EXPECT_EQ(CalculoDtosobreHaberesNew(d(10000), sumaTasas(7, 15, 0.1)), d(7790));
}

TEST(Aportes, ExclusionesYExcepcionDeLicencia) {
    EXPECT_EQ(conceptoExcluido(0, "01", ""), "");
    EXPECT_EQ(conceptoExcluido(0, "04", ""), "MONTEPIO");
    EXPECT_EQ(conceptoExcluido(30, "01", "Dependiente"), "SNIS");
    EXPECT_EQ(conceptoExcluido(30, "01", "Director SAS"), "");
    EXPECT_EQ(conceptoExcluido(30, "04", "Director SAS"), "MONTEPIO");
    const std::vector<FilaMes> soloLicencia = {{1, "LICENCIA", "Hab", "Si", "Si", d(5000)},
                                               {5, "MONTEPIO 15%", "Des", "", "", d(750)}};
    EXPECT_TRUE(excepcionLicencia("J", soloLicencia));
    EXPECT_FALSE(excepcionLicencia("S", soloLicencia));
    auto dos = soloLicencia;
    dos.push_back({2, "HORAS", "Hab", "Si", "Si", d(10)});
    EXPECT_FALSE(excepcionLicencia("H", dos));
    EXPECT_FALSE(excepcionLicencia("H", {{1, "HORAS", "Hab", "Si", "Si", d(10)}}));
}

TEST(Aportes, TopeDelMontepioYComplementoDeAguinaldo) {
    EntradaAporte e;
    e.concepto = "MONTEPIO";
    e.mes = {2026, 3};
    e.montograv = d(120000);
    e.totalFormula = 18000;  // 15% de 120000
    e.tafap = true;
    // Sobre el tope por defecto: 15 x 106549 / 100 = 15982.35.
    EXPECT_EQ(ajustarAporte(e).total, d(15982.35));
    EXPECT_EQ(ajustarAporte(e).concepto, "MONTEPIO 15%");
    e.montograv = d(106549);  // justo el tope: no se topea
    EXPECT_EQ(ajustarAporte(e).total, d(18000));
    e.montograv = d(120000);
    e.tafap = false;  // "T.Afap/Perm." en No: nunca hay tope
    EXPECT_EQ(ajustarAporte(e).total, d(18000));
    e.tafap = true;
    e.tipoaporte = "04";
    EXPECT_EQ(ajustarAporte(e).total, d(18000));

    // Junio con aguinaldo 12000: doceavo 1000; SNIS 6% lo completa con
    // 1000 x 6 / 100 - 30 que ya pagó el aguinaldo = 30.
    EntradaAporte s;
    s.concepto = "SNIS";
    s.mes = {2026, 6};
    s.psnis = 6;
    s.totalFormula = 1200;
    s.aguinaldosHab = d(12000);
    s.snisAguinaldo = d(30);
    auto r = ajustarAporte(s);
    EXPECT_EQ(r.total, d(1230));
    EXPECT_EQ(r.concepto, "SNIS AG. 3% + MG. 6%");
    // Con 3% o menos no hay complemento; tampoco fuera de junio y diciembre.
    s.psnis = 3;
    EXPECT_EQ(ajustarAporte(s).total, d(1200));
    EXPECT_EQ(ajustarAporte(s).concepto, "SNIS 3%");
    s.psnis = 6;
    s.mes = {2026, 7};
    EXPECT_EQ(ajustarAporte(s).total, d(1200));
    // Diciembre sin aguinaldo: el complemento es -30 igual, pero sin la parte AG.
    s.mes = {2026, 12};
    s.aguinaldosHab = Dinero();
    r = ajustarAporte(s);
    EXPECT_EQ(r.total, d(1170));
    EXPECT_EQ(r.concepto, "SNIS 6%");
}

// Una liquidación del mes en la base: haberes cargados, descuentos generados
// en orden de código.
class AportesMes : public pruebas::BaseFormula {
  protected:
    void SetUp() override {
        BaseFormula::SetUp();
        if (IsSkipped()) return;
        variable("BPC", "2026-01-01", 6864);  // 2.5 BPC = 17160
        c.periodo = {2026, 3};
    }
    void haber(long codigo, const std::string& concepto, double total) {
        base->ejecuta(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, gravado, ipd, "
            "cant, total) VALUES ('ACME', ?, ?, ?, ?, 'Hab', 'Si', 'Si', 1, ?)",
            {c.nombre, c.periodo.primerDia().iso(), std::int64_t{codigo}, concepto, total});
    }
    DescuentoGenerado generar(long codigo, const std::string& concepto,
                              const std::string& formula) {
        const auto b = leerDesglose(*leerMes(), c.periodo, c.tipoaporte, "", 1, 6864);
        volcarEnContexto(b, c);
        const auto r = generarDescuento(c, {codigo, concepto, formula, "%", "Si", "", "", "", ""},
                                        opcionesAportesForm42(), dialogo);
        escribirLibro(*base, *c.libro);
        return r;
    }
    double totalFila(long codigo, std::string* texto = nullptr) {
        const auto r =
            base->consulta("SELECT concepto, total FROM habydesc WHERE nombre = ? AND codigo = ?",
                           {c.nombre, std::int64_t{codigo}});
        EXPECT_EQ(r.filas.size(), 1u);
        if (r.vacio()) return -1;
        if (texto) *texto = r.primera().texto("concepto");
        return r.primera().real("total");
    }
    static constexpr const char* kMontepio = "([MONTOGRAV]*15)/100";
    static constexpr const char* kSnis = "([MONTOGRAV]*[PSNIS])/100";
    static constexpr const char* kFrl = "([MONTOGRAV]*0.1)/100";
};
NOMIRA_PARA_CADA_MOTOR(AportesMes);

TEST_P(AportesMes, SobreDosYMedioBPCConConyugeEHijo) {
    persona("PEREZ, JUAN", {{"sexocon", "MSi"},
                            {"causaben", "01-Hijo"},
                            {"fechanacben", "2015-04-02"},
                            {"socmedica", "NoCNoNoNo"}});
    haber(1, "SUELDO", 30000);
    std::string texto;
    generar(501, "MONTEPIO", kMontepio);
    EXPECT_EQ(totalFila(501, &texto), 4500);  // 30000 x 15%
    EXPECT_EQ(texto, "MONTEPIO 15%");
    const auto snis = generar(502, "SNIS", kSnis);
    EXPECT_TRUE(snis.escrita);
    EXPECT_EQ(totalFila(502, &texto), 2400);  // 30000 > 17160, hijo y cónyuge: 8%
    EXPECT_EQ(texto, "SNIS 8%");
    generar(503, "FRL", kFrl);
    EXPECT_EQ(totalFila(503, &texto), 30);
    EXPECT_EQ(texto, "FRL 0.10%");
    // Un descuento posterior ve el líquido de los anteriores:
    // 30000 - 4500 - 2400 - 30 = 23070, y la mitad va a la retención.
    generar(600, "RETENCION", "[LIQUIDONETO]/2");
    EXPECT_EQ(totalFila(600), 11535);
    // Volver a generar reemplaza la fila del código, no agrega otra.
    generar(501, "MONTEPIO", kMontepio);
    EXPECT_EQ(totalFila(501), 4500);
}

TEST_P(AportesMes, BajoElTopeSinConyugeYEmpresa04) {
    persona("PEREZ, JUAN", {{"sexocon", "MNo"}, {"causaben", "01-Hijo"}});
    haber(1, "SUELDO", 17160);  // justo 2.5 BPC: primera fila, 3%
    std::string texto;
    generar(502, "SNIS", kSnis);
    EXPECT_EQ(totalFila(502, &texto), 514.8);
    EXPECT_EQ(texto, "SNIS 3%");
    // Aportación 04: 3 - 3 = 0 y la fila se escribe igual.
    c.tipoaporte = "04";
    const auto r = generar(502, "SNIS", kSnis);
    EXPECT_EQ(totalFila(502, &texto), 0);
    EXPECT_EQ(texto, "SNIS 0%");
    EXPECT_NE(r.fila.explicacion.find("fórmula 0"), std::string::npos);
}

TEST_P(AportesMes, TopeAfapDeLaVariableYSinEscribirConEgresos) {
    persona("PEREZ, JUAN", {{"socmedica", "SiANoNoNo"}});
    haber(1, "SUELDO", 200000);
    variable("TOPEAFAP", "2026-01-01", 150000);
    variable("TOPEAFAPA", "2026-01-01", 180000);
    // Letra "A": manda TOPEAFAPA; 15 x 180000 / 100.
    generar(501, "MONTEPIO", kMontepio);
    EXPECT_EQ(totalFila(501), 27000);
    base->ejecuta(
        "INSERT INTO egresos (empresa, nombre, fecha, codigo, concepto, tipo, total) VALUES "
        "('ACME', ?, ?, 1, 'SUELDO', 'Hab', 100)",
        {c.nombre, c.periodo.primerDia().iso()});
    const auto r = generar(503, "FRL", kFrl);
    EXPECT_FALSE(r.escrita);
    EXPECT_EQ(r.fila.total, d(200));
    EXPECT_TRUE(base->consulta("SELECT * FROM habydesc WHERE codigo = 503").vacio());
}

}  // namespace
}  // namespace nomira::engine
