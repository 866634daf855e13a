#include "store/crear.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <map>

#include "store/esquema.h"

namespace nomira::store {

namespace {

// Búsquedas frecuentes: una liquidación por empresa, persona y mes; las
// personas de una empresa; el valor vigente de una variable; los conceptos en
// orden. Ninguno es único: el sistema admite filas repetidas.
struct Indice {
    const char* tabla;
    const char* columnas;
};

constexpr Indice kIndices[] = {
    {"habydesc", "empresa, nombre, fecha"},
    {"egresos", "empresa, nombre, fecha"},
    {"aguinaldos", "empresa, nombre, fecha"},
    {"salvacacional", "empresa, nombre, fecha"},
    {"personal", "empresa, nombre"},
    {"definiciondevariables", "nombre, fecha"},
    {"conceptos", "codigo"},
    {"concpermxpers", "empresa, nombre"},
    {"explicaciones", "empresa, nombre, fecha"},
    // Las corridas de una empresa leen un mes (o un año) de todas sus personas.
    {"habydesc", "empresa, fecha"},
    {"egresos", "empresa, fecha"},
    {"aguinaldos", "empresa, fecha"},
    {"salvacacional", "empresa, fecha"},
};

void crearIndice(Conexion& c, const Indice& i) {
    std::string columnas = i.columnas;
    std::string nombre = std::string("ix_") + i.tabla + "_";
    for (char ch : columnas)
        if (ch != ' ') nombre += ch == ',' ? '_' : ch;
    c.ejecuta("CREATE INDEX IF NOT EXISTS " + nombre + " ON " + i.tabla + " (" + columnas + ")");
}

bool indiceDe(const Indice& i, const std::vector<Tabla>& tablas) {
    return std::any_of(tablas.begin(), tablas.end(),
                       [&](const Tabla& t) { return t.nombre == i.tabla; });
}

bool existeTabla(Conexion& c, const std::string& nombre) {
    auto tablas = tablasDeLaBase(c);
    return std::find(tablas.begin(), tablas.end(), nombre) != tablas.end();
}

void crearTablas(Conexion& c) {
    for (const auto& t : esquema()) c.ejecuta(ddl(t, c.motor()));
    for (const auto& i : kIndices)
        if (indiceDe(i, esquema())) crearIndice(c, i);
    c.ejecuta("CREATE TABLE IF NOT EXISTS versionesquema (version INTEGER)");
}

// De la versión 1 a la 2.
void crearTablasAuxiliares(Conexion& c) {
    for (const auto& t : tablasAuxiliares()) c.ejecuta(ddl(t, c.motor()));
    for (const auto& i : kIndices)
        if (indiceDe(i, tablasAuxiliares())) crearIndice(c, i);
}

// De la versión 4 a la 5: las explicaciones de la tabla explicacionesmes (las
// de una persona, mes, tabla y tipo juntas en un texto, "código␟explicación"
// separadas con ␞) pasan a una fila cada una. De un código repetido queda la
// última; las sin tipo (de la versión 3) ceden ante las de tipo. Una base de la
// versión 2 ya tenía una explicación por fila.
void explicacionesPorFila(Conexion& c) {
    crearTablasAuxiliares(c);
    for (const auto& i : kIndices) crearIndice(c, i);
    if (!existeTabla(c, "explicacionesmes")) return;
    const auto columnas = c.consulta("SELECT * FROM explicacionesmes WHERE 1 = 0").columnas;
    const bool conTipo = std::find(columnas.begin(), columnas.end(), "tipo") != columnas.end();
    // Por persona, mes y tabla: código y explicación.
    std::map<std::array<std::string, 4>, std::map<std::int64_t, std::string>> porFila;
    c.recorrer(std::string("SELECT empresa, nombre, fecha, tabla, texto FROM explicacionesmes") +
                   (conTipo ? " ORDER BY tipo" : ""),
               {}, [&](const FilaAlPaso& f) {
                   auto& m = porFila[{f.texto(0), f.texto(1), f.texto(2), f.texto(3)}];
                   const std::string texto = f.texto(4);
                   std::size_t i = 0;
                   while (i < texto.size()) {
                       auto fin = texto.find('\x1e', i);
                       if (fin == std::string::npos) fin = texto.size();
                       const auto corte = texto.find('\x1f', i);
                       std::int64_t codigo = 0;
                       if (corte != std::string::npos && corte < fin &&
                           std::from_chars(texto.data() + i, texto.data() + corte, codigo).ec ==
                               std::errc())
                           m[codigo] = texto.substr(corte + 1, fin - corte - 1);
                       i = fin + 1;
                   }
               });
    for (const auto& [k, m] : porFila)
        for (const auto& [codigo, texto] : m)
            c.ejecuta(
                "INSERT INTO explicaciones (empresa, nombre, fecha, tabla, codigo, texto) VALUES "
                "(?, ?, ?, ?, ?, ?)",
                {k[0], k[1], k[2], k[3], codigo, texto});
    c.ejecuta("DROP TABLE explicacionesmes");
    // Las de filas que ya no están (las juntas no se podaban siempre) no pasan.
    for (const char* tabla : {"habydesc", "egresos", "salvacacional"})
        c.ejecuta(std::string("DELETE FROM explicaciones WHERE tabla = '") + tabla +
                  "' AND NOT EXISTS (SELECT 1 FROM " + tabla +
                  " f WHERE f.empresa = explicaciones.empresa AND f.nombre = "
                  "explicaciones.nombre AND f.fecha = explicaciones.fecha AND f.codigo = "
                  "explicaciones.codigo)");
}

void sinCambios(Conexion&) {}

// La fila única de configuracion. Impresoras vacías: la predeterminada del
// sistema. Courier New 10 porque recibos y planillas se arman en columnas de
// ancho fijo. Sin márgenes ni corte extra: la impresora ya deja los suyos. El
// administrador (categoría 1) entra a todo; supervisor y operador a nada
// hasta que se les dé permiso. Los usuarios los da de alta el ingreso.
void crearConfiguracion(Conexion& c) {
    if (!c.consulta("SELECT * FROM configuracion").vacio()) return;
    std::vector<std::pair<std::string, std::string>> valores = {
        {"impresorarecibos", ""},   {"impresorainformes", ""},  {"impresoracomanda", ""},
        {"tiporec", "Courier New"}, {"tipoinf", "Courier New"}, {"tipocom", "Courier New"},
        {"tamrec", "10"},           {"taminf", "10"},           {"tamcom", "10"},
        {"contitulos", "Si"},       {"cantpers", "todos"},      {"tipodepapel", "No"},
        {"concopiativo", "NoNo"},   {"cortehoja", "0"},         {"cantlineasarr", "0"},
        {"cantespizq", "0"},        {"desdenrofun", ""},        {"hastanrofun", ""},
        {"nroempges", ""},
    };
    for (int i = 1; i <= 18; ++i)
        valores.emplace_back("check" + std::to_string(i), i <= 6 ? "1" : "0");
    for (int i = 1; i <= 10; ++i)
        for (const char* campo : {"usu", "pas", "cat"})
            valores.emplace_back(campo + std::to_string(i), "");

    std::string columnas, marcas;
    std::vector<Valor> parametros;
    for (const auto& [columna, valor] : valores) {
        columnas += (columnas.empty() ? "" : ", ") + columna;
        marcas += marcas.empty() ? "?" : ", ?";
        parametros.emplace_back(valor);
    }
    c.ejecuta("INSERT INTO configuracion (" + columnas + ") VALUES (" + marcas + ")", parametros);
}

void fijarVersion(Conexion& c, int version) {
    c.ejecuta("DELETE FROM versionesquema");
    c.ejecuta("INSERT INTO versionesquema (version) VALUES (?)",
              {static_cast<std::int64_t>(version)});
}

// pasos[v] lleva una base de la versión v a la v+1. De 0 a 1 es crear las
// tablas: una base de la versión 0 es una base sin esquema.
const std::vector<std::function<void(Conexion&)>>& pasos() {
    static const std::vector<std::function<void(Conexion&)>> lista = {
        // La 3 y la 4 juntaban las explicaciones; la 5 las vuelve a separar.
        crearTablas, crearTablasAuxiliares, sinCambios, sinCambios, explicacionesPorFila};
    return lista;
}

}  // namespace

std::vector<std::string> tablasDeLaBase(Conexion& c) {
    Resultado r = c.motor() == Motor::Postgres
                      ? c.consulta(
                            "SELECT table_name FROM information_schema.tables "
                            "WHERE table_schema = current_schema() AND table_type = 'BASE TABLE'")
                      : c.consulta("SELECT name FROM sqlite_master WHERE type = 'table'");
    std::vector<std::string> nombres;
    for (const auto& f : r.filas) {
        std::string n = f.texto(0);
        std::transform(n.begin(), n.end(), n.begin(),
                       [](unsigned char ch) { return std::tolower(ch); });
        nombres.push_back(std::move(n));
    }
    return nombres;
}

bool existeEsquema(Conexion& c) {
    auto tablas = tablasDeLaBase(c);
    return std::all_of(esquema().begin(), esquema().end(), [&](const Tabla& t) {
        return std::find(tablas.begin(), tablas.end(), t.nombre) != tablas.end();
    });
}

int versionEsquema(Conexion& c) {
    if (!existeTabla(c, "versionesquema")) return 0;
    Resultado r = c.consulta("SELECT version FROM versionesquema");
    if (r.vacio()) return 0;
    return static_cast<int>(r.primera().entero(0));
}

void migrar(Conexion& c) {
    static_assert(kVersionEsquema >= 1);
    for (int v = versionEsquema(c); v < kVersionEsquema; ++v) {
        Transaccion t(c);
        pasos().at(static_cast<std::size_t>(v))(c);
        fijarVersion(c, v + 1);
        t.confirmar();
    }
}

void crearBase(Conexion& c) {
    Transaccion t(c);
    // Una base con las tablas pero sin versión (copiada de otra instalación)
    // se toma como versión 1, la primera que existió.
    if (versionEsquema(c) == 0 && existeEsquema(c)) {
        crearTablas(c);
        fijarVersion(c, 1);
    }
    migrar(c);
    crearConfiguracion(c);
    t.confirmar();
}

}  // namespace nomira::store
