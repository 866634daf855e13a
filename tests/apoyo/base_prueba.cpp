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

DestinoPrueba::DestinoPrueba(Motor motor) {
    static std::atomic<int> numero{0};
    std::string sufijo = std::to_string(getpid()) + "_" + std::to_string(++numero);
    if (motor == Motor::Postgres) {
        const char* cadena = cadenaPostgres();
        if (!cadena) return;
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
}

DestinoPrueba::~DestinoPrueba() {
    try {
        if (!esquemaPg_.empty())
            abrir(cadenaPostgres())->ejecuta("DROP SCHEMA " + esquemaPg_ + " CASCADE");
    } catch (...) {
        // Un esquema que queda en el servidor de usar y tirar no hace daño.
    }
    if (!carpeta_.empty()) {
        std::error_code ec;
        std::filesystem::remove_all(carpeta_, ec);
    }
}

void avisarSinPostgres() {
    static bool avisado = false;
    if (!avisado)
        std::cout << "[ AVISO    ] PostgreSQL no disponible: se omiten las pruebas "
                     "sobre PostgreSQL (falta NOMIRA_PG_PRUEBA)\n";
    avisado = true;
}

std::string nombreMotor(const ::testing::TestParamInfo<Motor>& info) {
    return info.param == Motor::Postgres ? "Postgres" : "Sqlite";
}

void BasePrueba::SetUp() {
    base_ = std::make_unique<DestinoPrueba>(GetParam());
    NOMIRA_OMITIR_SI_NO_HAY(*base_);
    destino_ = base_->destino();
    conexion_ = abrir(destino_);
    if (conEsquema()) crearBase(*conexion_);
}

void BasePrueba::TearDown() {
    conexion_.reset();
    base_.reset();
}

}  // namespace nomira::store::prueba
