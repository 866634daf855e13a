#include "master/catalogos.h"

#include <algorithm>
#include <array>

#include "common/texto.h"
#include "store/esquema.h"
#include "store/like.h"

namespace nomira::master {

namespace {

// El nombre de la tabla va dentro del SQL: sólo estos, nunca un texto de afuera.
constexpr std::array<std::string_view, 24> kReferencia = {"tipocontrib",
                                                          "tipocontrib2",
                                                          "tipoaport",
                                                          "grupoact",
                                                          "subgrupoact",
                                                          "depto",
                                                          "local",
                                                          "localmtss",
                                                          "paises",
                                                          "tiporemmtss",
                                                          "tiporembps",
                                                          "segurosalud",
                                                          "vinculofuncional",
                                                          "socmedica",
                                                          "motivodeegreso",
                                                          "sectores",
                                                          "categorias",
                                                          "causpresplantrab",
                                                          "grupoconsal",
                                                          "subgrupoconsal",
                                                          "actividadprincipal",
                                                          "codigodeducciones",
                                                          "categoriadeducciones",
                                                          "deptocaja"};

std::size_t indiceDeReferencia(std::string_view tabla) {
    const auto i = std::find(kReferencia.begin(), kReferencia.end(), tabla);
    if (i == kReferencia.end())
        throw common::Fallo(5, "No es una tabla de referencia: " + std::string(tabla));
    return static_cast<std::size_t>(i - kReferencia.begin());
}

const store::Tabla& tablaDeReferencia(std::string_view tabla) {
    return store::tabla(kReferencia[indiceDeReferencia(tabla)]);
}

// Los nombres de columna también entran al SQL: sólo los de la tabla.
const std::string& columnaDe(const store::Tabla& t, std::string_view columna) {
    const int i = t.posicion(columna);
    if (i < 0) throw common::Fallo(5, "La tabla " + t.nombre + " no tiene " + std::string(columna));
    return t.columnas[static_cast<std::size_t>(i)].nombre;
}

std::string condicionesIguales(const store::Tabla& t,
                               const std::vector<std::pair<std::string, std::string>>& iguales,
                               std::vector<store::Valor>& parametros) {
    std::string sql;
    for (const auto& [columna, valor] : iguales) {
        sql += (sql.empty() ? " WHERE " : " AND ") + columnaDe(t, columna) + " = ?";
        parametros.emplace_back(valor);
    }
    return sql;
}

}  // namespace

std::string ordenDeCarga(store::Motor motor) {
    return motor == store::Motor::Sqlite ? " ORDER BY rowid" : " ORDER BY ctid";
}

std::string ordenDeCarga(const store::Conexion& base) {
    return ordenDeCarga(base.motor());
}

bool esTablaDeReferencia(std::string_view tabla) {
    return std::find(kReferencia.begin(), kReferencia.end(), tabla) != kReferencia.end();
}

namespace {

// El SELECT de codigoEnCatalogo de cada tabla de referencia y motor, armado una
// vez: la corrida de una empresa lo pide en cada persona.
const std::string& sqlCodigoEnCatalogo(store::Motor motor, std::string_view tabla) {
    static const auto sql = [] {
        std::array<std::array<std::string, 2>, kReferencia.size()> s;
        for (std::size_t i = 0; i < kReferencia.size(); ++i)
            for (const auto m : {store::Motor::Sqlite, store::Motor::Postgres})
                s[i][static_cast<std::size_t>(m)] =
                    "SELECT nombre FROM " + tablaDeReferencia(kReferencia[i]).nombre + " WHERE " +
                    store::condicionLike(m, "nombre") + ordenDeCarga(m) + " LIMIT 1";
        return s;
    }();
    return sql[indiceDeReferencia(tabla)][static_cast<std::size_t>(motor)];
}

}  // namespace

std::string codigoEnCatalogo(store::Conexion& base, std::string_view tabla,
                             std::string_view texto) {
    const auto r = base.consulta(sqlCodigoEnCatalogo(base.motor(), tabla),
                                 {store::patronLike(common::patronCatalogo(texto))});
    return r.vacio() ? std::string() : common::codigoDeCatalogo(r.primera().texto("nombre"));
}

std::vector<std::string> valoresCatalogo(store::Conexion& base, std::string_view tabla,
                                         const FiltrosCatalogo& filtros) {
    const auto& t = tablaDeReferencia(tabla);
    if (filtros.size() >= t.columnas.size())
        throw common::Fallo(5, "Demasiados filtros para " + t.nombre);
    std::string sql = "SELECT " + t.columnas[filtros.size()].nombre + " FROM " + t.nombre;
    std::vector<store::Valor> parametros;
    for (const auto& [columna, texto] : filtros) {
        sql += (parametros.empty() ? " WHERE " : " AND ") +
               store::condicionLike(base, columnaDe(t, columna));
        parametros.emplace_back(store::patronLike("*" + texto));
    }
    std::vector<std::string> valores;
    for (const auto& f : base.consulta(sql + ordenDeCarga(base), parametros).filas)
        valores.push_back(f.texto(std::size_t{0}));
    return valores;
}

std::vector<std::string> textosCatalogo(store::Conexion& base, std::string_view tabla,
                                        const FiltrosCatalogo& filtros) {
    auto valores = valoresCatalogo(base, tabla, filtros);
    for (auto& v : valores) v = common::textoDeCatalogo(v);
    return valores;
}

std::vector<std::vector<std::string>> filasCatalogo(
    store::Conexion& base, std::string_view tabla,
    const std::vector<std::pair<std::string, std::string>>& iguales) {
    const auto& t = tablaDeReferencia(tabla);
    std::vector<store::Valor> parametros;
    const std::string sql = "SELECT * FROM " + t.nombre +
                            condicionesIguales(t, iguales, parametros) + ordenDeCarga(base);
    std::vector<std::vector<std::string>> filas;
    for (const auto& f : base.consulta(sql, parametros).filas) {
        std::vector<std::string> fila;
        for (std::size_t i = 0; i < t.columnas.size(); ++i) fila.push_back(f.texto(i));
        filas.push_back(std::move(fila));
    }
    return filas;
}

// La localidad llega sin código: se busca entera después de un guion, así
// "Centro" no encuentra "01-Barrio Centro".
std::optional<std::string> codigoPostal(store::Conexion& base, std::string_view depto,
                                        std::string_view localidad) {
    const auto r = base.consulta(
        "SELECT nombre3 FROM local WHERE " + store::condicionLike(base, "nombre") + " AND (" +
            store::condicionLike(base, "nombre2") + " OR nombre2 = ?)" + ordenDeCarga(base),
        {store::patronLike("*" + std::string(depto)),
         store::patronLike("*-" + std::string(localidad)), std::string(localidad)});
    if (r.vacio()) return std::nullopt;
    return r.primera().texto("nombre3");
}

void agregarACatalogo(store::Conexion& base, std::string_view tabla,
                      const std::vector<std::string>& valores) {
    const auto& t = tablaDeReferencia(tabla);
    if (valores.size() != t.columnas.size())
        throw common::Fallo(5, "Cantidad de valores distinta de las columnas de " + t.nombre);
    std::string marcas;
    std::vector<store::Valor> parametros;
    for (const auto& v : valores) {
        marcas += marcas.empty() ? "?" : ",?";
        parametros.emplace_back(v);
    }
    base.ejecuta("INSERT INTO " + t.nombre + " VALUES (" + marcas + ")", parametros);
}

std::int64_t eliminarDeCatalogo(store::Conexion& base, std::string_view tabla,
                                const std::vector<std::pair<std::string, std::string>>& iguales) {
    const auto& t = tablaDeReferencia(tabla);
    if (iguales.empty()) throw common::Fallo(5, "Falta la condición del borrado en " + t.nombre);
    std::vector<store::Valor> parametros;
    return base.ejecuta("DELETE FROM " + t.nombre + condicionesIguales(t, iguales, parametros),
                        parametros);
}

}  // namespace nomira::master
