// Los datos con que nace una base, y la actualización de los valores legales.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <set>

#include "apoyo/base_prueba.h"
#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "common/fallo.h"
#include "master/datos_iniciales.h"
#include "store/esquema.h"

namespace nomira::master {
namespace {

namespace fs = std::filesystem;
using common::Fecha;

const fs::path kDatos = fs::path(__FILE__).parent_path() / "../../data";

class DatosIniciales : public store::prueba::BasePrueba {
  protected:
    std::int64_t contar(const std::string& sql, const std::vector<store::Valor>& p = {}) {
        return c().consulta(sql, p).primera().entero(std::size_t{0});
    }
    double valor(const std::string& nombre, const std::string& fechaIso) {
        return c()
            .consulta("SELECT valor FROM definiciondevariables WHERE nombre = ? AND fecha = ?",
                      {nombre, fechaIso})
            .primera()
            .real("valor");
    }
};
NOMIRA_PARA_CADA_MOTOR(DatosIniciales);

TEST_P(DatosIniciales, UnaBaseNuevaTieneCadaFilaDeLosArchivos) {
    const auto r = cargarDatosIniciales(c(), kDatos, Fecha{2026, 3, 15});
    int catalogos = 0;
    for (const auto& e : fs::directory_iterator(kDatos / "catalogos")) {
        const auto tabla = e.path().stem().string();
        const auto lineas = leerArchivoDatos(e.path(), store::tabla(tabla).columnas.size());
        SCOPED_TRACE(tabla);
        EXPECT_EQ(contar("SELECT COUNT(*) FROM " + tabla),
                  static_cast<std::int64_t>(lineas.size()));
        for (const auto& l : lineas)
            EXPECT_EQ(
                contar("SELECT COUNT(*) FROM " + tabla + " WHERE nombre = ?", {l.campos[0]}) > 0,
                true);
        catalogos += static_cast<int>(lineas.size());
    }
    EXPECT_EQ(r.catalogos, catalogos);
    EXPECT_EQ(contar("SELECT COUNT(*) FROM depto"), 19);

    const auto conceptos = leerArchivoDatos(kDatos / "conceptos.txt", 11);
    EXPECT_EQ(contar("SELECT COUNT(*) FROM conceptos"),
              static_cast<std::int64_t>(conceptos.size()));
    const auto sv = c().consulta("SELECT * FROM conceptos WHERE codigo = 606").primera();
    EXPECT_EQ(sv.texto("concepto"), "SALARIO VACACIONAL");
    EXPECT_EQ(sv.texto("ipd"), "Si");
    EXPECT_EQ(c().consulta("SELECT concepto FROM conceptos WHERE codigo = 636").primera().texto(0),
              "SALARIO VACACIONAL 2DA ACT");
    // Los descuentos se generan en orden de código: los aportes antes del IRPF y los adelantos al
    // final.
    auto codigo = [&](const char* n) {
        return contar("SELECT codigo FROM conceptos WHERE concepto = ?", {std::string(n)});
    };
    for (const char* aporte : {"MONTEPIO", "SNIS", "FRL"})
        EXPECT_LT(codigo(aporte), codigo("IRPF"));
    EXPECT_EQ(contar("SELECT MAX(codigo) FROM conceptos WHERE tipo = 'Des'"), codigo("ADELANTOS"));
    EXPECT_LT(contar("SELECT MAX(codigo) FROM conceptos WHERE tipo = 'Hab'"),
              contar("SELECT MIN(codigo) FROM conceptos WHERE tipo = 'Des'"));

    // La BPC más nueva es la de 2026; el SALMIN de julio todavía no rige en marzo.
    EXPECT_DOUBLE_EQ(c().consulta("SELECT valor FROM definiciondevariables WHERE nombre = 'BPC' "
                                  "ORDER BY fecha DESC")
                         .primera()
                         .real("valor"),
                     6864);
    EXPECT_EQ(contar("SELECT COUNT(*) FROM definiciondevariables WHERE nombre = 'SALMIN'"), 2);
    EXPECT_GE(r.pendientes, 1);
    EXPECT_EQ(contar("SELECT COUNT(*) FROM franjasirp WHERE franja < 1000"), 8);
    EXPECT_DOUBLE_EQ(
        c().consulta("SELECT tasa FROM franjasirp WHERE franja = 4").primera().real("tasa"), 24);
}

TEST_P(DatosIniciales, ActualizarAgregaLoNuevoSinTocarLoDelUsuarioYDosVecesNoAgregaNada) {
    cargarDatosIniciales(c(), kDatos, Fecha{2026, 3, 15});
    // El usuario corrigió la BPC de 2026 a mano, agregó la suya y borró una franja.
    c().ejecuta(
        "UPDATE definiciondevariables SET valor = 7000 WHERE nombre = 'BPC' AND fecha = "
        "'2026-01-01'");
    c().ejecuta(
        "INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES ('MIVAR', '2026-02-01', "
        "3)");
    c().ejecuta("INSERT INTO franjasirp (franja, min, max, tasa) VALUES (2001, 0, 7, 0)");
    c().ejecuta("UPDATE franjasirp SET tasa = 11 WHERE franja = 2");
    c().ejecuta("DELETE FROM franjasirp WHERE franja = 8");
    const auto antes = contar("SELECT COUNT(*) FROM definiciondevariables");

    const auto r = actualizarValores(c(), kDatos, Fecha{2026, 7, 1});
    EXPECT_EQ(r.variables, 1);  // el SALMIN de julio, ya en su día
    EXPECT_EQ(r.franjas, 1);    // la franja que faltaba vuelve; las demás quedan como están
    EXPECT_DOUBLE_EQ(valor("SALMIN", "2026-07-01"), 25383);
    EXPECT_DOUBLE_EQ(valor("BPC", "2026-01-01"), 7000);
    EXPECT_EQ(contar("SELECT COUNT(*) FROM definiciondevariables WHERE nombre = 'BPC'"), 3);
    EXPECT_DOUBLE_EQ(valor("MIVAR", "2026-02-01"), 3);
    EXPECT_DOUBLE_EQ(
        c().consulta("SELECT tasa FROM franjasirp WHERE franja = 2").primera().real("tasa"), 11);
    EXPECT_EQ(contar("SELECT COUNT(*) FROM franjasirp"), 9);
    EXPECT_EQ(contar("SELECT COUNT(*) FROM definiciondevariables"), antes + 1);

    const auto otra = actualizarValores(c(), kDatos, Fecha{2026, 7, 1});
    EXPECT_EQ(otra.variables, 0);
    EXPECT_EQ(otra.franjas, 0);
    EXPECT_EQ(contar("SELECT COUNT(*) FROM definiciondevariables"), antes + 1);
}

// Una carpeta de datos de prueba con los archivos que se le den.
class CarpetaDatos {
  public:
    CarpetaDatos()
        : raiz_(fs::temp_directory_path() /
                ("nomira-datos-" + std::to_string(std::random_device{}()))) {
        fs::create_directories(raiz_ / "valores");
        fs::create_directories(raiz_ / "catalogos");
    }
    ~CarpetaDatos() { fs::remove_all(raiz_); }
    void archivo(const std::string& ruta, const std::string& texto) {
        std::ofstream(raiz_ / ruta) << texto;
    }
    const fs::path& ruta() const { return raiz_; }

  private:
    fs::path raiz_;
};

TEST_P(DatosIniciales, UnArchivoMalEscritoFallaConSuLineaYNoDejaNadaCargado) {
    struct Caso {
        const char* ruta;
        const char* texto;
        const char* mensaje;
    };
    const Caso casos[] = {
        {"valores/BPC.txt", "# bpc\n01/01/2025|6576|ref\n2026-01-01|6864|ref\n",
         "BPC.txt, línea 3"},
        {"valores/BPC.txt", "01/01/2025|6.576,00|ref\n", "no es un número"},
        {"valores/BPC.txt", "01/01/2025|6576|\n", "falta la referencia"},
        {"valores/BPC.txt", "01/01/2025|6576|a\n01/01/2025|6600|b\n", "está dos veces"},
        {"valores/bpc.txt", "01/01/2025|6576|ref\n", "mayúsculas"},
        {"valores/franjasirp.txt", "1|0|7|0|ref\n2|10|7|10|ref\n", "línea 2"},
        {"catalogos/depto.txt", "AR-Artigas\nCanelones\n", "depto.txt, línea 2"},
        {"catalogos/local.txt", "AR-Artigas|01-Artigas\n", "tiene 2 campos y deben ser 3"},
        {"catalogos/nohay.txt", "01-x\n", "nohay"},
        {"conceptos.txt", "1|SUELDO|S|[SUELDO]|Hab|I|Si|Si|Si|Si|Si\n2|MONTEPIO|S|1|Des|P|Si||||\n",
         "un descuento es específico de G"},
        {"conceptos.txt",
         "1|SUELDO|S|[SUELDO]|Hab|I|Si|Si|Si|Si|Si\n1|OTRO|G|0|Hab|I|No|No|No|No|No\n",
         "está dos veces"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.ruta);
        CarpetaDatos d;
        d.archivo("catalogos/paises.txt", "858-Uruguay\n");
        d.archivo(caso.ruta, caso.texto);
        try {
            cargarDatosIniciales(c(), d.ruta(), Fecha{2026, 3, 15});
            ADD_FAILURE() << "se cargó un archivo mal escrito";
        } catch (const std::exception& e) {
            EXPECT_NE(std::string(e.what()).find(caso.mensaje), std::string::npos) << e.what();
        }
        EXPECT_EQ(contar("SELECT COUNT(*) FROM paises"), 0);
        EXPECT_EQ(contar("SELECT COUNT(*) FROM definiciondevariables"), 0);
        EXPECT_EQ(contar("SELECT COUNT(*) FROM conceptos"), 0);
    }
}

TEST(ActualizarValoresCli, InitCargaLosDatosYLaOrdenEsIdempotente) {
    pruebas::CarpetaTemporal carpeta("15/03/2026");
    setenv("NOMIRA_DATOS", kDatos.c_str(), 1);
    const auto base = carpeta.archivo("n.db");
    ASSERT_EQ(pruebas::cli("--base " + base + " init").estado, 0);
    auto primera = pruebas::cli("--base " + base + " actualizar-valores");
    EXPECT_EQ(primera.estado, 0) << primera.texto;
    EXPECT_NE(primera.texto.find("Valores agregados: 0"), std::string::npos) << primera.texto;
    EXPECT_NE(primera.texto.find("fecha futura: 1"), std::string::npos) << primera.texto;
    setenv("NOMIRA_HOY", "01/07/2026", 1);
    EXPECT_NE(
        pruebas::cli("--base " + base + " actualizar-valores").texto.find("Valores agregados: 1"),
        std::string::npos);
    EXPECT_NE(
        pruebas::cli("--base " + base + " actualizar-valores").texto.find("Valores agregados: 0"),
        std::string::npos);
    unsetenv("NOMIRA_DATOS");
}

}  // namespace
}  // namespace nomira::master
