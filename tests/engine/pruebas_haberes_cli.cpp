// nomira-cli haberes, liquidacion y borrar sobre una base SQLite nueva.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <initializer_list>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "store/conexion.h"

namespace nomira {
namespace {

// Una base nueva hecha con init, con la empresa ACME de ese número y lo que
// agreguen las sentencias.
std::string baseNueva(const pruebas::CarpetaTemporal& tmp, int nroemp,
                      std::initializer_list<const char*> sentencias) {
    const std::string db = tmp.archivo("n.db");
    EXPECT_EQ(pruebas::cli("--base " + db + " init").estado, 0);
    auto base = store::abrir(db);
    base->ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('ACME', ?)",
                  {std::int64_t{nroemp}});
    for (const char* sql : sentencias) base->ejecuta(sql);
    return db;
}

TEST(OrdenHaberes, EmpresaPersonaYDesglose) {
    pruebas::CarpetaTemporal tmp;
    const std::string db = baseNueva(
        tmp, 1,
        {"INSERT INTO personal (empresa, nombre, sueldo, tiposueldo, fechaing) VALUES "
         "('ACME', 'PEREZ, JUAN', '30000', 'S', '2020-01-01'), ('ACME', 'GOMEZ, ANA', "
         "'20000', 'S', '2026-02-11'), ('ACME', 'NUEVO', '1', 'S', '2026-03-01')",
         "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, cant, total) "
         "VALUES ('ACME', 'GOMEZ, ANA', '2026-02-01', 90, 'CUOTA', 'Des', 1, 500)"});
    const std::string b = "--base " + db + " ";
    // NUEVO entra en marzo: se recorre pero no se genera.
    auto s = pruebas::cli(b + "haberes --empresa ACME --mes 02/26");
    EXPECT_EQ(s.estado, 0) << s.texto;
    for (const char* linea :
         {"persona 1 de 3: GOMEZ, ANA\n", "persona 3 de 3: PEREZ, JUAN\n",
          "PEREZ, JUAN | 1 | SUELDO | Hab | 1 | 30,000.00\n", "Actualización finalizada.\n"})
        EXPECT_NE(s.texto.find(linea), std::string::npos) << linea << s.texto;
    EXPECT_EQ(s.texto.find("NUEVO |"), std::string::npos) << s.texto;

    // Entró el 11: 10 días, -(20000 / 30 x 10) = -6666,67; la CUOTA se fue.
    s = pruebas::cli(b + "liquidacion --empresa ACME --nombre 'GOMEZ, ANA' --mes 02/26");
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(s.texto,
              "1 | SUELDO | Hab | 1 | 20,000.00\n"
              "20 | DIASNOTRABAJADOS | Hab | 10 | -6,666.67\n"
              "50 | ANTIGUEDAD | Hab | 1 | 0.00\n"
              "T.Haberes: 13,333.33\n"
              "Total Descuentos: 0.00\n"
              "Líquido Neto: 13,333.33\n"
              "Líquido a Cobrar: 13,333.33\n"
              "M.Irpf: 13,333.33\n"
              "M.Dedu.: 13,333.33\n");

    // Con --explicar cada fila dice cómo se llegó a su importe, aun en otra corrida.
    s = pruebas::cli(b + "liquidacion --empresa ACME --nombre 'GOMEZ, ANA' --mes 02/26 --explicar");
    for (const char* linea : {"1 | SUELDO | Hab | 1 | 20,000.00\n    Fórmula [SUELDO] = 20000 con "
                              "cantidad 1: 20,000.00.\n",
                              "    Ingreso el 2026-02-11: 10 días sin trabajar, -(20,000.00 / 30 x "
                              "10) = -6,666.67.\n",
                              "M.Dedu.: 13,333.33\ngravado 13,333.33, IRPF 13,333.33 (vacacional "
                              "0.00)\nLIQUIDONETO = haberes 13,333.33"})
        EXPECT_NE(s.texto.find(linea), std::string::npos) << linea << s.texto;

    s = pruebas::cli(b + "--no borrar --empresa ACME --nombre 'GOMEZ, ANA' --mes 02/26 --haberes");
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(s.texto.find("filas borradas"), std::string::npos) << s.texto;
    s = pruebas::cli(b + "--si borrar --empresa ACME --nombre 'GOMEZ, ANA' --mes 02/26 --haberes");
    EXPECT_NE(s.texto.find("filas borradas: 3"), std::string::npos) << s.texto;

    s = pruebas::cli(b + "haberes --empresa ACME --nombre NADIE --mes 02/26");
    EXPECT_EQ(s.estado, 1);
    EXPECT_NE(s.texto.find("El Nombre del Personal no existe en esta Empresa"), std::string::npos);
}

TEST(OrdenHaberes, LeeElArchivoDeHorasDelMesComoLaPantalla) {
    pruebas::CarpetaTemporal tmp;
    const std::string db =
        baseNueva(tmp, 5,
                  {"INSERT INTO personal (empresa, nombre, nrofun, sueldo, tiposueldo, fechaing) "
                   "VALUES ('ACME', 'DIAZ, LUIS', 7, '1000', 'J', '2020-01-01')"});
    // horas.txt da la carpeta y el prefijo; el archivo de febrero de la empresa 5.
    std::filesystem::create_directories(tmp.archivo("Software/Nomira"));
    std::ofstream(tmp.archivo("Software/Nomira/horas.txt")) << tmp.archivo("HORAS") << '\n';
    std::ofstream(tmp.archivo("HORAS02265.txt")) << "7|10|20\n";

    // JORNALES: 20 jornales de 1000.
    const std::string b = "--base " + db + " ";
    auto s = pruebas::cli(b + "haberes --empresa ACME --nombre 'DIAZ, LUIS' --mes 02/26");
    EXPECT_EQ(s.estado, 0) << s.texto;
    s = pruebas::cli(b + "liquidacion --empresa ACME --nombre 'DIAZ, LUIS' --mes 02/26");
    EXPECT_NE(s.texto.find("10 | JORNALES | Hab | 20 | 20,000.00"), std::string::npos) << s.texto;
}

}  // namespace
}  // namespace nomira
