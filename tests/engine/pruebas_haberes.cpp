// Haberes permanentes de Form42 sobre una empresa chica, en los dos motores.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "engine/apoyo_formula.h"
#include "engine/mes/haberes.h"
#include "engine/mes/horas.h"

namespace nomira::engine {
namespace {

class Haberes : public pruebas::BaseFormula {
  protected:
    void SetUp() override {
        BaseFormula::SetUp();
        if (IsSkipped()) return;
        base->ejecuta("INSERT INTO tipoaport (nombre) VALUES ('01-Industria y Comercio')");
        base->ejecuta("INSERT INTO grupoconsal (nombre) VALUES ('12-Hoteles')");
        base->ejecuta(
            "INSERT INTO subgrupoconsal (nombre, nombre2) VALUES ('12-Hoteles', '01-General')");
        base->ejecuta(
            "INSERT INTO empresas (empresa, nroemp, tipoaport, grupoconsal, subgrupoconsal) "
            "VALUES ('ACME', 1, 'Industria y Comercio', 'Hoteles', 'General')");
        concepto(1, "SUELDO", "S", "[SUELDO]", "Si");
        concepto(2, "ALIMENTACION", "G", "[SUELDO]/31", "Si");
        concepto(3, "JORNAL HORA", "H", "[SUELDO]*[HTRAB]*25", "Si");
        concepto(4, "DIASNOTRABAJADOS", "", "", "No");
        concepto(5, "SUELDO FICTO", "", "[CANTBFC]*1000", "No");
        concepto(6, "PREMIO", "G", "500", "No");
        concepto(7, "LICENCIA", "", "", "No");
        concepto(9, "HORAS EXTRA", "G", "", "No");
    }

    void concepto(long codigo, const std::string& nombre, const std::string& especifico,
                  const std::string& formula, const std::string& permanente) {
        base->ejecuta(
            "INSERT INTO conceptos (codigo, concepto, especificode, formula, tipo, unidad, "
            "permanente, gravado, aguinaldo, lic, ipd) VALUES (?, ?, ?, ?, 'Hab', 'I', ?, 'Si', "
            "'Si', 'No', 'Si')",
            {static_cast<std::int64_t>(codigo), nombre, especifico, formula, permanente});
    }
    void fila(const std::string& nombre, const std::string& fecha, long codigo,
              const std::string& concepto, const std::string& tipo, double cant, double total) {
        base->ejecuta(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, gravado, cant, "
            "total) VALUES ('ACME', ?, ?, ?, ?, ?, 'Si', ?, ?)",
            {nombre, fecha, static_cast<std::int64_t>(codigo), concepto, tipo, cant, total});
    }
    // Las filas del mes como "código concepto cant total".
    std::vector<std::string> filas(const std::string& nombre, const std::string& fecha) {
        std::vector<std::string> v;
        for (const auto& f :
             base->consulta("SELECT codigo, concepto, tipo, cant, total FROM habydesc WHERE "
                            "nombre = ? AND fecha = ? ORDER BY codigo",
                            {nombre, fecha})
                 .filas)
            v.push_back(f.texto("codigo") + " " + f.texto("concepto") + " " + f.texto("tipo") +
                        " " + store::textoDeNumero(f.real("cant")) + " " +
                        store::textoDeNumero(f.real("total")));
        return v;
    }
    ResultadoPersona generar(const std::string& nombre, common::Mes mes = {2026, 2}) {
        return generarHaberesPermanentes(*base, "ACME", nombre, mes, dialogo);
    }
};
NOMIRA_PARA_CADA_MOTOR(Haberes);

TEST_P(Haberes, MensualConSusPermanentesYLoTecleadoSeQueda) {
    persona(c.nombre, {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    persona("GOMEZ, ANA", {{"sueldo", "1"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    // PREMIO es sólo de Juan; SUELDO también figura en concpermxpers de Ana, y
    // el LEFT JOIN no debe repetirlo.
    base->ejecuta(
        "INSERT INTO concpermxpers (empresa, nombre, codigo, concepto, tipo) VALUES "
        "('ACME', 'PEREZ, JUAN', 6, 'PREMIO', 'Hab'), ('ACME', 'GOMEZ, ANA', 1, "
        "'SUELDO', 'Hab'), ('ACME', 'GOMEZ, ANA', 6, 'PREMIO', 'Hab')");
    fila(c.nombre, "2026-02-01", 9, "HORAS EXTRA", "Hab", 3, 1200);
    fila(c.nombre, "2026-02-01", 20, "IRPF", "Des", 1, 800);

    auto r = generar(c.nombre);
    ASSERT_TRUE(r.hecho);
    // 30000 / 31 = 967,74: ALIMENTACION sin decimales. Los descuentos se van,
    // HORAS EXTRA (tecleada) queda.
    const std::vector<std::string> esperadas = {"1 SUELDO Hab 1 30000", "2 ALIMENTACION Hab 1 967",
                                                "6 PREMIO Hab 1 500", "9 HORAS EXTRA Hab 3 1200"};
    EXPECT_EQ(filas(c.nombre, "2026-02-01"), esperadas);
    ASSERT_EQ(r.filas.size(), 3u);
    EXPECT_NE(r.filas[0].explicacion.find("[SUELDO]"), std::string::npos) << r.filas[0].explicacion;
    EXPECT_NE(r.filas[1].explicacion.find("967.00"), std::string::npos) << r.filas[1].explicacion;

    // Otra vez: las mismas filas, por código, sin duplicar.
    fila(c.nombre, "2026-02-01", 20, "IRPF", "Des", 1, 800);
    generar(c.nombre);
    EXPECT_EQ(filas(c.nombre, "2026-02-01"), esperadas);
    EXPECT_TRUE(dialogo.mensajes.empty());

    // Con egresos en el mes no se toca nada.
    base->ejecuta(
        "INSERT INTO egresos (empresa, nombre, fecha, codigo, concepto, tipo) VALUES "
        "('ACME', 'PEREZ, JUAN', '2026-02-01', 1, 'SUELDO', 'Hab')");
    fila(c.nombre, "2026-02-01", 20, "IRPF", "Des", 1, 800);
    r = generar(c.nombre);
    EXPECT_FALSE(r.hecho);
    EXPECT_EQ(dialogo.ultimoMensaje(), kYaEnEgresos);
    EXPECT_EQ(filas(c.nombre, "2026-02-01").size(), 5u);

    r = generar("NADIE");
    EXPECT_FALSE(r.hecho);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "El Nombre del Personal no existe en esta Empresa, deberá 1ero ingresarlo en la "
              "ventana Personal.");
}

// conceptos admite códigos repetidos: cada código da una sola fila.
TEST_P(Haberes, UnCodigoRepetidoEnConceptosDaUnaFila) {
    persona(c.nombre, {{"sueldo", "31000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    concepto(2, "ALIMENTACION", "G", "[SUELDO]/31", "Si");
    const auto r = generar(c.nombre);
    ASSERT_TRUE(r.hecho);
    EXPECT_EQ(r.filas.size(), 2u);
    EXPECT_EQ(filas(c.nombre, "2026-02-01"),
              (std::vector<std::string>{"1 SUELDO Hab 1 31000", "2 ALIMENTACION Hab 1 1000"}));
}

TEST_P(Haberes, IngresoAMitadDeMesPierdeLosDias) {
    persona("TREINTAYUNO", {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"fechaing", "2026-01-31"}});
    persona("FEBRERO", {{"sueldo", "24000"}, {"tiposueldo", "S"}, {"fechaing", "2026-02-28"}});
    persona("PRIMERO", {{"sueldo", "24000"}, {"tiposueldo", "S"}, {"fechaing", "2026-02-01"}});
    persona("QUINCE", {{"sueldo", "24000"}, {"tiposueldo", "S"}, {"fechaing", "2026-02-15"}});

    // El 31 cuenta como 30: se pierden 29 días, -(30000 / 30 x 29) = -29000.
    generar("TREINTAYUNO", {2026, 1});
    EXPECT_EQ(filas("TREINTAYUNO", "2026-01-01"),
              (std::vector<std::string>{"1 SUELDO Hab 1 30000", "2 ALIMENTACION Hab 1 967",
                                        "4 DIASNOTRABAJADOS Hab 29 -29000"}));
    // Un 28 de febrero común también es 30: -(24000 / 30 x 29) = -23200.
    // 24000 / 31 = 774,19 -> 774.
    generar("FEBRERO");
    EXPECT_EQ(filas("FEBRERO", "2026-02-01"),
              (std::vector<std::string>{"1 SUELDO Hab 1 24000", "2 ALIMENTACION Hab 1 774",
                                        "4 DIASNOTRABAJADOS Hab 29 -23200"}));
    // El 15: 14 días, -(24000 / 30 x 14) = -11200. El 1: ninguna fila.
    generar("QUINCE");
    EXPECT_EQ(filas("QUINCE", "2026-02-01").back(), "4 DIASNOTRABAJADOS Hab 14 -11200");
    generar("PRIMERO");
    EXPECT_EQ(filas("PRIMERO", "2026-02-01").size(), 2u);

    // Ingresar en el mes siguiente no es ingresar a mitad de este.
    EXPECT_EQ(diasNoTrabajados("2026-03-31", {2026, 2}), 0);
    // En un febrero bisiesto el 29 es el último (28 días perdidos... como 30: 29).
    EXPECT_EQ(diasNoTrabajados("2024-02-29", {2024, 2}), 29);
    EXPECT_EQ(diasNoTrabajados("2024-02-28", {2024, 2}), 27);
}

TEST_P(Haberes, LicenciaEnElGrupo12DivideEn25) {
    persona(c.nombre, {{"sueldo", "25000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    fila(c.nombre, "2026-02-01", 7, "LICENCIA", "Hab", 10, 9000);
    auto r = generar(c.nombre);
    // 25000 / 25 x (25 - 10) = 15000.
    EXPECT_EQ(filas(c.nombre, "2026-02-01").front(), "1 SUELDO Hab 1 15000");
    EXPECT_NE(r.filas[0].explicacion.find("licencia"), std::string::npos);

    // Dos filas de licencia, una sobre lo que dejó la otra: 15000 / 25 x 20 = 12000.
    fila(c.nombre, "2026-02-01", 8, "LICENCIA", "Hab", 5, 4500);
    generar(c.nombre);
    EXPECT_EQ(filas(c.nombre, "2026-02-01").front(), "1 SUELDO Hab 1 12000");
}

TEST_P(Haberes, PorHoraConSusConceptos) {
    persona(c.nombre, {{"sueldo", "200"}, {"tiposueldo", "H"}, {"htrab", "8"}});
    generar(c.nombre);
    // 200 x 8 x 25 = 40000; 200 / 31 = 6,45 -> 6; SUELDO es sólo de mensuales.
    EXPECT_EQ(filas(c.nombre, "2026-02-01"),
              (std::vector<std::string>{"2 ALIMENTACION Hab 1 6", "3 JORNAL HORA Hab 1 40000"}));
}

TEST_P(Haberes, SueldoFictoTomaElMayorSueldoDeLaEmpresa) {
    persona("ANA", {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    persona("DUEÑO", {{"sueldo", "90000"},
                      {"tiposueldo", "S"},
                      {"fechaing", "2020-01-01"},
                      {"vinculofun", "Patron Unipersonal"}});
    persona("FICTO", {{"cantbfc", "20"}, {"fechaing", "2020-01-01"}});
    persona("ENTERO", {{"cantbfc", "30"}, {"fechaing", "2020-01-01"}});

    // Las de cantbfc van últimas: cuando llegan, ANA (30967) ya está escrita;
    // el dueño no cuenta.
    const auto r = haberesDeLaEmpresa(*base, "ACME", {2026, 2}, dialogo);
    EXPECT_FALSE(r.fallo);
    ASSERT_EQ(r.personas.size(), 4u);
    EXPECT_EQ(r.personas[2].nombre, "FICTO");
    EXPECT_EQ(filas("FICTO", "2026-02-01"),
              (std::vector<std::string>{"5 SUELDO FICTO Hab 1 30967"}));
    // cantbfc 30 se queda con su fórmula: 30 x 1000.
    EXPECT_EQ(filas("ENTERO", "2026-02-01"),
              (std::vector<std::string>{"5 SUELDO FICTO Hab 1 30000"}));
    ASSERT_EQ(dialogo.mensajes.size(), 1u);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "El SUELDO FICTO de FICTO corresponde a ANA que es el mayor sueldo.");
}

// cantbfc es texto y la corrida ordena por el texto: "50" va antes que "6".
// ANA cobra 30000 + 30000 / 31 de alimentación = 30967,74 (sin decimales en la
// alimentación: 30967). SEIS (6 x 1000 = 6000) llega después que CINCUENTA
// (50 x 1000 = 50000) y toma su 50000 como el mayor sueldo; por número habría
// llegado antes y tomado los 30967 de ANA.
TEST_P(Haberes, LosFictosVanPorElTextoDeCantbfc) {
    persona("ANA", {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    persona("SEIS", {{"cantbfc", "6"}, {"fechaing", "2020-01-01"}});
    persona("CINCUENTA", {{"cantbfc", "50"}, {"fechaing", "2020-01-01"}});
    const auto r = haberesDeLaEmpresa(*base, "ACME", {2026, 2}, dialogo);
    EXPECT_FALSE(r.fallo);
    ASSERT_EQ(r.personas.size(), 3u);
    EXPECT_EQ(r.personas[1].nombre, "CINCUENTA");
    EXPECT_EQ(filas("CINCUENTA", "2026-02-01"),
              (std::vector<std::string>{"5 SUELDO FICTO Hab 1 50000"}));
    EXPECT_EQ(filas("SEIS", "2026-02-01"),
              (std::vector<std::string>{"5 SUELDO FICTO Hab 1 50000"}));
}

// El archivo de horas llega a cada persona antes de ver si trabaja en el mes:
// quien egresó el mes anterior igual recibe sus líneas, y nada más.
TEST_P(Haberes, LasHorasLleganAntesDeVerSiTrabajaEnElMes) {
    persona("IDO", {{"nrofun", "7"},
                    {"sueldo", "100"},
                    {"tiposueldo", "H"},
                    {"htrab", "8"},
                    {"fechaing", "2020-01-01"},
                    {"fechaeg", "2026-01-20"}});
    const auto carpeta = tmp.ruta() / "Software" / "Nomira";
    std::filesystem::create_directories(carpeta);
    std::ofstream(carpeta / "horas.txt") << (tmp.ruta() / "HS").string() << "\n";
    std::ofstream(rutaArchivoHoras((tmp.ruta() / "HS").string(), {2026, 2}, "1")) << "7|9|12\n";
    concepto(8, "JORNAL", "H", "[SUELDO]*[CANT]", "Si");
    base->ejecuta("UPDATE conceptos SET formula = '[SUELDO]*[CANT]' WHERE codigo = 9");
    const auto r = haberesDeLaEmpresa(*base, "ACME", {2026, 2}, dialogo, conArchivoDeHoras());
    EXPECT_FALSE(r.fallo);
    EXPECT_EQ(r.inactivas, std::vector<std::string>{"IDO"});
    // 12 horas de 100; los permanentes (JORNAL) no se generan.
    EXPECT_EQ(filas("IDO", "2026-02-01"),
              (std::vector<std::string>{"9 HORAS EXTRA Hab 12 1200"}));
}

// Un sueldo guardado que no es número no se liquida en 0: se avisa y no se
// escribe nada. Una fórmula que no se puede evaluar dice en qué concepto está.
TEST_P(Haberes, SueldoQueNoEsNumeroYFormulaRota) {
    persona("ANA", {{"sueldo", "abc"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    const auto r = generar("ANA");
    EXPECT_FALSE(r.hecho);
    EXPECT_EQ(r.aviso,
              "El sueldo de ANA no es un número (\"abc\"): corríjalo en la ventana Personal. No "
              "se liquidó.");
    EXPECT_EQ(dialogo.ultimoMensaje(), r.aviso);
    EXPECT_TRUE(filas("ANA", "2026-02-01").empty());

    base->ejecuta("UPDATE personal SET sueldo = '30000' WHERE nombre = 'ANA'");
    base->ejecuta("UPDATE conceptos SET formula = '([SUELDO]' WHERE codigo = 2");
    try {
        generar("ANA");
        ADD_FAILURE() << "la fórmula rota no falló";
    } catch (const common::Fallo& f) {
        EXPECT_NE(f.descripcion().find("\nEn el concepto 2 ALIMENTACION, fórmula ([SUELDO]"),
                  std::string::npos)
            << f.descripcion();
    }
    EXPECT_TRUE(filas("ANA", "2026-02-01").empty());
}

}  // namespace
}  // namespace nomira::engine
