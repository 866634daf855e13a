#include "engine/filas_mes.h"

#include <algorithm>

#include "store/recordada.h"

namespace nomira::engine {

const char* nombreTabla(TablaLiquidacion t) {
    switch (t) {
        case TablaLiquidacion::Habydesc:
            return "habydesc";
        case TablaLiquidacion::Aguinaldos:
            return "aguinaldos";
        case TablaLiquidacion::Egresos:
            return "egresos";
    }
    return "";
}

namespace {

std::vector<store::Valor> claves(const std::string& empresa, const std::string& nombre,
                                 const common::Mes& desde, const common::Mes& hasta) {
    return {empresa, nombre, desde.primerDia().iso(), hasta.primerDia().iso()};
}

// Las sentencias de una tabla de filas, armadas una vez: la corrida de una
// empresa las usa en cada fila.
struct SentenciasFilas {
    std::string leer, actualizar, insertar;
};

// leer: la consulta de leerFilas; en habydesc y egresos, codigo, concepto,
// tipo, gravado, ipd, total y cant en el orden del índice (fecha y, en cada
// fecha, el de alta), que no pide ordenar en la base: filasDe las ordena por
// código. actualizar e insertar: la escritura de una fila por código (no en
// aguinaldos).
SentenciasFilas armarSentencias(TablaLiquidacion tabla) {
    const bool agui = tabla == TablaLiquidacion::Aguinaldos;
    const std::string t = nombreTabla(tabla);
    SentenciasFilas s;
    s.leer = std::string("SELECT ") +
             (agui ? "concepto, tipo, total FROM aguinaldos"
                   : "codigo, concepto, tipo, gravado, ipd, total, cant FROM " + t) +
             " WHERE empresa = ? AND nombre = ? AND fecha >= ? AND fecha <= ?" +
             (agui ? "" : " ORDER BY fecha");
    s.actualizar = "UPDATE " + t +
                   " SET concepto = ?, unidad = ?, cant = ?, total = ? WHERE empresa = ? AND "
                   "nombre = ? AND fecha = ? AND codigo = ?";
    s.insertar = "INSERT INTO " + t +
                 " (empresa, nombre, fecha, codigo, concepto, tipo, unidad, permanente, gravado, "
                 "aguinaldo, cant, total, lic, ipd) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
                 "?, ?)";
    return s;
}

const SentenciasFilas& sentencias(TablaLiquidacion tabla) {
    static const SentenciasFilas s[] = {armarSentencias(TablaLiquidacion::Habydesc),
                                        armarSentencias(TablaLiquidacion::Aguinaldos),
                                        armarSentencias(TablaLiquidacion::Egresos)};
    return s[static_cast<int>(tabla)];
}

const std::string& sqlFilas(TablaLiquidacion tabla) {
    return sentencias(tabla).leer;
}

// Por posición, la de la lista del SELECT. aguinaldos: concepto, tipo, total;
// las otras: codigo, concepto, tipo, gravado, ipd, total, cant.
template <bool agui>
std::vector<FilaMes> filasDe(const store::Resultado& r) {
    const std::size_t c = agui ? 0 : 1;
    std::vector<FilaMes> filas;
    filas.reserve(r.filas.size());
    for (const auto& f : r.filas) {
        FilaMes m;
        if (!agui) {
            m.codigo = static_cast<long>(f.entero(std::size_t{0}));
            m.gravado = f.texto(std::size_t{3});
            m.ipd = f.texto(std::size_t{4});
            m.cant = f.real(std::size_t{6});
        }
        m.concepto = f.texto(c);
        m.tipo = f.texto(c + 1);
        m.total = common::Dinero::desdeDouble(f.real(agui ? std::size_t{2} : std::size_t{5}));
        filas.push_back(std::move(m));
    }
    // Por código y, en un mismo código, en el orden leído: el mismo que daría
    // un ORDER BY codigo sobre el índice, sin la tabla temporal de la base.
    // Casi siempre ya lo están: se dieron de alta por código.
    const auto porCodigo = [](const FilaMes& a, const FilaMes& b) { return a.codigo < b.codigo; };
    if (!agui && !std::is_sorted(filas.begin(), filas.end(), porCodigo))
        std::stable_sort(filas.begin(), filas.end(), porCodigo);
    return filas;
}

}  // namespace

FilasLeidas leerFilas(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                      const std::string& nombre, const common::Mes& desde,
                      const common::Mes& hasta) {
    // En una corrida se leen muchas veces por persona: se convierten una vez.
    return FilasLeidas(store::consultaConvertida(
        base, sqlFilas(tabla), claves(empresa, nombre, desde, hasta),
        tabla == TablaLiquidacion::Aguinaldos ? filasDe<true> : filasDe<false>));
}

namespace {

std::vector<FilaSalVac> filasSalVac(const store::Resultado& r) {
    std::vector<FilaSalVac> filas;
    filas.reserve(r.filas.size());
    for (const auto& f : r.filas)
        filas.push_back({static_cast<long>(f.entero(std::size_t{0})), f.texto(std::size_t{1}),
                         common::Dinero::desdeDouble(f.real(std::size_t{2}))});
    return filas;
}

}  // namespace

FilasCompartidas<FilaSalVac> leerSalvacacional(store::Conexion& base, const std::string& empresa,
                                               const std::string& nombre, const common::Mes& desde,
                                               const common::Mes& hasta) {
    return FilasCompartidas<FilaSalVac>(store::consultaConvertida(
        base,
        "SELECT codigo, concepto, total FROM salvacacional WHERE empresa = ? AND nombre = ? AND "
        "fecha >= ? AND fecha <= ?",
        claves(empresa, nombre, desde, hasta), filasSalVac));
}

bool hayEgresos(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                const common::Mes& mes) {
    return !base.consulta(
                    "SELECT 1 FROM egresos WHERE empresa = ? AND nombre = ? AND fecha = ? "
                    "LIMIT 1",
                    {empresa, nombre, mes.primerDia().iso()})
                .vacio();
}

namespace {

// Lo que una escritura de la fila `f` le hace a las filas del mes tal como las
// devuelve la consulta de leerFilas: cambia concepto y total de las de su
// código, o la agrega al final, donde la pondría una lectura nueva (es la
// última dada de alta en su fecha).
void actualizarLeidas(store::Resultado& r, const FilaGenerada& f, bool insertada) {
    const auto codigoDe = [](const store::Fila& x) { return x.entero(std::size_t{0}); };
    const std::int64_t codigo = f.codigo;
    if (!insertada) {
        for (auto& x : r.filas) {
            if (codigoDe(x) != codigo) continue;
            std::vector<store::Valor> v;
            for (std::size_t i = 0; i < x.tamano(); ++i) v.push_back(x.valor(i));
            v[1] = f.concepto;
            v[5] = f.total.aDouble();
            v[6] = f.cant;
            x = store::Fila(x, std::move(v));
        }
        return;
    }
    std::vector<store::Valor> v = {codigo, f.concepto,        f.tipo, f.gravado,
                                   f.ipd,  f.total.aDouble(), f.cant};
    r.filas.push_back(r.filas.empty() ? store::Fila(&r.columnas, std::move(v))
                                      : store::Fila(r.filas.front(), std::move(v)));
}

// Lo mismo sobre las filas ya convertidas, si las hay: la fila cambiada o
// agregada donde la pondría filasDe (después de las de código menor o igual),
// en su lugar si nadie más las tiene y si no sobre una copia, que cuesta menos
// que volver a convertirlas todas.
void actualizarConvertidas(std::any& convertida, const FilaGenerada& f, bool insertada) {
    using Filas = std::shared_ptr<std::vector<FilaMes>>;
    auto* filas = std::any_cast<Filas>(&convertida);
    if (!filas) {
        convertida.reset();
        return;
    }
    if (filas->use_count() > 1) *filas = std::make_shared<std::vector<FilaMes>>(**filas);
    auto& nuevas = **filas;
    const auto total = common::Dinero::desdeDouble(f.total.aDouble());
    if (insertada) {
        const auto pos =
            std::upper_bound(nuevas.begin(), nuevas.end(), f.codigo,
                             [](long codigo, const FilaMes& x) { return codigo < x.codigo; });
        nuevas.insert(pos, FilaMes{f.codigo, f.concepto, f.tipo, f.gravado, f.ipd, total, f.cant});
        return;
    }
    for (auto& m : nuevas)
        if (m.codigo == f.codigo) {
            m.concepto = f.concepto;
            m.total = total;
            m.cant = f.cant;
        }
}

// Quita de las filas del mes recordadas las del tipo borrado.
void quitarLeidas(store::Resultado& r, const std::string& tipo) {
    std::erase_if(r.filas, [&](const store::Fila& x) { return x.texto(std::size_t{2}) == tipo; });
}

// UPDATE por código (sólo si `probar`) y, si no cambió nada, INSERT. Por una
// conexión que recuerda lo leído, las filas del mes ya leídas se llevan al día
// en lugar de volver a leerse.
void escribir(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
              const std::string& nombre, const common::Mes& mes, const FilaGenerada& f,
              bool probar) {
    if (tabla == TablaLiquidacion::Aguinaldos)
        throw common::Fallo(5, "Las filas de aguinaldos no se escriben aquí");
    const std::string fecha = mes.primerDia().iso();
    const std::int64_t codigo = f.codigo;
    auto* recordada = dynamic_cast<store::ConexionRecordada*>(&base);
    const auto delMes = claves(empresa, nombre, mes, mes);
    const auto escribirLeidas = [&](const std::string& sql, const std::vector<store::Valor>& p,
                                    bool insertada) {
        if (!recordada) return base.ejecuta(sql, p);
        return recordada->ejecutaConCambio(
            sql, p, sqlFilas(tabla), delMes,
            [&](store::Resultado& r, std::int64_t afectadas, std::any& convertida) {
                if (afectadas == 0) return;
                actualizarLeidas(r, f, insertada);
                actualizarConvertidas(convertida, f, insertada);
            });
    };
    // Si las filas del mes están recordadas, ya se sabe si el código tiene fila.
    if (const auto* leidas = recordada ? recordada->recordado(sqlFilas(tabla), delMes) : nullptr)
        probar = std::any_of(leidas->filas.begin(), leidas->filas.end(), [&](const store::Fila& x) {
            return x.entero(std::size_t{0}) == codigo;
        });
    const auto& sql = sentencias(tabla);
    if (probar && escribirLeidas(sql.actualizar,
                                 {f.concepto, f.unidad, f.cant, f.total.aDouble(), empresa, nombre,
                                  fecha, codigo},
                                 false) > 0)
        return;
    escribirLeidas(sql.insertar,
                   {empresa, nombre, fecha, codigo, f.concepto, f.tipo, f.unidad, f.permanente,
                    f.gravado, f.aguinaldo, f.cant, f.total.aDouble(), f.lic, f.ipd},
                   true);
}

}  // namespace

void escribirFila(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                  const std::string& nombre, const common::Mes& mes, const FilaGenerada& f) {
    escribir(base, tabla, empresa, nombre, mes, f, true);
}

std::set<long> codigosDelMes(store::Conexion& base, TablaLiquidacion tabla,
                             const std::string& empresa, const std::string& nombre,
                             const common::Mes& mes) {
    std::set<long> codigos;
    for (const auto& f : leerFilasDelMes(base, tabla, empresa, nombre, mes))
        codigos.insert(f.codigo);
    return codigos;
}

std::int64_t borrarTipoDelMes(store::Conexion& base, TablaLiquidacion tabla,
                              const std::string& empresa, const std::string& nombre,
                              const common::Mes& mes, const std::string& tipo) {
    const std::string sql = "DELETE FROM " + std::string(nombreTabla(tabla)) +
                            " WHERE empresa = ? AND nombre = ? AND fecha = ? AND tipo = ?";
    const std::vector<store::Valor> p = {empresa, nombre, mes.primerDia().iso(), tipo};
    auto* recordada = dynamic_cast<store::ConexionRecordada*>(&base);
    if (!recordada) return base.ejecuta(sql, p);
    return recordada->ejecutaConCambio(
        sql, p, sqlFilas(tabla), claves(empresa, nombre, mes, mes),
        [&](store::Resultado& r, std::int64_t, std::any& convertida) {
            quitarLeidas(r, tipo);
            convertida.reset();
        });
}

void escribirFila(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                  const std::string& nombre, const common::Mes& mes, const FilaGenerada& f,
                  std::set<long>& codigos) {
    escribir(base, tabla, empresa, nombre, mes, f, codigos.count(f.codigo) > 0);
    codigos.insert(f.codigo);
}

bool empiezaCon(const std::string& texto, const char* prefijo) {
    return texto.rfind(prefijo, 0) == 0;
}

bool esAporteLegal(const std::string& concepto) {
    return empiezaCon(concepto, "MONTEPIO") || empiezaCon(concepto, "SNIS") ||
           empiezaCon(concepto, "FRL");
}

common::Dinero sumaHab(const std::vector<FilaMes>& filas) {
    common::Dinero s;
    for (const auto& f : filas)
        if (f.tipo == "Hab") s += f.total;
    return s;
}

common::Dinero sumaPrefijo(const std::vector<FilaMes>& filas, const char* tipo,
                           const char* prefijo) {
    common::Dinero s;
    for (const auto& f : filas)
        if (f.tipo == tipo && empiezaCon(f.concepto, prefijo)) s += f.total;
    return s;
}

common::Dinero sumaAportes(const std::vector<FilaMes>& filas) {
    common::Dinero s;
    for (const auto& f : filas)
        if (f.tipo == "Des" && esAporteLegal(f.concepto)) s += f.total;
    return s;
}

}  // namespace nomira::engine
