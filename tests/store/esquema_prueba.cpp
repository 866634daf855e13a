#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "store/crear.h"
#include "store/esquema.h"

namespace nomira::store::prueba {
namespace {

using Esquema = BasePrueba;
using EsquemaVacio = BaseVacia;

struct ColumnaLeida {
    std::string nombre;
    std::string tipo;
};

std::vector<ColumnaLeida> columnasDe(Conexion& c, const std::string& tabla) {
    std::vector<ColumnaLeida> leidas;
    if (c.motor() == Motor::Sqlite) {
        for (const auto& f : c.consulta("PRAGMA table_info(" + tabla + ")").filas)
            leidas.push_back({f.texto("name"), f.texto("type")});
    } else {
        auto r = c.consulta(
            "SELECT column_name, data_type, numeric_precision, numeric_scale "
            "FROM information_schema.columns WHERE table_schema = current_schema() "
            "AND table_name = ? ORDER BY ordinal_position",
            {tabla});
        for (const auto& f : r.filas) {
            std::string tipo = f.texto("data_type");
            if (tipo == "numeric")
                tipo += "(" + f.texto("numeric_precision") + "," + f.texto("numeric_scale") + ")";
            leidas.push_back({f.texto("column_name"), tipo});
        }
    }
    return leidas;
}

// La definición contra lo que dice el diseño: cantidades y posiciones que usan
// los lectores por posición, y los tipos de las columnas especiales.
TEST(Definicion, CantidadesPosicionesYTipos) {
    ASSERT_EQ(esquema().size(), 39u);
    EXPECT_EQ(esquema().front().nombre, "personal");
    EXPECT_EQ(esquema()[14].nombre, "obras");
    EXPECT_EQ(esquema()[15].nombre, "tipocontrib");
    EXPECT_EQ(esquema().back().nombre, "deptocaja");

    EXPECT_EQ(tabla("personal").columnas.size(), 147u);
    EXPECT_EQ(tabla("empresas").columnas.size(), 39u);
    EXPECT_EQ(tabla("configuracion").columnas.size(), 71u);
    EXPECT_EQ(tabla("habydesc").columnas.size(), 14u);
    EXPECT_EQ(tabla("obras").columnas.size(), 9u);

    const Tabla& p = tabla("personal");
    EXPECT_EQ(p.posicion("socmedica"), 15);
    EXPECT_EQ(p.posicion("horario"), 26);
    EXPECT_EQ(p.posicion("cesp3"), 64);
    EXPECT_EQ(p.posicion("nroord"), 69);
    EXPECT_EQ(p.posicion("sexocon"), 87);
    EXPECT_EQ(p.posicion("fechapresded3"), 146);
    const Tabla& conf = tabla("configuracion");
    EXPECT_EQ(conf.posicion("reservado1"), 0);
    EXPECT_EQ(conf.posicion("check18"), 52);
    EXPECT_EQ(conf.posicion("reservado4"), 54);
    EXPECT_EQ(conf.posicion("concopiativo"), 64);
    EXPECT_EQ(conf.posicion("nroempges"), 70);
    EXPECT_EQ(tabla("empresas").posicion("subgrupoconsal"), 38);

    auto tipo = [](const char* t, const char* c) {
        const Tabla& tb = tabla(t);
        return tb.columnas.at(static_cast<std::size_t>(tb.posicion(c))).tipo;
    };
    EXPECT_EQ(tipo("habydesc", "total"), TipoColumna::Dinero);
    EXPECT_EQ(tipo("histsueldosmin", "sueldo"), TipoColumna::Dinero);
    EXPECT_EQ(tipo("montosapagar", "montoapagar"), TipoColumna::Dinero);
    EXPECT_EQ(tipo("habydesc", "cant"), TipoColumna::Real);
    EXPECT_EQ(tipo("personal", "nrofun"), TipoColumna::Entero);
    EXPECT_EQ(tipo("personal", "sueldo"), TipoColumna::Texto);
    EXPECT_EQ(tipo("personal", "cesp2"), TipoColumna::Texto);
    EXPECT_EQ(tipo("personal", "fechanaccon"), TipoColumna::Fecha);
    EXPECT_EQ(tipo("empresas", "fechafinact3"), TipoColumna::Fecha);
    EXPECT_EQ(tipo("salvacacional", "hastalic"), TipoColumna::Fecha);
    EXPECT_EQ(tipo("aguinaldos", "aclab"), TipoColumna::Texto);
    EXPECT_THROW(tabla("noexiste"), ErrorBase);
}

// Cada tabla creada tiene sus columnas en el orden y con el tipo definidos.
TEST_P(Esquema, LaBaseCreadaSigueLaDefinicion) {
    auto tablas = tablasDeLaBase(c());
    EXPECT_EQ(tablas.size(), 41u);  // las 39, versionesquema y explicaciones
    auto definidas = esquema();
    definidas.insert(definidas.end(), tablasAuxiliares().begin(), tablasAuxiliares().end());
    for (const Tabla& t : definidas) {
        SCOPED_TRACE(t.nombre);
        auto leidas = columnasDe(c(), t.nombre);
        ASSERT_EQ(leidas.size(), t.columnas.size());
        for (std::size_t i = 0; i < leidas.size(); ++i) {
            EXPECT_EQ(leidas[i].nombre, t.columnas[i].nombre) << "posición " << i;
            EXPECT_EQ(leidas[i].tipo, tipoSql(t.columnas[i].tipo, c().motor()))
                << t.columnas[i].nombre;
        }
    }
    // SELECT * entrega las columnas en la posición de la definición.
    auto r = c().consulta("SELECT * FROM personal");
    ASSERT_EQ(r.columnas.size(), 147u);
    EXPECT_EQ(r.columnas[69], "nroord");
}

TEST_P(Esquema, ConfiguracionInicialUnicaYConSusValores) {
    crearBase(c());  // una segunda vez no agrega otra fila
    auto r = c().consulta("SELECT * FROM configuracion");
    ASSERT_EQ(r.filas.size(), 1u);
    const Fila& f = r.primera();
    EXPECT_EQ(f.texto("tiporec"), "Courier New");
    EXPECT_EQ(f.texto("tamrec"), "10");
    EXPECT_EQ(f.texto("contitulos"), "Si");
    EXPECT_EQ(f.texto("cantpers"), "todos");
    EXPECT_EQ(f.texto("tipodepapel"), "No");
    EXPECT_EQ(f.texto(64), "NoNo");  // concopiativo, leído por posición
    EXPECT_EQ(f.texto("impresorarecibos"), "");
    for (int i = 1; i <= 18; ++i)
        EXPECT_EQ(f.texto("check" + std::to_string(i)), i <= 6 ? "1" : "0") << "check" << i;
    EXPECT_TRUE(f.esNulo("reservado1"));
    EXPECT_TRUE(f.esNulo("usu1"));
}

TEST_P(Esquema, VersionRegistradaYMigrarNoRepite) {
    EXPECT_TRUE(existeEsquema(c()));
    EXPECT_EQ(versionEsquema(c()), kVersionEsquema);
    migrar(c());
    migrar(c());
    EXPECT_EQ(versionEsquema(c()), kVersionEsquema);
    EXPECT_EQ(c().consulta("SELECT * FROM versionesquema").filas.size(), 1u);
    // Las 39, versionesquema y explicaciones.
    EXPECT_EQ(tablasDeLaBase(c()).size(), 41u);

    // Una base con las tablas de la primera versión pero sin versión (traída de
    // otro lado) se toma como la 1 y se pone al día sin perder datos.
    c().ejecuta("INSERT INTO paises (nombre) VALUES (?)", {std::string("858-URUGUAY")});
    c().ejecuta("DROP TABLE versionesquema");
    c().ejecuta("DROP TABLE explicaciones");
    EXPECT_EQ(versionEsquema(c()), 0);
    crearBase(c());
    EXPECT_EQ(versionEsquema(c()), kVersionEsquema);
    EXPECT_EQ(c().consulta("SELECT * FROM paises").filas.size(), 1u);
    EXPECT_TRUE(c().consulta("SELECT * FROM explicaciones").vacio());
}

TEST_P(EsquemaVacio, MigrarDesdeNadaCreaLasTablas) {
    EXPECT_FALSE(existeEsquema(c()));
    EXPECT_EQ(versionEsquema(c()), 0);
    migrar(c());
    EXPECT_TRUE(existeEsquema(c()));
    EXPECT_EQ(versionEsquema(c()), kVersionEsquema);
    // migrar no es crearBase: la fila de configuración la pone crearBase.
    EXPECT_TRUE(c().consulta("SELECT * FROM configuracion").vacio());
    crearBase(c());
    EXPECT_EQ(c().consulta("SELECT * FROM configuracion").filas.size(), 1u);
}

TEST_P(EsquemaVacio, LosIndicesDeLasBusquedasFrecuentesExisten) {
    crearBase(c());
    auto r =
        c().motor() == Motor::Sqlite
            ? c().consulta("SELECT name FROM sqlite_master WHERE type = 'index'")
            : c().consulta("SELECT indexname FROM pg_indexes WHERE schemaname = current_schema()");
    std::vector<std::string> nombres;
    for (const auto& f : r.filas) nombres.push_back(f.texto(0));
    for (const char* n : {"ix_habydesc_empresa_nombre_fecha", "ix_personal_empresa_nombre",
                          "ix_definiciondevariables_nombre_fecha", "ix_conceptos_codigo"})
        EXPECT_NE(std::find(nombres.begin(), nombres.end(), n), nombres.end()) << n;
}

NOMIRA_PARA_CADA_MOTOR(Esquema);
NOMIRA_PARA_CADA_MOTOR(EsquemaVacio);

}  // namespace
}  // namespace nomira::store::prueba
