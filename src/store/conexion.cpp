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
double numeroDeTexto(std::string_view texto) {
    std::size_t i = texto.find_first_not_of(" \t");
    if (i == std::string_view::npos) return 0;
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

namespace {

// Una Fila ya leída, entregada como si se leyera.
class FilaAlPasoDeFila final : public FilaAlPaso {
  public:
    explicit FilaAlPasoDeFila(const Fila& f) : f_(f) {}
    const std::vector<std::string>& columnas() const override { return f_.columnas(); }
    Celda celda(std::size_t posicion) const override { return celdaDe(f_.valor(posicion)); }

  private:
    const Fila& f_;
};

}  // namespace

void Conexion::recorrer(std::string_view sql, const std::vector<Valor>& parametros,
                        const PorFila& porFila) {
    for (const auto& f : consulta(sql, parametros).filas) porFila(FilaAlPasoDeFila(f));
}

Celda celdaDe(const Valor& v) {
    if (const auto* s = std::get_if<std::string>(&v)) return std::string_view(*s);
    if (const auto* i = std::get_if<std::int64_t>(&v)) return *i;
    if (const auto* d = std::get_if<double>(&v)) return *d;
    return Nulo{};
}

Valor valorDe(const Celda& c) {
    if (const auto* s = std::get_if<std::string_view>(&c)) return std::string(*s);
    if (const auto* i = std::get_if<std::int64_t>(&c)) return *i;
    if (const auto* d = std::get_if<double>(&c)) return *d;
    return Nulo{};
}

void textoEn(const Celda& c, std::string& destino) {
    if (const auto* s = std::get_if<std::string_view>(&c))
        destino.assign(*s);
    else if (const auto* i = std::get_if<std::int64_t>(&c))
        destino = std::to_string(*i);
    else if (const auto* d = std::get_if<double>(&c))
        destino = textoDeNumero(*d);
    else
        destino.clear();
}

std::string textoDe(const Celda& c) {
    std::string t;
    textoEn(c, t);
    return t;
}

std::int64_t enteroDe(const Celda& c) {
    if (const auto* i = std::get_if<std::int64_t>(&c)) return *i;
    if (const auto* d = std::get_if<double>(&c)) return enteroDeDouble(*d);
    if (const auto* s = std::get_if<std::string_view>(&c)) return enteroDeDouble(numeroDeTexto(*s));
    return 0;
}

double realDe(const Celda& c) {
    if (const auto* d = std::get_if<double>(&c)) return *d;
    if (const auto* i = std::get_if<std::int64_t>(&c)) return static_cast<double>(*i);
    if (const auto* s = std::get_if<std::string_view>(&c)) return numeroDeTexto(*s);
    return 0;
}

bool esNuloDe(const Celda& c) {
    if (std::holds_alternative<Nulo>(c)) return true;
    const auto* s = std::get_if<std::string_view>(&c);
    return s && s->empty();
}

std::size_t posicionDe(const std::vector<std::string>& columnas, std::string_view columna,
                       std::size_t desde) {
    const auto n = columnas.size();
    for (std::size_t k = 0; k < n; ++k) {
        const std::size_t i = (desde + k) % n;
        if (igualesSinMayusculas(columnas[i], columna)) return i;
    }
    throw ErrorBase(kErrorUso, "No existe la columna " + std::string(columna) + " en el resultado");
}

Valor textoONulo(std::string_view texto) {
    if (texto.empty()) return Nulo{};
    return std::string(texto);
}

std::size_t Fila::posicion(std::string_view columna) const {
    const auto i = posicionDe(*columnas_, columna, siguiente_);
    siguiente_ = i + 1;
    return i;
}

const Valor& Fila::valor(std::string_view columna) const {
    return valores_->at(posicion(columna));
}

bool Fila::esNulo(std::size_t posicion) const {
    return esNuloDe(celdaDe(valores_->at(posicion)));
}

bool Fila::esNulo(std::string_view columna) const {
    return esNulo(posicion(columna));
}

std::string Fila::texto(std::size_t posicion) const {
    return textoDe(celdaDe(valores_->at(posicion)));
}

std::string Fila::texto(std::string_view columna) const {
    return texto(posicion(columna));
}

std::int64_t Fila::entero(std::size_t posicion) const {
    return enteroDe(celdaDe(valores_->at(posicion)));
}

std::int64_t Fila::entero(std::string_view columna) const {
    return entero(posicion(columna));
}

double Fila::real(std::size_t posicion) const {
    return realDe(celdaDe(valores_->at(posicion)));
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

std::unique_ptr<Conexion> abrir(const std::string& destino, Apertura apertura) {
    if (esDestinoPostgres(destino)) return std::make_unique<ConexionPostgres>(destino);
    return std::make_unique<ConexionSqlite>(destino, apertura);
}

void bloquearClave(Conexion& c, std::string_view clave) {
    if (c.motor() == Motor::Postgres)
        c.consulta("SELECT pg_advisory_xact_lock(hashtextextended(?, 0))", {std::string(clave)});
}

}  // namespace nomira::store
