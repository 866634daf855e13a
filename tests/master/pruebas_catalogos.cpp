// Listas, altas y bajas de las tablas de referencia.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "master/catalogos.h"

namespace nomira::master {
namespace {

using Lista = std::vector<std::string>;

class Catalogos : public store::prueba::BasePrueba {};
NOMIRA_PARA_CADA_MOTOR(Catalogos);

TEST_P(Catalogos, ListasPlanasYDependientes) {
    agregarACatalogo(c(), "tipoaport", {"04-Rural"});
    agregarACatalogo(c(), "tipoaport", {"01-Industria y Comercio"});
    agregarACatalogo(c(), "tipoaport", {"03-Construcción - Obra"});
    // El orden es el de carga, no el alfabético.
    EXPECT_EQ(valoresCatalogo(c(), "tipoaport"),
              (Lista{"04-Rural", "01-Industria y Comercio", "03-Construcción - Obra"}));
    // El texto llega desde el primer guion: el segundo queda en él.
    EXPECT_EQ(textosCatalogo(c(), "tipoaport"),
              (Lista{"Rural", "Industria y Comercio", "Construcción - Obra"}));

    agregarACatalogo(c(), "local", {"10-Montevideo", "01-Centro", "11100"});
    agregarACatalogo(c(), "local", {"03-Canelones", "05-Pando", "91000"});
    agregarACatalogo(c(), "local", {"10-Montevideo", "02-Cordón", "11200"});
    // El registro guarda "Montevideo": se busca al final, sin mayúsculas.
    EXPECT_EQ(textosCatalogo(c(), "local", {{"nombre", "montevideo"}}),
              (Lista{"Centro", "Cordón"}));
    EXPECT_EQ(valoresCatalogo(c(), "local", {{"nombre", "Canelones"}}), (Lista{"05-Pando"}));
    // Un departamento vacío no filtra, como el combo vacío.
    EXPECT_EQ(valoresCatalogo(c(), "local", {{"nombre", ""}}).size(), 3u);
    EXPECT_TRUE(valoresCatalogo(c(), "local", {{"nombre", "Salto"}}).empty());

    agregarACatalogo(c(), "categorias", {"01-Industria", "02-Carne", "01-Frigorífico", "05-Peón"});
    agregarACatalogo(c(), "categorias",
                     {"01-Industria", "03-Cuero", "01-Frigorífico", "06-Oficial"});
    EXPECT_EQ(
        textosCatalogo(c(), "categorias",
                       {{"nombre", "Industria"}, {"nombre2", "Carne"}, {"nombre3", "Frigorífico"}}),
        (Lista{"Peón"}));

    EXPECT_THROW(valoresCatalogo(c(), "personal"), common::Fallo);
    EXPECT_THROW(valoresCatalogo(c(), "local", {{"nombre; --", "x"}}), common::Fallo);
    EXPECT_THROW(agregarACatalogo(c(), "local", {"solo uno"}), common::Fallo);
}

TEST_P(Catalogos, BajasYCodigos) {
    // Mismo texto con otro código: el lector toma la primera fila cargada.
    agregarACatalogo(c(), "segurosalud", {"7-Fonasa"});
    agregarACatalogo(c(), "segurosalud", {"9-Fonasa"});
    EXPECT_EQ(codigoEnCatalogo(c(), "segurosalud", "Fonasa"), "7");
    EXPECT_EQ(eliminarDeCatalogo(c(), "segurosalud", {{"nombre", "7-Fonasa"}}), 1);
    EXPECT_EQ(codigoEnCatalogo(c(), "segurosalud", "Fonasa"), "9");
    EXPECT_EQ(eliminarDeCatalogo(c(), "segurosalud", {{"nombre", "9-Fonasa"}}), 1);
    // Borrado el valor, el texto de los registros ya no tiene código.
    EXPECT_EQ(codigoEnCatalogo(c(), "segurosalud", "Fonasa"), "");

    agregarACatalogo(c(), "subgrupoact", {"01-Industria", "01-Carne"});
    agregarACatalogo(c(), "subgrupoact", {"02-Comercio", "01-Carne"});
    // La baja de una lista hija nombra la madre: la otra fila queda.
    EXPECT_EQ(eliminarDeCatalogo(c(), "subgrupoact",
                                 {{"nombre", "01-Industria"}, {"nombre2", "01-Carne"}}),
              1);
    EXPECT_EQ(filasCatalogo(c(), "subgrupoact"), (std::vector<Lista>{{"02-Comercio", "01-Carne"}}));
    EXPECT_EQ(filasCatalogo(c(), "subgrupoact", {{"nombre", "01-Industria"}}).size(), 0u);
    EXPECT_THROW(eliminarDeCatalogo(c(), "subgrupoact", {}), common::Fallo);
}

TEST_P(Catalogos, CodigoPostalDeLaLocalidad) {
    agregarACatalogo(c(), "local", {"10-Montevideo", "01-Barrio Centro", "11000"});
    agregarACatalogo(c(), "local", {"10-Montevideo", "02-Centro", "11100"});
    agregarACatalogo(c(), "local", {"03-Canelones", "07-Centro", "91000"});
    EXPECT_EQ(codigoPostal(c(), "Montevideo", "Centro"), "11100");
    EXPECT_EQ(codigoPostal(c(), "Canelones", "centro"), "91000");
    EXPECT_EQ(codigoPostal(c(), "Montevideo", "Barrio Centro"), "11000");
    EXPECT_FALSE(codigoPostal(c(), "Salto", "Centro"));
}

}  // namespace
}  // namespace nomira::master
