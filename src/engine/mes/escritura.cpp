#include "engine/mes/escritura.h"

#include <algorithm>

namespace nomira::engine {
inline namespace mes {

namespace {

// Las columnas que se escriben de cada tabla, después de empresa, nombre y fecha.
std::vector<std::string> columnasDe(TablaLiquidacion t) {
    if (t == TablaLiquidacion::Aguinaldos) return {"mes", "concepto", "total", "tipo", "aclab"};
    if (t == TablaLiquidacion::Salvacacional)
        return {"codigo", "concepto", "unidad", "cant", "total", "desdelic", "hastalic"};
    return {"codigo",    "concepto", "tipo",  "unidad", "permanente", "gravado",
            "aguinaldo", "cant",     "total", "lic",    "ipd"};
}

void agregarValores(TablaLiquidacion t, const FilaMes& f, std::vector<store::Valor>& v) {
    const std::int64_t codigo = f.codigo;
    if (t == TablaLiquidacion::Aguinaldos) {
        v.insert(v.end(),
                 {f.mes, f.concepto, f.total.aDouble(), f.tipo, store::textoONulo(f.aclab)});
        return;
    }
    if (t == TablaLiquidacion::Salvacacional) {
        v.insert(v.end(), {codigo, f.concepto, f.unidad, f.cant, f.total.aDouble(),
                           store::textoONulo(f.desdelic), store::textoONulo(f.hastalic)});
        return;
    }
    v.insert(v.end(), {codigo, f.concepto, f.tipo, f.unidad, f.permanente, f.gravado, f.aguinaldo,
                       f.cant, f.total.aDouble(), f.lic, f.ipd});
}

// Un INSERT de varias filas: "INSERT INTO t (c...) VALUES (?, ...), (?, ...)".
std::string insertar(const std::string& tabla, const std::vector<std::string>& columnas,
                     std::size_t filas) {
    std::string sql = "INSERT INTO " + tabla + " (empresa, nombre, fecha";
    std::string marcas = "(?, ?, ?";
    for (const auto& c : columnas) {
        sql += ", " + c;
        marcas += ", ?";
    }
    marcas += ")";
    sql += ") VALUES ";
    for (std::size_t i = 0; i < filas; ++i) sql += (i ? ", " : "") + marcas;
    return sql;
}

// De a tandas, para no pasar el límite de parámetros de una sentencia.
constexpr std::size_t kFilasPorSentencia = 50;

template <class Agregar>
void insertarFilas(store::Conexion& base, const std::string& tabla,
                   const std::vector<std::string>& columnas, const std::vector<store::Valor>& clave,
                   const std::vector<const FilaMes*>& filas, const Agregar& agregar) {
    for (std::size_t desde = 0; desde < filas.size(); desde += kFilasPorSentencia) {
        const auto hasta = std::min(filas.size(), desde + kFilasPorSentencia);
        std::vector<store::Valor> v;
        v.reserve((hasta - desde) * (columnas.size() + 3));
        for (auto i = desde; i < hasta; ++i) {
            v.insert(v.end(), clave.begin(), clave.end());
            agregar(*filas[i], v);
        }
        base.ejecuta(insertar(tabla, columnas, hasta - desde), v);
    }
}

// "codigo IN (?, ?, ...)" con un signo por código.
std::string codigoEn(std::size_t codigos) {
    std::string s = " AND codigo IN (";
    for (std::size_t i = 0; i < codigos; ++i) s += i ? ", ?" : "?";
    return s + ")";
}

// Las filas de los códigos que cambiaron, con sus explicaciones: las de la base
// se borran y las del libro se insertan. Por código y no por posición: así no
// importa qué vio de la base quien calculó; bajo la clave de la persona, lo que
// queda es lo último que se escribió.
void reescribirCodigos(store::Conexion& base, const LibroPersona& libro, TablaLiquidacion t,
                       const common::Mes& mes, const std::set<long>& codigos) {
    const std::string tabla = nombreTabla(t);
    const std::vector<store::Valor> clave = {libro.empresa(), libro.nombre(),
                                             mes.primerDia().iso()};
    auto borrar = clave;
    for (const long c : codigos) borrar.emplace_back(std::int64_t{c});
    base.ejecuta("DELETE FROM " + tabla + " WHERE empresa = ? AND nombre = ? AND fecha = ?" +
                     codigoEn(codigos.size()),
                 borrar);
    borrar.insert(borrar.begin() + 3, tabla);
    base.ejecuta(
        "DELETE FROM explicaciones WHERE empresa = ? AND nombre = ? AND fecha = ? AND tabla = ?" +
            codigoEn(codigos.size()),
        borrar);

    std::vector<const FilaMes*> filas, explicadas;
    for (const auto& f : libro.filas(t, mes)) {
        if (!codigos.count(f.codigo)) continue;
        filas.push_back(&f);
        if (!f.explicacion.empty()) explicadas.push_back(&f);
    }
    insertarFilas(base, tabla, columnasDe(t), clave, filas,
                  [&](const FilaMes& f, std::vector<store::Valor>& v) { agregarValores(t, f, v); });
    insertarFilas(base, "explicaciones", {"tabla", "codigo", "texto"}, clave, explicadas,
                  [&](const FilaMes& f, std::vector<store::Valor>& v) {
                      v.insert(v.end(), {tabla, std::int64_t{f.codigo}, f.explicacion});
                  });
}

// El mes de aguinaldos de la persona entero, con las explicaciones por la
// posición de cada fila en el mes (ver LibroPersona).
void reescribirAguinaldos(store::Conexion& base, const LibroPersona& libro,
                          const common::Mes& mes) {
    const std::vector<store::Valor> clave = {libro.empresa(), libro.nombre(),
                                             mes.primerDia().iso()};
    base.ejecuta("DELETE FROM aguinaldos WHERE empresa = ? AND nombre = ? AND fecha = ?", clave);
    auto borrar = clave;
    borrar.emplace_back(std::string("aguinaldos"));
    base.ejecuta(
        "DELETE FROM explicaciones WHERE empresa = ? AND nombre = ? AND fecha = ? AND tabla = ?",
        borrar);
    const auto& delMes = libro.filas(TablaLiquidacion::Aguinaldos, mes);
    std::vector<const FilaMes*> filas, explicadas;
    for (const auto& f : delMes) {
        filas.push_back(&f);
        if (!f.explicacion.empty()) explicadas.push_back(&f);
    }
    insertarFilas(base, "aguinaldos", columnasDe(TablaLiquidacion::Aguinaldos), clave, filas,
                  [](const FilaMes& f, std::vector<store::Valor>& v) {
                      agregarValores(TablaLiquidacion::Aguinaldos, f, v);
                  });
    insertarFilas(base, "explicaciones", {"tabla", "codigo", "texto"}, clave, explicadas,
                  [&](const FilaMes& f, std::vector<store::Valor>& v) {
                      const auto posicion = static_cast<std::int64_t>(&f - delMes.data());
                      v.insert(v.end(), {std::string("aguinaldos"), posicion, f.explicacion});
                  });
}

}  // namespace

void bloquearMes(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                 const common::Mes& mes) {
    store::bloquearClave(base, empresa + '\x1f' + nombre + '\x1f' + mes.primerDia().iso());
}

namespace {

// Las explicaciones del mes que se quedaron sin su fila; las de una persona o
// las de toda la empresa.
void podarExplicaciones(store::Conexion& base, const std::vector<store::Valor>& clave,
                        const std::string& tabla) {
    const bool persona = clave.size() == 3;
    auto p = clave;
    p.emplace_back(tabla);
    base.ejecuta("DELETE FROM explicaciones WHERE empresa = ? AND fecha = ?" +
                     std::string(persona ? " AND nombre = ?" : "") +
                     " AND tabla = ? AND NOT EXISTS (SELECT 1 FROM " + tabla +
                     " f WHERE f.empresa = explicaciones.empresa AND f.nombre = "
                     "explicaciones.nombre AND f.fecha = explicaciones.fecha AND f.codigo = "
                     "explicaciones.codigo)",
                 p);
}

}  // namespace

void borrarTipoDeLaEmpresa(store::Conexion& base, const std::string& empresa,
                           const common::Mes& mes, const std::string& tipo) {
    const std::vector<store::Valor> clave = {empresa, mes.primerDia().iso()};
    store::Transaccion t(base);
    auto p = clave;
    p.emplace_back(tipo);
    base.ejecuta("DELETE FROM habydesc WHERE empresa = ? AND fecha = ? AND tipo = ?", p);
    podarExplicaciones(base, clave, "habydesc");
    t.confirmar();
}

std::int64_t borrarTipoDelMes(store::Conexion& base, const std::string& empresa,
                              const std::string& nombre, const common::Mes& mes,
                              const std::string& tipo) {
    const std::vector<store::Valor> clave = {empresa, mes.primerDia().iso(), nombre};
    store::Transaccion t(base);
    bloquearMes(base, empresa, nombre, mes);
    auto p = clave;
    p.emplace_back(tipo);
    const auto borradas = base.ejecuta(
        "DELETE FROM habydesc WHERE empresa = ? AND fecha = ? AND nombre = ? AND tipo = ?", p);
    podarExplicaciones(base, clave, "habydesc");
    if (tipo == "Hab" && borradas > 0) {
        base.ejecuta("DELETE FROM salvacacional WHERE empresa = ? AND fecha = ? AND nombre = ?",
                     clave);
        podarExplicaciones(base, clave, "salvacacional");
    }
    t.confirmar();
    return borradas;
}

void escribirLibro(store::Conexion& base, LibroPersona& libro) {
    if (libro.cambiados().empty()) return;
    store::Transaccion t(base);
    // Las claves en un orden fijo (el del conjunto): dos puestos no se cruzan.
    std::set<common::Mes> meses;
    for (const auto& [cambio, codigos] : libro.cambiados()) meses.insert(cambio.second);
    for (const auto& mes : meses) bloquearMes(base, libro.empresa(), libro.nombre(), mes);
    for (const auto& [cambio, codigos] : libro.cambiados()) {
        if (cambio.first == TablaLiquidacion::Aguinaldos)
            reescribirAguinaldos(base, libro, cambio.second);
        else
            reescribirCodigos(base, libro, cambio.first, cambio.second, codigos);
    }
    t.confirmar();
    libro.escritos();
}

}  // namespace mes
}  // namespace nomira::engine
