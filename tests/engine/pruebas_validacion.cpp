// La validación del mes: cada control con quien lo dispara y quien no, en el
// orden de la serie, avisados uno por uno o devueltos juntos.
#include <gtest/gtest.h>

#include "engine/validacion/validacion.h"
#include "master/personal.h"
#include "pruebas_descuentos_escenario.h"

namespace nomira::engine {
namespace {

class Validacion : public pruebas::EscenarioMes {
  protected:
    void SetUp() override {
        EscenarioMes::SetUp();
        if (IsSkipped()) return;
        ejecutar(
            "INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES ('SALMIN', "
            "'2026-01-01', 24000)");
        ejecutar("INSERT INTO segurosalud (nombre) VALUES ('09-Sin cobertura')");
    }
    // Alguien que no dispara nada por sí mismo: sucursal, nacido después de 1956
    // con tope de AFAP, sueldo sobre el SALMIN.
    void persona(const std::string& nombre,
                 std::initializer_list<std::pair<std::string, std::string>> mas) {
        std::vector<std::pair<std::string, std::string>> c = {
            {"nrosuc", "1"},     {"fechanac", "1980-05-05"}, {"socmedica", "SiCNoNoNo"},
            {"tiposueldo", "S"}, {"sueldo", "30000"},        {"fechaing", "2020-01-01"}};
        for (const auto& m : mas) {
            auto it = std::find_if(c.begin(), c.end(), [&](auto& x) { return x.first == m.first; });
            if (it != c.end())
                it->second = m.second;
            else
                c.push_back(m);
        }
        std::string cols = "empresa, nombre", marcas = "'ACME', ?";
        std::vector<store::Valor> v = {nombre};
        for (const auto& [col, val] : c) {
            cols += ", " + col;
            marcas += ", ?";
            v.push_back(val);
        }
        ejecutar("INSERT INTO personal (" + cols + ") VALUES (" + marcas + ")", v);
    }
    std::vector<std::string> hallazgos() {
        std::vector<std::string> r;
        for (const auto& h : validarMes(*base, "ACME", marzo, dialogo, false))
            r.push_back(std::to_string(h.control) + " " + h.nombre);
        return r;
    }
};
NOMIRA_PARA_CADA_MOTOR(Validacion);

TEST_P(Validacion, SinPersonasSoloElMensajeFinal) {
    EXPECT_TRUE(validarMes(*base, "ACME", marzo, dialogo).empty());
    ASSERT_EQ(dialogo.mensajes.size(), 1u);
    EXPECT_EQ(dialogo.ultimoMensaje(), kValidacionTerminada);
    EXPECT_EQ(dialogo.mensajes.back().titulo, "Mensaje de confirmación");
    validarMes(*base, "", marzo, dialogo);
    EXPECT_EQ(dialogo.ultimoMensaje(), kFaltanCamposValidacion);
}

TEST_P(Validacion, CadaControlConQuienLoDispara) {
    persona("A EMPLEADA", {});
    fila("A EMPLEADA", marzo, 1, "SUELDO", "Hab", 1, 30000);
    // 2: el patrón gana menos que el mayor sueldo (10 no lo nombra: tiene siete
    // empleados, más de cinco).
    persona("B PATRON", {{"vinculofun", "Patron Unipersonal"}, {"segurosalud", "Sin cobertura"}});
    fila("B PATRON", marzo, 1, "SUELDO", "Hab", 1, 20000);
    // 3: jornal 900 < 24000 / 25; el por hora de 4 horas, 100 >= 24000 x 4 / 8 / 200.
    persona("C JORNALERO", {{"tiposueldo", "J"}, {"sueldo", "900"}});
    persona("D POR HORA", {{"tiposueldo", "H"}, {"sueldo", "100"}, {"htrab", "4"}});
    // 4: sin sucursal.
    persona("E SIN SUCURSAL", {{"nrosuc", ""}});
    // 9: nacida en 1950 y gravado sobre el tope; nacido en 1980 sin tope de AFAP.
    persona("F MAYOR", {{"fechanac", "1950-01-01"}});
    fila("F MAYOR", marzo, 1, "SUELDO", "Hab", 1, 120000);
    persona("G SIN TOPE", {{"socmedica", "NoCNoNoNo"}});
    // 11: 10000 gravados y 8000 de adelanto: 2000 < 10000 x 35% = 3500.
    persona("H ADELANTADO", {});
    fila("H ADELANTADO", marzo, 1, "SUELDO", "Hab", 1, 10000);
    fila("H ADELANTADO", marzo, 500, "ADELANTOS", "Des", 1, 8000);
    // Quien ingresa después del mes no cuenta.
    persona("I FUTURO", {{"nrosuc", ""}, {"fechaing", "2026-05-01"}});

    EXPECT_EQ(hallazgos(),
              (std::vector<std::string>{"2 B PATRON", "3 C JORNALERO", "4 E SIN SUCURSAL",
                                        "9 F MAYOR", "9 G SIN TOPE", "11 H ADELANTADO"}));
    const auto todos = validarMes(*base, "ACME", marzo, dialogo);
    EXPECT_EQ(todos.front().texto,
              "El montogravado de B PATRON está por debajo del sueldo de F MAYOR (que es el mayor "
              "sueldo de todos los empleados).");
    EXPECT_EQ(todos[4].titulo, "Mensaje de error");
    EXPECT_EQ(todos.back().texto,
              "El Líquido a Cobrar de H ADELANTADO está por debajo del mínimo intangible que es "
              "3500.");
    // Uno por uno, con el final.
    EXPECT_EQ(dialogo.mensajes.size(), todos.size() + 1);
}

TEST_P(Validacion, ElPatronConPocosEmpleadosNoLlevaSeguro09NiContribuyente01) {
    ejecutar("INSERT INTO tipocontrib (nombre) VALUES ('01-Unipersonal')");
    ejecutar("UPDATE empresas SET tipocontrib = 'Unipersonal'");
    persona("B PATRON", {{"vinculofun", "Patron Unipersonal"}, {"segurosalud", "Sin cobertura"}});
    persona("A EMPLEADA", {});
    persona("C EMPLEADO", {});
    const auto h = validarMes(*base, "ACME", marzo, dialogo, false);
    ASSERT_EQ(h.size(), 2u);
    EXPECT_EQ(
        h[0].texto,
        "B PATRON es Patron Unipersonal y en Personal tiene Seguro salud 09 siendo 2 la cant. "
        "de empleados.");
    EXPECT_EQ(
        h[1].texto,
        "B PATRON es Patron Unipersonal y en Empresas tiene Tipo Contribuyente 01 siendo 2 la "
        "cant. de empleados.");
    EXPECT_EQ(h[1].titulo, "Mensaje de error");
    EXPECT_TRUE(dialogo.mensajes.empty());  // devueltos juntos, sin avisar
}

TEST_P(Validacion, SeguroDeMesesCortosUnSoloSeguroFeriadosYEgresos) {
    ejecutar("INSERT INTO segurosalud (nombre) VALUES ('01-Fonasa')");
    // Una sucursal abre un 19 de marzo: marzo es mes de feriado pago.
    ejecutar("UPDATE empresas SET fechainiact2 = '2020-03-19'");
    // 1: diez días (30 - 20 de faltas) y 3000 gravados < 1,25 x 6864 = 8580, con
    // Fonasa; quien ingresó en el mes no se nombra.
    persona("L CORTO", {{"segurosalud", "Fonasa"}});
    fila("L CORTO", marzo, 1, "SUELDO", "Hab", 1, 3000);
    fila("L CORTO", marzo, 40, "FALTAS", "Hab", 20, 0);
    persona("M INGRESO", {{"segurosalud", "Fonasa"}, {"fechaing", "2026-03-20"}});
    fila("M INGRESO", marzo, 1, "SUELDO", "Hab", 1, 3000);
    // 5: Fonasa en dos actividades activas.
    persona("N DOBLE",
            {{"segurosalud", "Fonasa"}, {"fechaing2", "2020-01-01"}, {"segurosalud2", "Fonasa"}});
    fila("N DOBLE", marzo, 1, "SUELDO", "Hab", 1, 30000);
    // 7: un jornalero con su feriado pago y otro sin él.
    persona("J JORNALERO", {{"tiposueldo", "J"}});
    fila("J JORNALERO", marzo, 35, "FERIADO PAGO", "Hab", 1, 1200);
    persona("K JORNALERO", {{"tiposueldo", "J"}});
    // 8: egresa en marzo con filas en habydesc y en egresos.
    persona("O EGRESA", {{"fechaeg", "2026-03-31"}});
    fila("O EGRESA", marzo, 1, "SUELDO", "Hab", 1, 30000);
    ejecutar(
        "INSERT INTO egresos (empresa, nombre, fecha, codigo, concepto, tipo, total) VALUES "
        "('ACME', 'O EGRESA', '2026-03-01', 1, 'SUELDO', 'Hab', 30000)");

    EXPECT_EQ(hallazgos(),
              (std::vector<std::string>{"1 L CORTO", "5 N DOBLE", "7 K JORNALERO", "8 O EGRESA"}));
    const auto h = validarMes(*base, "ACME", marzo, dialogo, false);
    EXPECT_EQ(
        h[2].texto,
        "El funcionario K JORNALERO no tiene liquidado el concepto FERIADO PAGO, siendo J o H "
        "y estando en el mes de cargo 03/26.");
}

TEST_P(Validacion, ElSeguroDeSaludContraLosBeneficiarios) {
    for (const char* s : {"01-Fonasa con hijos", "15-Fonasa sin hijos", "02-Fonasa conyuge"})
        ejecutar("INSERT INTO segurosalud (nombre) VALUES (?)", {std::string(s)});
    const auto revisar = [&](std::initializer_list<std::pair<std::string, std::string>> c) {
        ejecutar("DELETE FROM personal");
        persona("P PADRE", c);
        const auto p = master::leerPersona(*base, "ACME", "P PADRE");
        return validarSeguroSalud(*base, *p, marzo, dialogo);
    };
    // Fonasa con hijos sin beneficiarios: que los complete.
    EXPECT_EQ(revisar({{"segurosalud", "Fonasa con hijos"}}),
              (std::vector<std::string>{
                  "Deberá completar los campos en Datos Beneficiarios de P PADRE con al menos 1 "
                  "hijo ya que el código de Seguro de salud es 1."}));
    // Un hijo de 10 años lo cumple; uno de 20 ya no cuenta.
    EXPECT_TRUE(revisar({{"segurosalud", "Fonasa con hijos"},
                         {"causaben", "01-Hijo"},
                         {"fechanacben", "2016-05-05"}})
                    .empty());
    EXPECT_EQ(revisar({{"segurosalud", "Fonasa con hijos"},
                       {"causaben", "01-Hijo"},
                       {"fechanacben", "2006-01-05"}})
                  .size(),
              1u);
    // Sin hijos con un hijo cargado, en la segunda actividad: que lo vacíe.
    EXPECT_EQ(revisar({{"segurosalud2", "Fonasa sin hijos"},
                       {"causaben", "01-Hijo"},
                       {"fechanacben", "2016-05-05"}}),
              (std::vector<std::string>{
                  "En Datos Beneficiarios los campos deberán estar vacíos ya que el código de "
                  "Seguro de salud es 15."}));
    EXPECT_EQ(revisar({{"segurosalud3", "Fonasa conyuge"}}),
              (std::vector<std::string>{
                  "Deberá completar los campos en Datos Beneficiarios de P PADRE con al menos 1 "
                  "hijo ya que el código de Seguro de salud es 2."}));
}

}  // namespace
}  // namespace nomira::engine
