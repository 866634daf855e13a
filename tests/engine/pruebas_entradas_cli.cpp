// Lo que nomira-cli rechaza antes de tocar la base: cada caso sale con estado 1,
// un mensaje en castellano, y la base queda como estaba.
#include <gtest/gtest.h>

#include <string>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "store/conexion.h"

namespace nomira {
namespace {

using pruebas::cli;

constexpr const char* kNoExiste =
    "No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.";

// Una base nueva con la empresa ACME, dos personas y un descuento de cada una
// en febrero de 2026, que una corrida de la empresa borraría.
class EntradasCli : public ::testing::Test {
  protected:
    void SetUp() override {
        db_ = tmp_.archivo("n.db");
        ASSERT_EQ(cli("--base " + db_ + " init").estado, 0);
        auto base = store::abrir(db_);
        base->ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('ACME', 1)");
        base->ejecuta(
            "INSERT INTO personal (empresa, nombre, sueldo, tiposueldo, fechaing) VALUES "
            "('ACME', 'PEREZ, JUAN', '30000', 'S', '2020-01-01'), "
            "('ACME', 'GOMEZ, ANA', '20000', 'S', '2020-01-01')");
        base->ejecuta(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, cant, total) "
            "VALUES ('ACME', 'PEREZ, JUAN', '2026-02-01', 90, 'CUOTA', 'Des', 1, 500), "
            "('ACME', 'GOMEZ, ANA', '2026-02-01', 90, 'CUOTA', 'Des', 1, 700)");
    }

    pruebas::SalidaCli orden(const std::string& argumentos) {
        return cli("--base " + db_ + " " + argumentos);
    }

    // Todo lo que una orden podría cambiar, en un texto para comparar.
    std::string estado() {
        auto base = store::abrir(db_);
        std::string s;
        for (const char* sql :
             {"SELECT nombre, codigo, total FROM habydesc ORDER BY nombre, codigo",
              "SELECT nombre, sueldo, fechasuevig FROM personal ORDER BY nombre",
              "SELECT franja, min, max, tasa FROM franjasirp ORDER BY franja"})
            for (const auto& f : base->consulta(sql).filas) {
                for (std::size_t i = 0; i < f.columnas().size(); ++i) s += f.texto(i) + "|";
                s += "\n";
            }
        return s;
    }

    // La orden se rechaza con estado 1, el mensaje y sin cambiar nada.
    void rechazada(const std::string& argumentos, const std::string& mensaje) {
        const auto antes = estado();
        const auto s = orden(argumentos);
        EXPECT_EQ(s.estado, 1) << argumentos << "\n" << s.texto;
        EXPECT_NE(s.texto.find(mensaje), std::string::npos) << argumentos << "\n" << s.texto;
        EXPECT_EQ(s.texto.find("finalizad"), std::string::npos) << argumentos << "\n" << s.texto;
        EXPECT_EQ(estado(), antes) << argumentos;
    }

    pruebas::CarpetaTemporal tmp_;
    std::string db_;
};

TEST_F(EntradasCli, NombreVacioNoEsTodaLaEmpresa) {
    for (const char* orden : {"descuentos", "haberes"}) {
        for (const char* nombre : {"''", "'  '"})
            rechazada(std::string(orden) + " --empresa ACME --mes 02/26 --nombre " + nombre,
                      "Debe completar el campo Nombre del Personal");
    }
}

TEST_F(EntradasCli, EmpresaQueNoExiste) {
    const std::string mes = " --mes 02/26";
    for (const std::string& o :
         {"haberes --empresa OTRA" + mes, "descuentos --empresa OTRA" + mes,
          "haberes --empresa OTRA --nombre 'PEREZ, JUAN'" + mes,
          "descuentos --empresa OTRA --nombre 'PEREZ, JUAN'" + mes,
          "liquidacion --empresa OTRA --nombre 'PEREZ, JUAN'" + mes,
          "--si borrar --empresa OTRA --nombre 'PEREZ, JUAN' --haberes" + mes,
          "renglon --empresa OTRA --nombre 'PEREZ, JUAN' --codigo 90" + mes,
          "formula --empresa OTRA --nombre 'PEREZ, JUAN' '[SUELDO]'" + mes,
          std::string("aumentar-sueldos --empresa OTRA --porcentaje 5 --fsuevig 01/03/26")}) {
        rechazada(o, kNoExiste);
        // Un solo mensaje, aunque el motor también buscaría la empresa.
        const auto s = orden(o);
        EXPECT_EQ(s.texto.find(kNoExiste), s.texto.rfind(kNoExiste)) << o << "\n" << s.texto;
    }
    rechazada("haberes --empresa ''" + mes, "Debe completar el campo Empresa.");
    // La que existe sigue andando.
    EXPECT_EQ(orden("haberes --empresa ACME" + mes).estado, 0);
}

TEST_F(EntradasCli, FranjaFueraDeLoQueCabe) {
    rechazada("franja 1.5 0 7 0", "La Franja debe ser un número entero");
    rechazada("franja -2 0 7 0", "La Franja debe ser un número entero");
    rechazada("franja 0 0 7 0", "La Franja debe ser un número entero");
    rechazada("franja 1e308 0 7 0", "La Franja debe ser un número entero");
    rechazada("franja 9 1e308 1e308 10", "Min y Max deben ser números entre 0 y 9999999");
    rechazada("franja 9 0 1e309 10", "Debe completar el campo Max.");
    rechazada("franja 9 -1 7 10", "Min y Max deben ser números entre 0 y 9999999");
    rechazada("franja 9 10 7 10", "Min no puede ser mayor que Max.");
    rechazada("franja 9 0 7 100.5", "La Tasa debe ser un número entre 0 y 100.");
    rechazada("franja 9 0 7 -1", "La Tasa debe ser un número entre 0 y 100.");
    // Los bordes entran: la última franja de la escala tiene 999999 de techo.
    EXPECT_EQ(orden("franja 9 115 999999 100").estado, 0);
    EXPECT_EQ(orden("franja 10 7 7 0").estado, 0);
    EXPECT_NE(orden("franjas").texto.find("9\t115\t999999\t100\n10\t7\t7\t0\n"), std::string::npos);
}

TEST_F(EntradasCli, PorcentajeDeAumento) {
    const std::string aumento = "aumentar-sueldos --empresa ACME --fsuevig 01/03/26 --porcentaje ";
    // -100 deja los sueldos en cero (y al bajar divide por cero); menos, negativos.
    rechazada(aumento + "-100", "El Porcentaje debe ser mayor que -100");
    rechazada(aumento + "-100 --bajar", "El Porcentaje debe ser mayor que -100");
    rechazada(aumento + "-250", "El Porcentaje debe ser mayor que -100");
    rechazada(aumento + "1e308", "no pasar de 10000");
    // Negativo: se pregunta, y sin --si la respuesta es No.
    rechazada(aumento + "-10", "El Porcentaje es negativo: los sueldos van a bajar.");
    rechazada("--no " + aumento + "-10", "¿Desea continuar? No");
    const auto s = orden(aumento + "-10 --si");
    EXPECT_EQ(s.estado, 0) << s.texto;
    auto base = store::abrir(db_);
    const auto r = base->consulta("SELECT sueldo FROM personal ORDER BY nombre");
    EXPECT_EQ(r.filas[0].texto(0) + " " + r.filas[1].texto(0), "18000 27000");
}

// Los errores de la línea de órdenes, en castellano y con estado 1.
TEST(ErroresDeUsoCli, EnCastellano) {
    pruebas::CarpetaTemporal tmp;
    struct Caso {
        std::string argumentos, mensaje;
    };
    const Caso casos[] = {
        {"", "Falta la orden."},
        {"evaluar", "Falta el valor TEXTO."},
        {"haberes --mes 02/26", "Falta la opción --empresa."},
        {"liquidacion --mes 02/26", "Faltan --empresa, --nombre."},
        {"borrar --empresa A --nombre B --mes 02/26 --codigo abc",
         "El valor abc de --codigo no es un número válido."},
        {"resumen --nada", "La opción --nada no existe."},
        {"evaluar 1 2", "Sobra el valor 2."},
        {"evaluar --1", "va después de --, por ejemplo: nomira-cli evaluar -- --1"},
        {"evaluar '-(2)'", "nomira-cli evaluar -- -(2)"},
        {"franja 1 2 3", "DATOS lleva al menos 4 valores y se dieron 3."},
        {"--si --no resumen", "--si y --no no se pueden usar juntas."},
    };
    for (const auto& c : casos) {
        const auto s = cli(c.argumentos);
        EXPECT_EQ(s.estado, 1) << c.argumentos << "\n" << s.texto;
        EXPECT_NE(s.texto.find(c.mensaje), std::string::npos) << c.argumentos << "\n" << s.texto;
        for (const char* ingles : {"required", "convert", "expected", "excludes", "Expected"})
            EXPECT_EQ(s.texto.find(ingles), std::string::npos) << c.argumentos << "\n" << s.texto;
    }
    const auto ayuda = cli("evaluar --help");
    EXPECT_EQ(ayuda.estado, 0);
    EXPECT_NE(ayuda.texto.find("Uso:"), std::string::npos) << ayuda.texto;
    EXPECT_NE(ayuda.texto.find("escriba -- antes"), std::string::npos) << ayuda.texto;
}

TEST(ErroresDeUsoCli, ExpresionQueEmpiezaConMenos) {
    pruebas::CarpetaTemporal tmp;
    auto s = cli("evaluar -- -1");
    EXPECT_EQ(s.estado, 0) << s.texto;
    EXPECT_EQ(s.texto, "-1\n");
    s = cli("evaluar -- '-(2*3)+1'");
    EXPECT_EQ(s.texto, "-5\n");
    s = cli("evaluar -- --1");
    EXPECT_EQ(s.texto, "1\n");
}

}  // namespace
}  // namespace nomira
