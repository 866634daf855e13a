#include "escenarios/volcado.h"

#include <algorithm>
#include <charconv>

#include "common/dinero.h"
#include "store/esquema.h"

namespace nomira::pruebas::escenarios {

namespace {

using store::TipoColumna;
using store::Valor;

const store::Tabla& tablaLiquidacion(std::string_view nombre) {
    for (const auto& t : store::tablasAuxiliares())
        if (t.nombre == nombre) return t;
    return store::tabla(nombre);
}

// El valor con el tipo de su columna, para ordenar los números como números
// aunque SQLite guarde otra cosa en la columna.
Valor normalizado(const Valor& v, TipoColumna tipo) {
    if (std::holds_alternative<store::Nulo>(v)) return v;
    const auto celda = store::celdaDe(v);
    switch (tipo) {
        case TipoColumna::Entero:
            return store::enteroDe(celda);
        case TipoColumna::Real:
        case TipoColumna::Dinero:
            return store::realDe(celda);
        case TipoColumna::Texto:
        case TipoColumna::Fecha:
            break;
    }
    return store::textoDe(celda);
}

// Null primero; luego por valor, del mismo tipo en toda la columna.
bool menor(const std::vector<Valor>& a, const std::vector<Valor>& b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        const bool na = std::holds_alternative<store::Nulo>(a[i]);
        const bool nb = std::holds_alternative<store::Nulo>(b[i]);
        if (na || nb) {
            if (na != nb) return na;
            continue;
        }
        if (a[i] == b[i]) continue;
        if (const auto* x = std::get_if<std::int64_t>(&a[i]))
            return *x < std::get<std::int64_t>(b[i]);
        if (const auto* x = std::get_if<double>(&a[i])) return *x < std::get<double>(b[i]);
        return std::get<std::string>(a[i]) < std::get<std::string>(b[i]);
    }
    return false;
}

std::string texto(const Valor& v, TipoColumna tipo) {
    if (std::holds_alternative<store::Nulo>(v)) return "<null>";
    if (const auto* n = std::get_if<std::int64_t>(&v)) return std::to_string(*n);
    if (const auto* d = std::get_if<double>(&v)) {
        if (tipo == TipoColumna::Dinero) return common::Dinero::desdeDouble(*d).texto();
        char b[32];
        const auto [fin, ec] = std::to_chars(b, b + sizeof b, *d);
        return std::string(b, fin);
    }
    // Un salto de línea dentro de un texto no parte la fila.
    std::string t;
    for (char ch : std::get<std::string>(v))
        t += ch == '\n' ? std::string("\\n") : std::string(1, ch);
    return t;
}

std::string volcarTabla(store::Conexion& c, const store::Tabla& t) {
    std::string columnas;
    for (const auto& col : t.columnas) columnas += (columnas.empty() ? "" : ", ") + col.nombre;
    std::vector<std::vector<Valor>> filas;
    for (const auto& f : c.consulta("SELECT " + columnas + " FROM " + t.nombre).filas) {
        std::vector<Valor> fila;
        for (std::size_t i = 0; i < t.columnas.size(); ++i)
            fila.push_back(normalizado(f.valor(i), t.columnas[i].tipo));
        filas.push_back(std::move(fila));
    }
    std::sort(filas.begin(), filas.end(), menor);

    std::string salida = "== " + t.nombre + ": " + std::to_string(filas.size()) + " filas\n";
    if (filas.empty()) return salida;
    std::string cabecera;
    for (const auto& col : t.columnas) cabecera += (cabecera.empty() ? "" : "|") + col.nombre;
    salida += cabecera + '\n';
    for (const auto& fila : filas) {
        std::string linea;
        for (std::size_t i = 0; i < fila.size(); ++i)
            linea += (i ? "|" : "") + texto(fila[i], t.columnas[i].tipo);
        salida += linea + '\n';
    }
    return salida;
}

}  // namespace

std::string volcarLiquidacion(store::Conexion& c) {
    std::string salida;
    for (const char* t : {"habydesc", "explicaciones", "aguinaldos", "salvacacional", "egresos"})
        salida += volcarTabla(c, tablaLiquidacion(t));
    return salida;
}

}  // namespace nomira::pruebas::escenarios
