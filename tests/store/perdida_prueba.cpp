// Una conexión con el servidor que se corta en medio de una transacción: el
// aviso es siempre el de la conexión, también al confirmar, y lo confirmado antes queda.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "store/postgres.h"

namespace nomira::store::prueba {
namespace {

using ConexionCortada = BasePrueba;

void cortar(Conexion& c, Conexion& desde) {
    const auto pid = c.consulta("SELECT pg_backend_pid()").primera().entero(0);
    desde.consulta("SELECT pg_terminate_backend(CAST(? AS integer), 5000)", {pid});
}

void agregar(Conexion& c, const std::string& pais) {
    c.ejecuta("INSERT INTO paises (nombre) VALUES (?)", {pais});
}

std::int64_t paises(Conexion& c) {
    return c.consulta("SELECT count(*) FROM paises").primera().entero(0);
}

// Lo que haga falta hacer con la conexión ya cortada debe dar el aviso de conexión.
template <class F>
void daElAvisoDeConexion(F&& f, const char* que) {
    try {
        f();
        ADD_FAILURE() << que << ": debía fallar";
    } catch (const ErrorBase& e) {
        EXPECT_EQ(e.numero(), kErrorPostgresConexion) << que << ": " << e.descripcion();
        EXPECT_TRUE(e.descripcion().starts_with(kConexionPerdida))
            << que << ": " << e.descripcion();
    }
}

TEST_P(ConexionCortada, ConfirmarDespuesDelCorteDaElAvisoDeConexion) {
    agregar(c(), "858-URUGUAY");
    auto admin = otra();
    {
        Transaccion t(c());
        agregar(c(), "032-ARGENTINA");
        cortar(c(), *admin);
        daElAvisoDeConexion([&] { agregar(c(), "076-BRASIL"); }, "ejecutar");
        // La transacción se perdió: seguir leyendo no puede ir a otra conexión
        // como si nada.
        daElAvisoDeConexion([&] { c().consulta("SELECT * FROM paises"); }, "leer");
        daElAvisoDeConexion([&] { t.confirmar(); }, "confirmar");
    }
    // Cerrada la transacción, la conexión se rehace y lo confirmado está.
    EXPECT_EQ(paises(c()), 1);
    EXPECT_EQ(paises(*admin), 1);
}

TEST_P(ConexionCortada, ElCorteJustoAntesDelCommit) {
    auto admin = otra();
    for (int vuelta = 0; vuelta < 5; ++vuelta) {
        Transaccion t(c());
        agregar(c(), "PAIS " + std::to_string(vuelta));
        cortar(c(), *admin);
        daElAvisoDeConexion([&] { t.confirmar(); }, "confirmar");
    }
    EXPECT_EQ(paises(*admin), 0);
}

// Una tanda con una transacción por persona adentro: la persona falla con el
// aviso, la tanda también, y las tandas anteriores quedan.
TEST_P(ConexionCortada, UnaTandaConTransaccionesAdentro) {
    auto admin = otra();
    {
        Transaccion tanda(c());
        agregar(c(), "1");
        tanda.confirmar();
    }
    try {
        Transaccion tanda(c());
        for (int persona = 2; persona <= 4; ++persona) {
            try {
                Transaccion suya(c());
                agregar(c(), std::to_string(persona));
                if (persona == 3) cortar(c(), *admin);
                suya.confirmar();
            } catch (const ErrorBase& e) {
                EXPECT_EQ(e.numero(), kErrorPostgresConexion) << e.descripcion();
            }
        }
        tanda.confirmar();
        FAIL() << "la tanda no podía confirmarse";
    } catch (const ErrorBase& e) {
        EXPECT_EQ(e.numero(), kErrorPostgresConexion) << e.descripcion();
    }
    EXPECT_EQ(paises(c()), 1);
    // Y después se trabaja normalmente.
    Transaccion t(c());
    agregar(c(), "5");
    t.confirmar();
    EXPECT_EQ(paises(*admin), 2);
}

INSTANTIATE_TEST_SUITE_P(Motores, ConexionCortada, ::testing::Values(Motor::Postgres), nombreMotor);

}  // namespace
}  // namespace nomira::store::prueba
