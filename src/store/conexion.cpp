#include "store/conexion.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "store/postgres.h"
#include "store/sqlite.h"

namespace nomira::store {

namespace {

bool igualesSinMayusculas(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        auto minuscula = [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; };
        return minuscula(x) == minuscula(y);
    });
}

// Lee el número con que empieza el texto, como lo haría Val(): "12abc" es 12,
// " 3.5" es 3.5 y un texto sin número es 0. from_chars no depende del locale,
// que la parte Qt cambia al arrancar.
double numeroDeTexto(const std::string& texto) {
    std::size_t i = texto.find_first_not_of(" \t");
    if (i == std::string::npos) return 0;
    if (texto[i] == '+') ++i;
    double numero = 0;
    std::from_chars(texto.data() + i, texto.data() + texto.size(), numero);
    return numero;
}

std::int64_t enteroDeDouble(double x) {
    // Redondeo al par, como las conversiones a entero del sistema.
    return static_cast<std::int64_t>(std::nearbyint(x));
}

}  // namespace

std::string textoDeNumero(double numero) {
    if (numero == std::trunc(numero) && std::fabs(numero) < 1e15)
        return std::to_string(static_cast<std::int64_t>(numero));
    char buf[64];
    auto [fin, ec] = std::to_chars(buf, buf + sizeof buf, numero, std::chars_format::general, 15);
    std::string texto(buf, ec == std::errc() ? fin : buf);
    // Los ceros finales que deja la precisión fija no aportan nada.
    if (texto.find('.') != std::string::npos && texto.find('e') == std::string::npos) {
        texto.erase(texto.find_last_not_of('0') + 1);
        if (texto.back() == '.') texto.pop_back();
    }
    return texto;
}

void Conexion::recorrer(std::string_view sql, const std::vector<Valor>& parametros,
                        const PorFila& porFila) {
    for (const auto& f : consulta(sql, parametros).filas) porFila(f);
}

Valor textoONulo(std::string_view texto) {
    if (texto.empty()) return Nulo{};
    return std::string(texto);
}

std::size_t Fila::posicion(std::string_view columna) const {
    const auto& nombres = *columnas_;
    const auto n = nombres.size();
    for (std::size_t k = 0; k < n; ++k) {
        const std::size_t i = (siguiente_ + k) % n;
        if (igualesSinMayusculas(nombres[i], columna)) {
            siguiente_ = i + 1;
            return i;
        }
    }
    throw ErrorBase(kErrorUso, "No existe la columna " + std::string(columna) + " en el resultado");
}

const Valor& Fila::valor(std::string_view columna) const {
    return valores_->at(posicion(columna));
}

bool Fila::esNulo(std::size_t posicion) const {
    const Valor& v = valores_->at(posicion);
    if (std::holds_alternative<Nulo>(v)) return true;
    const auto* s = std::get_if<std::string>(&v);
    return s && s->empty();
}

bool Fila::esNulo(std::string_view columna) const {
    return esNulo(posicion(columna));
}

std::string Fila::texto(std::size_t posicion) const {
    const Valor& v = valores_->at(posicion);
    if (const auto* s = std::get_if<std::string>(&v)) return *s;
    if (const auto* i = std::get_if<std::int64_t>(&v)) return std::to_string(*i);
    if (const auto* d = std::get_if<double>(&v)) return textoDeNumero(*d);
    return "";
}

std::string Fila::texto(std::string_view columna) const {
    return texto(posicion(columna));
}

std::int64_t Fila::entero(std::size_t posicion) const {
    const Valor& v = valores_->at(posicion);
    if (const auto* i = std::get_if<std::int64_t>(&v)) return *i;
    if (const auto* d = std::get_if<double>(&v)) return enteroDeDouble(*d);
    if (const auto* s = std::get_if<std::string>(&v)) return enteroDeDouble(numeroDeTexto(*s));
    return 0;
}

std::int64_t Fila::entero(std::string_view columna) const {
    return entero(posicion(columna));
}

double Fila::real(std::size_t posicion) const {
    const Valor& v = valores_->at(posicion);
    if (const auto* d = std::get_if<double>(&v)) return *d;
    if (const auto* i = std::get_if<std::int64_t>(&v)) return static_cast<double>(*i);
    if (const auto* s = std::get_if<std::string>(&v)) return numeroDeTexto(*s);
    return 0;
}

double Fila::real(std::string_view columna) const {
    return real(posicion(columna));
}

bool esDestinoPostgres(std::string_view destino) {
    if (destino.starts_with("postgresql://") || destino.starts_with("postgres://")) return true;
    // Cadena clave=valor de libpq; una ruta de archivo no lleva "dbname=" ni "host=".
    return destino.find("dbname=") != std::string_view::npos ||
           destino.find("host=") != std::string_view::npos;
}

std::unique_ptr<Conexion> abrir(const std::string& destino) {
    if (esDestinoPostgres(destino)) return std::make_unique<ConexionPostgres>(destino);
    return std::make_unique<ConexionSqlite>(destino);
}

}  // namespace nomira::store
