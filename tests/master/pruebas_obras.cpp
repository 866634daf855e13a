// Obras: sólo para la aportación Construcción, alta sin forma en 0, la
// modificación que no toca la clave, los números repetidos y lo impreso.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "master/catalogos.h"
#include "master/empresas.h"
#include "master/obras.h"

namespace nomira::master {
namespace {

class Obras : public store::prueba::BasePrueba {
  protected:
    void empresa(const std::string& nombre, const std::string& aporte) {
        Empresa e;
        e.empresa = nombre;
        e.tipoaport = aporte;
        agregarEmpresa(c(), e);
    }
};
NOMIRA_PARA_CADA_MOTOR(Obras);

TEST_P(Obras, SoloConstruccion) {
    agregarACatalogo(c(), "tipoaport", {"01-Industria y Comercio"});
    agregarACatalogo(c(), "tipoaport", {"04-Construcción"});
    agregarACatalogo(c(), "tipoaport", {"14-Construcción"});
    empresa("OBRADOR", "Construcción");
    empresa("TIENDA", "Industria y Comercio");
    empresa("SIN APORTE", "");
    EXPECT_TRUE(aportaPorConstruccion(c(), "OBRADOR"));
    EXPECT_FALSE(aportaPorConstruccion(c(), "TIENDA"));
    EXPECT_FALSE(aportaPorConstruccion(c(), "SIN APORTE"));
    EXPECT_FALSE(aportaPorConstruccion(c(), "NO EXISTE"));
    // El texto se busca en el catálogo: manda el código de la primera fila.
    eliminarDeCatalogo(c(), "tipoaport", {{"nombre", "04-Construcción"}});
    EXPECT_FALSE(aportaPorConstruccion(c(), "OBRADOR"));
}

TEST_P(Obras, AltaModificacionBajaYRepetidos) {
    Obra o{"OBRADOR", "200", "", "Edificios", "TITULAR SA", "Ejido 1", "2900", "55", "21"};
    agregarObra(c(), o);
    EXPECT_EQ(leerObra(c(), "OBRADOR", "200")->formarealizacion, "0");
    o.nroobra = "100";
    o.formarealizacion = "2";
    agregarObra(c(), o);
    agregarObra(c(), Obra{"OTRA", "100", "1", "", "", "", "", "", ""});
    EXPECT_EQ(numerosDeObra(c(), "OBRADOR"), (std::vector<std::string>{"100", "200"}));

    o.formarealizacion = "3";
    o.empresatitular = "NUEVA";
    modificarObra(c(), o);
    auto leida = leerObra(c(), "OBRADOR", "100");
    EXPECT_EQ(leida->empresatitular, "NUEVA");
    EXPECT_EQ(leida->formarealizacion, "3");
    EXPECT_EQ(leerObra(c(), "OBRADOR", "200")->empresatitular, "TITULAR SA");
    EXPECT_EQ(leerObra(c(), "OTRA", "100")->formarealizacion, "1");

    agregarObra(c(), o);  // el mismo número otra vez: la base lo acepta
    EXPECT_EQ(numerosRepetidos(numerosDeObra(c(), "OBRADOR")), std::vector<std::string>{"100"});
    EXPECT_TRUE(numerosRepetidos({"1", "2", "3"}).empty());
    EXPECT_EQ(numerosRepetidos({"1", "2", "1", "2", "1"}), (std::vector<std::string>{"1", "2"}));

    eliminarObra(c(), "OBRADOR", "100");
    EXPECT_EQ(numerosDeObra(c(), "OBRADOR"), std::vector<std::string>{"200"});
    EXPECT_EQ(numerosDeObra(c(), "OTRA"), std::vector<std::string>{"100"});

    const auto ficha =
        lineasFichaObra(Obra{"OBRADOR", "100", "2", "Edificios", "TIT", "", "", "", ""});
    EXPECT_EQ(ficha[0], "INFORMACION DE LA OBRA");
    EXPECT_EQ(ficha[3], "      Real.Obra: obra por contrato");
    EXPECT_EQ(ficha[5], "     EmpTitular: TIT");
    EXPECT_EQ(textoFormaRealizacion("0"), "");
    const auto listado = lineasListadoObras("OBRADOR", obrasDeEmpresa(c(), "OBRADOR"));
    ASSERT_EQ(listado.size(), 4u);
    EXPECT_EQ(listado[3].substr(0, 3), "200");
}

}  // namespace
}  // namespace nomira::master
