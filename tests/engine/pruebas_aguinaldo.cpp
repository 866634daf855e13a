// El aguinaldo: qué meses suma y a quién se le paga, las filas por mes y
// actividad con sus descuentos (PSNIS 3, el montepío con medio tope, IRPF 0),
// la corrida de la empresa y lo que el mes de junio hace después con el doceavo.
#include <gtest/gtest.h>

#include <map>

#include "engine/aguinaldo/aguinaldo.h"
#include "engine/calculos/aguinaldo.h"
#include "engine/mes/descuentos.h"
#include "pruebas_descuentos_escenario.h"

namespace nomira::engine {
namespace {

using common::Fecha;
using common::Mes;

std::vector<int> numeros(const std::vector<Mes>& meses) {
    std::vector<int> n;
    for (const auto& m : meses) n.push_back(m.mes);
    return n;
}

TEST(ReglasAguinaldo, MesesDelSemestreYQuienCobra) {
    const Mes junio{2026, 6}, diciembre{2026, 12};
    // Sin ingreso en el año: el semestre entero; en junio, desde diciembre anterior.
    EXPECT_EQ(numeros(mesesDelSemestre(junio, Fecha{2020, 5, 1})),
              (std::vector<int>{12, 1, 2, 3, 4, 5}));
    EXPECT_EQ(mesesDelSemestre(junio, Fecha{2020, 5, 1}).front().anio, 2025);
    EXPECT_EQ(numeros(mesesDelSemestre(diciembre, std::nullopt)),
              (std::vector<int>{6, 7, 8, 9, 10, 11}));
    // Ingresó en marzo, pago de junio: marzo a mayo.
    EXPECT_EQ(numeros(mesesDelSemestre(junio, Fecha{2026, 3, 10})), (std::vector<int>{3, 4, 5}));
    // Ingresó en agosto, pago de diciembre: agosto a noviembre.
    EXPECT_EQ(numeros(mesesDelSemestre(diciembre, Fecha{2026, 8, 5})),
              (std::vector<int>{8, 9, 10, 11}));
    // En diciembre: enero a mayo empiezan en junio; diciembre queda en noviembre.
    EXPECT_EQ(numeros(mesesDelSemestre(diciembre, Fecha{2026, 2, 1})).size(), 6u);
    EXPECT_EQ(numeros(mesesDelSemestre(diciembre, Fecha{2026, 12, 1})), (std::vector<int>{11}));
    EXPECT_TRUE(mesesDelSemestre(Mes{2026, 7}, std::nullopt).empty());

    // A quién no se le paga.
    EXPECT_NE(motivoSinAguinaldo(2, std::nullopt, std::nullopt, junio), "");  // ficto
    EXPECT_NE(motivoSinAguinaldo(0, Fecha{2026, 7, 1}, std::nullopt, junio), "");
    EXPECT_NE(motivoSinAguinaldo(0, Fecha{2027, 1, 1}, std::nullopt, diciembre), "");
    EXPECT_EQ(motivoSinAguinaldo(0, Fecha{2026, 12, 1}, std::nullopt, diciembre), "");
    EXPECT_EQ(motivoSinAguinaldo(0, Fecha{2026, 6, 30}, std::nullopt, junio), "");
    // Egresó antes del mes del pago (cobró en su egreso), o el año anterior.
    EXPECT_NE(motivoSinAguinaldo(0, Fecha{2020, 1, 1}, Fecha{2026, 5, 31}, junio), "");
    EXPECT_NE(motivoSinAguinaldo(0, Fecha{2020, 1, 1}, Fecha{2025, 12, 31}, junio), "");
    EXPECT_EQ(motivoSinAguinaldo(0, Fecha{2020, 1, 1}, Fecha{2026, 6, 15}, junio), "");
}

TEST(ReglasAguinaldo, FechasActividadesYConvenios) {
    EXPECT_EQ(fechaDeIngreso("15/03/55")->anio, 1955);
    EXPECT_EQ(fechaDeIngreso("15/03/49")->anio, 2049);
    EXPECT_EQ(fechaDeIngreso("2026-03-15")->anio, 2026);
    EXPECT_EQ(fechaDeEgreso("30/04/55")->anio, 2055);
    EXPECT_FALSE(fechaDeIngreso(""));

    EXPECT_TRUE(esDeLaActividad("SUELDO", 1));
    EXPECT_FALSE(esDeLaActividad("SUELDO 2DA ACT", 1));
    EXPECT_FALSE(esDeLaActividad("HORAS 3RA ACT", 1));
    EXPECT_TRUE(esDeLaActividad("SUELDO 2DA ACT", 2));
    EXPECT_FALSE(esDeLaActividad("SUELDO", 2));
    EXPECT_TRUE(esDeLaActividad("HORAS 3RA ACT", 3));
    EXPECT_EQ(conceptoAguinaldo(2), "AGUINALDO 2DA ACT");

    EXPECT_TRUE(grupoConConvenio("02", "NADA"));  // el grupo entero
    EXPECT_TRUE(grupoConConvenio("07", "12"));
    EXPECT_FALSE(grupoConConvenio("07", "02"));
    EXPECT_TRUE(grupoConConvenio("19", "22"));
    EXPECT_FALSE(grupoConConvenio("03", "01"));
    EXPECT_FALSE(grupoConConvenio("NADA", "NADA"));
}

class Aguinaldo : public pruebas::EscenarioMes {
  protected:
    void SetUp() override {
        EscenarioMes::SetUp();
        if (IsSkipped()) return;
        concepto(606, "SALARIO VACACIONAL", "G", "", "Hab", "I", "No", "Si", "Si");
        concepto(40, "VIATICOS", "G", "", "Hab", "I", "No", "No", "No");
        concepto(41, "HORAS EXTRA 2DA ACT", "G", "", "Hab", "I", "No", "Si", "Si");
    }

    // Un haber del mes; aguinaldo dice si genera aguinaldo.
    void haber(const std::string& nombre, const Mes& mes, long codigo, const std::string& concepto,
               double total, const std::string& aguinaldo = "Si", const std::string& emp = "ACME") {
        ejecutar(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, gravado, "
            "aguinaldo, cant, total, ipd) VALUES (?, ?, ?, ?, ?, 'Hab', 'Si', ?, 1, ?, 'Si')",
            {emp, nombre, mes.primerDia().iso(), std::int64_t{codigo}, concepto, aguinaldo, total});
    }
    void sueldoDeMeses(const std::string& nombre, const Mes& desde, const Mes& hasta, double total,
                       const std::string& emp = "ACME") {
        for (auto m = desde; m <= hasta; m = m.siguiente())
            haber(nombre, m, 1, "SUELDO", total, "Si", emp);
    }

    // Las filas del pago: "Hab mes aclab" o "Des concepto" -> total.
    std::map<std::string, double> pago(const std::string& nombre, const Mes& mes) {
        std::map<std::string, double> m;
        const auto r = base->consulta(
            "SELECT mes, concepto, total, tipo, aclab FROM aguinaldos WHERE nombre = ? AND fecha "
            "= ?",
            {nombre, mes.primerDia().iso()});
        for (const auto& f : r.filas) {
            const auto clave =
                f.texto("tipo") == "Hab"
                    ? "Hab " + f.texto("mes") + " " + f.texto("aclab") + " " + f.texto("concepto")
                    : "Des " + f.texto("mes") + " " + f.texto("concepto");
            EXPECT_FALSE(m.count(clave)) << clave;
            m[clave] = f.real("total");
        }
        return m;
    }

    const Mes junio{2026, 6}, diciembre{2026, 12};
};
NOMIRA_PARA_CADA_MOTOR(Aguinaldo);

TEST_P(Aguinaldo, JunioDeQuienIngresoEnMarzoConSusDescuentos) {
    persona("PEREZ, JUAN", {{"fechaing", "2026-03-10"}, {"sueldo", "40000"}, {"tiposueldo", "S"}});
    sueldoDeMeses("PEREZ, JUAN", Mes{2026, 3}, Mes{2026, 5}, 40000);
    haber("PEREZ, JUAN", Mes{2026, 4}, 40, "VIATICOS", 1000, "No");             // no genera
    haber("PEREZ, JUAN", Mes{2026, 4}, 41, "HORAS EXTRA 2DA ACT", 5000, "Si");  // otra actividad
    haber("PEREZ, JUAN", Mes{2026, 2}, 1, "SUELDO", 99999);  // antes de ingresar: no cuenta

    auto r = haberesAguinaldoDeUnaPersona(*base, "ACME", "PEREZ, JUAN", junio, 1, dialogo);
    ASSERT_TRUE(r.hecho) << r.aviso;
    EXPECT_EQ(pago("PEREZ, JUAN", junio),
              (std::map<std::string, double>{{"Hab 03 1 AGUINALDO", 40000},
                                             {"Hab 04 1 AGUINALDO", 40000},
                                             {"Hab 05 1 AGUINALDO", 40000}}));

    // La segunda actividad no tiene fecha de ingreso: el semestre entero, con
    // sólo lo suyo, y los meses en 0 también se escriben.
    r = haberesAguinaldoDeUnaPersona(*base, "ACME", "PEREZ, JUAN", junio, 2, dialogo);
    ASSERT_TRUE(r.hecho);
    const auto filas = pago("PEREZ, JUAN", junio);
    EXPECT_EQ(filas.size(), 9u);
    EXPECT_EQ(filas.at("Hab 12 2 AGUINALDO 2DA ACT"), 0);
    EXPECT_EQ(filas.at("Hab 04 2 AGUINALDO 2DA ACT"), 5000);
    EXPECT_EQ(filas.at("Hab 03 1 AGUINALDO"), 40000);  // la primera quedó

    // Descuentos sobre lo que se paga: (120000 + 5000) / 12 = 10416.6667.
    // MONTEPIO 15% = 1562.50; SNIS 3% = 312.50; FRL 0.1% = 10.4167 (los importes
    // guardan cuatro decimales); IRPF siempre 0 con el texto de la base.
    r = descuentosAguinaldoDeUnaPersona(*base, "ACME", "PEREZ, JUAN", junio, dialogo);
    ASSERT_TRUE(r.hecho);
    const auto con = pago("PEREZ, JUAN", junio);
    EXPECT_EQ(con.at("Des 06 MONTEPIO 15%"), 1562.50);
    EXPECT_EQ(con.at("Des 06 SNIS 3%"), 312.50);
    EXPECT_EQ(con.at("Des 06 FRL 0.10%"), 10.4167);
    EXPECT_EQ(con.at("Des 06 IRPF     10,416.67      "), 0);
    EXPECT_EQ(con.size(), 13u);  // la cuota sindical no es permanente

    const auto cifras = cifrasDelAguinaldo(
        filasDeLaPersona(*base, "ACME", "PEREZ, JUAN", junio, TablaLiquidacion::Aguinaldos));
    EXPECT_EQ(cifras.sumaDeMeses, common::Dinero::desdeDouble(125000));
    EXPECT_EQ(cifras.haberes, common::Dinero::desdeDouble(10416.6667));
    EXPECT_EQ(cifras.descuentos, common::Dinero::desdeDouble(1885.4167));
    EXPECT_EQ(cifras.liquido, common::Dinero::desdeDouble(8531.25));

    // Los haberes otra vez tiran los descuentos.
    haberesAguinaldoDeUnaPersona(*base, "ACME", "PEREZ, JUAN", junio, 1, dialogo);
    EXPECT_EQ(pago("PEREZ, JUAN", junio).size(), 9u);
}

TEST_P(Aguinaldo, LasExplicacionesVuelvenConSuFila) {
    persona("PEREZ, JUAN", {{"fechaing", "2020-01-01"}, {"sueldo", "40000"}});
    sueldoDeMeses("PEREZ, JUAN", Mes{2025, 12}, Mes{2026, 5}, 40000);
    haber("PEREZ, JUAN", Mes{2026, 2}, 41, "HORAS EXTRA 2DA ACT", 5000);
    ASSERT_TRUE(
        haberesAguinaldoDeUnaPersona(*base, "ACME", "PEREZ, JUAN", junio, 2, dialogo).hecho);
    ASSERT_TRUE(
        haberesAguinaldoDeUnaPersona(*base, "ACME", "PEREZ, JUAN", junio, 1, dialogo).hecho);
    ASSERT_TRUE(
        descuentosAguinaldoDeUnaPersona(*base, "ACME", "PEREZ, JUAN", junio, dialogo).hecho);
    for (const auto& f :
         filasDeLaPersona(*base, "ACME", "PEREZ, JUAN", junio, TablaLiquidacion::Aguinaldos)) {
        EXPECT_FALSE(f.explicacion.empty()) << f.concepto << " " << f.mes;
        if (f.tipo == "Hab" && f.aclab == "2" && f.mes == "02") {
            EXPECT_EQ(f.explicacion,
                      "lo que genera aguinaldo en el 02/26: HORAS EXTRA 2DA ACT 5,000.00; total "
                      "5,000.00");
        } else if (f.tipo == "Hab" && f.aclab == "1") {
            EXPECT_NE(f.explicacion.find("SUELDO 40,000.00"), std::string::npos) << f.mes;
        } else if (f.concepto == "SNIS 3%") {
            EXPECT_NE(f.explicacion.find("[PSNIS]"), std::string::npos);
        }
    }
}

TEST_P(Aguinaldo, ElSalarioVacacionalEntraPorSuConceptoOPorElConvenio) {
    persona("PEREZ, JUAN", {{"fechaing", "2020-01-01"}, {"sueldo", "30000"}});
    sueldoDeMeses("PEREZ, JUAN", Mes{2026, 6}, Mes{2026, 11}, 30000);
    ejecutar(
        "INSERT INTO salvacacional (empresa, nombre, fecha, codigo, concepto, cant, total) VALUES "
        "('ACME', 'PEREZ, JUAN', '2026-09-01', 606, 'SALARIO VACACIONAL', 10, 9000), ('ACME', "
        "'PEREZ, JUAN', '2026-12-01', 606, 'SALARIO VACACIONAL', 10, 6000)");
    ASSERT_TRUE(aguinaldoDeLaEmpresa(*base, "ACME", diciembre, 1, dialogo).personas.size());
    EXPECT_EQ(pago("PEREZ, JUAN", diciembre).at("Hab 09 1 AGUINALDO"), 30000);  // sin aguinaldo

    ejecutar("UPDATE conceptos SET aguinaldo = 'Si' WHERE codigo = 606");
    aguinaldoDeLaEmpresa(*base, "ACME", diciembre, 1, dialogo);
    auto filas = pago("PEREZ, JUAN", diciembre);
    EXPECT_EQ(filas.at("Hab 09 1 AGUINALDO"), 39000);
    // Descuentos sobre 189000 / 12 = 15750 más el vacacional de diciembre 6000 = 21750.
    EXPECT_EQ(filas.at("Des 12 MONTEPIO 15%"), 3262.50);
    EXPECT_EQ(filas.at("Des 12 SNIS 3%"), 652.50);

    // Sin la columna, por el grupo con convenio (02, todo el grupo).
    ejecutar("UPDATE conceptos SET aguinaldo = 'No' WHERE codigo = 606");
    ejecutar("INSERT INTO grupoconsal (nombre) VALUES ('02-Frigoríficos')");
    ejecutar("UPDATE empresas SET grupoconsal = 'Frigoríficos' WHERE empresa = 'ACME'");
    aguinaldoDeLaEmpresa(*base, "ACME", diciembre, 1, dialogo);
    EXPECT_EQ(pago("PEREZ, JUAN", diciembre).at("Hab 09 1 AGUINALDO"), 39000);
}

TEST_P(Aguinaldo, LaEmpresaEnDiciembreConSusExcepciones) {
    persona("AGOSTO, ANA", {{"fechaing", "2026-08-05"}, {"sueldo", "30000"}});
    persona("FICTO, FEDE", {{"fechaing", "2010-01-01"}, {"cantbfc", "2"}});
    persona("SALIO, SARA", {{"fechaing", "2010-01-01"}, {"fechaeg", "2026-05-31"}});
    persona("DICIEMBRE, DIEGO", {{"fechaing", "2026-12-01"}, {"sueldo", "20000"}});
    persona("EGRESO, ELSA", {{"fechaing", "2010-01-01"}, {"sueldo", "20000"}});
    sueldoDeMeses("AGOSTO, ANA", Mes{2026, 8}, Mes{2026, 11}, 30000);
    sueldoDeMeses("FICTO, FEDE", Mes{2026, 6}, Mes{2026, 11}, 13728);
    sueldoDeMeses("SALIO, SARA", Mes{2026, 1}, Mes{2026, 5}, 25000);
    ejecutar(
        "INSERT INTO egresos (empresa, nombre, fecha, codigo, concepto, tipo, total) VALUES "
        "('ACME', 'EGRESO, ELSA', '2026-12-01', 1, 'SUELDO', 'Hab', 5000)");
    std::vector<std::string> avance;
    const auto r = aguinaldoDeLaEmpresa(
        *base, "ACME", diciembre, 1, dialogo,
        [&](std::size_t i, std::size_t n, const std::string& nombre) {
            avance.push_back(std::to_string(i) + "/" + std::to_string(n) + " " + nombre);
        });
    ASSERT_FALSE(r.fallo);
    EXPECT_EQ(avance.size(), 5u);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Actualización finalizada.\n2 personas liquidadas del mes 12/26.");
    EXPECT_EQ(dialogo.mensajes.back().titulo, "Mensaje de confirmación");

    // Agosto a noviembre: 120000 / 12 = 10000; MONTEPIO 1500, SNIS 300, FRL 10.
    const auto ana = pago("AGOSTO, ANA", diciembre);
    EXPECT_EQ(ana.size(), 8u);
    EXPECT_EQ(ana.at("Hab 08 1 AGUINALDO"), 30000);
    EXPECT_FALSE(ana.count("Hab 07 1 AGUINALDO"));
    EXPECT_EQ(ana.at("Des 12 MONTEPIO 15%"), 1500);
    EXPECT_EQ(ana.at("Des 12 SNIS 3%"), 300);
    // Ingresó en diciembre: el mes 11, aunque no estaba, en 0; y sus descuentos en 0.
    const auto diego = pago("DICIEMBRE, DIEGO", diciembre);
    EXPECT_EQ(diego.at("Hab 11 1 AGUINALDO"), 0);
    EXPECT_EQ(diego.at("Des 12 MONTEPIO 15%"), 0);
    EXPECT_TRUE(pago("FICTO, FEDE", diciembre).empty());
    EXPECT_TRUE(pago("SALIO, SARA", diciembre).empty());
    EXPECT_TRUE(pago("EGRESO, ELSA", diciembre).empty());

    // Una persona sola con egresos en el mes: el mensaje y nada escrito.
    dialogo.mensajes.clear();
    const auto elsa =
        haberesAguinaldoDeUnaPersona(*base, "ACME", "EGRESO, ELSA", diciembre, 1, dialogo);
    EXPECT_FALSE(elsa.hecho);
    EXPECT_EQ(dialogo.ultimoMensaje(), "El funcionario ya tiene liquidado conceptos en Egresos.");
    // Fuera de junio y diciembre no se liquida.
    EXPECT_FALSE(
        haberesAguinaldoDeUnaPersona(*base, "ACME", "AGOSTO, ANA", Mes{2026, 11}, 1, dialogo)
            .hecho);
    EXPECT_EQ(dialogo.ultimoMensaje(), kMesSinAguinaldo);
}

TEST_P(Aguinaldo, MontepioConMedioTopeYAportacion04) {
    ejecutar(
        "INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES ('TOPEAFAP', "
        "'2026-01-01', 100000)");
    persona("ALTO, ALDO",
            {{"fechaing", "2010-01-01"}, {"sueldo", "120000"}, {"socmedica", "SiCNoNoNo"}});
    persona("ALTO SIN TOPE, ALBA",
            {{"fechaing", "2010-01-01"}, {"sueldo", "120000"}, {"socmedica", "NoCNoNoNo"}});
    sueldoDeMeses("ALTO, ALDO", Mes{2025, 12}, Mes{2026, 5}, 120000);
    sueldoDeMeses("ALTO SIN TOPE, ALBA", Mes{2025, 12}, Mes{2026, 5}, 120000);
    aguinaldoDeLaEmpresa(*base, "ACME", junio, 1, dialogo);
    // 720000 / 12 = 60000 pasa la mitad del tope, 50000: 15% de 50000 = 7500.
    EXPECT_EQ(pago("ALTO, ALDO", junio).at("Des 06 MONTEPIO 15%"), 7500);
    // Sin "T.Afap/Perm." no hay tope: 15% de 60000.
    EXPECT_EQ(pago("ALTO SIN TOPE, ALBA", junio).at("Des 06 MONTEPIO 15%"), 9000);
    EXPECT_EQ(pago("ALTO, ALDO", junio).at("Des 06 SNIS 3%"), 1800);

    // Aportación 04: sin montepío, y PSNIS 3 - 3 = 0.
    empresa("RURAL", 8, "Rural - Otros");
    persona("CAMPO, CARLOS", {{"fechaing", "2010-01-01"}, {"sueldo", "24000"}}, "RURAL");
    sueldoDeMeses("CAMPO, CARLOS", Mes{2025, 12}, Mes{2026, 5}, 24000, "RURAL");
    aguinaldoDeLaEmpresa(*base, "RURAL", junio, 1, dialogo);
    const auto carlos = pago("CAMPO, CARLOS", junio);
    EXPECT_FALSE(carlos.count("Des 06 MONTEPIO 15%"));
    EXPECT_EQ(carlos.at("Des 06 SNIS 0%"), 0);
    EXPECT_EQ(carlos.at("Des 06 FRL 0.10%"), 12);  // 144000 / 12 = 12000 x 0.1%
}

TEST_P(Aguinaldo, ElDoceavoDeJunioCompletaElSNISDelMes) {
    persona(
        "GOMEZ, ANA",
        {{"fechaing", "2010-01-01"}, {"sueldo", "80000"}, {"tiposueldo", "S"}, {"sexocon", "MSi"}});
    sueldoDeMeses("GOMEZ, ANA", Mes{2025, 12}, Mes{2026, 6}, 80000);
    ASSERT_TRUE(descuentosDeUnaPersona(*base, "ACME", "GOMEZ, ANA", junio, dialogo).hecho);
    std::string texto;
    EXPECT_EQ(total("GOMEZ, ANA", junio, 502, &texto), 5200);  // 6.5% sin aguinaldo
    EXPECT_EQ(total("GOMEZ, ANA", junio, 510), 2064);

    aguinaldoDeLaEmpresa(*base, "ACME", junio, 1, dialogo);
    // El aguinaldo: 480000 / 12 = 40000, SNIS 3% = 1200.
    EXPECT_EQ(pago("GOMEZ, ANA", junio).at("Des 06 SNIS 3%"), 1200);
    ASSERT_TRUE(descuentosDeUnaPersona(*base, "ACME", "GOMEZ, ANA", junio, dialogo).hecho);
    // El mes completa el 6.5% del doceavo: 5200 + 40000 x 6.5% - 1200 = 6600.
    EXPECT_EQ(total("GOMEZ, ANA", junio, 502, &texto), 6600);
    EXPECT_EQ(texto, "SNIS AG. 3.5% + MG. 6.5%");
    // El IRPF del mes no cambia: el complemento se resta de los aportes
    // deducibles (6600 - 1400), así los aportes siguen en 17280 y el IRPF en
    // 4483.20 - 14% x 17280 = 2064.
    EXPECT_EQ(total("GOMEZ, ANA", junio, 510), 2064);
}

}  // namespace
}  // namespace nomira::engine
