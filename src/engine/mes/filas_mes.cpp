#include "engine/mes/filas_mes.h"

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
    auto d = desde.primerDia().iso();
    auto h = hasta == desde ? d : hasta.primerDia().iso();
    return {empresa, nombre, std::move(d), std::move(h)};
}

// Los de la empresa con filas en la tabla entre dos fechas.
std::string sqlQuienes(const std::string& tabla) {
    return "SELECT DISTINCT nombre FROM " + tabla +
           " WHERE empresa = ? AND fecha >= ? AND fecha <= ?";
}

// Filas de aguinaldos, egresos y salvacacional casi nunca hay en el mes: en la
// corrida de una empresa se sabe de una lectura quiénes las tienen y no se
// busca por cada persona. k: empresa, nombre y las dos fechas.
bool puedeTenerFilas(store::Conexion& base, const std::string& quienes,
                     const std::vector<store::Valor>& k) {
    return store::puedeEstar(base, quienes, {k[0], k[2], k[3]}, std::get<std::string>(k[1]));
}

// Las sentencias de una tabla de filas, armadas una vez: la corrida de una
// empresa las usa en cada fila.
struct SentenciasFilas {
    std::string leer, actualizar, insertar, quienes;
};

// leer: la consulta de leerFilas; en habydesc y egresos, codigo, concepto,
// tipo, gravado, ipd, total y cant en el orden del índice (fecha y, en cada
// fecha, el de alta), que no pide ordenar en la base: agregarFila las pone por
// código. actualizar e insertar: la escritura de una fila por código (no en
// aguinaldos). quienes: los de la empresa con filas entre dos fechas.
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
    s.quienes = sqlQuienes(t);
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

// Por código y, en un mismo código, en el orden en que llegan: después de las
// de código menor o igual. Una persona tiene pocas filas en el mes: se reserva
// de una vez para las de siempre.
void insertarPorCodigo(std::vector<FilaMes>& filas, FilaMes m) {
    if (filas.empty()) filas.reserve(24);
    const auto pos =
        std::upper_bound(filas.begin(), filas.end(), m.codigo,
                         [](long codigo, const FilaMes& x) { return codigo < x.codigo; });
    filas.insert(pos, std::move(m));
}

// Por posición, la de la lista del SELECT. aguinaldos: concepto, tipo, total;
// las otras: codigo, concepto, tipo, gravado, ipd, total, cant.
template <bool agui>
void agregarFila(std::vector<FilaMes>& filas, const store::FilaAlPaso& f) {
    const std::size_t c = agui ? 0 : 1;
    FilaMes m;
    if (!agui) {
        m.codigo = static_cast<long>(f.entero(0));
        m.gravado = f.texto(3);
        m.ipd = f.texto(4);
        m.cant = f.real(6);
    }
    m.concepto = f.texto(c);
    m.tipo = f.texto(c + 1);
    m.total = common::Dinero::desdeDouble(f.real(agui ? 2 : 5));
    if (agui) {
        filas.push_back(std::move(m));
        return;
    }
    // Lo mismo que daría un ORDER BY codigo sobre el índice, sin la tabla
    // temporal de la base. Casi siempre llegan así (se dieron de alta por
    // código) y van al final.
    insertarPorCodigo(filas, std::move(m));
}

}  // namespace

FilasLeidas leerFilas(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
                      const std::string& nombre, const common::Mes& desde,
                      const common::Mes& hasta) {
    const auto k = claves(empresa, nombre, desde, hasta);
    if (tabla != TablaLiquidacion::Habydesc && !puedeTenerFilas(base, sentencias(tabla).quienes, k))
        return {};
    // En una corrida se leen muchas veces por persona: se convierten una vez.
    return FilasLeidas(store::consultaConvertida(
        base, sqlFilas(tabla), k,
        tabla == TablaLiquidacion::Aguinaldos ? agregarFila<true> : agregarFila<false>));
}

namespace {

void agregarSalVac(std::vector<FilaSalVac>& filas, const store::FilaAlPaso& f) {
    filas.push_back(
        {static_cast<long>(f.entero(0)), f.texto(1), common::Dinero::desdeDouble(f.real(2))});
}

}  // namespace

FilasCompartidas<FilaSalVac> leerSalvacacional(store::Conexion& base, const std::string& empresa,
                                               const std::string& nombre, const common::Mes& desde,
                                               const common::Mes& hasta) {
    static const auto quienes = sqlQuienes("salvacacional");
    const auto k = claves(empresa, nombre, desde, hasta);
    if (!puedeTenerFilas(base, quienes, k)) return {};
    return FilasCompartidas<FilaSalVac>(store::consultaConvertida(
        base,
        "SELECT codigo, concepto, total FROM salvacacional WHERE empresa = ? AND nombre = ? AND "
        "fecha >= ? AND fecha <= ?",
        k, agregarSalVac));
}

bool hayEgresos(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                const common::Mes& mes) {
    const auto k = claves(empresa, nombre, mes, mes);
    return puedeTenerFilas(base, sentencias(TablaLiquidacion::Egresos).quienes, k) &&
           !base.consulta(
                    "SELECT 1 FROM egresos WHERE empresa = ? AND nombre = ? AND fecha = ? "
                    "LIMIT 1",
                    {empresa, nombre, k[2]})
                .vacio();
}

namespace {

// Lo que les hace borrar las del tipo.
void quitarConvertidas(std::any& convertida, const std::string& tipo) {
    if (auto* filas = store::paraCambiar<std::vector<FilaMes>>(convertida))
        std::erase_if(*filas, [&](const FilaMes& f) { return f.tipo == tipo; });
}

// UPDATE por código (sólo si `probar`) y, si no cambió nada, INSERT. Por una
// conexión que recuerda lo leído, de las filas del mes ya leídas se sabe si el
// código tiene fila, y se llevan al día en lugar de volver a leerse.
void escribir(store::Conexion& base, TablaLiquidacion tabla, const std::string& empresa,
              const std::string& nombre, const common::Mes& mes, const FilaGenerada& f,
              bool probar) {
    if (tabla == TablaLiquidacion::Aguinaldos)
        throw common::Fallo(5, "Las filas de aguinaldos no se escriben aquí");
    const std::int64_t codigo = f.codigo;
    const auto delMes = claves(empresa, nombre, mes, mes);
    const auto& fecha = std::get<std::string>(delMes[2]);  // desde: el primer día del mes
    const auto& sql = sentencias(tabla);
    // El total como se leería de vuelta de la base, que lo guarda como double.
    const auto total = common::Dinero::desdeDouble(f.total.aDouble());
    const auto escribirEn = [&](store::Conexion& c, std::vector<FilaMes>* filas) {
        if (filas)
            probar = std::any_of(filas->begin(), filas->end(),
                                 [&](const FilaMes& x) { return x.codigo == codigo; });
        if (probar && c.ejecuta(sql.actualizar, {f.concepto, f.unidad, f.cant, f.total.aDouble(),
                                                 empresa, nombre, fecha, codigo}) > 0) {
            if (filas)
                for (auto& m : *filas)
                    if (m.codigo == codigo) {
                        m.concepto = f.concepto;
                        m.total = total;
                        m.cant = f.cant;
                    }
            return std::int64_t{1};
        }
        const auto insertadas =
            c.ejecuta(sql.insertar,
                      {empresa, nombre, fecha, codigo, f.concepto, f.tipo, f.unidad, f.permanente,
                       f.gravado, f.aguinaldo, f.cant, f.total.aDouble(), f.lic, f.ipd});
        if (filas && insertadas > 0)
            insertarPorCodigo(
                *filas, FilaMes{f.codigo, f.concepto, f.tipo, f.gravado, f.ipd, total, f.cant});
        return insertadas;
    };
    auto* recordada = dynamic_cast<store::ConexionRecordada*>(&base);
    if (!recordada) {
        escribirEn(base, nullptr);
        return;
    }
    recordada->escribeSobre(sqlFilas(tabla), delMes, [&](std::any* convertida) {
        return escribirEn(*recordada, convertida
                                          ? store::paraCambiar<std::vector<FilaMes>>(*convertida)
                                          : nullptr);
    });
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
