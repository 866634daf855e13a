#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "store/like.h"
#include "store/like_sqlite.h"
#include "store/postgres.h"

namespace nomira::store::prueba {
namespace {

using Datos = BasePrueba;
using Transacciones = BasePrueba;

const std::string kEmpresa = "ACME S.A.";

std::int64_t cuantas(Conexion& c, const std::string& tabla) {
    return c.consulta("SELECT count(*) AS n FROM " + tabla).primera().entero("n");
}

void agregarRenglon(Conexion& c, const std::string& nombre, std::int64_t codigo, double total) {
    c.ejecuta(
        "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, cant, total) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
        {kEmpresa, nombre, std::string("2024-03-01"), codigo, std::string("SUELDO"),
         std::string("Hab"), 1.0, total});
}

TEST(Destinos, PostgresPorPrefijoOPorClaves) {
    EXPECT_TRUE(esDestinoPostgres("postgresql://nomira@servidor/nomira"));
    EXPECT_TRUE(esDestinoPostgres("postgres://localhost/x"));
    EXPECT_TRUE(esDestinoPostgres("host=servidor dbname=nomira user=ana"));
    EXPECT_TRUE(esDestinoPostgres("dbname=nomira"));
    EXPECT_FALSE(esDestinoPostgres("/home/ana/Software/Nomira/nomira.db"));
    EXPECT_FALSE(esDestinoPostgres("C:/datos/postgresql.db"));
    EXPECT_FALSE(esDestinoPostgres(""));
}

TEST(Parametros, SignosDeInterrogacionFueraDeLiterales) {
    int n = 0;
    EXPECT_EQ(numerarParametros("SELECT * FROM t WHERE a = ? AND b = '?' AND c = ?", &n),
              "SELECT * FROM t WHERE a = $1 AND b = '?' AND c = $2");
    EXPECT_EQ(n, 2);
    EXPECT_EQ(
        numerarParametros("UPDATE t SET n = 'O''Neill ?', m = ? -- ¿y esto?\nWHERE \"x?\" = ?", &n),
        "UPDATE t SET n = 'O''Neill ?', m = $1 -- ¿y esto?\nWHERE \"x?\" = $2");
    EXPECT_EQ(n, 2);
}

// El LIKE propio de SQLite: vuelta atrás en "%", escape y letras acentuadas.
TEST(LikeSqlite, ComodinesEscapeYAcentos) {
    EXPECT_TRUE(coincideLike("%aab", "aaab", 0));
    EXPECT_TRUE(coincideLike("a%b%c", "aXXbYbc", 0));
    EXPECT_FALSE(coincideLike("a%b%c", "aXXbYb", 0));
    EXPECT_TRUE(coincideLike("%", "", 0));
    EXPECT_FALSE(coincideLike("_", "", 0));
    EXPECT_TRUE(coincideLike("a_c", "ABC", 0));
    EXPECT_FALSE(coincideLike("a\\_c", "abc", U'\\'));
    EXPECT_TRUE(coincideLike("a\\_c", "a_c", U'\\'));
    EXPECT_TRUE(coincideLike("%peña", "GÓMEZ PEÑA", 0));
    EXPECT_TRUE(coincideLike("%ÁÉÍÓÚÜ", "áéíóúü", 0));
    EXPECT_FALSE(coincideLike("pena", "peña", 0));
}

TEST(Filas, NuloYVacioSeLeenIgualYLosNumerosSeConvierten) {
    auto nombres = std::make_shared<const std::vector<std::string>>(
        std::vector<std::string>{"nulo", "vacio", "entero", "real", "redondo", "texto", "basura"});
    Fila f(nombres, {Nulo{}, std::string(""), std::int64_t{42}, 2.5, 100.0, std::string("12.75"),
                     std::string("abc")});
    EXPECT_EQ(f.texto("nulo"), "");
    EXPECT_TRUE(f.esNulo("nulo"));
    EXPECT_TRUE(f.esNulo("vacio"));
    EXPECT_FALSE(f.esNulo("entero"));
    EXPECT_EQ(f.entero("nulo"), 0);
    EXPECT_EQ(f.real("vacio"), 0.0);
    EXPECT_EQ(f.texto("entero"), "42");
    EXPECT_EQ(f.texto("real"), "2.5");
    EXPECT_EQ(f.texto("redondo"), "100");
    EXPECT_EQ(f.real("texto"), 12.75);
    EXPECT_EQ(f.entero("texto"), 13);
    EXPECT_EQ(f.entero("real"), 2);  // al par, como las conversiones del sistema
    EXPECT_EQ(f.entero("basura"), 0);
    EXPECT_EQ(f.texto("ENTERO"), "42");  // los nombres no distinguen mayúsculas
    try {
        f.texto("otra");
        FAIL() << "una columna inexistente debe fallar";
    } catch (const ErrorBase& e) {
        EXPECT_EQ(e.numero(), kErrorUso);
    }
    EXPECT_EQ(textoDeNumero(0.1 + 0.2), "0.3");
    EXPECT_EQ(textoDeNumero(-1234567.8901), "-1234567.8901");
}

TEST_P(Datos, UnApostrofeSeGuardaYSeEncuentra) {
    const std::string nombre = "O'Neill, Ana";
    c().ejecuta("INSERT INTO personal (empresa, nombre, nrofun) VALUES (?, ?, ?)",
                {kEmpresa, nombre, std::int64_t{7}});
    auto r =
        c().consulta("SELECT * FROM personal WHERE empresa = ? AND nombre = ?", {kEmpresa, nombre});
    ASSERT_EQ(r.filas.size(), 1u);
    EXPECT_EQ(r.primera().texto(1), nombre);
    EXPECT_EQ(r.primera().entero("nrofun"), 7);
}

TEST_P(Datos, FechasVaciasDineroYNumerosVuelvenComoSeEscribieron) {
    c().ejecuta(
        "INSERT INTO personal (empresa, nombre, fechanac, fechaing, sueldo) VALUES (?, ?, ?, ?, ?)",
        {kEmpresa, std::string("PEREZ, JUAN"), textoONulo(""), std::string("2023-12-31"),
         std::string("")});
    // Una fecha vacía escrita después por UPDATE también queda Null.
    c().ejecuta("UPDATE personal SET fechaing = ? WHERE nombre = ?",
                {textoONulo(""), std::string("PEREZ, JUAN")});
    auto f = c().consulta("SELECT fechanac, fechaing, sueldo FROM personal").primera();
    EXPECT_EQ(f.texto("fechanac"), "");
    EXPECT_TRUE(std::holds_alternative<Nulo>(f.valor("fechaing")));
    EXPECT_TRUE(f.esNulo("sueldo"));

    agregarRenglon(c(), "PEREZ, JUAN", 1, 1234567.8901);
    agregarRenglon(c(), "PEREZ, JUAN", 2, 0.1);
    auto r =
        c().consulta("SELECT fecha, codigo, total FROM habydesc WHERE fecha = ? ORDER BY codigo",
                     {std::string("2024-03-01")});
    ASSERT_EQ(r.filas.size(), 2u);
    EXPECT_EQ(r.primera().texto("fecha"), "2024-03-01");
    EXPECT_EQ(r.primera().entero("codigo"), 1);
    EXPECT_EQ(r.primera().real("total"), 1234567.8901);
    EXPECT_EQ(r.primera().texto("total"), "1234567.8901");
    // Rangos de fechas como los de "los activos en el mes".
    EXPECT_EQ(c().consulta("SELECT * FROM habydesc WHERE fecha >= ? AND fecha <= ?",
                           {std::string("2024-03-01"), std::string("2024-03-31")})
                  .filas.size(),
              2u);
    // Fila por fila (sin copiar la fila), lo mismo que la consulta entera:
    // Null, números y textos con las mismas conversiones.
    const std::string todas = "SELECT fecha, codigo, total, concepto, cant, lic FROM habydesc";
    const auto entera = c().consulta(todas);
    std::size_t i = 0;
    c().recorrer(todas, {}, [&](const FilaAlPaso& f) {
        ASSERT_LT(i, entera.filas.size());
        const auto& e = entera.filas[i++];
        for (std::size_t k = 0; k < e.tamano(); ++k) {
            EXPECT_EQ(f.texto(k), e.texto(k));
            std::string en = "lo que había";
            f.textoEn(k, en);
            EXPECT_EQ(en, e.texto(k));
            EXPECT_EQ(f.entero(k), e.entero(k));
            EXPECT_EQ(f.real(k), e.real(k));
        }
        EXPECT_EQ(f.texto("TOTAL"), e.texto("total"));
    });
    EXPECT_EQ(i, 2u);

    // total = total + ?: el motor suma sobre el dinero guardado.
    c().ejecuta("UPDATE habydesc SET total = total + ? WHERE codigo = ?",
                {0.0099, std::int64_t{1}});
    EXPECT_EQ(c().consulta("SELECT total FROM habydesc WHERE codigo = 1").primera().real(0),
              1234567.9);
}

TEST_P(Datos, LosFallosDanSuNumeroYDescripcion) {
    try {
        c().consulta("SELEC * FROM personal");
        FAIL();
    } catch (const ErrorBase& e) {
        EXPECT_EQ(e.numero(), esPostgres() ? kErrorPostgres + 42 : kErrorSqlite + 1);
        EXPECT_NE(e.descripcion().find("Error de la base de datos"), std::string::npos);
    }
    try {
        c().consulta("SELECT * FROM noexiste");
        FAIL();
    } catch (const ErrorBase& e) {
        EXPECT_NE(e.descripcion().find("noexiste"), std::string::npos) << e.descripcion();
    }
    EXPECT_THROW(c().ejecuta("DELETE FROM paises WHERE nombre = ?", {}), ErrorBase);
    EXPECT_THROW(c().ejecuta("DELETE FROM paises; DELETE FROM depto"), ErrorBase);
    // La conexión sigue sirviendo después de un fallo.
    EXPECT_EQ(cuantas(c(), "paises"), 0);
}

TEST_P(Datos, LikeConAsteriscoSinDistinguirMayusculas) {
    for (const char* n :
         {"858-URUGUAY", "032-Argentina", "076-BRASIL", "999-100%_OK", "724-ESPAÑA"})
        c().ejecuta("INSERT INTO paises (nombre) VALUES (?)", {std::string(n)});
    auto buscar = [&](const std::string& patron) {
        std::vector<std::string> hallados;
        auto r = c().consulta(
            "SELECT nombre FROM paises WHERE " + condicionLike(c(), "nombre") + " ORDER BY nombre",
            {patronLike(patron)});
        for (const auto& f : r.filas) hallados.push_back(f.texto(0));
        return hallados;
    };
    using V = std::vector<std::string>;
    EXPECT_EQ(buscar("*uruguay"), V{"858-URUGUAY"});
    EXPECT_EQ(buscar("*ARGENTINA"), V{"032-Argentina"});
    EXPECT_EQ(buscar("0*"), (V{"032-Argentina", "076-BRASIL"}));
    EXPECT_EQ(buscar("*ruGU*"), V{"858-URUGUAY"});
    EXPECT_EQ(buscar("*españa"), V{"724-ESPAÑA"});
    // "%" y "_" del texto se buscan tal cual, no como comodines.
    EXPECT_EQ(buscar("*100%_ok"), V{"999-100%_OK"});
    EXPECT_TRUE(buscar("*0_-*").empty());
    EXPECT_TRUE(buscar("*NADA").empty());
    EXPECT_EQ(patronLike("*a%b_c\\"), "%a\\%b\\_c\\\\");
}

TEST_P(Transacciones, UnaOperacionQueFallaNoDejaNada) {
    try {
        Transaccion t(c());
        agregarRenglon(c(), "UNO", 1, 10);
        agregarRenglon(c(), "UNO", 2, 20);
        c().ejecuta("INSERT INTO habydesc (columnaquenoexiste) VALUES (?)", {std::int64_t{1}});
        t.confirmar();
        FAIL();
    } catch (const ErrorBase&) {
    }
    EXPECT_EQ(cuantas(c(), "habydesc"), 0);

    {
        Transaccion t(c());
        agregarRenglon(c(), "DOS", 1, 10);
        t.confirmar();
    }
    EXPECT_EQ(cuantas(c(), "habydesc"), 1);
    EXPECT_THROW(c().confirmar(), ErrorBase);
    EXPECT_THROW(c().deshacer(), ErrorBase);
}

TEST_P(Transacciones, LaInternaDeshaceSoloLoSuyo) {
    {
        Transaccion externa(c());
        agregarRenglon(c(), "PERSONA 1", 1, 10);
        {
            Transaccion interna(c());
            agregarRenglon(c(), "PERSONA 2", 1, 20);
            // sale sin confirmar: se deshace
        }
        {
            Transaccion interna(c());
            agregarRenglon(c(), "PERSONA 3", 1, 30);
            interna.confirmar();
        }
        externa.confirmar();
    }
    auto r = c().consulta("SELECT nombre FROM habydesc ORDER BY nombre");
    ASSERT_EQ(r.filas.size(), 2u);
    EXPECT_EQ(r.filas[0].texto(0), "PERSONA 1");
    EXPECT_EQ(r.filas[1].texto(0), "PERSONA 3");

    // Confirmar la interna no confirma nada si la externa se deshace.
    {
        Transaccion externa(c());
        {
            Transaccion interna(c());
            agregarRenglon(c(), "PERSONA 4", 1, 40);
            interna.confirmar();
        }
    }
    EXPECT_EQ(cuantas(c(), "habydesc"), 2);
}

TEST_P(Transacciones, UnaInternaQueFallaSeDeshaceYLaExternaSigue) {
    Transaccion externa(c());
    agregarRenglon(c(), "PERSONA 1", 1, 10);
    try {
        Transaccion interna(c());
        agregarRenglon(c(), "PERSONA 2", 1, 20);
        c().ejecuta("UPDATE habydesc SET nada = 1");
        interna.confirmar();
    } catch (const ErrorBase&) {
    }
    agregarRenglon(c(), "PERSONA 3", 1, 30);
    externa.confirmar();
    EXPECT_EQ(cuantas(c(), "habydesc"), 2);
    EXPECT_EQ(otra()->consulta("SELECT * FROM habydesc WHERE nombre = 'PERSONA 2'").filas.size(),
              0u);
}

NOMIRA_PARA_CADA_MOTOR(Datos);
NOMIRA_PARA_CADA_MOTOR(Transacciones);

}  // namespace
}  // namespace nomira::store::prueba
