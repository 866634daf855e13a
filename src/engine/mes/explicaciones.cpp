#include "engine/mes/explicaciones.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <set>

#include "store/recordada.h"

namespace nomira::engine {

namespace {

// Las explicaciones de una persona, un mes, una tabla y un tipo de fila ("Hab"
// o "Des") van en una sola fila de explicacionesmes: cada una es "código␟texto"
// y se separan con ␞ (los separadores de unidad y de registro de ASCII, que
// ningún texto lleva). Por tipo, para que la generación de los descuentos no
// reescriba las de los haberes. Las de una base anterior quedan con tipo "" y
// ceden ante las de tipo.
constexpr char kUnidad = '\x1f';
constexpr char kRegistro = '\x1e';

using PorCodigo = std::map<long, std::string>;

struct Entrada {
    long codigo;
    std::string_view texto;
};

// Por código; de un código repetido, la última.
void ordenar(std::vector<Entrada>& e) {
    std::stable_sort(e.begin(), e.end(),
                     [](const Entrada& a, const Entrada& b) { return a.codigo < b.codigo; });
    // De cada código repetido queda la última: unique se queda con la primera.
    std::reverse(e.begin(), e.end());
    e.erase(std::unique(e.begin(), e.end(),
                        [](const Entrada& a, const Entrada& b) { return a.codigo == b.codigo; }),
            e.end());
    std::reverse(e.begin(), e.end());
}

// Las entradas de un texto guardado, ordenadas. Vistas sobre `texto`, sin
// copiarlo.
std::vector<Entrada> entradas(std::string_view texto) {
    std::vector<Entrada> e;
    std::size_t i = 0;
    while (i < texto.size()) {
        auto fin = texto.find(kRegistro, i);
        if (fin == std::string_view::npos) fin = texto.size();
        const auto corte = texto.find(kUnidad, i);
        long codigo = 0;
        if (corte != std::string_view::npos && corte < fin &&
            std::from_chars(texto.data() + i, texto.data() + corte, codigo).ec == std::errc())
            e.push_back({codigo, texto.substr(corte + 1, fin - corte - 1)});
        i = fin + 1;
    }
    ordenar(e);
    return e;
}

PorCodigo desarmar(const std::string& texto, PorCodigo m = {}) {
    for (const auto& [codigo, explicacion] : entradas(texto)) m[codigo] = explicacion;
    return m;
}

void agregar(std::string& texto, long codigo, std::string_view explicacion) {
    if (!texto.empty()) texto += kRegistro;
    texto += std::to_string(codigo);
    texto += kUnidad;
    texto += explicacion;
}

// El texto guardado de pares (código, explicación) ya en orden: entradas o un
// PorCodigo.
template <class Pares>
std::string armar(const Pares& pares) {
    std::string texto;
    for (const auto& [codigo, explicacion] : pares) agregar(texto, codigo, explicacion);
    return texto;
}

std::vector<store::Valor> clave(TablaLiquidacion tabla, const std::string& empresa,
                                const std::string& nombre, const common::Mes& mes) {
    return {empresa, nombre, mes.primerDia().iso(), std::string(nombreTabla(tabla))};
}

// Las sentencias, con su texto fijo: la corrida de una empresa las usa en cada
// persona.
constexpr const char* kLeer =
    "SELECT texto FROM explicacionesmes WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
    "tabla = ? ORDER BY tipo";
constexpr const char* kLeerTipo =
    "SELECT texto FROM explicacionesmes WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
    "tabla = ? AND tipo = ?";
constexpr const char* kBorrarTipo =
    "DELETE FROM explicacionesmes WHERE empresa = ? AND nombre = ? AND fecha = ? AND tabla = ? "
    "AND tipo = ?";
constexpr const char* kInsertar =
    "INSERT INTO explicacionesmes (empresa, nombre, fecha, tabla, tipo, texto) VALUES (?, ?, ?, ?, "
    "?, ?)";
constexpr const char* kCambiarTipo =
    "UPDATE explicacionesmes SET texto = ? WHERE empresa = ? AND nombre = ? AND fecha = ? AND "
    "tabla = ? AND tipo = ?";
// Quiénes de la empresa tienen explicaciones de un tipo en el mes: la corrida
// de una empresa lo lee una vez y lo lleva al día al escribir, así no busca las
// de cada persona, que casi nunca hay.
constexpr const char* kConExplicaciones =
    "SELECT nombre FROM explicacionesmes WHERE empresa = ? AND fecha = ? AND tabla = ? AND "
    "tipo = ?";

// k: empresa, nombre, fecha, tabla y tipo; lo mismo sin el nombre.
std::vector<store::Valor> deLaEmpresa(const std::vector<store::Valor>& k) {
    return {k[0], k[2], k[3], k[4]};
}

// Todas las de la persona en el mes, las sin tipo primero: las de tipo
// reemplazan a las que una base anterior guardó sin él.
PorCodigo leer(store::Conexion& base, const std::vector<store::Valor>& k) {
    const auto r = base.consulta(kLeer, k);
    PorCodigo m;
    for (const auto& f : r.filas) m = desarmar(f.texto(std::size_t{0}), std::move(m));
    return m;
}

// Por una conexión que recuerda, la escritura lleva al día quiénes tienen
// explicaciones (si ya se leyó) en lugar de hacerlo olvidar.
void ejecutar(store::Conexion& base, const char* sql, const std::vector<store::Valor>& p,
              const std::vector<store::Valor>& k, bool queda) {
    auto* recordada = dynamic_cast<store::ConexionRecordada*>(&base);
    if (!recordada) {
        base.ejecuta(sql, p);
        return;
    }
    recordada->ejecutaConCambio(sql, p, kConExplicaciones, deLaEmpresa(k),
                                [&](std::any& convertida, std::int64_t) {
                                    auto* nombres = store::paraCambiar<store::Nombres>(convertida);
                                    const auto& nombre = std::get<std::string>(k[1]);
                                    if (nombres && queda) nombres->insert(nombre);
                                    if (nombres && !queda) nombres->erase(nombre);
                                });
}

// k: la clave y el tipo. Sin texto, la fila se va.
void escribir(store::Conexion& base, const std::vector<store::Valor>& k, const std::string& texto,
              bool habia) {
    if (habia && texto.empty()) {
        ejecutar(base, kBorrarTipo, k, k, false);
        return;
    }
    auto p = k;
    if (habia) {
        p.insert(p.begin(), texto);
        ejecutar(base, kCambiarTipo, p, k, true);
    } else if (!texto.empty()) {
        p.push_back(texto);
        ejecutar(base, kInsertar, p, k, true);
    }
}

// Las guardadas de ese tipo con las nuevas, por código; un código escrito otra
// vez queda con la última.
void juntar(store::Conexion& base, const std::vector<store::Valor>& k,
            const std::vector<Entrada>& agregadas) {
    // En la corrida de una empresa se sabe sin leerlas si la persona tiene.
    const auto r =
        store::puedeEstar(base, kConExplicaciones, deLaEmpresa(k), std::get<std::string>(k[1]))
            ? base.consulta(kLeerTipo, k)
            : store::Resultado{};
    std::string guardadas;
    for (const auto& f : r.filas) {
        if (!guardadas.empty()) guardadas += kRegistro;
        guardadas += f.texto(std::size_t{0});
    }
    const auto viejas = entradas(guardadas);
    std::vector<Entrada> juntas;
    juntas.reserve(viejas.size() + agregadas.size());
    auto v = viejas.begin();
    for (const auto& a : agregadas) {
        for (; v != viejas.end() && v->codigo < a.codigo; ++v) juntas.push_back(*v);
        if (v != viejas.end() && v->codigo == a.codigo) ++v;
        juntas.push_back(a);
    }
    juntas.insert(juntas.end(), v, viejas.end());
    escribir(base, k, armar(juntas), !r.vacio());
}

// Deja en `m` sólo las de los códigos que siguen teniendo fila.
bool podar(PorCodigo& m, const std::set<long>& codigos) {
    const auto antes = m.size();
    std::erase_if(m, [&](const auto& e) { return !codigos.count(e.first); });
    return m.size() != antes;
}

}  // namespace

void guardarExplicaciones(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                          const std::string& nombre, const common::Mes& mes,
                          const std::vector<FilaLiquidada>& filas) {
    std::map<std::string, std::vector<Entrada>> nuevasPorTipo;
    for (const auto& f : filas)
        if (!f.explicacion.empty())
            nuevasPorTipo[f.fila.tipo].push_back({f.fila.codigo, f.explicacion});
    for (auto& [tipo, nuevas] : nuevasPorTipo) {
        ordenar(nuevas);
        auto k = clave(tabla, empresa, nombre, mes);
        k.emplace_back(tipo);
        juntar(base, k, nuevas);
    }
}

void guardarExplicacion(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                        const std::string& nombre, const common::Mes& mes, long codigo,
                        const std::string& tipo, const std::string& texto) {
    FilaGenerada fila;
    fila.codigo = codigo;
    fila.tipo = tipo;
    guardarExplicaciones(base, tabla, empresa, nombre, mes, {{fila, texto}});
}

std::string leerExplicacion(store::Conexion& base, TablaLiquidacion tabla,
                            const std::string& empresa, const std::string& nombre,
                            const common::Mes& mes, long codigo) {
    const auto m = leer(base, clave(tabla, empresa, nombre, mes));
    const auto it = m.find(codigo);
    return it == m.end() ? std::string() : it->second;
}

void podarExplicaciones(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                        const common::Mes& mes, const std::string& nombre) {
    const std::string t = nombreTabla(tabla);
    const std::string fecha = mes.primerDia().iso();
    const std::string porPersona = nombre.empty() ? "" : " AND nombre = ?";
    std::vector<store::Valor> donde = {empresa, fecha};
    if (!nombre.empty()) donde.emplace_back(nombre);

    std::map<std::string, std::set<long>> codigos;
    for (const auto& f : base.consulta("SELECT nombre, codigo FROM " + t +
                                           " WHERE empresa = ? AND fecha = ?" + porPersona,
                                       donde)
                             .filas)
        codigos[f.texto(std::size_t{0})].insert(static_cast<long>(f.entero(std::size_t{1})));

    auto conTabla = donde;
    conTabla.insert(conTabla.begin() + 2, t);
    for (const auto& f :
         base.consulta("SELECT nombre, tipo, texto FROM explicacionesmes WHERE empresa = ? AND "
                       "fecha = ? AND tabla = ?" +
                           porPersona,
                       conTabla)
             .filas) {
        const auto persona = f.texto(std::size_t{0});
        auto m = desarmar(f.texto(std::size_t{2}));
        if (!podar(m, codigos[persona])) continue;
        auto k = clave(tabla, empresa, persona, mes);
        k.emplace_back(f.texto(std::size_t{1}));
        escribir(base, k, armar(m), true);
    }
}

}  // namespace nomira::engine
