// nomira-cli descuentos y renglon sobre una base SQLite.
#include <gtest/gtest.h>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "store/conexion.h"

namespace nomira {
namespace {

using pruebas::cli;

class OrdenesDescuentos : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(cli("--base " + db + " init").estado, 0);
        auto b = store::abrir(db);
        // Sin los conceptos, variables y franjas de una base nueva: los de la prueba.
        for (const char* t : {"conceptos", "definiciondevariables", "franjasirp"})
            b->ejecuta(std::string("DELETE FROM ") + t);
        b->ejecuta("INSERT INTO tipoaport (nombre) VALUES ('01-Industria y Comercio')");
        b->ejecuta(
            "INSERT INTO empresas (empresa, nroemp, tipoaport) VALUES ('ACME', 7, 'Industria y "
            "Comercio')");
        b->ejecuta(
            "INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES ('BPC', "
            "'2026-01-01', 6864)");
        b->ejecuta(
            "INSERT INTO franjasirp (franja, min, max, tasa) VALUES (1, 0, 7, 0), (2, 7, 10, 10)");
        b->ejecuta(
            "INSERT INTO conceptos (codigo, concepto, especificode, formula, tipo, unidad, "
            "permanente, gravado, lic, ipd) VALUES "
            "(1, 'SUELDO', 'S', '[SUELDO]', 'Hab', 'I', 'Si', 'Si', 'No', 'Si'), "
            "(10, 'HORAS', 'H', '[SUELDO]*[CANT]', 'Hab', 'H', 'No', 'Si', 'No', 'Si'), "
            "(12, 'JORNADAS EN EL MES', 'G', '0', 'Hab', 'J', 'No', 'No', 'No', 'No'), "
            "(20, 'LICENCIA', 'G', '', 'Hab', 'T', 'No', 'Si', 'No', 'Si'), "
            "(30, 'PREMIO', 'G', '[CANT]*100', 'Hab', 'I', 'No', 'Si', 'No', 'Si'), "
            "(501, 'MONTEPIO', 'G', '([MONTOGRAV]*15)/100', 'Des', '%', 'Si', '', '', ''), "
            "(503, 'FRL', 'G', '([MONTOGRAV]*0.1)/100', 'Des', '%', 'Si', '', '', '')");
        b->ejecuta(
            "INSERT INTO personal (empresa, nombre, sueldo, tiposueldo, htrab, fechaing) VALUES "
            "('ACME', 'PEREZ, JUAN', '15000', 'S', '', '2020-01-01'), "
            "('ACME', 'LOPEZ, EVA', '100', 'H', '8', '2020-01-01'), "
            "('ACME', 'SOSA, ANA', '30000', 'S', '', '2020-01-01')");
        b->ejecuta(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, gravado, ipd, "
            "cant, total) VALUES "
            "('ACME', 'PEREZ, JUAN', '2026-03-01', 1, 'SUELDO', 'Hab', 'Si', 'Si', 1, 15000), "
            "('ACME', 'SOSA, ANA', '2026-03-01', 1, 'SUELDO', 'Hab', 'Si', 'Si', 1, 30000)");
    }
    double total(const std::string& nombre, long codigo) {
        const auto r =
            store::abrir(db)->consulta("SELECT total FROM habydesc WHERE nombre = ? AND codigo = ?",
                                       {nombre, std::int64_t{codigo}});
        return r.vacio() ? -1 : r.primera().real("total");
    }

    pruebas::CarpetaTemporal tmp;
    const std::string db = tmp.archivo("n.db");
    const std::string mes = "--base " + db + " ";
};

TEST_F(OrdenesDescuentos, UnaPersonaYLaEmpresa) {
    auto s = cli(mes + "descuentos --empresa ACME --nombre 'PEREZ, JUAN' --mes 03/26");
    EXPECT_EQ(s.estado, 0) << s.texto;
    EXPECT_NE(s.texto.find("501 | MONTEPIO 15% | Des | 1 | 2,250.00\n"), std::string::npos)
        << s.texto;
    EXPECT_NE(s.texto.find("503 | FRL 0.10% | Des | 1 | 15.00\n"), std::string::npos);

    // Toda la empresa: el avance por persona y el aviso final; LOPEZ no tiene haberes.
    s = cli(mes + "descuentos --empresa ACME --mes 03/26");
    EXPECT_EQ(s.estado, 0) << s.texto;
    for (const char* p : {"/3 PEREZ, JUAN\n", "/3 LOPEZ, EVA\n", "/3 SOSA, ANA\n"})
        EXPECT_NE(s.texto.find(p), std::string::npos) << s.texto;
    EXPECT_NE(s.texto.find("SOSA, ANA | 501 | MONTEPIO 15% | Des | 1 | 4,500.00"),
              std::string::npos);
    EXPECT_NE(s.texto.find("Actualización finalizada.\n"), std::string::npos);
    EXPECT_EQ(total("LOPEZ, EVA", 501), -1);

    EXPECT_EQ(cli(mes + "descuentos --empresa ACME --mes 3/26").estado, 1);
}

TEST_F(OrdenesDescuentos, RenglonComoEnLaPantalla) {
    auto s = cli(mes +
                 "renglon --empresa ACME --nombre 'LOPEZ, EVA' --mes 03/26 --codigo 10 "
                 "--cant 80");
    EXPECT_EQ(s.estado, 0) << s.texto;
    EXPECT_NE(s.texto.find("10 | HORAS | 80 | 8,000.00\n"), std::string::npos) << s.texto;
    EXPECT_EQ(total("LOPEZ, EVA", 12), 0);  // jornadas escritas, sin importe
    s = cli(mes +
            "renglon --empresa ACME --nombre 'LOPEZ, EVA' --mes 03/26 --codigo 30 "
            "--cant 2 --total 999");
    EXPECT_EQ(s.estado, 0) << s.texto;
    EXPECT_EQ(total("LOPEZ, EVA", 30), 999);

    // Una licencia con su período; uno mal formado se vuelve a pedir.
    const std::string lic =
        mes + "renglon --empresa ACME --nombre 'SOSA, ANA' --mes 03/26 --codigo 20 ";
    s = cli(lic + "--cant 10 --periodo 2/3/26-11/3/26");
    EXPECT_EQ(s.estado, 0) << s.texto;
    EXPECT_NE(s.texto.find("Modifique las fechas desde y hasta. 2/3/26-11/3/26\n"),
              std::string::npos);
    EXPECT_NE(s.texto.find("período 01/03/26 - 10/03/26\n"), std::string::npos) << s.texto;
    s = cli(lic + "--cant 10 --periodo 02/03/26-11/03/26");
    EXPECT_NE(s.texto.find("período 02/03/26 - 11/03/26\n"), std::string::npos) << s.texto;
    EXPECT_EQ(total("SOSA, ANA", 20), 10000);  // 30000 / 30 x 10
    EXPECT_EQ(total("SOSA, ANA", 1), 20000);
    // Menos de 10 días con --no: no se guarda.
    s = cli(lic + "--cant 5 --no");
    EXPECT_EQ(s.estado, 1) << s.texto;
    EXPECT_EQ(total("SOSA, ANA", 20), 10000);

    // Con descuentos no se agrega un haber: el mensaje y estado 1.
    cli(mes + "descuentos --empresa ACME --nombre 'PEREZ, JUAN' --mes 03/26");
    s = cli(mes + "renglon --empresa ACME --nombre 'PEREZ, JUAN' --mes 03/26 --codigo 30");
    EXPECT_EQ(s.estado, 1);
    EXPECT_NE(s.texto.find("Ya hay Descuentos ingresados, para Agregar un Haber"),
              std::string::npos);
}

}  // namespace
}  // namespace nomira
