#include "store/postgres.h"

#include <cctype>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "store/sentencias.h"

namespace nomira::store {

namespace {

constexpr std::size_t kMaxCache = 256;

// Identificadores de tipo de pg_type que el sistema usa.
enum : Oid {
    kBool = 16,
    kInt8 = 20,
    kInt2 = 21,
    kInt4 = 23,
    kOid = 26,
    kFloat4 = 700,
    kFloat8 = 701,
    kNumeric = 1700,
};

// La celda tal como llegó: el texto es una vista sobre el resultado.
Celda celdaPg(const PGresult* r, int fila, int col) {
    if (PQgetisnull(r, fila, col)) return Nulo{};
    const char* texto = PQgetvalue(r, fila, col);
    std::size_t largo = static_cast<std::size_t>(PQgetlength(r, fila, col));
    switch (PQftype(r, col)) {
        case kBool:
            return static_cast<std::int64_t>(texto[0] == 't' ? 1 : 0);
        case kInt2:
        case kInt4:
        case kInt8:
        case kOid: {
            std::int64_t n = 0;
            std::from_chars(texto, texto + largo, n);
            return n;
        }
        case kFloat4:
        case kFloat8:
        case kNumeric: {
            double d = 0;
            std::from_chars(texto, texto + largo, d);
            return d;
        }
        default:
            // text, varchar y date (con DateStyle ISO ya es "aaaa-mm-dd").
            return std::string_view(texto, largo);
    }
}

Valor leer(const PGresult* r, int fila, int col) {
    return valorDe(celdaPg(r, fila, col));
}

// Una fila de un tramo leído del cursor.
class FilaPg final : public FilaAlPaso {
  public:
    FilaPg(const PGresult* r, int fila, const std::vector<std::string>& columnas)
        : r_(r), fila_(fila), columnas_(columnas) {}
    const std::vector<std::string>& columnas() const override { return columnas_; }
    Celda celda(std::size_t posicion) const override {
        if (posicion >= columnas_.size())
            throw ErrorBase(kErrorUso, "No existe la columna " + std::to_string(posicion));
        return celdaPg(r_, fila_, static_cast<int>(posicion));
    }

  private:
    const PGresult* r_;
    int fila_;
    const std::vector<std::string>& columnas_;
};

constexpr int kFilasPorTramo = 1000;

struct LiberarResultado {
    void operator()(PGresult* r) const { PQclear(r); }
};
using ResultadoPg = std::unique_ptr<PGresult, LiberarResultado>;

void ignorarAvisos(void*, const char*) {}

std::string sinEspaciosFinales(std::string texto) {
    while (!texto.empty() && std::isspace(static_cast<unsigned char>(texto.back())))
        texto.pop_back();
    return texto;
}

// La clase 08 (conexión) y el cierre del servidor (57P01 por un administrador o
// al apagarlo, 57P02 por una caída, 57P03 mientras arranca): el servidor avisa
// y corta, y libpq puede no haberlo notado todavía.
bool estadoDeConexionCaida(const PGresult* r) {
    const char* estado = r ? PQresultErrorField(r, PG_DIAG_SQLSTATE) : nullptr;
    if (!estado) return false;
    const std::string_view e(estado);
    return e.starts_with("08") || e == "57P01" || e == "57P02" || e == "57P03";
}

}  // namespace

std::string textoParaPostgres(const Valor& v) {
    if (const auto* i = std::get_if<std::int64_t>(&v)) return std::to_string(*i);
    if (const auto* d = std::get_if<double>(&v)) {
        // La forma más corta que vuelve al mismo double.
        char buf[32];
        auto [fin, ec] = std::to_chars(buf, buf + sizeof buf, *d);
        return std::string(buf, ec == std::errc() ? fin : buf);
    }
    return std::get<std::string>(v);
}

std::string numerarParametros(std::string_view sql, int* cantidad) {
    std::string salida;
    salida.reserve(sql.size() + 8);
    int n = 0;
    char comilla = 0;
    for (std::size_t i = 0; i < sql.size(); ++i) {
        char ch = sql[i];
        if (comilla) {
            // '' dentro de un literal es una comilla escrita: sale y vuelve a entrar.
            if (ch == comilla) comilla = 0;
        } else if (ch == '\'' || ch == '"') {
            comilla = ch;
        } else if (ch == '-' && i + 1 < sql.size() && sql[i + 1] == '-') {
            std::size_t fin = sql.find('\n', i);
            if (fin == std::string_view::npos) fin = sql.size();
            salida.append(sql.substr(i, fin - i));
            i = fin - 1;
            continue;
        } else if (ch == '?') {
            salida += '$' + std::to_string(++n);
            continue;
        }
        salida += ch;
    }
    if (cantidad) *cantidad = n;
    return salida;
}

ConexionPostgres::ConexionPostgres(std::string cadena) : cadena_(std::move(cadena)) {
    conexion_ = PQconnectdb(cadena_.c_str());
    if (PQstatus(conexion_) != CONNECTION_OK) {
        const std::string mensaje = sinEspaciosFinales(PQerrorMessage(conexion_));
        PQfinish(conexion_);
        conexion_ = nullptr;
        throw ErrorBase(kErrorPostgresConexion,
                        "No se pudo conectar con el servidor de la base de datos: " + mensaje);
    }
    prepararSesion();
}

ConexionPostgres::~ConexionPostgres() {
    PQfinish(conexion_);
}

void ConexionPostgres::prepararSesion() {
    // Los NOTICE de "ya existe" no son asunto del usuario.
    PQsetNoticeProcessor(conexion_, ignorarAvisos, nullptr);
    directa("SET DateStyle TO ISO");
    directa("SET client_encoding TO 'UTF8'");
}

int ConexionPostgres::procesoServidor() const {
    return PQbackendPID(conexion_);
}

void ConexionPostgres::asegurarConexion() {
    // Quien tenía una transacción abierta cuando se cortó tiene que cerrarla
    // antes: lo suyo se perdió y no puede seguir como si nada en otra conexión.
    if (perdidas_ > 0)
        throw ErrorBase(
            kErrorPostgresConexion,
            std::string(kConexionPerdida) + "lo que no se había confirmado no quedó guardado.");
    if (!rota_ && PQstatus(conexion_) == CONNECTION_OK) return;
    // Se perdió en una operación anterior: se reintenta una vez al empezar otra.
    PQreset(conexion_);
    cache_.clear();
    profundidad_ = 0;
    if (PQstatus(conexion_) != CONNECTION_OK)
        throw ErrorBase(kErrorPostgresConexion, std::string(kConexionPerdida) +
                                                    sinEspaciosFinales(PQerrorMessage(conexion_)));
    rota_ = false;
    prepararSesion();
}

void ConexionPostgres::perderConexion(const std::string& detalle) {
    // Lo confirmado queda en el servidor; lo que estaba a medias se perdió.
    cache_.clear();
    perdidas_ += profundidad_;
    profundidad_ = 0;
    rota_ = true;
    throw ErrorBase(kErrorPostgresConexion, kConexionPerdida + detalle);
}

void ConexionPostgres::revisarConexion(const PGresult* resultado) {
    if (PQstatus(conexion_) != CONNECTION_OK || rota_ || estadoDeConexionCaida(resultado))
        perderConexion(sinEspaciosFinales(PQerrorMessage(conexion_)));
}

void ConexionPostgres::fallar(PGresult* resultado) {
    ResultadoPg r(resultado);
    revisarConexion(r.get());
    const std::string mensaje = sinEspaciosFinales(PQerrorMessage(conexion_));
    const char* estado = r ? PQresultErrorField(r.get(), PG_DIAG_SQLSTATE) : nullptr;
    int numero = kErrorPostgres + 99;
    if (estado && std::isdigit(static_cast<unsigned char>(estado[0])) &&
        std::isdigit(static_cast<unsigned char>(estado[1])))
        numero = kErrorPostgres + (estado[0] - '0') * 10 + (estado[1] - '0');
    throw ErrorBase(numero, "Error de la base de datos: " + mensaje);
}

void ConexionPostgres::directa(const std::string& sql) {
    PGresult* r = PQexec(conexion_, sql.c_str());
    if (PQresultStatus(r) != PGRES_COMMAND_OK && PQresultStatus(r) != PGRES_TUPLES_OK) fallar(r);
    PQclear(r);
}

PGresult* ConexionPostgres::correr(std::string_view sql, const std::vector<Valor>& parametros) {
    asegurarConexion();
    std::vector<std::string> textos(parametros.size());
    std::vector<const char*> punteros(parametros.size(), nullptr);
    for (std::size_t i = 0; i < parametros.size(); ++i) {
        if (std::holds_alternative<Nulo>(parametros[i])) continue;
        textos[i] = textoParaPostgres(parametros[i]);
        // libpq corta el texto en el carácter nulo: se guardaría otro texto.
        if (textos[i].find('\0') != std::string::npos)
            throw ErrorBase(kErrorUso, "El parámetro " + std::to_string(i + 1) +
                                           " tiene un carácter nulo, que PostgreSQL no guarda.");
        punteros[i] = textos[i].c_str();
    }
    int n = static_cast<int>(parametros.size());
    int esperados = 0;
    std::string texto(sql);
    std::string numerado = numerarParametros(sql, &esperados);
    if (esperados != n)
        throw ErrorBase(kErrorUso, "La sentencia espera " + std::to_string(esperados) +
                                       " parámetros y recibió " + std::to_string(n));

    PGresult* r = nullptr;
    if (!esDeDatos(sql)) {
        r = PQexecParams(conexion_, numerado.c_str(), n, nullptr, punteros.data(), nullptr, nullptr,
                         0);
    } else {
        r = ejecutarPreparada(texto, numerado, punteros);
        // Si otra conexión cambió la tabla, la preparada ya no sirve; fuera de
        // una transacción se prepara de nuevo y se reintenta una vez.
        const char* estado = PQresultErrorField(r, PG_DIAG_SQLSTATE);
        if (estado && std::string_view(estado) == "0A000" && profundidad_ == 0 &&
            PQtransactionStatus(conexion_) == PQTRANS_IDLE) {
            PQclear(r);
            directa("DEALLOCATE " + cache_.at(texto).nombre);
            cache_.erase(texto);
            r = ejecutarPreparada(texto, numerado, punteros);
        }
    }
    auto estado = PQresultStatus(r);
    if (estado != PGRES_COMMAND_OK && estado != PGRES_TUPLES_OK) fallar(r);
    ResultadoPg guardado(r);
    // Un cambio de tablas deja viejas las sentencias preparadas que las leen
    // ("cached plan must not change result type"): se vuelven a preparar.
    if (cambiaTablas(sql) && !cache_.empty()) {
        directa("DEALLOCATE ALL");
        cache_.clear();
    }
    return guardado.release();
}

PGresult* ConexionPostgres::ejecutarPreparada(const std::string& texto, const std::string& numerado,
                                              const std::vector<const char*>& parametros) {
    auto it = cache_.find(texto);
    if (it == cache_.end()) {
        if (cache_.size() >= kMaxCache) {
            directa("DEALLOCATE ALL");
            cache_.clear();
        }
        std::string nombre = "nomira" + std::to_string(++siguiente_);
        ResultadoPg p(PQprepare(conexion_, nombre.c_str(), numerado.c_str(), 0, nullptr));
        if (PQresultStatus(p.get()) != PGRES_COMMAND_OK) fallar(p.release());
        it = cache_.emplace(texto, Preparada{nombre}).first;
    }
    return PQexecPrepared(conexion_, it->second.nombre.c_str(), static_cast<int>(parametros.size()),
                          parametros.data(), nullptr, nullptr, 0);
}

Resultado ConexionPostgres::consulta(std::string_view sql, const std::vector<Valor>& parametros) {
    ResultadoPg r(correr(sql, parametros));
    Resultado resultado;
    int columnas = PQnfields(r.get());
    for (int c = 0; c < columnas; ++c) resultado.columnas.emplace_back(PQfname(r.get(), c));
    auto nombres = std::make_shared<const std::vector<std::string>>(resultado.columnas);
    int filas = PQntuples(r.get());
    resultado.filas.reserve(static_cast<std::size_t>(filas));
    for (int f = 0; f < filas; ++f) {
        std::vector<Valor> valores;
        valores.reserve(static_cast<std::size_t>(columnas));
        for (int c = 0; c < columnas; ++c) valores.push_back(leer(r.get(), f, c));
        resultado.filas.emplace_back(nombres, std::move(valores));
    }
    return resultado;
}

void ConexionPostgres::recorrer(std::string_view sql, const std::vector<Valor>& parametros,
                                const PorFila& porFila) {
    // Un cursor vive dentro de una transacción: fuera de una, se abre una.
    const bool propia = profundidad_ == 0;
    if (propia) comenzar();
    const std::string cursor = "nomira_cursor" + std::to_string(++siguiente_);
    try {
        ResultadoPg(
            correr("DECLARE " + cursor + " NO SCROLL CURSOR FOR " + std::string(sql), parametros));
        const std::string tramo = "FETCH " + std::to_string(kFilasPorTramo) + " FROM " + cursor;
        std::vector<std::string> columnas;
        for (int leidas = kFilasPorTramo; leidas == kFilasPorTramo;) {
            ResultadoPg r(correr(tramo, {}));
            if (columnas.empty())
                for (int c = 0; c < PQnfields(r.get()); ++c)
                    columnas.emplace_back(PQfname(r.get(), c));
            leidas = PQntuples(r.get());
            for (int f = 0; f < leidas; ++f) porFila(FilaPg(r.get(), f, columnas));
        }
        directa("CLOSE " + cursor);
    } catch (...) {
        if (propia) {
            try {
                deshacer();
            } catch (...) {
            }
        } else if (PQtransactionStatus(conexion_) == PQTRANS_INTRANS) {
            PQclear(PQexec(conexion_, ("CLOSE " + cursor).c_str()));
        }
        throw;
    }
    if (propia) confirmar();
}

std::int64_t ConexionPostgres::ejecuta(std::string_view sql, const std::vector<Valor>& parametros) {
    ResultadoPg r(correr(sql, parametros));
    const char* afectadas = PQcmdTuples(r.get());
    std::int64_t n = 0;
    if (afectadas && *afectadas) std::from_chars(afectadas, afectadas + std::strlen(afectadas), n);
    return n;
}

void ConexionPostgres::comenzar() {
    asegurarConexion();
    directa(profundidad_ == 0 ? "BEGIN" : "SAVEPOINT nivel" + std::to_string(profundidad_));
    ++profundidad_;
}

void ConexionPostgres::confirmar() {
    if (perdidas_ > 0) {
        --perdidas_;
        throw ErrorBase(kErrorPostgresConexion,
                        std::string(kConexionPerdida) + "la transacción no se pudo confirmar.");
    }
    if (profundidad_ == 0) throw ErrorBase(kErrorUso, "Confirmar sin una transacción abierta");
    // Tras una sentencia fallida PostgreSQL respondería ROLLBACK a COMMIT sin
    // quejarse: se avisa en lugar de dar por confirmado lo que no quedó.
    if (profundidad_ == 1 && PQtransactionStatus(conexion_) == PQTRANS_INERROR) {
        profundidad_ = 0;
        directa("ROLLBACK");
        throw ErrorBase(kErrorPostgres + 25,
                        "No se confirmó la transacción porque una de sus sentencias falló");
    }
    directa(profundidad_ == 1 ? "COMMIT"
                              : "RELEASE SAVEPOINT nivel" + std::to_string(profundidad_ - 1));
    --profundidad_;
}

void ConexionPostgres::deshacer() {
    // El servidor ya deshizo lo que se llevó la conexión perdida.
    if (perdidas_ > 0) {
        --perdidas_;
        return;
    }
    if (profundidad_ == 0) throw ErrorBase(kErrorUso, "Deshacer sin una transacción abierta");
    int nivel = --profundidad_;
    if (nivel == 0) {
        directa("ROLLBACK");
    } else {
        std::string punto = "nivel" + std::to_string(nivel);
        directa("ROLLBACK TO SAVEPOINT " + punto);
        directa("RELEASE SAVEPOINT " + punto);
    }
}

}  // namespace nomira::store
