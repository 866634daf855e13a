// Los escenarios de punta a punta: cada carpeta de tests/escenarios corre sus
// órdenes de nomira-cli sobre una base nueva de cada motor y debe dar, byte
// por byte, la salida y las filas guardadas en sus archivos. Los dos motores
// comparan con los mismos archivos: tienen que coincidir entre sí.
//
// NOMIRA_ESCENARIOS_ESCRIBIR=1 reescribe los archivos esperados desde la
// corrida sobre SQLite (la de PostgreSQL compara siempre): es para un cambio
// de comportamiento buscado, que se confirma diciendo qué cambió.
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "apoyo/base_prueba.h"
#include "apoyo/carpeta_temporal.h"
#include "escenarios/escenario.h"
#include "escenarios/volcado.h"

namespace nomira::pruebas::escenarios {
namespace {

namespace fs = std::filesystem;
using store::Motor;

const fs::path kCarpeta = NOMIRA_ESCENARIOS_CARPETA;

// La lista la arma CMake con las carpetas que tienen "ordenes": una carpeta
// nueva recompila esta prueba y aparece en ctest.
std::vector<std::string> nombresDeEscenarios() {
    std::vector<std::string> v;
    std::stringstream s(NOMIRA_ESCENARIOS);
    for (std::string n; std::getline(s, n, ',');)
        if (!n.empty()) v.push_back(n);
    return v;
}

using Parametro = std::tuple<std::string, Motor>;

class Escenarios : public ::testing::TestWithParam<Parametro> {};

TEST_P(Escenarios, DaLaSalidaYLasFilasEsperadas) {
    const auto& [nombre, motor] = GetParam();
    const auto escenario = leerEscenario(kCarpeta / nombre);
    ASSERT_FALSE(escenario.ordenes.empty()) << "sin órdenes en " << escenario.carpeta;
    store::prueba::DestinoPrueba base(motor);
    NOMIRA_OMITIR_SI_NO_HAY(base);
    CarpetaTemporal raiz(escenario.hoy.c_str());

    const char* escribir = std::getenv("NOMIRA_ESCENARIOS_ESCRIBIR");
    const bool reescribir = motor == Motor::Sqlite && escribir && std::string(escribir) == "1";

    // La diferencia va tal cual, sin las comillas y escapes de EXPECT_EQ.
    const auto salida = correrOrdenes(escenario, base.destino(), raiz.ruta());
    if (const auto d = diferenciaCon(escenario.carpeta / "salida", salida, reescribir); !d.empty())
        ADD_FAILURE() << "la salida de las órdenes no es la esperada:\n" << d;
    const auto filas = volcarLiquidacion(*store::abrir(base.destino()));
    if (const auto d = diferenciaCon(escenario.carpeta / "filas", filas, reescribir); !d.empty())
        ADD_FAILURE() << "las filas no son las esperadas:\n" << d;
    if (reescribir)
        std::cout << "[ ESCRITO  ] " << (escenario.carpeta / "salida").string() << " y filas\n";
}

INSTANTIATE_TEST_SUITE_P(Carpetas, Escenarios,
                         ::testing::Combine(::testing::ValuesIn(nombresDeEscenarios()),
                                            ::testing::Values(Motor::Sqlite, Motor::Postgres)),
                         [](const ::testing::TestParamInfo<Parametro>& info) {
                             return std::get<0>(info.param) +
                                    (std::get<1>(info.param) == Motor::Postgres ? "_Postgres"
                                                                                : "_Sqlite");
                         });

}  // namespace
}  // namespace nomira::pruebas::escenarios
