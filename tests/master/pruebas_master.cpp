// Lectores de datos maestros: catálogos, personas y empresas.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "master/catalogos.h"
#include "master/empresas.h"
#include "master/personal.h"
#include "store/conexion.h"

namespace nomira::master {
namespace {

class Maestros : public store::prueba::BasePrueba {
  protected:
    void fila(const std::string& tabla, const std::string& nombre) {
        c().ejecuta("INSERT INTO " + tabla + " (nombre) VALUES (?)", {nombre});
    }
};
NOMIRA_PARA_CADA_MOTOR(Maestros);

TEST_P(Maestros, CodigoEnCatalogo) {
    fila("tipoaport", "01-Industria y Comercio");
    fila("tipoaport", "04-Rural - Otros");
    fila("segurosalud", "1-Sin 100%");
    fila("segurosalud", "Sin guion");
    // El código es lo anterior al primer guion, aunque el texto tenga otros.
    EXPECT_EQ(codigoEnCatalogo(c(), "tipoaport", "Rural - Otros"), "04");
    EXPECT_EQ(codigoEnCatalogo(c(), "tipoaport", "rural - otros"), "04");
    // Se busca al final del valor.
    EXPECT_EQ(codigoEnCatalogo(c(), "tipoaport", "Comercio"), "01");
    EXPECT_EQ(codigoEnCatalogo(c(), "tipoaport", "Industria"), "");
    EXPECT_EQ(codigoEnCatalogo(c(), "tipoaport", ""), "");
    // "%" y "_" del texto se buscan tal cual.
    EXPECT_EQ(codigoEnCatalogo(c(), "segurosalud", "Sin 100%"), "1");
    EXPECT_EQ(codigoEnCatalogo(c(), "segurosalud", "Sin 1_0%"), "");
    EXPECT_EQ(codigoEnCatalogo(c(), "segurosalud", "guion"), "");
    // Un vacío busca "NADA".
    fila("paises", "99-NADA");
    EXPECT_EQ(codigoEnCatalogo(c(), "paises", " "), "99");
    // Sólo tablas de referencia.
    EXPECT_THROW(codigoEnCatalogo(c(), "personal", "x"), common::Fallo);
    EXPECT_THROW(codigoEnCatalogo(c(), "paises; DROP TABLE paises", "x"), common::Fallo);
}

TEST_P(Maestros, PersonaYEmpresa) {
    c().ejecuta(
        "INSERT INTO personal (empresa, nombre, sueldo, otrotelefono, fechanacben2, causaben2) "
        "VALUES ('ACME', 'D''ANGELO, ANA', ' 1500.50', '2,5', '2010-05-01', '01-Hijo')");
    EXPECT_FALSE(leerPersona(c(), "ACME", "PEREZ, JUAN"));
    EXPECT_FALSE(leerPersona(c(), "OTRA", "D'ANGELO, ANA"));
    const auto p = leerPersona(c(), "ACME", "D'ANGELO, ANA");
    ASSERT_TRUE(p);
    // Los números guardados como texto llegan como están.
    EXPECT_EQ(p->sueldo, " 1500.50");
    EXPECT_EQ(p->otrotelefono, "2,5");
    EXPECT_EQ(p->htrab, "");
    EXPECT_EQ(p->fechanacben2, "2010-05-01");
    EXPECT_EQ(p->causaben2, "01-Hijo");

    c().ejecuta(
        "INSERT INTO empresas (empresa, nroemp, tipoaport) VALUES ('ACME', 77, 'Rural - Otros')");
    c().ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('SINAPORT', 78)");
    fila("tipoaport", "04-Rural - Otros");
    const auto e = leerEmpresa(c(), "ACME");
    ASSERT_TRUE(e);
    EXPECT_EQ(e->nroemp, "77");
    EXPECT_EQ(tipoaporteDe(c(), *e), "04");
    EXPECT_EQ(tipoaporteDe(c(), *leerEmpresa(c(), "SINAPORT")), "");
    EXPECT_FALSE(leerEmpresa(c(), "NADIE"));
}

}  // namespace
}  // namespace nomira::master
