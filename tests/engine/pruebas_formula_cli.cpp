// nomira-cli evaluar y formula.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <cstdlib>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "store/conexion.h"

namespace nomira {
namespace {

struct Salida {
    int estado;
    std::string out, err;
};

// Corre nomira-cli; stdout y stderr por separado.
Salida cli(const pruebas::CarpetaTemporal& tmp, const std::string& argumentos) {
    const std::string err = tmp.archivo("stderr.txt");
    const std::string orden = pruebas::rutaCli() + " " + argumentos + " 2>" + err;
    FILE* p = popen(orden.c_str(), "r");
    Salida s;
    std::array<char, 512> b{};
    while (fgets(b.data(), b.size(), p)) s.out += b.data();
    s.estado = WEXITSTATUS(pclose(p));
    if (FILE* f = std::fopen(err.c_str(), "r")) {
        while (fgets(b.data(), b.size(), f)) s.err += b.data();
        std::fclose(f);
    }
    return s;
}

TEST(OrdenEvaluar, SinBaseImprimeElNumero) {
    pruebas::CarpetaTemporal tmp;  // sin base.txt
    auto s = cli(tmp, "evaluar '15000.5/30*3'");
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(s.out, "1500.05\n");
    s = cli(tmp, "evaluar '1/0'");
    EXPECT_EQ(s.estado, 2);
    EXPECT_EQ(s.out, "");
    EXPECT_EQ(s.err, "Error inesperado 11 División por cero\n");
}

TEST(OrdenFormula, UnaPersonaYUnMes) {
    pruebas::CarpetaTemporal tmp;
    const std::string db = tmp.archivo("n.db");
    ASSERT_EQ(cli(tmp, "--base " + db + " init").estado, 0);
    {
        auto base = store::abrir(db);
        base->ejecuta("INSERT INTO tipoaport (nombre) VALUES ('01-Industria y Comercio')");
        base->ejecuta("INSERT INTO tipoaport (nombre) VALUES ('04-Rural - Otros')");
        base->ejecuta("INSERT INTO empresas (empresa, nroemp, tipoaport) VALUES (?, 1, ?)",
                      {std::string("ACME"), std::string("Rural - Otros")});
        base->ejecuta(
            "INSERT INTO personal (empresa, nombre, sueldo, sexocon) VALUES (?, ?, '15000.5', "
            "'MSi')",
            {std::string("ACME"), std::string("PEREZ, JUAN")});
        base->ejecuta(
            "INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES "
            "('BPC', '2025-01-01', 6576), ('BPC', '2026-01-01', 6864), ('UR', '2026-01-01', 1800)");
    }
    const std::string orden =
        "--base " + db + " formula --empresa ACME --nombre 'PEREZ, JUAN' --mes 02/26 ";
    auto s = cli(tmp, orden + "--cant 3 '[SUELDO]/30*[CANT]+[UR]'");
    EXPECT_EQ(s.estado, 0) << s.err;
    EXPECT_EQ(s.out, "cant=3 total=3300.05\n");

    // Aportación 04 y cónyuge: 6.5 - 3 sobre el tope; el monto viene de --dato.
    s = cli(tmp, orden + "--dato montograv=20000 --dato cantarchivo=4 '[MONTOGRAV]*[PSNIS]/100'");
    EXPECT_EQ(s.out, "cant=4 total=700\n");

    s = cli(tmp, orden + "']x['");
    EXPECT_EQ(s.estado, 0);
    EXPECT_EQ(s.out, "cant=1 total=0\n");
    EXPECT_EQ(s.err, "Error en la fórmula, falta algún corchete.\n");

    s = cli(tmp, orden + "--dato psnis=3 '1'");
    EXPECT_EQ(s.estado, 1);
    EXPECT_NE(s.err.find("El dato psnis no existe"), std::string::npos) << s.err;
    EXPECT_EQ(s.out, "");

    s = cli(tmp, orden + "'[SUELDO]/(2-2)'");
    EXPECT_EQ(s.estado, 2);
    EXPECT_EQ(s.err, "Error inesperado 11 en CalculoFormula del Form42 \nDivisión por cero\n");
}

}  // namespace
}  // namespace nomira
