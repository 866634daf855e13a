// Los descuentos del mes de una persona y de la empresa: aportes bajo y sobre
// 2.5 BPC, la aportación 04, el IRPF con su texto, el arrastre de ADELANTOS y
// el adelanto de licencia de un jornalero con sus aportes de un momento.
#include <gtest/gtest.h>

#include "engine/mes/descuentos.h"
#include "engine/calculos/irp.h"
#include "engine/mes/irpf_licencia.h"
#include "pruebas_descuentos_escenario.h"

namespace nomira::engine {
namespace {

using pruebas::EscenarioMes;

TEST(IRP, ElPasoDeFranjaNoDejaUnNetoMenor) {
    const std::vector<FilaEscala> franjas = {{1, 0, 7, 0}, {2, 7, 10, 10}, {3, 10, 15, 15}};
    EXPECT_EQ(irpDe(40000, franjas, 6864), 0);  // 5.8 BPC, primera franja al 0%
    // 50000 al 10% deja 45000 de neto, menos que el tope de la franja anterior
    // (7 x 6864 = 48048): se cobra sólo lo que pasa del tope.
    EXPECT_EQ(irpDe(50000, franjas, 6864), 1952);
    EXPECT_EQ(irpDe(60000, franjas, 6864), 6000);  // neto 54000 > 48048: 10% entero
    EXPECT_EQ(irpDe(48048, franjas, 6864), 0);     // justo el borde: ya es la segunda, neto menor
    EXPECT_EQ(irpDe(200000, franjas, 6864), 0);    // fuera de toda franja
}

class Descuentos : public EscenarioMes {
  protected:
    // Un por hora con licencia y salario vacacional en el mes.
    void licenciaConVacacional() {
        persona("LOPEZ, EVA",
                {{"sueldo", "100"}, {"tiposueldo", "H"}, {"htrab", "8"}, {"sexocon", "MNo"}});
        fila("LOPEZ, EVA", marzo, 10, "HORAS", "Hab", 100, 10000);
        fila("LOPEZ, EVA", marzo, 20, "LICENCIA", "Hab", 20, 60000);
        ejecutar(
            "INSERT INTO salvacacional (empresa, nombre, fecha, codigo, concepto, cant, total) "
            "VALUES ('ACME', 'LOPEZ, EVA', ?, 606, 'SALARIO VACACIONAL', 20, 20000)",
            {marzo.primerDia().iso()});
    }
    // Sus descuentos del mes.
    void esperarAdelantoDeLicencia() {
        // 60000 + 20000 pasa 10 BPC: licencia x 1.06 = 63600; base 83600, nominal 63600.
        // Escala: 2059.20 + (83600 - 68640) x 15% = 2059.20 + 2244 = 4303.20.
        // Aportes de la licencia sobre 60000: 9000 + 4.5% 2700 + 60 = 11760; al 14%: 1646.40.
        // IRPF 2656.80; adelanto 20000 - 2656.80 = 17343.20.
        EXPECT_EQ(total("LOPEZ, EVA", marzo, 504), 17343.20);
        // Los aportes de un momento no quedaron: una fila de cada uno, la del mes
        // sobre el gravado 70000.
        EXPECT_EQ(cuantas("nombre = 'LOPEZ, EVA' AND concepto LIKE 'MONTEPIO%'"), 1);
        EXPECT_EQ(cuantas("nombre = 'LOPEZ, EVA' AND concepto LIKE 'SNIS%'"), 1);
        EXPECT_EQ(cuantas("nombre = 'LOPEZ, EVA' AND concepto LIKE 'FRL%'"), 1);
        EXPECT_EQ(total("LOPEZ, EVA", marzo, 501), 10500);
    }
};
NOMIRA_PARA_CADA_MOTOR(Descuentos);

TEST_P(Descuentos, MensualBajoYSobreDosYMedioBPC) {
    persona("PEREZ, JUAN",
            {{"nrofun", "12"}, {"sueldo", "15000"}, {"tiposueldo", "S"}, {"sexocon", "MNo"}});
    persona("GOMEZ, ANA",
            {{"nrofun", "13"}, {"sueldo", "80000"}, {"tiposueldo", "S"}, {"sexocon", "MSi"}});
    fila("PEREZ, JUAN", marzo, 1, "SUELDO", "Hab", 1, 15000);
    fila("GOMEZ, ANA", marzo, 1, "SUELDO", "Hab", 1, 80000);
    ejecutar(
        "INSERT INTO concpermxpers (empresa, nombre, codigo, concepto, tipo) VALUES ('ACME', "
        "'PEREZ, JUAN', 520, 'CUOTA SINDICAL', 'Des')");

    auto r = descuentosDeUnaPersona(*base, "ACME", "PEREZ, JUAN", marzo, dialogo);
    ASSERT_TRUE(r.hecho) << r.aviso;
    std::string texto;
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 501, &texto), 2250);  // 15%
    EXPECT_EQ(texto, "MONTEPIO 15%");
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 502, &texto), 450);  // bajo 17160, sin cónyuge: 3%
    EXPECT_EQ(texto, "SNIS 3%");
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 503), 15);
    // Bajo 7 BPC no hay impuesto: el texto lleva el monto de la base.
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 510, &texto), 0);
    EXPECT_EQ(texto, "IRPF     15,000.00      ");
    // El de la persona va después y ve el líquido: 15000 - 2250 - 450 - 15 = 12285.
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 520), 122.85);
    EXPECT_FALSE(total("PEREZ, JUAN", marzo, 500));  // ADELANTOS no es permanente
    EXPECT_FALSE(total("GOMEZ, ANA", marzo, 520));   // ni la cuota de otro
    ASSERT_EQ(r.filas.size(), 5u);
    EXPECT_EQ(r.filas[0].fila.codigo, 501);
    EXPECT_EQ(r.filas[4].fila.codigo, 520);

    r = descuentosDeUnaPersona(*base, "ACME", "GOMEZ, ANA", marzo, dialogo);
    ASSERT_TRUE(r.hecho);
    EXPECT_EQ(total("GOMEZ, ANA", marzo, 501), 12000);
    EXPECT_EQ(total("GOMEZ, ANA", marzo, 502, &texto), 5200);  // cónyuge, sin hijos: 6.5%
    EXPECT_EQ(texto, "SNIS 6.5%");
    EXPECT_EQ(total("GOMEZ, ANA", marzo, 503), 80);
    // Base 80000 + 6% = 84800. Escala: 20592 x 10% + 16160 x 15% = 2059.20 +
    // 2424 = 4483.20. Crédito 14% de los aportes 17280 = 2419.20 (el nominal
    // 80000 no pasa 15 BPC). 4483.20 - 2419.20 = 2064.
    EXPECT_EQ(total("GOMEZ, ANA", marzo, 510, &texto), 2064);
    EXPECT_EQ(texto, "IRPF   4,483 -    2,419");

    // Generar otra vez reescribe por código: las mismas filas, ninguna más.
    descuentosDeUnaPersona(*base, "ACME", "GOMEZ, ANA", marzo, dialogo);
    EXPECT_EQ(cuantas("nombre = 'GOMEZ, ANA' AND tipo = 'Des'"), 4);
    EXPECT_EQ(total("GOMEZ, ANA", marzo, 510), 2064);
}

TEST_P(Descuentos, EmpresaCuatroSinMontepioYEgresosNoSeTocan) {
    empresa("RURAL", 8, "Rural - Otros");
    persona("PEREZ, JUAN", {{"sueldo", "15000"}, {"tiposueldo", "S"}, {"sexocon", "MNo"}}, "RURAL");
    fila("PEREZ, JUAN", marzo, 1, "SUELDO", "Hab", 1, 15000, "RURAL");
    const auto r = descuentosDeUnaPersona(*base, "RURAL", "PEREZ, JUAN", marzo, dialogo);
    ASSERT_TRUE(r.hecho);
    std::string texto;
    EXPECT_FALSE(total("PEREZ, JUAN", marzo, 501));
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 502, &texto), 0);  // 3 - 3
    EXPECT_EQ(texto, "SNIS 0%");
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 503), 15);

    // Con egresos en el mes no se escribe nada y se avisa.
    persona("GOMEZ, ANA", {{"sueldo", "20000"}, {"tiposueldo", "S"}});
    fila("GOMEZ, ANA", marzo, 1, "SUELDO", "Hab", 1, 20000);
    ejecutar(
        "INSERT INTO egresos (empresa, nombre, fecha, codigo, concepto, tipo, total) VALUES "
        "('ACME', 'GOMEZ, ANA', ?, 1, 'SUELDO', 'Hab', 100)",
        {marzo.primerDia().iso()});
    const auto e = descuentosDeUnaPersona(*base, "ACME", "GOMEZ, ANA", marzo, dialogo);
    EXPECT_FALSE(e.hecho);
    EXPECT_EQ(dialogo.ultimoMensaje(), "El funcionario ya tiene liquidado conceptos en Egresos.");
    EXPECT_EQ(cuantas("nombre = 'GOMEZ, ANA' AND tipo = 'Des'"), 0);
}

TEST_P(Descuentos, MesAnteriorNegativoPasaComoAdelantos) {
    const common::Mes febrero{2026, 2};
    persona("PEREZ, JUAN", {{"sueldo", "15000"}, {"tiposueldo", "S"}, {"sexocon", "MNo"}});
    persona("LOPEZ, EVA", {{"sueldo", "100"}, {"tiposueldo", "H"}, {"htrab", "8"}});
    for (const char* n : {"PEREZ, JUAN", "LOPEZ, EVA"}) {
        fila(n, febrero, 1, "SUELDO", "Hab", 1, 1000);
        fila(n, febrero, 600, "RETENCION", "Des", 1, 1500);
    }
    fila("PEREZ, JUAN", marzo, 1, "SUELDO", "Hab", 1, 15000);
    fila("LOPEZ, EVA", marzo, 10, "HORAS", "Hab", 100, 10000);

    descuentosDeUnaPersona(*base, "ACME", "PEREZ, JUAN", marzo, dialogo);
    double cant = 0;
    // Febrero cerró en 1000 - 1500 = -500.
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 500, nullptr, &cant), 500);
    EXPECT_EQ(cant, 1);
    // ADELANTOS cuenta entre los descuentos pero no entre los legales: el
    // líquido sigue siendo 15000 - 2715 y la cuota no cambia si la hubiera.
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 501), 2250);

    // Un jornalero o por hora con un solo haber no arrastra.
    descuentosDeUnaPersona(*base, "ACME", "LOPEZ, EVA", marzo, dialogo);
    EXPECT_FALSE(total("LOPEZ, EVA", marzo, 500));
    EXPECT_EQ(total("LOPEZ, EVA", marzo, 501), 1500);
}

// Un por hora con licencia y salario vacacional en el mes: el adelanto es el
// vacacional menos el IRPF de licencia y vacacional, con los aportes de la
// licencia contados un momento y luego deshechos.
TEST_P(Descuentos, AdelantoDeLicenciaSinAportesQueQuedenDeMas) {
    licenciaConVacacional();
    const auto r = descuentosDeUnaPersona(*base, "ACME", "LOPEZ, EVA", marzo, dialogo);
    ASSERT_TRUE(r.hecho);
    esperarAdelantoDeLicencia();
    ASSERT_FALSE(r.filas.empty());
    EXPECT_EQ(r.filas[0].fila.codigo, 504);
}

// La corrida de la empresa sabe de una lectura quiénes tienen vacacional en el
// mes: a quien lo tiene le da lo mismo que sola.
TEST_P(Descuentos, EnLaCorridaDeLaEmpresaElVacacionalEsDeQuienLoTiene) {
    licenciaConVacacional();
    persona("SIN VACACIONAL, LUIS", {{"sueldo", "15000"}, {"tiposueldo", "S"}});
    fila("SIN VACACIONAL, LUIS", marzo, 1, "SUELDO", "Hab", 1, 15000);
    ASSERT_FALSE(descuentosDeLaEmpresa(*base, "ACME", marzo, dialogo).fallo);
    esperarAdelantoDeLicencia();
    EXPECT_EQ(total("SIN VACACIONAL, LUIS", marzo, 501), 2250);
}

// Un por hora cuyo único haber del mes es la licencia: sin complemento del
// aguinaldo en junio ni IRPF en diciembre.
TEST_P(Descuentos, PorHoraConUnSoloHaberEnJunioYDiciembre) {
    const common::Mes junio{2026, 6}, diciembre{2026, 12};
    persona("LOPEZ, EVA",
            {{"sueldo", "100"}, {"tiposueldo", "H"}, {"htrab", "8"}, {"sexocon", "MNo"}});
    for (const auto& m : {junio, diciembre}) {
        fila("LOPEZ, EVA", m, 20, "LICENCIA", "Hab", 20, m == junio ? 100000 : 1000000);
        ejecutar(
            "INSERT INTO aguinaldos (empresa, nombre, fecha, concepto, total, tipo) VALUES "
            "('ACME', 'LOPEZ, EVA', ?, 'AGUINALDO', 12000, 'Hab'), "
            "('ACME', 'LOPEZ, EVA', ?, 'SNIS 3%', 30, 'Des')",
            {m.primerDia().iso(), m.primerDia().iso()});
    }
    std::string texto;
    descuentosDeUnaPersona(*base, "ACME", "LOPEZ, EVA", junio, dialogo);
    EXPECT_EQ(total("LOPEZ, EVA", junio, 502, &texto), 4500);  // 100000 x 4.5%
    EXPECT_EQ(texto, "SNIS 4.5%");
    EXPECT_FALSE(total("LOPEZ, EVA", junio, 504));  // un solo haber: sin adelanto
    // 1100000 en el año pasa holgado los 10 BPC x 12 = 823680: por la escala
    // serían unos 66000 menos un crédito de unos 30000 y lo de junio; pero la
    // licencia sola no paga. Con otro haber, sí.
    descuentosDeUnaPersona(*base, "ACME", "LOPEZ, EVA", diciembre, dialogo);
    EXPECT_EQ(total("LOPEZ, EVA", diciembre, 510), 0);
    fila("LOPEZ, EVA", diciembre, 30, "PREMIO", "Hab", 1, 0);
    descuentosDeUnaPersona(*base, "ACME", "LOPEZ, EVA", diciembre, dialogo);
    EXPECT_GT(total("LOPEZ, EVA", diciembre, 510).value_or(0), 0);

    // Con otro haber en junio el SNIS completa el aguinaldo:
    // 4500 + 12000 / 12 x 4.5% - 30 = 4515.
    fila("LOPEZ, EVA", junio, 30, "PREMIO", "Hab", 1, 0);
    descuentosDeUnaPersona(*base, "ACME", "LOPEZ, EVA", junio, dialogo);
    EXPECT_EQ(total("LOPEZ, EVA", junio, 502, &texto), 4515);
    EXPECT_EQ(texto, "SNIS AG. 1.5% + MG. 4.5%");
}

TEST_P(Descuentos, UnFalloEnLosAportesDeLicenciaNoDejaFilas) {
    persona("LOPEZ, EVA", {{"sueldo", "100"}, {"tiposueldo", "H"}, {"htrab", "8"}});
    fila("LOPEZ, EVA", marzo, 20, "LICENCIA", "Hab", 20, 60000);
    ejecutar("UPDATE conceptos SET formula = '1/0' WHERE concepto = 'FRL'");
    const auto mp = mesDe("LOPEZ, EVA", marzo);
    ASSERT_TRUE(mp);
    // MONTEPIO y SNIS ya están calculados cuando FRL falla: quedaban en una copia.
    EXPECT_THROW(irpfConAportesDeLicencia(ctx, common::Dinero::desdeDouble(60000),
                                          common::Dinero::desdeDouble(60000),
                                          common::Dinero::desdeDouble(60000), dialogo),
                 common::Fallo);
    EXPECT_FALSE(mp->libro().tiene(TablaLiquidacion::Habydesc, marzo, "Des"));
    EXPECT_TRUE(mp->libro().cambiados().empty());
    EXPECT_EQ(cuantas("tipo = 'Des'"), 0);
    EXPECT_EQ(aportesDeLicencia(0, "04"), (std::vector<std::string>{"SNIS", "FRL"}));
    EXPECT_EQ(aportesDeLicencia(30, ""), (std::vector<std::string>{"MONTEPIO", "FRL"}));
}

TEST_P(Descuentos, TodaLaEmpresaConAvance) {
    persona("PEREZ, JUAN", {{"sueldo", "15000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    persona("SIN HABERES, LUIS", {{"sueldo", "15000"}, {"tiposueldo", "S"}});
    persona("NUEVA, ROSA", {{"sueldo", "15000"}, {"tiposueldo", "S"}, {"fechaing", "2026-04-02"}});
    persona("CON EGRESO, PIA", {{"sueldo", "15000"}, {"tiposueldo", "S"}});
    fila("PEREZ, JUAN", marzo, 1, "SUELDO", "Hab", 1, 15000);
    fila("NUEVA, ROSA", marzo, 1, "SUELDO", "Hab", 1, 15000);
    fila("CON EGRESO, PIA", marzo, 1, "SUELDO", "Hab", 1, 15000);
    ejecutar(
        "INSERT INTO egresos (empresa, nombre, fecha, codigo, concepto, tipo, total) VALUES "
        "('ACME', 'CON EGRESO, PIA', ?, 1, 'SUELDO', 'Hab', 100)",
        {marzo.primerDia().iso()});
    std::vector<std::string> avance;
    const auto r = descuentosDeLaEmpresa(
        *base, "ACME", marzo, dialogo,
        [&](std::size_t i, std::size_t n, const std::string& nombre) {
            avance.push_back(std::to_string(i) + "/" + std::to_string(n) + " " + nombre);
        });
    EXPECT_EQ(avance.size(), 4u);
    EXPECT_EQ(r.inactivas, std::vector<std::string>{"NUEVA, ROSA"});
    // Sólo PEREZ tenía haberes: es el único con descuentos.
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Actualización finalizada.\n1 persona liquidada del mes 03/26.");
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 501), 2250);
    EXPECT_EQ(cuantas("tipo = 'Des'"), 4);  // sólo los de PEREZ
}

TEST_P(Descuentos, BorrarLosDelMesPregunta) {
    persona("PEREZ, JUAN", {{"sueldo", "15000"}, {"tiposueldo", "S"}});
    fila("PEREZ, JUAN", marzo, 1, "SUELDO", "Hab", 1, 15000);
    fila("PEREZ, JUAN", marzo, 501, "MONTEPIO 15%", "Des", 1, 2250);
    ejecutar(
        "INSERT INTO salvacacional (empresa, nombre, fecha, codigo, concepto, total) VALUES "
        "('ACME', 'PEREZ, JUAN', ?, 606, 'SALARIO VACACIONAL', 1)",
        {marzo.primerDia().iso()});
    dialogo.respuestas = {false, true, true};
    EXPECT_EQ(eliminarDescuentosDelMes(*base, "ACME", "PEREZ, JUAN", marzo, dialogo), -1);
    EXPECT_EQ(eliminarDescuentosDelMes(*base, "ACME", "PEREZ, JUAN", marzo, dialogo), 1);
    EXPECT_EQ(dialogo.preguntas.back(), "Eliminar Desc.Perm.|¿Desea continuar?");
    EXPECT_EQ(eliminarHaberesDelMes(*base, "ACME", "PEREZ, JUAN", marzo, dialogo), 1);
    EXPECT_TRUE(base->consulta("SELECT * FROM salvacacional").vacio());
    EXPECT_EQ(cuantas("1 = 1"), 0);
}

}  // namespace
}  // namespace nomira::engine
