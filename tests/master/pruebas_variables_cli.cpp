// nomira-cli: variables fechadas, franjas y el aumento de una empresa.
#include <gtest/gtest.h>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "store/conexion.h"

using namespace nomira;

TEST(OrdenesVariables, VariableFranjaYAumentoDeUnaEmpresa) {
    pruebas::CarpetaTemporal tmp;
    const std::string base = "--base " + tmp.archivo("c.db") + " ";
    ASSERT_EQ(pruebas::cli(base + "init").estado, 0);

    EXPECT_EQ(pruebas::cli(base + "variable TOPEX 01/04/26 1234.5").estado, 0);
    EXPECT_EQ(pruebas::cli(base + "variable TOPEX 01/04/26 99").estado, 0);
    EXPECT_EQ(pruebas::cli(base + "variables TOPEX").texto,
              "TOPEX\t01/04/26\t1234.5\nTOPEX\t01/04/26\t99\n");
    const auto mal = pruebas::cli(base + "variable TOPEX 1/4/26 5");
    EXPECT_EQ(mal.estado, 1);
    EXPECT_NE(mal.texto.find("dd/MM/aa."), std::string::npos);

    EXPECT_EQ(pruebas::cli(base + "franja 3001 10 20 5").estado, 0);
    EXPECT_EQ(pruebas::cli(base + "franja 3001 10 25 7.5").estado, 0);  // la reemplaza
    const auto franjas = pruebas::cli(base + "franjas").texto;
    EXPECT_NE(franjas.find("3001\t10\t25\t7.5\n"), std::string::npos);
    EXPECT_EQ(franjas.find("3001\t10\t20"), std::string::npos);

    {
        auto c = store::abrir(tmp.archivo("c.db"));
        c->ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('ACME', 1)");
        c->ejecuta("INSERT INTO personal (empresa, nombre, sueldo, tiposueldo) VALUES "
                   "('ACME', 'A, B', '10000', 'S'), ('ACME', 'C, D', '500', 'J')");
    }
    const auto orden = base + "aumentar-sueldos --empresa ACME --porcentaje 5.06 --fsuevig 01/03/26";
    const auto aumento = pruebas::cli(orden);
    EXPECT_EQ(aumento.estado, 0);
    EXPECT_EQ(aumento.texto, "Aumento de Sueldos x Empresas finalizado.\n2\n");
    auto sueldos = [&] {
        auto c = store::abrir(tmp.archivo("c.db"));
        const auto r = c->consulta("SELECT sueldo FROM personal ORDER BY nombre");
        return r.filas[0].texto(0) + " " + r.filas[1].texto(0);
    };
    EXPECT_EQ(sueldos(), "10506 525.3");
    EXPECT_EQ(pruebas::cli(orden + " --bajar").estado, 0);
    EXPECT_EQ(sueldos(), "10000 500");
    EXPECT_EQ(pruebas::cli(base + "aumentar-sueldos --empresa ACME --porcentaje x --fsuevig 01/03/26")
                  .estado,
              1);
}
