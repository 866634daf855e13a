#include <gtest/gtest.h>

#include <thread>

#include "apoyo/base_prueba.h"

namespace nomira::store::prueba {
namespace {

using Concurrencia = BasePrueba;

std::int64_t filasDe(Conexion& c, const std::string& nombre) {
    return c.consulta("SELECT count(*) FROM habydesc WHERE nombre = ?", {nombre})
        .primera()
        .entero(0);
}

// Dos procesos que liquidan personas distintas a la vez: cada uno con su
// conexión, persona por persona en una transacción, y algunas filas sueltas.
TEST_P(Concurrencia, DosConexionesEscribiendoALaVezNoPierdenNada) {
    constexpr int kPersonas = 40;
    auto trabajar = [this](std::string quien, std::string* error) {
        try {
            auto c = otra();
            for (int i = 0; i < kPersonas; ++i) {
                std::string nombre = quien + ", PERSONA " + std::to_string(i);
                Transaccion t(*c);
                for (std::int64_t codigo = 1; codigo <= 3; ++codigo)
                    c->ejecuta(
                        "INSERT INTO habydesc (empresa, nombre, fecha, codigo, total) "
                        "VALUES (?, ?, ?, ?, ?)",
                        {std::string("ACME"), nombre, std::string("2024-05-01"), codigo,
                         100.0 * static_cast<double>(codigo)});
                t.confirmar();
                c->ejecuta("INSERT INTO concpermxpers (empresa, nombre, codigo) VALUES (?, ?, ?)",
                           {std::string("ACME"), nombre, std::int64_t{i}});
            }
        } catch (const std::exception& e) {
            *error = e.what();
        }
    };
    std::string errorA, errorB;
    std::thread a(trabajar, "AAA", &errorA);
    std::thread b(trabajar, "BBB", &errorB);
    a.join();
    b.join();
    EXPECT_EQ(errorA, "");
    EXPECT_EQ(errorB, "");
    EXPECT_EQ(c().consulta("SELECT count(*) FROM habydesc").primera().entero(0), 2 * kPersonas * 3);
    EXPECT_EQ(c().consulta("SELECT count(*) FROM concpermxpers").primera().entero(0),
              2 * kPersonas);
    EXPECT_EQ(c().consulta("SELECT sum(total) FROM habydesc").primera().real(0),
              2 * kPersonas * 600.0);
    EXPECT_EQ(filasDe(c(), "BBB, PERSONA 39"), 3);
}

// La misma fila guardada desde dos PC, una después de la otra: queda la última,
// y cada conexión ve lo que escribió la otra (ninguna lee una foto vieja).
TEST_P(Concurrencia, LaMismaFilaDesdeDosConexionesQuedaConLaUltima) {
    auto b = otra();
    const std::vector<Valor> clave = {std::string("ACME"), std::string("GOMEZ, ANA")};
    c().ejecuta("INSERT INTO personal (empresa, nombre, sueldo) VALUES (?, ?, ?)",
                {std::string("ACME"), std::string("GOMEZ, ANA"), std::string("1000")});
    const std::string leer = "SELECT sueldo FROM personal WHERE empresa = ? AND nombre = ?";
    EXPECT_EQ(b->consulta(leer, clave).primera().texto(0), "1000");

    c().ejecuta("UPDATE personal SET sueldo = ? WHERE empresa = ? AND nombre = ?",
                {std::string("2000"), clave[0], clave[1]});
    {
        Transaccion t(*b);
        b->ejecuta("UPDATE personal SET sueldo = ? WHERE empresa = ? AND nombre = ?",
                   {std::string("3000"), clave[0], clave[1]});
        t.confirmar();
    }
    EXPECT_EQ(c().consulta(leer, clave).primera().texto(0), "3000");
    EXPECT_EQ(b->consulta(leer, clave).primera().texto(0), "3000");
    EXPECT_EQ(c().consulta("SELECT count(*) FROM personal").primera().entero(0), 1);
}

// Las sentencias guardadas siguen sirviendo cuando cambia la tabla que leen.
TEST_P(Concurrencia, UnCambioDeTablaNoDejaSentenciasViejas) {
    c().ejecuta("INSERT INTO paises (nombre) VALUES (?)", {std::string("858-URUGUAY")});
    EXPECT_EQ(c().consulta("SELECT * FROM paises").columnas.size(), 1u);
    c().ejecuta("ALTER TABLE paises ADD COLUMN nota TEXT");
    auto r = c().consulta("SELECT * FROM paises");
    ASSERT_EQ(r.columnas.size(), 2u);
    EXPECT_EQ(r.primera().texto("nombre"), "858-URUGUAY");
    EXPECT_TRUE(r.primera().esNulo("nota"));
}

// Y también cuando la cambia otro proceso (una puesta al día desde otro PC).
TEST_P(Concurrencia, UnCambioDeTablaDesdeOtraConexionTampoco) {
    c().ejecuta("INSERT INTO paises (nombre) VALUES (?)", {std::string("858-URUGUAY")});
    EXPECT_EQ(c().consulta("SELECT * FROM paises").columnas.size(), 1u);
    otra()->ejecuta("ALTER TABLE paises ADD COLUMN nota TEXT");
    auto r = c().consulta("SELECT * FROM paises");
    ASSERT_EQ(r.columnas.size(), 2u);
    ASSERT_EQ(r.primera().tamano(), 2u);
    EXPECT_EQ(r.primera().texto(0), "858-URUGUAY");
}

NOMIRA_PARA_CADA_MOTOR(Concurrencia);

using SoloPostgres = BasePrueba;

std::int64_t proceso(Conexion& c) {
    return c.consulta("SELECT pg_backend_pid()").primera().entero(0);
}

void cortar(Conexion& desde, std::int64_t pid) {
    desde.consulta("SELECT pg_terminate_backend(CAST(? AS integer), 5000)", {pid});
}

// El servidor corta la conexión: un error claro, lo confirmado queda, lo que
// estaba a medias no, y la siguiente operación vuelve a conectar.
TEST_P(SoloPostgres, UnaConexionPerdidaAvisaYSeRecupera) {
    c().ejecuta("INSERT INTO paises (nombre) VALUES (?)", {std::string("858-URUGUAY")});
    auto admin = otra();
    cortar(*admin, proceso(c()));
    try {
        c().consulta("SELECT * FROM paises");
        FAIL() << "debía fallar";
    } catch (const ErrorBase& e) {
        EXPECT_EQ(e.numero(), kErrorPostgresConexion);
        EXPECT_TRUE(e.descripcion().starts_with(
            "Se perdió la conexión con el servidor de la base de datos: "))
            << e.descripcion();
    }
    EXPECT_EQ(c().consulta("SELECT * FROM paises").filas.size(), 1u);

    try {
        Transaccion t(c());
        c().ejecuta("INSERT INTO paises (nombre) VALUES (?)", {std::string("032-ARGENTINA")});
        cortar(*admin, proceso(c()));
        c().ejecuta("INSERT INTO paises (nombre) VALUES (?)", {std::string("076-BRASIL")});
        t.confirmar();
        FAIL() << "debía fallar";
    } catch (const ErrorBase& e) {
        EXPECT_EQ(e.numero(), kErrorPostgresConexion);
    }
    EXPECT_EQ(c().consulta("SELECT count(*) FROM paises").primera().entero(0), 1);
    // Tras la reconexión las transacciones vuelven a funcionar desde cero.
    Transaccion t(c());
    c().ejecuta("INSERT INTO paises (nombre) VALUES (?)", {std::string("076-BRASIL")});
    t.confirmar();
    EXPECT_EQ(admin->consulta("SELECT count(*) FROM paises").primera().entero(0), 2);
}

INSTANTIATE_TEST_SUITE_P(Motores, SoloPostgres, ::testing::Values(Motor::Postgres), nombreMotor);

}  // namespace
}  // namespace nomira::store::prueba
