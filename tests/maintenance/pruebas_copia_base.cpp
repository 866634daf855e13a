// Mudar una base de un motor a otro y volver, sin perder ni cambiar una fila.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "apoyo/base_prueba.h"
#include "common/dinero.h"
#include "maintenance/copia_base.h"
#include "maintenance/respaldo.h"
#include "store/crear.h"
#include "store/esquema.h"

using namespace nomira;
using store::Nulo;
using store::Valor;

namespace {

class CopiaBase : public store::prueba::BaseVacia {
  protected:
    std::unique_ptr<store::Conexion> sqlite(const std::string& nombre) {
        const auto ruta = std::filesystem::temp_directory_path() /
                          ("nomira-copia-" + std::to_string(::getpid()) + "-" + nombre);
        std::filesystem::remove(ruta);
        archivos_.push_back(ruta);
        return store::abrir(ruta.string());
    }
    void TearDown() override {
        BaseVacia::TearDown();
        for (const auto& a : archivos_) std::filesystem::remove(a);
    }
    std::vector<std::filesystem::path> archivos_;
};

// Todas las filas de todas las tablas, como texto comparable.
std::vector<std::string> volcado(store::Conexion& c) {
    std::vector<std::string> filas;
    for (const auto& t : store::esquema()) {
        for (const auto& f : c.consulta("SELECT * FROM " + t.nombre).filas) {
            std::string linea = t.nombre;
            for (const auto& col : t.columnas)
                linea += "|" + (f.esNulo(col.nombre) ? std::string("<null>") : f.texto(col.nombre));
            filas.push_back(linea);
        }
    }
    // Cada motor ordena el texto a su manera: se compara sin depender del orden.
    std::sort(filas.begin(), filas.end());
    return filas;
}

void llenar(store::Conexion& c) {
    store::crearBase(c);
    c.ejecuta("UPDATE configuracion SET usu1 = 'ADMIN', cat1 = '1', tiporec = 'Courier New'");
    c.ejecuta("INSERT INTO empresas (empresa, nroemp, fechainsc) VALUES (?, ?, ?)",
              {std::string("O'Hara & Cía."), std::int64_t{7}, std::string("2024-02-29")});
    c.ejecuta(
        "INSERT INTO personal (empresa, nombre, sueldo, fechaing, fechaeg) VALUES (?, ?, ?, ?, ?)",
        {std::string("O'Hara & Cía."), std::string("PEÑA_DÍAZ, JOSÉ"), std::string("25000.50"),
         std::string("2020-01-31"), Nulo{}});
    for (int i = 1; i <= 30; ++i)
        c.ejecuta(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, cant, total) "
            "VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
            {std::string("O'Hara & Cía."), std::string("PEÑA_DÍAZ, JOSÉ"),
             std::string("2026-02-01"), std::int64_t{i}, "CONCEPTO " + std::to_string(i),
             std::string(i % 2 ? "Hab" : "Des"), 0.5 * i,
             common::Dinero::desdeDouble(1234567.8901 / i).aDouble()});
    c.ejecuta(
        "INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES ('BPC', '2026-01-01', "
        "6864)");
    c.ejecuta("INSERT INTO paises (nombre) VALUES ('01-URUGUAY')");
}

}  // namespace

TEST_P(CopiaBase, IdaYVueltaDejaLasMismasFilas) {
    auto origen = sqlite("origen.db");
    llenar(*origen);
    std::vector<std::string> avance;
    const auto copiadas =
        maintenance::copiarBase(*origen, c(), [&](const auto& t) { avance.push_back(t.tabla); });
    ASSERT_EQ(copiadas.size(), store::esquema().size() + store::tablasAuxiliares().size());
    EXPECT_EQ(avance.front(), "personal");
    const auto habydesc = std::find_if(copiadas.begin(), copiadas.end(),
                                       [](const auto& t) { return t.tabla == "habydesc"; });
    EXPECT_EQ(habydesc->filas, 30);

    // El servidor queda con las estadísticas de lo que se llenó.
    if (esPostgres()) {
        EXPECT_EQ(c().consulta("SELECT reltuples FROM pg_class WHERE oid = "
                               "CAST('habydesc' AS regclass)")
                      .primera()
                      .entero(0),
                  30);
    }

    auto vuelta = sqlite("vuelta.db");
    maintenance::copiarBase(c(), *vuelta);
    EXPECT_EQ(volcado(*vuelta), volcado(*origen));
    EXPECT_EQ(volcado(c()), volcado(*origen));
}

// Un origen de la versión 2 tenía una explicación por fila: llegan juntas.
TEST_P(CopiaBase, UnOrigenAnteriorSePoneAlDiaAntesDeCopiarse) {
    auto origen = sqlite("origen.db");
    llenar(*origen);
    // Una base de la versión 3, con las explicaciones juntas por persona y mes.
    origen->ejecuta("DROP TABLE explicaciones");
    origen->ejecuta(
        "CREATE TABLE explicacionesmes (empresa TEXT, nombre TEXT, fecha TEXT, tabla TEXT, "
        "texto TEXT)");
    origen->ejecuta(
        "INSERT INTO explicacionesmes VALUES ('E', 'N', '2026-02-01', 'habydesc', ?)",
        {std::string("7\x1f" "siete\x1e" "8\x1f" "ocho")});
    // Las explicaciones pasan con sus filas.
    origen->ejecuta(
        "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto) VALUES ('E', 'N', "
        "'2026-02-01', 7, 'SIETE'), ('E', 'N', '2026-02-01', 8, 'OCHO')");
    origen->ejecuta("UPDATE versionesquema SET version = 3");
    maintenance::copiarBase(*origen, c());
    const auto r = c().consulta("SELECT codigo, texto FROM explicaciones ORDER BY codigo");
    ASSERT_EQ(r.filas.size(), 2u);
    EXPECT_EQ(r.primera().entero("codigo"), 7);
    EXPECT_EQ(r.primera().texto("texto"), "siete");
    EXPECT_EQ(r.filas[1].texto("texto"), "ocho");
    EXPECT_EQ(store::versionEsquema(*origen), store::kVersionEsquema);
}

TEST_P(CopiaBase, UnDestinoConDatosSeRechazaSinTocarlo) {
    auto origen = sqlite("origen.db");
    llenar(*origen);
    store::crearBase(c());
    c().ejecuta("INSERT INTO paises (nombre) VALUES ('02-ARGENTINA')");
    const auto antes = volcado(c());
    EXPECT_THROW(maintenance::copiarBase(*origen, c()), store::ErrorBase);
    EXPECT_EQ(volcado(c()), antes);
}

// SQLite guarda un texto con el carácter nulo; PostgreSQL lo cortaría. Hacia
// PostgreSQL no se copia nada y el mensaje dice dónde está.
TEST_P(CopiaBase, UnTextoConCaracterNuloNoSeCortaEnElCamino) {
    auto origen = sqlite("origen.db");
    llenar(*origen);
    const std::string conNulo("CALLE 1\0 APTO 2", 16);
    origen->ejecuta("UPDATE personal SET direccion = ? WHERE nombre = ?",
                    {conNulo, std::string("PEÑA_DÍAZ, JOSÉ")});
    if (!esPostgres()) {
        maintenance::copiarBase(*origen, c());
        EXPECT_EQ(c().consulta("SELECT direccion FROM personal").primera().texto(0), conNulo);
        return;
    }
    try {
        maintenance::copiarBase(*origen, c());
        FAIL() << "la copia debía rechazarse";
    } catch (const store::ErrorBase& e) {
        EXPECT_EQ(e.descripcion(),
                  "La fila de la tabla personal con empresa = 'O'Hara & Cía.', nombre = "
                  "'PEÑA_DÍAZ, JOSÉ' tiene un carácter nulo en la columna direccion, que "
                  "PostgreSQL no puede guardar. No se copió nada: corrija ese texto en el origen "
                  "y vuelva a copiar.");
    }
    EXPECT_FALSE(store::existeEsquema(c()));
}

NOMIRA_PARA_CADA_MOTOR(CopiaBase);

class Respaldo : public store::prueba::BasePrueba {};

TEST_P(Respaldo, LaCopiaTieneLosDatosYNoQuedaNadaAMedias) {
    const auto carpeta =
        std::filesystem::temp_directory_path() / ("nomira-respaldo-" + std::to_string(::getpid()));
    std::filesystem::create_directories(carpeta);
    c().ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('O''Hara', 3)");
    const auto copia = carpeta / "copia.bak";
    std::ofstream(copia) << "una copia anterior";
    maintenance::respaldarBase(c(), copia);
    EXPECT_FALSE(std::filesystem::exists(carpeta / "copia.bak.parcial"));
    if (esPostgres()) {
        // El formato propio de pg_dump empieza con su firma.
        std::ifstream f(copia, std::ios::binary);
        std::string firma(5, '\0');
        f.read(firma.data(), 5);
        EXPECT_EQ(firma, "PGDMP");
    } else {
        auto vuelta = store::abrir(copia.string());
        EXPECT_EQ(vuelta->consulta("SELECT empresa FROM empresas").primera().texto("empresa"),
                  "O'Hara");
    }
    // Un destino imposible falla sin dejar rastro.
    EXPECT_ANY_THROW(maintenance::respaldarBase(c(), carpeta / "no" / "existe.bak"));
    EXPECT_FALSE(std::filesystem::exists(carpeta / "no"));
    std::filesystem::remove_all(carpeta);
}

NOMIRA_PARA_CADA_MOTOR(Respaldo);
