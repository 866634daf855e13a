// La conexión que recuerda lo leído: responde de memoria lo que nadie cambió,
// y vuelve a la base en cuanto se escribe en una tabla leída o se deshace.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "store/recordada.h"

namespace nomira::store::prueba {
namespace {

using Recordada = BasePrueba;
NOMIRA_PARA_CADA_MOTOR(Recordada);

TEST(TablasDeLaSentencia, LasQueSiguenAFromJoinIntoYUpdate) {
    using V = std::vector<std::string>;
    EXPECT_EQ(tablasDeLaSentencia("SELECT * FROM Personal WHERE empresa = ?"), V{"personal"});
    EXPECT_EQ(tablasDeLaSentencia("SELECT conceptos.* FROM conceptos LEFT JOIN concpermxpers ON "
                                  "conceptos.codigo = concpermxpers.codigo"),
              (V{"conceptos", "concpermxpers"}));
    EXPECT_EQ(tablasDeLaSentencia("INSERT INTO habydesc (empresa) VALUES (?)"), V{"habydesc"});
    EXPECT_EQ(tablasDeLaSentencia("UPDATE habydesc SET total = ?"), V{"habydesc"});
    EXPECT_EQ(tablasDeLaSentencia("DELETE FROM explicaciones WHERE NOT EXISTS (SELECT 1 FROM "
                                  "habydesc f WHERE f.codigo = explicaciones.codigo)"),
              (V{"explicaciones", "habydesc"}));
    // Un literal no nombra tablas; una subconsulta en FROM no es una tabla.
    EXPECT_EQ(tablasDeLaSentencia("SELECT 'from paises' AS x FROM (SELECT 1 FROM depto) s"),
              V{"depto"});
    EXPECT_TRUE(tablasDeLaSentencia("CREATE INDEX ix ON personal (nombre)").empty());
}

TEST_P(Recordada, RespondeDeMemoriaHastaQueSeEscribeLoLeido) {
    ConexionRecordada r(c());
    const auto paises = [&] {
        return r.consulta("SELECT nombre FROM paises ORDER BY nombre").filas.size();
    };
    const auto deptos = [&](const std::string& n) {
        return r.consulta("SELECT nombre FROM depto WHERE nombre = ?", {n}).filas.size();
    };
    EXPECT_EQ(paises(), 0u);
    EXPECT_EQ(deptos("CANELONES"), 0u);
    EXPECT_EQ(r.leidas(), 2u);

    // Escribir en depto no toca lo leído de paises; el mismo texto con otro
    // parámetro es otra consulta.
    r.ejecuta("INSERT INTO depto (nombre) VALUES (?)", {std::string("CANELONES")});
    EXPECT_EQ(paises(), 0u);
    EXPECT_EQ(r.recordadas(), 1u);
    EXPECT_EQ(deptos("CANELONES"), 1u);
    EXPECT_EQ(deptos("FLORIDA"), 0u);
    EXPECT_EQ(r.leidas(), 4u);

    // Lo que otro escribe por fuera no se ve mientras se recuerde.
    c().ejecuta("INSERT INTO paises (nombre) VALUES ('858-URUGUAY')");
    EXPECT_EQ(paises(), 0u);

    // Deshacer olvida todo, también lo escrito y deshecho.
    {
        Transaccion t(r);
        r.ejecuta("INSERT INTO depto (nombre) VALUES ('FLORIDA')");
        EXPECT_EQ(deptos("FLORIDA"), 1u);
    }
    EXPECT_EQ(deptos("FLORIDA"), 0u);
    EXPECT_EQ(paises(), 1u);
}

TEST_P(Recordada, EntrePersonasOlvidaLoQueNoSeUso) {
    ConexionRecordada r(c());
    const auto deptos = [&](const std::string& n) {
        return r.consulta("SELECT nombre FROM depto WHERE nombre = ?", {n}).filas.size();
    };
    deptos("CANELONES");  // como la empresa: la usan todas las personas
    deptos("FLORIDA");    // como las filas de la primera persona
    r.olvidarSinUso();
    deptos("CANELONES");
    r.olvidarSinUso();
    EXPECT_EQ(r.leidas(), 2u);

    // Lo que otro escribió se ve en lo olvidado, no en lo que sigue en uso.
    c().ejecuta("INSERT INTO depto (nombre) VALUES ('CANELONES'), ('FLORIDA')");
    EXPECT_EQ(deptos("CANELONES"), 0u);
    EXPECT_EQ(deptos("FLORIDA"), 1u);
    EXPECT_EQ(r.leidas(), 3u);
}

void nombres(std::vector<std::string>& n, const FilaAlPaso& f) {
    n.push_back(f.texto(0));
}

// Una escritura que sabe lo que le hace a lo convertido lo lleva al día sin
// releerlo; lo crudo de esa consulta ya no vale y se vuelve a leer.
TEST_P(Recordada, UnCambioLlevaAlDiaLoConvertidoYLoCrudoSeRelee) {
    ConexionRecordada r(c());
    const std::string sql = "SELECT nombre FROM depto ORDER BY nombre";
    const auto convertidos = [&] { return *r.convertida(sql, {}, nombres); };
    EXPECT_TRUE(convertidos().empty());
    const auto agregar = [&](const std::string& nombre) {
        r.ejecutaConCambio(
            "INSERT INTO depto (nombre) VALUES (?)", {nombre}, sql, {},
            [&](std::any& convertida, std::int64_t afectadas) {
                auto& v = *std::any_cast<std::shared_ptr<std::vector<std::string>>>(convertida);
                if (afectadas == 1) v.push_back(nombre);
            });
    };
    agregar("CANELONES");
    agregar("FLORIDA");
    EXPECT_EQ(convertidos(), (std::vector<std::string>{"CANELONES", "FLORIDA"}));
    EXPECT_EQ(r.leidas(), 1u);
    EXPECT_EQ(r.consulta(sql).filas.size(), 2u);
    EXPECT_EQ(r.leidas(), 2u);
    // Sin nada convertido, la escritura la hace olvidar como cualquier otra.
    agregar("RIVERA");
    EXPECT_EQ(r.consulta(sql).filas.size(), 3u);
}

}  // namespace
}  // namespace nomira::store::prueba
