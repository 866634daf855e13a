// El porcentaje de SNIS dentro de una fórmula, y la mayoría de edad de los
// beneficiarios que lo decide.
#include <gtest/gtest.h>

#include "common/edad.h"
#include "engine/apoyo_formula.h"

namespace nomira::engine {
namespace {

using common::Dinero;

class Psnis : public pruebas::BaseFormula {
  protected:
    void SetUp() override {
        BaseFormula::SetUp();
        if (IsSkipped()) return;
        variable("BPC", "2025-01-01", 6576);
        variable("BPC", "2026-01-01", 6864);  // tope 2.5 BPC = 17160
    }
    double psnis(double montograv) {
        c.montograv = Dinero::desdeDouble(montograv);
        const double t = total("[PSNIS]");
        EXPECT_EQ(t, c.psnis);
        return t;
    }
};
NOMIRA_PARA_CADA_MOTOR(Psnis);

TEST_P(Psnis, PorMontoYConyuge) {
    persona("PEREZ, JUAN", {{"sexocon", "MNo"}});
    persona("GOMEZ, ANA", {{"sexocon", "FSi"}});
    EXPECT_EQ(psnis(17160), 3);  // justo 2.5 BPC, de la más nueva: primera fila
    EXPECT_EQ(psnis(17160.0001), 4.5);
    c.nombre = "GOMEZ, ANA";
    EXPECT_EQ(psnis(17160), 5);
    EXPECT_EQ(psnis(17161), 6.5);
    // Sin fila de personal: ni cónyuge ni hijos.
    c.nombre = "NADIE";
    EXPECT_EQ(psnis(17161), 4.5);
    // Aportación 04: tres menos.
    c.tipoaporte = "04";
    EXPECT_EQ(psnis(100), 0);
    EXPECT_EQ(psnis(17161), 1.5);
}

TEST_P(Psnis, HijosMenoresConCausa01o02) {
    // Período 02/26: es menor quien nació en 2008 desde febrero en adelante.
    persona("PEREZ, JUAN",
            {{"sexocon", "MSi"}, {"causaben", "01-Hijo"}, {"fechanacben", "2010-05-01"}});
    persona("MENOR2, SIN FECHA", {{"causaben3", "02-Hijo con discapacidad"}});
    persona("CAUSA03, X", {{"causaben", "03-Otro"}, {"fechanacben", "2015-01-01"}});
    persona("MAYOR, X", {{"causaben2", "01-Hijo"}, {"fechanacben2", "2008-01-31"}});
    persona("MAYORANT, X", {{"causaben", "01-Hijo"}, {"fechanacben", "2007-12-31"}});
    EXPECT_EQ(psnis(20000), 8);
    EXPECT_FALSE(c.esmayor);
    c.nombre = "MENOR2, SIN FECHA";
    EXPECT_EQ(psnis(20000), 6);
    c.nombre = "CAUSA03, X";
    EXPECT_EQ(psnis(20000), 4.5);
    // Cumplió 18 en enero del año límite: ya no cuenta, y sin aviso.
    c.nombre = "MAYOR, X";
    EXPECT_EQ(psnis(20000), 4.5);
    EXPECT_TRUE(c.esmayor);
    EXPECT_TRUE(dialogo.mensajes.empty());
    // Nacido antes del año límite: no cuenta y la pantalla avisa.
    c.nombre = "MAYORANT, X";
    EXPECT_EQ(psnis(20000), 4.5);
    ASSERT_EQ(dialogo.mensajes.size(), 1u);
    EXPECT_EQ(dialogo.mensajes[0].titulo, "Mensaje de advertencia");
    EXPECT_EQ(dialogo.mensajes[0].texto,
              "Uno de los hijos de este funcionario cumplió 18 años el año pasado, deberá "
              "quitarlo de Datos Beneficiarios.");
    // Por debajo del tope los hijos no cuentan.
    c.nombre = "PEREZ, JUAN";
    EXPECT_EQ(psnis(17000), 5);
}

TEST_P(Psnis, SoloDondeLaPantallaConocePSNIS) {
    variable("PSNIS", "2026-01-01", 9);
    nuevaCorrida();
    c.montograv = Dinero::desdeDouble(20000);
    EXPECT_EQ(total("[PSNIS]", opcionesForm76()), 9);
    EXPECT_EQ(c.psnis, 0);
    EXPECT_EQ(total("[MONTOGRAV]*[psnis]/100"), 900);
}

TEST(EsMayorde18, LimitesDelAnio) {
    using common::EsMayorde18;
    const common::Mes marzo26{2026, 3};
    pruebas::DialogoGuion d;
    EXPECT_TRUE(EsMayorde18("28/02/08", marzo26, &d));   // año límite, mes anterior
    EXPECT_FALSE(EsMayorde18("01/03/08", marzo26, &d));  // año límite, mismo mes
    EXPECT_FALSE(EsMayorde18("01/01/09", marzo26, &d));
    EXPECT_TRUE(d.mensajes.empty());
    EXPECT_TRUE(EsMayorde18("31/12/07", marzo26, &d));
    EXPECT_EQ(d.mensajes.size(), 1u);
    // Como se guarda en la base, igual que tecleada.
    EXPECT_TRUE(EsMayorde18("2008-02-28", marzo26, nullptr));
    EXPECT_FALSE(EsMayorde18("2008-03-01", marzo26, nullptr));
    // Nacimientos: 30..99 son del 1900, 00..29 del 2000.
    EXPECT_TRUE(EsMayorde18("01/01/30", marzo26, nullptr));
    EXPECT_FALSE(EsMayorde18("01/01/29", marzo26, nullptr));
    // El período siempre es 2000 + yy: un mes "03/99" es el de 2099.
    EXPECT_TRUE(EsMayorde18("01/01/80", *common::Mes::desdeTexto("03/99"), nullptr));
    EXPECT_TRUE(EsMayorde18("01/01/15", *common::Mes::desdeTexto("03/99"), nullptr));
}

TEST(EsMayorde18, MesDeReferencia) {
    pruebas::CarpetaTemporal tmp("10/01/2026");
    EXPECT_EQ(common::mesDeReferencia("05/25"), (common::Mes{2025, 5}));
    EXPECT_EQ(common::mesDeReferencia(""), (common::Mes{2025, 12}));
}

}  // namespace
}  // namespace nomira::engine
