// Conceptos: la modificación que reescribe las liquidaciones, el descuento que
// sólo puede ser General, el borrado con sus permanentes, el listado impreso.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "common/texto.h"
#include "master/conceptos.h"

namespace nomira::master {
namespace {

Concepto concepto(const std::string& codigo, const std::string& nombre, const std::string& tipo,
                  const std::string& especificode = "G") {
    return {codigo, nombre, especificode, "[SUELDO]", tipo, "I", "Si", "Si", "Si", "Si", "No"};
}

class Conceptos : public store::prueba::BasePrueba {
  protected:
    void liquidado(const std::string& tabla, long codigo, const std::string& nombre) {
        c().ejecuta("INSERT INTO " + tabla +
                        " (empresa, nombre, fecha, codigo, concepto, tipo, unidad, permanente, "
                        "gravado, aguinaldo, cant, total, lic, ipd) VALUES ('E', 'P, A', "
                        "'2026-01-01', ?, ?, 'Hab', 'I', 'Si', 'Si', 'Si', 1, 1234.5, 'Si', 'Si')",
                    {std::int64_t{codigo}, nombre});
    }
    std::string texto(const std::string& sql) { return c().consulta(sql).primera().texto(0); }
};
NOMIRA_PARA_CADA_MOTOR(Conceptos);

TEST_P(Conceptos, ModificarReescribeLasCuatroTablasDeLiquidacion) {
    agregarConcepto(c(), concepto("10", "HORAS EXTRA", "Hab"));
    liquidado("habydesc", 10, "HORAS EXTRA");
    liquidado("habydesc", 11, "OTRO");
    liquidado("egresos", 10, "HORAS EXTRA");
    // En aguinaldos sólo las filas cuyo `mes` guarda el código son del concepto.
    c().ejecuta("INSERT INTO aguinaldos (empresa, nombre, fecha, mes, concepto, total, tipo) VALUES "
                "('E', 'P, A', '2026-06-01', '10', 'HORAS EXTRA', 50, 'Hab'), "
                "('E', 'P, A', '2026-06-01', '01/26', 'HORAS EXTRA', 60, 'Hab')");
    c().ejecuta("INSERT INTO salvacacional (empresa, nombre, fecha, codigo, concepto, unidad, cant, "
                "total) VALUES ('E', 'P, A', '2026-01-01', 10, 'HORAS EXTRA', 'I', 1, 70)");

    auto nuevo = concepto("10", "HORAS EXTRA 100%", "Hab");
    nuevo.unidad = "T";
    nuevo.permanente = "No";
    nuevo.ipd = "Si";
    modificarConcepto(c(), nuevo);

    EXPECT_EQ(leerConcepto(c(), 10)->concepto, "HORAS EXTRA 100%");
    for (const std::string tabla : {"habydesc", "egresos"}) {
        const auto f = c().consulta("SELECT * FROM " + tabla + " WHERE codigo = 10").primera();
        EXPECT_EQ(f.texto("concepto"), "HORAS EXTRA 100%") << tabla;
        EXPECT_EQ(f.texto("unidad"), "T") << tabla;
        EXPECT_EQ(f.texto("permanente"), "No") << tabla;
        EXPECT_EQ(f.texto("ipd"), "Si") << tabla;
        EXPECT_DOUBLE_EQ(f.real("total"), 1234.5) << tabla;  // los importes no cambian
    }
    EXPECT_EQ(texto("SELECT concepto FROM habydesc WHERE codigo = 11"), "OTRO");
    EXPECT_EQ(texto("SELECT concepto FROM aguinaldos WHERE mes = '10'"), "HORAS EXTRA 100%");
    EXPECT_EQ(texto("SELECT concepto FROM aguinaldos WHERE mes = '01/26'"), "HORAS EXTRA");
    EXPECT_EQ(texto("SELECT unidad FROM salvacacional WHERE codigo = 10"), "T");
    EXPECT_EQ(texto("SELECT concepto FROM salvacacional WHERE codigo = 10"), "HORAS EXTRA 100%");
}

TEST(Concepto, UnDescuentoSoloPuedeSerGeneralYNoLlevaBanderas) {
    auto des = concepto("50", "ADELANTOS", "Des", "S");
    EXPECT_EQ(prepararConcepto(des),
              "Si el Tipo es un Desc. entonces en Específico de debe seleccionar la opción General.");
    des.especificode = "G";
    EXPECT_EQ(prepararConcepto(des), std::nullopt);
    EXPECT_EQ(des.gravado + des.aguinaldo + des.lic + des.ipd, "");
    auto hab = concepto("1", "SUELDO", "Hab", "S");
    EXPECT_EQ(prepararConcepto(hab), std::nullopt);
    EXPECT_EQ(hab.gravado, "Si");
    EXPECT_EQ(hab.ipd, "No");
}

TEST_P(Conceptos, EliminarBorraLosPermanentesPeroNoLasLiquidaciones) {
    agregarConcepto(c(), concepto("20", "PRIMA", "Hab"));
    agregarConcepto(c(), concepto("21", "SUELDO", "Hab"));
    c().ejecuta("UPDATE conceptos SET permanente = 'No' WHERE codigo = 20");
    liquidado("habydesc", 20, "PRIMA");
    EXPECT_EQ(agregarConceptoPersona(c(), "E", "P, A", 20), std::nullopt);
    EXPECT_EQ(agregarConceptoPersona(c(), "E", "P, A", 21), kYaEsPermanente);
    EXPECT_EQ(agregarConceptoPersona(c(), "E", "P, A", 99), kCodigoInexistente);
    EXPECT_TRUE(existeConceptoPersona(c(), "E", "P, A", 20));
    EXPECT_FALSE(existeConceptoPersona(c(), "E", "P, A", 21));
    EXPECT_EQ(texto("SELECT concepto FROM concpermxpers WHERE codigo = 20"), "PRIMA");

    eliminarConcepto(c(), 20);
    EXPECT_FALSE(leerConcepto(c(), 20));
    EXPECT_FALSE(existeConceptoPersona(c(), "E", "P, A", 20));
    EXPECT_EQ(texto("SELECT COUNT(*) FROM habydesc WHERE codigo = 20"), "1");
    EXPECT_TRUE(leerConcepto(c(), 21));
}

TEST_P(Conceptos, BuscarPorTextoSinDistinguirMayusculasYListarPorCodigo) {
    agregarConcepto(c(), concepto("30", "Prima por Antigüedad", "Hab"));
    agregarConcepto(c(), concepto("5", "SUELDO", "Hab"));
    agregarConcepto(c(), concepto("7", "MONTEPIO 15%", "Des"));
    const auto hallados = buscarConceptos(c(), "concepto", "prima");
    ASSERT_EQ(hallados.size(), 1u);
    EXPECT_EQ(hallados[0].codigo, "30");
    EXPECT_EQ(buscarConceptos(c(), "concepto", "15%").size(), 1u);
    EXPECT_EQ(buscarConceptos(c(), "concepto", "_").size(), 0u);  // "_" se busca literal
    const auto todos = listarConceptos(c());
    ASSERT_EQ(todos.size(), 3u);
    EXPECT_EQ(todos[0].codigo, "5");
    EXPECT_EQ(todos[2].codigo, "30");
    EXPECT_THROW(buscarConceptos(c(), "codigo; DROP", "x"), common::Fallo);
}

TEST(Concepto, ListaDeConceptosConSusAnchos) {
    auto c = concepto("12", "UN NOMBRE DE CONCEPTO QUE NO CABE EN TREINTA", "Hab", "S");
    const auto lineas = lineasListaConceptos({c});
    ASSERT_EQ(lineas.size(), 5u);
    EXPECT_EQ(lineas[0], "");
    EXPECT_EQ(lineas[1], std::string(35, ' ') + "LISTA DE CONCEPTOS");
    EXPECT_EQ(lineas[3],
              "     Código                       Concepto Específico                        Fórmula"
              "       Tipo     Unidad Perm Grav Agui Lic/Ipd Irpf.");
    EXPECT_EQ(lineas[4],
              " 12         UN NOMBRE DE CONCEPTO QUE NO C S          [SUELDO]                      "
              " Hab        I          Si   Si   Si   Si      No   ");
    // Once columnas, cada una con su blanco delante: 10+30+10+30+10+10+4+4+4+7+5+11.
    EXPECT_EQ(common::longitudCaracteres(lineas[3]), 135u);
    EXPECT_EQ(common::longitudCaracteres(lineas[4]), 135u);
}

}  // namespace
}  // namespace nomira::master
