// CalculoDiasaGozar y CalculoAntiguedad sobre la base, en los dos motores: las
// filas del año anterior, los períodos gozados, los avisos, el consejo de la
// empresa y las bases de los convenios.
#include <gtest/gtest.h>

#include "engine/apoyo_formula.h"
#include "engine/mes/licencia_lector.h"
#include "engine/mes/lectura.h"
#include "engine/mes/primas_antiguedad_lector.h"

namespace nomira::engine {
namespace {

class DiasLicenciaBase : public pruebas::BaseFormula {
  protected:
    void fila(const char* tabla, const std::string& fecha, const std::string& concepto,
              double cant) {
        base->ejecuta(std::string("INSERT INTO ") + tabla +
                          " (empresa, nombre, fecha, codigo, concepto, cant) VALUES ('ACME', ?, "
                          "?, 1, ?, ?)",
                      {c.nombre, fecha, concepto, cant});
    }
    std::optional<DiasLicencia> dias(PantallaLicencia p = PantallaLicencia::Form42) {
        auto l = leerCorrida(*base, "ACME", {2026, 1}, mesesDelRenglon({2026, 1}), c.nombre);
        auto* persona = l.persona(c.nombre);
        if (!persona) return std::nullopt;
        return CalculoDiasaGozar(*persona->ficha, persona->libro, 2026, dialogo, p);
    }
};
NOMIRA_PARA_CADA_MOTOR(DiasLicenciaBase);

TEST_P(DiasLicenciaBase, MensualConFaltasYDosPeriodos) {
    persona(c.nombre, {{"tiposueldo", "S"}, {"fechaing", "2020-03-15"}});
    fila("habydesc", "2025-05-01", "FALTAS", 20);
    fila("habydesc", "2025-07-01", "FALTAS 2DA ACT", 12);
    fila("habydesc", "2024-12-01", "FALTAS", 100);  // otro año
    fila("habydesc", "2026-01-01", "FALTAS", 100);
    fila("salvacacional", "2026-01-01", "SALARIO VACACIONAL", 5);
    fila("salvacacional", "2026-01-01", "SALARIO VACACIONAL 2DA ACT", 3);
    fila("salvacacional", "2026-03-01", "SALARIO VACACIONAL", 4);
    fila("salvacacional", "2026-03-01", "RET. JUD. S/VAC", 1);
    fila("salvacacional", "2025-08-01", "SALARIO VACACIONAL", 9);  // año anterior
    // 32 días de faltas: Int(32 / 15) = 2. Del 15/03/20 al 31/12/25, 2118 días,
    // 5,8 años: un día extra. 20 + 1 - 2 = 19; gozados 8 y 4: quedan 7.
    const auto r = dias();
    ASSERT_TRUE(r);
    EXPECT_EQ(r->cantdiasgenerados, 19);
    EXPECT_EQ(r->cantdiaspendientes, 7);
    EXPECT_EQ(r->traza,
              "El año de ingreso < año anterior\r\n"
              "20 días generados año ant. + 1 días extras por antig. - 2 faltas = 19\r\n"
              "19 - 8 días goz. per. 1 + 4 días goz. per. 2 = 7\r\n");
    EXPECT_TRUE(dialogo.mensajes.empty());
}

TEST_P(DiasLicenciaBase, CincoMesesDeGoceYElAvisoDeGozadosDeMas) {
    persona(c.nombre, {{"tiposueldo", "S"}, {"fechaing", "2023-01-01"}});
    for (int mes = 1; mes <= 5; ++mes)
        fila("salvacacional", "2026-0" + std::to_string(mes) + "-01", "SALARIO VACACIONAL",
             mes * 2);
    // Cuatro períodos: 2 + 4 + 6 + 8 = 20; el quinto queda afuera.
    auto r = dias();
    ASSERT_TRUE(r);
    EXPECT_EQ(r->diasgozados, (std::vector<double>{2, 4, 6, 8}));
    EXPECT_EQ(r->cantdiaspendientes, 0);
    EXPECT_TRUE(dialogo.mensajes.empty());
    fila("salvacacional", "2026-04-01", "SALARIO VACACIONAL", 1);
    r = dias();
    EXPECT_TRUE(r->gozadosDeMas);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "La cantdiasgenerados de PEREZ, JUAN es menor que la cantdiasgozados.");
    dialogo.mensajes.clear();
    dias(PantallaLicencia::Form76);  // incidencias: sólo la traza
    EXPECT_TRUE(dialogo.mensajes.empty());
}

TEST_P(DiasLicenciaBase, JornaleroYLoNoGozadoDeUnEgreso) {
    persona(c.nombre, {{"tiposueldo", "J"}, {"fechaing", "2024-06-01"}});
    fila("habydesc", "2025-03-01", "JORNALES", 150);
    fila("habydesc", "2025-04-01", "DOMINGO TRABAJADO", 30);
    fila("habydesc", "2025-05-01", "LICENCIA", 20);
    fila("habydesc", "2025-05-01", "FALTAS", 45);  // no cuentan
    fila("egresos", "2026-02-01", "LICENCIA NO GOZ AÑO ANTERIOR", 4);
    // (200 / 300) x 20 = 13,33; sin goce en salvacacional, el egreso es el período 1.
    const auto r = dias();
    ASSERT_TRUE(r);
    EXPECT_NEAR(r->cantdiasgenerados, 40.0 / 3, 1e-12);
    EXPECT_EQ(r->diasgozados, (std::vector<double>{4}));
    EXPECT_NEAR(r->cantdiaspendientes, 28.0 / 3, 1e-12);
}

TEST_P(DiasLicenciaBase, SinLicenciaQuienIngresoEsteAnio) {
    EXPECT_FALSE(dias());  // nadie con ese nombre: nada y sin aviso
    EXPECT_TRUE(dialogo.mensajes.empty());
    persona(c.nombre, {{"tiposueldo", "S"}, {"fechaing", "2026-02-01"}});
    EXPECT_FALSE(dias());
    ASSERT_EQ(dialogo.mensajes.size(), 1u);
    EXPECT_EQ(dialogo.mensajes[0].titulo, "Mensaje de información");
    EXPECT_EQ(dialogo.mensajes[0].texto,
              "A PEREZ, JUAN no le corresponde LICENCIA ya que ingresó en el año 2026 siendo "
              "mayor al año anterior 2025 o ya egresó de la empresa.");
}

class AntiguedadBase : public pruebas::BaseFormula {
  protected:
    void SetUp() override {
        BaseFormula::SetUp();
        if (IsSkipped()) return;
        base->ejecuta("INSERT INTO grupoconsal (nombre) VALUES ('10-Comercio')");
        base->ejecuta("INSERT INTO grupoconsal (nombre) VALUES ('02-Frigoríficos')");
        base->ejecuta(
            "INSERT INTO subgrupoconsal (nombre, nombre2) VALUES ('10-Comercio', '01-General')");
        base->ejecuta(
            "INSERT INTO subgrupoconsal (nombre, nombre2) VALUES ('02-Frigoríficos', "
            "'01-General')");
        base->ejecuta(
            "INSERT INTO empresas (empresa, grupoconsal, subgrupoconsal) VALUES ('ACME', "
            "'Comercio', 'General')");
        persona(c.nombre, {{"sueldo", "30000"},
                           {"fechaing", "2019-01-01"},
                           {"sector", "Administración"},
                           {"categoria", "Auxiliar"}});
    }
    void minimo(const std::string& categoria, const std::string& fechafin, double sueldo) {
        base->ejecuta(
            "INSERT INTO histsueldosmin (nombre, nombre2, nombre3, nombre4, fechaini, fechafin, "
            "sueldo) VALUES ('Comercio', 'General', 'Administración', ?, NULL, ?, ?)",
            {categoria, store::textoONulo(fechafin), sueldo});
    }
    std::optional<PrimaAntiguedad> prima() {
        const auto maestros = leerMaestros(*base, "ACME", {2026, 3});
        const auto persona = master::leerPersona(*base, "ACME", c.nombre);
        if (!persona) return std::nullopt;
        return CalculoAntiguedad(maestros, *persona, "", {2026, 3}, dialogo);
    }
};
NOMIRA_PARA_CADA_MOTOR(AntiguedadBase);

TEST_P(AntiguedadBase, SueldoMinimoDelCadeteYBPC) {
    minimo("Cadete", "2025-06-30", 20000);
    minimo("Cadete", "2026-06-30", 22000);
    minimo("Cadete", "", 99999);  // sin fin: no es la más nueva
    minimo("Auxiliar", "2026-06-30", 50000);
    // Grupo 10 subgrupo 1, miembro 6: 7,25 años al 31/03/26, 3 + 4 = 7% del
    // mínimo de Cadete más nuevo: 22000 x 7 / 100 = 1540.
    auto r = prima();
    ASSERT_TRUE(r);
    EXPECT_EQ(r->miembro, 6);
    EXPECT_EQ(r->total, common::Dinero::desdeDouble(1540));
    EXPECT_NE(r->explicacion.find("Antigüedad grupo 10 subgrupo 1 (miembro 6): 7 años → 7% de "
                                  "22,000.00"),
              std::string::npos);

    // Grupo 2 subgrupo 1, miembro 4: 2 x 7 = 14% de la BPC más nueva.
    base->ejecuta("UPDATE empresas SET grupoconsal = 'Frigoríficos'");
    variable("BPC", "2025-01-01", 6576);
    variable("BPC", "2026-01-01", 6864);
    r = prima();
    ASSERT_TRUE(r);
    EXPECT_EQ(r->miembro, 4);
    EXPECT_EQ(r->total, common::Dinero::desdeDouble(960.96));  // 6864 x 14 / 100

    // Un grupo sin convenio deja la fórmula.
    base->ejecuta("UPDATE empresas SET grupoconsal = 'Otro'");
    EXPECT_FALSE(prima());
    EXPECT_TRUE(dialogo.mensajes.empty());
}

// Los sueldos mínimos se leen con los maestros, antes de calcular: sin su tabla
// la corrida no empieza, en lugar de fallar a mitad de una persona.
TEST_P(AntiguedadBase, SinLaTablaDeSueldosMinimosNoSeEmpieza) {
    base->ejecuta("DROP TABLE histsueldosmin");
    EXPECT_THROW(prima(), common::Fallo);
    EXPECT_TRUE(dialogo.mensajes.empty());
}

}  // namespace
}  // namespace nomira::engine
