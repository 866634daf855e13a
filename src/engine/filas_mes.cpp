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

// Las filas del mes ya convertidas, para cambiarlas: en su lugar si nadie más
// las tiene y si no una copia, que cuesta menos que volver a leerlas. Nulo (y
// se olvidan) si lo convertido no son filas del mes.
std::vector<FilaMes>* filasParaCambiar(std::any& convertida) {
    auto* filas = std::any_cast<std::shared_ptr<std::vector<FilaMes>>>(&convertida);
    if (!filas) {
        convertida.reset();
        return nullptr;
    }
    if (filas->use_count() > 1) *filas = std::make_shared<std::vector<FilaMes>>(**filas);
    return filas->get();
}

// Lo que una escritura de la fila `f` les hace: cambia concepto, total y cant
// de las de su código, o la agrega donde la pondría filasDe (después de las de
// código menor o igual).
void actualizarConvertidas(std::any& convertida, const FilaGenerada& f, bool insertada) {
    auto* filas = filasParaCambiar(convertida);
    if (!filas) return;
    const auto total = common::Dinero::desdeDouble(f.total.aDouble());
    if (insertada) {
        const auto pos =
            std::upper_bound(filas->begin(), filas->end(), f.codigo,
                             [](long codigo, const FilaMes& x) { return codigo < x.codigo; });
        filas->insert(pos, FilaMes{f.codigo, f.concepto, f.tipo, f.gravado, f.ipd, total, f.cant});
        return;
    }
    for (auto& m : *filas)
        if (m.codigo == f.codigo) {
            m.concepto = f.concepto;
            m.total = total;
            m.cant = f.cant;
        }
}

// Lo que les hace borrar las del tipo.
void quitarConvertidas(std::any& convertida, const std::string& tipo) {
    if (auto* filas = filasParaCambiar(convertida))
        std::erase_if(*filas, [&](const FilaMes& f) { return f.tipo == tipo; });
}

// UPDATE por código (sólo si `probar`) y, si no cambió nada, INSERT. Por una
// conexión que recuerda lo leído, las filas del mes ya leídas se llevan al día
// en lugar de volver a leerse.
void escribir(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
              const std::string& nombre, const common::Mes& mes, const FilaGenerada& f,
              bool probar) {
    if (tabla == TablaLiquidacion::Aguinaldos)
        throw common::Fallo(5, "Las filas de aguinaldos no se escriben aquí");
    const std::int64_t codigo = f.codigo;
    auto* recordada = dynamic_cast<store::ConexionRecordada*>(&base);
    const auto delMes = claves(empresa, nombre, mes, mes);
    const auto& fecha = std::get<std::string>(delMes[2]);  // desde: el primer día del mes
    const auto escribirLeidas = [&](const std::string& sql, const std::vector<store::Valor>& p,
                                    bool insertada) {
        if (!recordada) return base.ejecuta(sql, p);
        return recordada->ejecutaConCambio(sql, p, sqlFilas(tabla), delMes,
                                           [&](std::any& convertida, std::int64_t afectadas) {
                                               if (afectadas > 0)
                                                   actualizarConvertidas(convertida, f, insertada);
                                           });
    };
    // Si las filas del mes están recordadas, ya se sabe si el código tiene fila.
    if (const auto leidas = recordada ? recordada->convertidaRecordada<std::vector<FilaMes>>(
                                            sqlFilas(tabla), delMes)
                                      : nullptr)
        probar = std::any_of(leidas->begin(), leidas->end(),
                             [&](const FilaMes& x) { return x.codigo == codigo; });
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
        [&](std::any& convertida, std::int64_t) { quitarConvertidas(convertida, tipo); });
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
