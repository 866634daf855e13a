// Las explicaciones guardadas junto a las filas: las deja cada generación y la
// fila tecleada, y se van con las filas que se borran.
#include <gtest/gtest.h>

#include "common/numeros.h"
#include "engine/descuentos.h"
#include "engine/explicaciones.h"
#include "engine/haberes.h"
#include "engine/renglon.h"
#include "pruebas_descuentos_escenario.h"

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

}  // namespace
}  // namespace nomira::engine
