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

    ASSERT_TRUE(DescPerm(*base, *variables, "ACME", "PEREZ, JUAN", marzo, dialogo).hecho);
    EXPECT_NE(explicacion(501).find("4,500.00"), std::string::npos) << explicacion(501);

    // Una licencia tecleada reescribe el SUELDO y dice por qué; el total
    // tecleado a mano queda dicho.
    ASSERT_GT(eliminarDescuentosDelMes(*base, "ACME", "PEREZ, JUAN", marzo, dialogo), 0);
    EXPECT_EQ(explicacion(501), "");
    EXPECT_NE(explicacion(1), "");
    auto mp = mesDe("PEREZ, JUAN", marzo);
    const auto b = buscarRenglon(*base, *mp, ctx, 20, dialogo);
    ASSERT_TRUE(b);
    const auto c = calcularRenglon(*base, *mp, ctx, b->concepto, "10", dialogo);
    ASSERT_TRUE(c);
    ASSERT_FALSE(guardarRenglon(*base, *mp, ctx, *c, "10", "9999", dialogo));
    EXPECT_NE(explicacion(20).find("Total tecleado: 9,999.00."), std::string::npos)
        << explicacion(20);
    EXPECT_EQ(explicacion(1), "Sueldo 30,000.00 menos la licencia 9,999.00 = 20,001.00.");

    // Al borrar la licencia el SUELDO vuelve al de la ficha, y la explicación también.
    dialogo.respuestas = {true};
    ASSERT_FALSE(eliminarRenglon(*base, *mp, b->concepto, dialogo));
    EXPECT_EQ(explicacion(20), "");
    EXPECT_EQ(explicacion(1), "Sueldo de la ficha: 30,000.00 (se borró la licencia).");
}

TEST_P(Explicaciones, LaCorridaDeLaEmpresaBorraLasDeLosDescuentosYDejaLasDeLosHaberes) {
    for (const char* n : {"PEREZ, JUAN", "GOMEZ, ANA"})
        persona(n, {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    ASSERT_FALSE(ActHamPermxEmpresa(*base, "ACME", marzo, dialogo).fallo);
    ASSERT_FALSE(ActDesPermxEmpresa(*base, *variables, "ACME", marzo, dialogo).fallo);
    const auto de = [&](const char* n, long codigo) {
        return leerExplicacion(*base, TablaLiquidacion::Habydesc, "ACME", n, marzo, codigo);
    };
    EXPECT_NE(de("GOMEZ, ANA", 501).find("4,500.00"), std::string::npos) << de("GOMEZ, ANA", 501);

    // Los haberes de la empresa borran antes los descuentos del mes.
    ASSERT_FALSE(ActHamPermxEmpresa(*base, "ACME", marzo, dialogo).fallo);
    for (const char* n : {"PEREZ, JUAN", "GOMEZ, ANA"}) {
        EXPECT_EQ(de(n, 501), "") << n;
        EXPECT_EQ(de(n, 510), "") << n;
        EXPECT_NE(de(n, 1).find("30,000.00"), std::string::npos) << n;
        // La segunda corrida junta con las que había: una fila por persona y tipo.
        EXPECT_EQ(base->consulta("SELECT COUNT(*) FROM explicacionesmes WHERE nombre = ? AND "
                                 "tipo = 'Hab'",
                                 {std::string(n)})
                      .primera()
                      .entero(0),
                  1)
            << n;
    }
}

// Una base de la versión 2 tenía una fila por fila liquidada; al ponerla al día
// quedan juntas por persona y mes, y se leen igual.
TEST_P(Explicaciones, LasDeUnaBaseAnteriorSeJuntanAlPonerlaAlDia) {
    ejecutar("DROP TABLE explicacionesmes");
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
    EXPECT_EQ(base->consulta("SELECT * FROM explicacionesmes").filas.size(), 2u);
    const auto tablas = store::tablasDeLaBase(*base);
    EXPECT_EQ(std::count(tablas.begin(), tablas.end(), "explicaciones"), 0);
}

// En la versión 3 las de haberes y descuentos iban en la misma fila: quedan sin
// tipo, se leen igual, y las que escribe después cada generación las reemplazan
// código por código sin que los descuentos reescriban los haberes.
TEST_P(Explicaciones, LasDeLaVersion3QuedanSinTipoYCedenAnteLasNuevas) {
    persona("PEREZ, JUAN", {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    ejecutar("DROP TABLE explicacionesmes");
    ejecutar(std::string("CREATE TABLE explicacionesmes (empresa TEXT, nombre TEXT, fecha ") +
             (esPostgres() ? "date" : "TEXT") + ", tabla TEXT, texto TEXT)");
    ejecutar(
        "INSERT INTO explicacionesmes VALUES ('ACME', 'PEREZ, JUAN', '2026-03-01', 'habydesc', "
        "?)",
        {std::string("1\x1fsueldo viejo\x1e"
                     "501\x1fmontepio viejo\x1e"
                     "20\x1flicencia vieja")});
    ejecutar("UPDATE versionesquema SET version = 3");
    store::migrar(*base);
    EXPECT_EQ(store::versionEsquema(*base), store::kVersionEsquema);
    EXPECT_EQ(explicacion(1), "sueldo viejo");
    EXPECT_EQ(explicacion(501), "montepio viejo");

    ASSERT_TRUE(generarHaberesPermanentes(*base, "ACME", "PEREZ, JUAN", marzo, dialogo).hecho);
    EXPECT_NE(explicacion(1).find("30,000.00"), std::string::npos) << explicacion(1);
    EXPECT_EQ(explicacion(501), "montepio viejo");
    ASSERT_TRUE(DescPerm(*base, *variables, "ACME", "PEREZ, JUAN", marzo, dialogo).hecho);
    EXPECT_NE(explicacion(501).find("4,500.00"), std::string::npos) << explicacion(501);
    EXPECT_NE(explicacion(1).find("30,000.00"), std::string::npos) << explicacion(1);
    const auto porTipo = base->consulta(
        "SELECT tipo, texto FROM explicacionesmes WHERE nombre = 'PEREZ, JUAN' ORDER BY tipo");
    ASSERT_EQ(porTipo.filas.size(), 3u);
    EXPECT_EQ(porTipo.filas[0].texto("tipo"), "");
    EXPECT_EQ(porTipo.filas[1].texto("tipo"), "Des");
    EXPECT_EQ(porTipo.filas[2].texto("tipo"), "Hab");
    // La fila de los descuentos no lleva la del SUELDO.
    EXPECT_EQ(porTipo.filas[1].texto("texto").find("[SUELDO]"), std::string::npos)
        << porTipo.filas[1].texto("texto");
    EXPECT_NE(porTipo.filas[2].texto("texto").find("[SUELDO]"), std::string::npos);

    // Sin la fila de la licencia, su explicación vieja se poda también.
    EXPECT_EQ(explicacion(20), "licencia vieja");
    podarExplicaciones(*base, TablaLiquidacion::Habydesc, "ACME", marzo, "PEREZ, JUAN");
    EXPECT_EQ(explicacion(20), "");
    EXPECT_NE(explicacion(501).find("4,500.00"), std::string::npos);
}

}  // namespace
}  // namespace nomira::engine
