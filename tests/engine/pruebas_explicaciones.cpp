// Las explicaciones guardadas junto a las filas: las deja cada generación y la
// fila tecleada, y se van con las filas que se borran.
#include <gtest/gtest.h>

#include <algorithm>

#include "common/numeros.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/explicaciones.h"
#include "engine/mes/haberes.h"
#include "engine/mes/renglon.h"
#include "pruebas_descuentos_escenario.h"
#include "store/crear.h"

namespace nomira::engine {
namespace {

class Explicaciones : public pruebas::EscenarioMes {
  protected:
    std::string explicacion(long codigo) {
        return leerExplicacion(*base, TablaLiquidacion::Habydesc, "ACME", "PEREZ, JUAN", marzo,
                               codigo);
    }
};
NOMIRA_PARA_CADA_MOTOR(Explicaciones);

TEST_P(Explicaciones, AcompananALasFilasYSeVanConEllas) {
    persona("PEREZ, JUAN", {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    ASSERT_TRUE(generarHaberesPermanentes(*base, "ACME", "PEREZ, JUAN", marzo, dialogo).hecho);
    EXPECT_NE(explicacion(1).find("[SUELDO]"), std::string::npos) << explicacion(1);
    EXPECT_NE(explicacion(1).find("30,000.00"), std::string::npos) << explicacion(1);

    ASSERT_TRUE(descuentosDeUnaPersona(*base, "ACME", "PEREZ, JUAN", marzo, dialogo).hecho);
    EXPECT_NE(explicacion(501).find("4,500.00"), std::string::npos) << explicacion(501);

    // Una licencia tecleada reescribe el SUELDO y dice por qué; el total
    // tecleado a mano queda dicho.
    ASSERT_GT(eliminarDescuentosDelMes(*base, "ACME", "PEREZ, JUAN", marzo, dialogo), 0);
    EXPECT_EQ(explicacion(501), "");
    EXPECT_NE(explicacion(1), "");
    auto mp = mesDe("PEREZ, JUAN", marzo);
    const auto b = buscarRenglon(*mp, ctx, 20, dialogo);
    ASSERT_TRUE(b);
    const auto c = calcularRenglon(*mp, ctx, b->concepto, "10", dialogo);
    ASSERT_TRUE(c);
    ASSERT_FALSE(guardarRenglon(*base, *mp, ctx, *c, "10", "9999", dialogo));
    EXPECT_NE(explicacion(20).find("Total tecleado: 9,999.00."), std::string::npos)
        << explicacion(20);
    EXPECT_EQ(explicacion(1), "Sueldo 30,000.00 menos la licencia 9,999.00 = 20,001.00.");

    // Al borrar la licencia el SUELDO vuelve al de la ficha, y la explicación también.
    dialogo.respuestas = {true};
    ASSERT_FALSE(eliminarRenglon(*base, *mp, ctx, b->concepto, dialogo));
    EXPECT_EQ(explicacion(20), "");
    EXPECT_EQ(explicacion(1), "Sueldo de la ficha: 30,000.00 (se borró la licencia).");
}

TEST_P(Explicaciones, LaCorridaDeLaEmpresaBorraLasDeLosDescuentosYDejaLasDeLosHaberes) {
    for (const char* n : {"PEREZ, JUAN", "GOMEZ, ANA"})
        persona(n, {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    ASSERT_FALSE(haberesDeLaEmpresa(*base, "ACME", marzo, dialogo).fallo);
    ASSERT_FALSE(descuentosDeLaEmpresa(*base, "ACME", marzo, dialogo).fallo);
    const auto de = [&](const char* n, long codigo) {
        return leerExplicacion(*base, TablaLiquidacion::Habydesc, "ACME", n, marzo, codigo);
    };
    EXPECT_NE(de("GOMEZ, ANA", 501).find("4,500.00"), std::string::npos) << de("GOMEZ, ANA", 501);

    // Los haberes de la empresa borran antes los descuentos del mes.
    ASSERT_FALSE(haberesDeLaEmpresa(*base, "ACME", marzo, dialogo).fallo);
    for (const char* n : {"PEREZ, JUAN", "GOMEZ, ANA"}) {
        EXPECT_EQ(de(n, 501), "") << n;
        EXPECT_EQ(de(n, 510), "") << n;
        EXPECT_NE(de(n, 1).find("30,000.00"), std::string::npos) << n;
        // Una explicación por fila: ni repetidas ni sueltas después de dos corridas.
        const auto cuenta = [&](const char* sql) {
            return base->consulta(sql, {std::string(n)}).primera().entero(0);
        };
        EXPECT_EQ(cuenta("SELECT COUNT(*) FROM explicaciones WHERE nombre = ?"),
                  cuenta("SELECT COUNT(*) FROM habydesc WHERE nombre = ?"))
            << n;
    }
}

// Una base de la versión 2 ya tenía una explicación por fila liquidada: al
// ponerla al día quedan como estaban.
TEST_P(Explicaciones, LasDeLaVersion2QuedanComoEstaban) {
    ejecutar("DROP TABLE explicaciones");
    ejecutar(std::string("CREATE TABLE explicaciones (empresa TEXT, nombre TEXT, fecha ") +
             (esPostgres() ? "date" : "TEXT") + ", tabla TEXT, codigo INTEGER, texto TEXT)");
    ejecutar(
        "INSERT INTO explicaciones VALUES ('ACME', 'PEREZ, JUAN', '2026-03-01', 'habydesc', 1, "
        "'Fórmula [SUELDO] = 30000'), ('ACME', 'PEREZ, JUAN', '2026-03-01', 'habydesc', 501, "
        "'tope'), ('ACME', 'GOMEZ, ANA', '2026-03-01', 'habydesc', 1, 'línea 1\nlínea 2')");
    ejecutar("UPDATE versionesquema SET version = 2");
    store::migrar(*base);
    EXPECT_EQ(store::versionEsquema(*base), store::kVersionEsquema);
    EXPECT_EQ(explicacion(1), "Fórmula [SUELDO] = 30000");
    EXPECT_EQ(explicacion(501), "tope");
    EXPECT_EQ(explicacion(2), "");
    EXPECT_EQ(leerExplicacion(*base, TablaLiquidacion::Habydesc, "ACME", "GOMEZ, ANA", marzo, 1),
              "línea 1\nlínea 2");
}

// En las versiones 3 y 4 las de una persona y mes iban juntas en un texto (en la
// 4, una fila por tipo; en la 3, sin tipo): al ponerla al día queda una por
// fila, la de tipo gana a la vieja sin tipo del mismo código y las de filas que
// ya no están no pasan. Después, cada generación reescribe las de sus filas y una
// fila borrada se lleva la suya.
TEST_P(Explicaciones, LasJuntasDeLasVersiones3y4QuedanUnaPorFila) {
    persona("PEREZ, JUAN", {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    fila("PEREZ, JUAN", marzo, 1, "SUELDO", "Hab", 1, 30000);
    fila("PEREZ, JUAN", marzo, 501, "MONTEPIO 15%", "Des", 1, 4500);
    ejecutar("DROP TABLE explicaciones");
    ejecutar(std::string("CREATE TABLE explicacionesmes (empresa TEXT, nombre TEXT, fecha ") +
             (esPostgres() ? "date" : "TEXT") + ", tabla TEXT, tipo TEXT, texto TEXT)");
    const std::string insertar =
        "INSERT INTO explicacionesmes VALUES ('ACME', 'PEREZ, JUAN', '2026-03-01', 'habydesc', ?, "
        "?)";
    ejecutar(insertar, {std::string(""), std::string("1\x1fsueldo viejo\x1e"
                                                     "501\x1fmontepio sin tipo\x1e"
                                                     "20\x1flicencia vieja")});
    ejecutar(insertar, {std::string("Des"), std::string("501\x1fmontepio viejo")});
    ejecutar("UPDATE versionesquema SET version = 4");
    store::migrar(*base);
    EXPECT_EQ(store::versionEsquema(*base), store::kVersionEsquema);
    const auto tablas = store::tablasDeLaBase(*base);
    EXPECT_EQ(std::count(tablas.begin(), tablas.end(), "explicacionesmes"), 0);
    EXPECT_EQ(explicacion(1), "sueldo viejo");
    EXPECT_EQ(explicacion(501), "montepio viejo");
    EXPECT_EQ(explicacion(20), "");  // no hay fila 20
    EXPECT_EQ(base->consulta("SELECT COUNT(*) FROM explicaciones").primera().entero(0), 2);

    ASSERT_TRUE(generarHaberesPermanentes(*base, "ACME", "PEREZ, JUAN", marzo, dialogo).hecho);
    EXPECT_NE(explicacion(1).find("30,000.00"), std::string::npos) << explicacion(1);
    // Los haberes borran los descuentos del mes, y la explicación se va con su fila.
    EXPECT_EQ(explicacion(501), "");
    ASSERT_TRUE(descuentosDeUnaPersona(*base, "ACME", "PEREZ, JUAN", marzo, dialogo).hecho);
    EXPECT_NE(explicacion(501).find("4,500.00"), std::string::npos) << explicacion(501);
    EXPECT_NE(explicacion(1).find("30,000.00"), std::string::npos) << explicacion(1);
}

}  // namespace
}  // namespace nomira::engine
