#include "apoyo/base_prueba.h"

#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "store/crear.h"

namespace nomira::store::prueba {

namespace {

const char* cadenaPostgres() {
    const char* cadena = std::getenv("NOMIRA_PG_PRUEBA");
    return cadena && *cadena ? cadena : nullptr;
}

// La conexión entra ya con su esquema en search_path, así también lo tienen
// las conexiones nuevas y la que se rehace tras perderse.
std::string conEsquemaPg(const std::string& cadena, const std::string& esquema) {
    if (cadena.starts_with("postgresql://") || cadena.starts_with("postgres://"))
        return cadena + (cadena.find('?') == std::string::npos ? "?" : "&") +
               "options=-csearch_path%3D" + esquema;
    return cadena + " options='-csearch_path=" + esquema + "'";
}

}  // namespace

std::string nombreMotor(const ::testing::TestParamInfo<Motor>& info) {
    return info.param == Motor::Postgres ? "Postgres" : "Sqlite";
}

void BasePrueba::SetUp() {
    static std::atomic<int> numero{0};
    std::string sufijo = std::to_string(getpid()) + "_" + std::to_string(++numero);
    if (GetParam() == Motor::Postgres) {
        const char* cadena = cadenaPostgres();
        if (!cadena) {
            static bool avisado = false;
            if (!avisado)
                std::cout << "[ AVISO    ] PostgreSQL no disponible: se omiten las pruebas "
                             "sobre PostgreSQL (falta NOMIRA_PG_PRUEBA)\n";
            avisado = true;
            GTEST_SKIP() << "PostgreSQL no disponible: NOMIRA_PG_PRUEBA no está definida";
        }
        esquemaPg_ = "prueba_" + sufijo;
        abrir(cadena)->ejecuta("CREATE SCHEMA " + esquemaPg_);
        destino_ = conEsquemaPg(cadena, esquemaPg_);
    } else {
        auto base = std::filesystem::temp_directory_path() / ("nomira-store-" + sufijo);
        std::filesystem::remove_all(base);
        std::filesystem::create_directories(base);
        carpeta_ = base.string();
        destino_ = (base / "prueba.db").string();
    }
    conexion_ = abrir(destino_);
    if (conEsquema()) crearBase(*conexion_);
}

void BasePrueba::TearDown() {
    conexion_.reset();
    if (!esquemaPg_.empty())
        abrir(cadenaPostgres())->ejecuta("DROP SCHEMA " + esquemaPg_ + " CASCADE");
    if (!carpeta_.empty()) std::filesystem::remove_all(carpeta_);
}

}  // namespace nomira::store::prueba
