#include "master/datos_iniciales.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <set>

#include "common/fallo.h"
#include "master/registro.h"
#include "store/esquema.h"

namespace nomira::master {

namespace fs = std::filesystem;

namespace {

constexpr int kArchivoInexistente = 53;
constexpr int kDatoMalFormado = 13;

[[noreturn]] void malFormado(const fs::path& archivo, int linea, const std::string& que) {
    throw common::Fallo(kDatoMalFormado, archivo.filename().string() + ", línea " +
                                             std::to_string(linea) + ": " + que);
}

std::vector<std::string> partir(const std::string& linea) {
    std::vector<std::string> campos;
    std::size_t desde = 0;
    for (;;) {
        const auto barra = linea.find('|', desde);
        campos.push_back(linea.substr(desde, barra - desde));
        if (barra == std::string::npos) return campos;
        desde = barra + 1;
    }
}

// Un número con punto decimal y nada más: "6576", "0.025", "-1".
bool esNumero(const std::string& t, double& valor) {
    if (t.empty() || t.find_first_not_of("-0123456789.") != std::string::npos) return false;
    const auto [fin, error] = std::from_chars(t.data(), t.data() + t.size(), valor);
    return error == std::errc() && fin == t.data() + t.size();
}

// dd/mm/aaaa, con las barras en su lugar y una fecha que existe.
common::Fecha fechaDeDatos(const fs::path& archivo, const LineaDatos& l, const std::string& t) {
    const bool forma = t.size() == 10 && t[2] == '/' && t[5] == '/';
    auto f = forma ? common::Fecha::desdeTexto(t) : std::nullopt;
    if (!f) malFormado(archivo, l.numero, "la fecha \"" + t + "\" no es dd/mm/aaaa");
    return *f;
}

double numeroDeDatos(const fs::path& archivo, const LineaDatos& l, const std::string& t) {
    double v = 0;
    if (!esNumero(t, v)) malFormado(archivo, l.numero, "\"" + t + "\" no es un número");
    return v;
}

void exigirReferencia(const fs::path& archivo, const LineaDatos& l, const std::string& t) {
    if (t.empty()) malFormado(archivo, l.numero, "falta la referencia de dónde sale el valor");
}

// Los archivos de una carpeta con la extensión dada, en orden de nombre.
std::vector<fs::path> archivosDe(const fs::path& carpeta) {
    std::vector<fs::path> r;
    if (!fs::is_directory(carpeta)) return r;
    for (const auto& e : fs::directory_iterator(carpeta))
        if (e.is_regular_file() && e.path().extension() == ".txt") r.push_back(e.path());
    std::sort(r.begin(), r.end());
    return r;
}

std::int64_t contar(store::Conexion& base, const std::string& sql,
                    const std::vector<store::Valor>& p) {
    return base.consulta(sql, p).primera().entero(std::size_t{0});
}

int cargarCatalogos(store::Conexion& base, const fs::path& carpeta) {
    int filas = 0;
    for (const auto& archivo : archivosDe(carpeta)) {
        const auto nombre = archivo.stem().string();
        const auto& t = store::tabla(nombre);
        std::vector<const char*> columnas;
        for (const auto& c : t.columnas) columnas.push_back(c.nombre.c_str());
        for (const auto& l : leerArchivoDatos(archivo, columnas.size())) {
            // El valor es código, guion, texto: la última columna, salvo en local,
            // donde después de la localidad viene el código postal.
            const auto& valor = nombre == "local" ? l.campos[1] : l.campos.back();
            const auto guion = valor.find('-');
            if (guion == std::string::npos || guion == 0 || guion + 1 == valor.size())
                malFormado(archivo, l.numero, "\"" + valor + "\" no es código-texto");
            base.ejecuta(sqlInsertar(nombre, columnas),
                         valoresParaColumnas(nombre, columnas, l.campos));
            ++filas;
        }
    }
    return filas;
}

const std::vector<const char*> kColumnasConceptos = {
    "codigo",     "concepto", "especificode", "formula", "tipo", "unidad",
    "permanente", "gravado",  "aguinaldo",    "lic",     "ipd"};

void validarConcepto(const fs::path& archivo, const LineaDatos& l) {
    const auto& c = l.campos;
    auto en = [](const std::string& v, std::initializer_list<const char*> admitidos) {
        return std::any_of(admitidos.begin(), admitidos.end(),
                           [&](const char* a) { return v == a; });
    };
    double codigo = 0;
    if (!esNumero(c[0], codigo) || codigo != static_cast<std::int64_t>(codigo) || codigo <= 0)
        malFormado(archivo, l.numero, "el código \"" + c[0] + "\" no es un entero positivo");
    if (c[1].empty()) malFormado(archivo, l.numero, "falta el nombre del concepto");
    if (!en(c[2], {"S", "J", "H", "G"}))
        malFormado(archivo, l.numero, "específico de: S, J, H o G");
    if (c[3].empty()) malFormado(archivo, l.numero, "falta la fórmula");
    if (!en(c[4], {"Hab", "Des"})) malFormado(archivo, l.numero, "tipo: Hab o Des");
    if (!en(c[5], {"I", "T", "P"})) malFormado(archivo, l.numero, "unidad: I, T o P");
    if (!en(c[6], {"Si", "No"})) malFormado(archivo, l.numero, "permanente: Si o No");
    // Un descuento es siempre general y no lleva las cuatro marcas, como en la pantalla.
    const bool hab = c[4] == "Hab";
    if (!hab && c[2] != "G") malFormado(archivo, l.numero, "un descuento es específico de G");
    for (std::size_t i = 7; i <= 10; ++i) {
        if (hab ? !en(c[i], {"Si", "No"}) : !c[i].empty())
            malFormado(archivo, l.numero,
                       std::string(kColumnasConceptos[i]) +
                           (hab ? ": Si o No" : ": vacío en un descuento"));
    }
}

int cargarConceptos(store::Conexion& base, const fs::path& archivo) {
    if (!fs::exists(archivo)) return 0;
    std::set<std::string> codigos, nombres;
    int filas = 0;
    for (const auto& l : leerArchivoDatos(archivo, kColumnasConceptos.size())) {
        validarConcepto(archivo, l);
        if (!codigos.insert(l.campos[0]).second)
            malFormado(archivo, l.numero, "el código " + l.campos[0] + " está dos veces");
        if (!nombres.insert(l.campos[1]).second)
            malFormado(archivo, l.numero, "el concepto " + l.campos[1] + " está dos veces");
        base.ejecuta(sqlInsertar("conceptos", kColumnasConceptos),
                     valoresParaColumnas("conceptos", kColumnasConceptos, l.campos));
        ++filas;
    }
    return filas;
}

bool nombreDeVariable(const std::string& n) {
    return !n.empty() &&
           n.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789") == std::string::npos;
}

void agregarVariable(store::Conexion& base, const fs::path& archivo, const common::Fecha& hoy,
                     ResumenDatos& r) {
    const auto nombre = archivo.stem().string();
    if (!nombreDeVariable(nombre))
        throw common::Fallo(kDatoMalFormado,
                            archivo.filename().string() +
                                ": el nombre de una variable va en mayúsculas y sin blancos");
    std::set<common::Fecha> vistas;
    for (const auto& l : leerArchivoDatos(archivo, 3)) {
        const auto fecha = fechaDeDatos(archivo, l, l.campos[0]);
        const double valor = numeroDeDatos(archivo, l, l.campos[1]);
        exigirReferencia(archivo, l, l.campos[2]);
        if (!vistas.insert(fecha).second)
            malFormado(archivo, l.numero, "la fecha " + l.campos[0] + " está dos veces");
        if (fecha > hoy) {
            ++r.pendientes;
            continue;
        }
        const std::vector<store::Valor> clave = {nombre, fecha.iso()};
        if (contar(base,
                   "SELECT COUNT(*) FROM definiciondevariables WHERE nombre = ? AND fecha = ?",
                   clave) > 0)
            continue;
        base.ejecuta("INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES (?, ?, ?)",
                     {nombre, fecha.iso(), valor});
        ++r.variables;
    }
}

void agregarFranjas(store::Conexion& base, const fs::path& archivo, ResumenDatos& r) {
    std::set<std::int64_t> vistas;
    for (const auto& l : leerArchivoDatos(archivo, 5)) {
        const double franja = numeroDeDatos(archivo, l, l.campos[0]);
        const auto n = static_cast<std::int64_t>(franja);
        if (franja != static_cast<double>(n) || n <= 0)
            malFormado(archivo, l.numero,
                       "la franja \"" + l.campos[0] + "\" no es un entero positivo");
        const double min = numeroDeDatos(archivo, l, l.campos[1]);
        const double max = numeroDeDatos(archivo, l, l.campos[2]);
        const double tasa = numeroDeDatos(archivo, l, l.campos[3]);
        exigirReferencia(archivo, l, l.campos[4]);
        if (max <= min) malFormado(archivo, l.numero, "el máximo no supera al mínimo");
        if (!vistas.insert(n).second) malFormado(archivo, l.numero, "la franja está dos veces");
        if (contar(base, "SELECT COUNT(*) FROM franjasirp WHERE franja = ?", {n}) > 0) continue;
        base.ejecuta("INSERT INTO franjasirp (franja, min, max, tasa) VALUES (?, ?, ?, ?)",
                     {n, min, max, tasa});
        ++r.franjas;
    }
}

}  // namespace

std::vector<LineaDatos> leerArchivoDatos(const fs::path& archivo, std::size_t columnas) {
    std::ifstream entrada(archivo, std::ios::binary);
    if (!entrada)
        throw common::Fallo(kArchivoInexistente, "No se encuentra el archivo " + archivo.string());
    std::vector<LineaDatos> lineas;
    std::string texto;
    int numero = 0;
    while (std::getline(entrada, texto)) {
        ++numero;
        if (!texto.empty() && texto.back() == '\r') texto.pop_back();
        if (texto.empty() || texto.front() == '#') continue;
        LineaDatos l{numero, partir(texto)};
        if (l.campos.size() != columnas)
            malFormado(archivo, numero,
                       "tiene " + std::to_string(l.campos.size()) + " campos y deben ser " +
                           std::to_string(columnas));
        lineas.push_back(std::move(l));
    }
    return lineas;
}

ResumenDatos actualizarValores(store::Conexion& base, const fs::path& carpeta,
                               const common::Fecha& hoy) {
    ResumenDatos r;
    store::Transaccion t(base);
    for (const auto& archivo : archivosDe(carpeta / "valores")) {
        if (archivo.stem() == "franjasirp")
            agregarFranjas(base, archivo, r);
        else
            agregarVariable(base, archivo, hoy, r);
    }
    t.confirmar();
    return r;
}

ResumenDatos cargarDatosIniciales(store::Conexion& base, const fs::path& carpeta,
                                  const common::Fecha& hoy) {
    store::Transaccion t(base);
    const int catalogos = cargarCatalogos(base, carpeta / "catalogos");
    const int conceptos = cargarConceptos(base, carpeta / "conceptos.txt");
    auto r = actualizarValores(base, carpeta, hoy);
    r.catalogos = catalogos;
    r.conceptos = conceptos;
    t.confirmar();
    return r;
}

}  // namespace nomira::master
