#include "store/sqlite.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cctype>
#include <filesystem>

#include "store/like_sqlite.h"
#include "store/sentencias.h"

namespace nomira::store {

namespace {

constexpr int kEsperaMs = 10000;
constexpr std::size_t kMaxCache = 256;

// Sin permiso de escritura para este proceso, o sin ninguno para nadie: así
// también un archivo marcado 0444 se respeta aunque el proceso sea root. La
// carpeta cuenta porque SQLite escribe al lado el diario y la WAL.
bool sinPermisoDeEscritura(const std::filesystem::path& p) {
    struct stat datos {};
    if (::stat(p.c_str(), &datos) != 0) return false;
    return ::access(p.c_str(), W_OK) != 0 || (datos.st_mode & 0222) == 0;
}

bool sinEscritura(const std::string& ruta) {
    auto carpeta = std::filesystem::path(ruta).parent_path();
    if (carpeta.empty()) carpeta = ".";
    return sinPermisoDeEscritura(ruta) || sinPermisoDeEscritura(carpeta);
}

// "file:<ruta>?immutable=1", con los caracteres que el URI reserva escapados.
std::string uriInmutable(const std::string& ruta) {
    static constexpr char cifras[] = "0123456789ABCDEF";
    std::string uri = "file:";
    for (unsigned char ch : ruta) {
        if (ch == '?' || ch == '#' || ch == '%' || ch < 0x20) {
            uri += '%';
            uri += cifras[ch >> 4];
            uri += cifras[ch & 0xF];
        } else {
            uri += static_cast<char>(ch);
        }
    }
    return uri + "?immutable=1";
}

bool soloEspacios(const char* texto) {
    for (; *texto; ++texto)
        if (!std::isspace(static_cast<unsigned char>(*texto)) && *texto != ';') return false;
    return true;
}

// La columna de la fila en que está parada la sentencia; el texto vale hasta
// el próximo paso.
Celda leerCelda(sqlite3_stmt* s, int i) {
    switch (sqlite3_column_type(s, i)) {
        case SQLITE_INTEGER:
            return static_cast<std::int64_t>(sqlite3_column_int64(s, i));
        case SQLITE_FLOAT:
            return sqlite3_column_double(s, i);
        case SQLITE_NULL:
            return Nulo{};
        default: {
            const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(s, i));
            return std::string_view(texto, static_cast<std::size_t>(sqlite3_column_bytes(s, i)));
        }
    }
}

Valor leerColumna(sqlite3_stmt* s, int i) {
    return valorDe(leerCelda(s, i));
}

// La fila en que está parada la sentencia, leída en el momento.
class FilaSqlite final : public FilaAlPaso {
  public:
    FilaSqlite(sqlite3_stmt* s, const Fila::Columnas& columnas) : s_(s), columnas_(*columnas) {}
    const std::vector<std::string>& columnas() const override { return columnas_; }
    Celda celda(std::size_t posicion) const override {
        if (posicion >= columnas_.size())
            throw ErrorBase(kErrorUso, "No existe la columna " + std::to_string(posicion));
        return leerCelda(s_, static_cast<int>(posicion));
    }
    // Las fichas son casi todo texto o Null: derecho al campo.
    void textoEn(std::size_t posicion, std::string& destino) const override {
        const int i = static_cast<int>(posicion);
        switch (posicion < columnas_.size() ? sqlite3_column_type(s_, i) : SQLITE_BLOB) {
            case SQLITE_NULL:
                destino.clear();
                return;
            case SQLITE_TEXT:
                destino.assign(reinterpret_cast<const char*>(sqlite3_column_text(s_, i)),
                               static_cast<std::size_t>(sqlite3_column_bytes(s_, i)));
                return;
            default:  // números, y el error de una columna que no existe
                FilaAlPaso::textoEn(posicion, destino);
        }
    }

  private:
    sqlite3_stmt* s_;
    const std::vector<std::string>& columnas_;
};

}  // namespace

ConexionSqlite::ConexionSqlite(std::string ruta, Apertura apertura) : ruta_(std::move(ruta)) {
    // Sin la cuenta de memoria de SQLite, que toma un cerrojo en cada reserva;
    // sólo se puede decir antes de que SQLite arranque, con la primera conexión.
    static const int sinCuenta = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    (void)sinCuenta;
    std::error_code ec;
    const bool existe = std::filesystem::exists(ruta_, ec);
    if (!existe && apertura == Apertura::Existente)
        throw ErrorBase(kErrorSqlite + SQLITE_CANTOPEN,
                        "La base de datos '" + ruta_ + "' no existe.");
    soloLectura_ = existe && sinEscritura(ruta_);
    // Una conexión se usa desde un solo hilo a la vez: sin los cerrojos internos
    // de SQLite, que cada llamada tomaría y soltaría.
    if (soloLectura_) {
        // Sin una WAL pendiente no hay cambios a medio pasar a la base: se lee como
        // inmutable y no se crean al lado los archivos de la WAL, que en una
        // carpeta de sólo lectura no se pueden crear y en otra quedarían con
        // los permisos de la base, impidiendo escribirla cuando vuelva a poder.
        if (std::filesystem::exists(ruta_ + "-wal", ec))
            abrirArchivo(ruta_, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX);
        else
            abrirArchivo(uriInmutable(ruta_),
                         SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_URI);
    } else {
        abrirArchivo(ruta_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX |
                                (apertura == Apertura::CrearSiFalta ? SQLITE_OPEN_CREATE : 0));
    }
    sqlite3_extended_result_codes(base_, 0);
    sqlite3_busy_timeout(base_, kEsperaMs);
    registrarLikeSinMayusculas(base_);
    if (soloLectura_) return;
    // WAL deja leer mientras otro proceso escribe. Con synchronous=NORMAL una
    // confirmación no espera al disco: una caída del programa no pierde nada y la
    // base queda sana; sólo un corte de luz puede deshacer lo último confirmado.
    // La corrida de una empresa confirma por tandas y no puede esperar al disco
    // en cada una.
    directa("PRAGMA journal_mode=WAL");
    directa("PRAGMA synchronous=NORMAL");
}

void ConexionSqlite::abrirArchivo(const std::string& nombre, int modo) {
    int codigo = sqlite3_open_v2(nombre.c_str(), &base_, modo, nullptr);
    if (codigo != SQLITE_OK) {
        std::string mensaje = base_ ? sqlite3_errmsg(base_) : sqlite3_errstr(codigo);
        sqlite3_close(base_);
        base_ = nullptr;
        throw ErrorBase(kErrorSqlite + (codigo & 0xff),
                        "No se pudo abrir la base de datos " + ruta_ + ": " + mensaje);
    }
}

ConexionSqlite::~ConexionSqlite() {
    olvidarSentencias();
    sqlite3_close(base_);
}

void ConexionSqlite::olvidarSentencias() {
    for (auto& [texto, guardada] : cache_) sqlite3_finalize(guardada.sentencia);
    cache_.clear();
}

void ConexionSqlite::fallar(int codigo) const {
    fallar(codigo, sqlite3_errmsg(base_));
}

void ConexionSqlite::fallar(int codigo, const std::string& mensaje) const {
    if ((codigo & 0xff) == SQLITE_READONLY)
        throw ErrorBase(kErrorSqlite + SQLITE_READONLY,
                        "La base de datos '" + ruta_ +
                            "' es de sólo lectura: no se puede guardar ningún cambio.");
    throw ErrorBase(kErrorSqlite + (codigo & 0xff), "Error de la base de datos: " + mensaje);
}

void ConexionSqlite::directa(const std::string& sql) {
    char* error = nullptr;
    if (sqlite3_exec(base_, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
        std::string mensaje = error ? error : "";
        sqlite3_free(error);
        fallar(sqlite3_errcode(base_), mensaje);
    }
}

ConexionSqlite::Preparada ConexionSqlite::preparar(std::string_view sql) {
    if (auto* g = cache_.buscar(sql)) return {g->sentencia, g};
    std::string texto(sql);
    sqlite3_stmt* sentencia = nullptr;
    const char* resto = nullptr;
    int codigo = sqlite3_prepare_v2(base_, texto.c_str(), static_cast<int>(texto.size() + 1),
                                    &sentencia, &resto);
    if (codigo != SQLITE_OK) fallar(codigo);
    if (!sentencia) throw ErrorBase(kErrorUso, "Sentencia vacía");
    if (resto && !soloEspacios(resto)) {
        sqlite3_finalize(sentencia);
        throw ErrorBase(kErrorUso, "Se pasó más de una sentencia en un solo texto");
    }
    if (!esDeDatos(sql) && !esDeTransaccion(sql)) return {sentencia, nullptr};
    if (cache_.size() >= kMaxCache) olvidarSentencias();
    auto& guardada = cache_.agregar(sql, Guardada{sentencia, nullptr, -1});
    return {sentencia, &guardada};
}

void ConexionSqlite::liberar(Preparada p) {
    if (p.guardada) {
        sqlite3_reset(p.sentencia);
        sqlite3_clear_bindings(p.sentencia);
    } else {
        sqlite3_finalize(p.sentencia);
    }
}

void ConexionSqlite::enlazar(sqlite3_stmt* s, const std::vector<Valor>& parametros) {
    int esperados = sqlite3_bind_parameter_count(s);
    if (esperados != static_cast<int>(parametros.size()))
        throw ErrorBase(kErrorUso, "La sentencia espera " + std::to_string(esperados) +
                                       " parámetros y recibió " +
                                       std::to_string(parametros.size()));
    for (int i = 0; i < esperados; ++i) {
        const Valor& v = parametros[static_cast<std::size_t>(i)];
        int codigo = SQLITE_OK;
        if (const auto* e = std::get_if<std::int64_t>(&v))
            codigo = sqlite3_bind_int64(s, i + 1, *e);
        else if (const auto* d = std::get_if<double>(&v))
            codigo = sqlite3_bind_double(s, i + 1, *d);
        else if (const auto* t = std::get_if<std::string>(&v))
            // Sin copia: los parámetros viven hasta que liberar() borra los enlaces,
            // antes de volver de la consulta o la ejecución.
            codigo =
                sqlite3_bind_text(s, i + 1, t->data(), static_cast<int>(t->size()), SQLITE_STATIC);
        else
            codigo = sqlite3_bind_null(s, i + 1);
        if (codigo != SQLITE_OK) fallar(codigo);
    }
}

Resultado ConexionSqlite::consulta(std::string_view sql, const std::vector<Valor>& parametros) {
    Resultado resultado;
    const auto columnas =
        leer(sql, parametros, [&](sqlite3_stmt* s, const Fila::Columnas& columnas) {
            std::vector<Valor> valores;
            valores.reserve(columnas->size());
            for (std::size_t i = 0; i < columnas->size(); ++i)
                valores.push_back(leerColumna(s, static_cast<int>(i)));
            resultado.filas.emplace_back(columnas, std::move(valores));
        });
    resultado.columnas = *columnas;
    return resultado;
}

void ConexionSqlite::recorrer(std::string_view sql, const std::vector<Valor>& parametros,
                              const PorFila& porFila) {
    leer(sql, parametros, [&](sqlite3_stmt* s, const Fila::Columnas& columnas) {
        porFila(FilaSqlite(s, columnas));
    });
}

Fila::Columnas ConexionSqlite::leer(std::string_view sql, const std::vector<Valor>& parametros,
                                    const PorPaso& porFila) {
    const auto p = preparar(sql);
    sqlite3_stmt* s = p.sentencia;
    Fila::Columnas columnas;
    try {
        enlazar(s, parametros);
        // Los nombres se leen después del primer paso: si la tabla cambió,
        // SQLite vuelve a preparar la sentencia en ese paso.
        int codigo = sqlite3_step(s);
        const int preparaciones = sqlite3_stmt_status(s, SQLITE_STMTSTATUS_REPREPARE, 0);
        if (p.guardada && p.guardada->preparaciones == preparaciones) {
            columnas = p.guardada->columnas;
        } else {
            auto nombres = std::make_shared<std::vector<std::string>>();
            for (int i = 0, n = sqlite3_column_count(s); i < n; ++i)
                nombres->emplace_back(sqlite3_column_name(s, i));
            columnas = std::move(nombres);
            if (p.guardada) *p.guardada = {s, columnas, preparaciones};
        }
        for (; codigo == SQLITE_ROW; codigo = sqlite3_step(s)) porFila(s, columnas);
        if (codigo != SQLITE_DONE) fallar(codigo);
    } catch (...) {
        liberar(p);
        throw;
    }
    liberar(p);
    return columnas;
}

std::int64_t ConexionSqlite::ejecuta(std::string_view sql, const std::vector<Valor>& parametros) {
    const auto p = preparar(sql);
    sqlite3_stmt* s = p.sentencia;
    try {
        enlazar(s, parametros);
        int codigo;
        while ((codigo = sqlite3_step(s)) == SQLITE_ROW) {
        }
        if (codigo != SQLITE_DONE) fallar(codigo);
    } catch (...) {
        liberar(p);
        throw;
    }
    liberar(p);
    // Las sentencias guardadas no cambian tablas: sólo otra puede hacerlo.
    if (!p.guardada && cambiaTablas(sql)) olvidarSentencias();
    return sqlite3_changes64(base_);
}

void ConexionSqlite::comenzar() {
    // Preparadas una vez, como las de datos: una corrida de empresa abre una
    // transacción por persona.
    // Sólo para leer no hay escritura que tomar: se lee en una foto coherente y
    // lo que se intente escribir da el error de sólo lectura.
    if (profundidad_ == 0)
        ejecuta(soloLectura_ ? "BEGIN" : "BEGIN IMMEDIATE");
    else
        ejecuta("SAVEPOINT nivel" + std::to_string(profundidad_));
    ++profundidad_;
}

void ConexionSqlite::confirmar() {
    if (profundidad_ == 0) throw ErrorBase(kErrorUso, "Confirmar sin una transacción abierta");
    if (profundidad_ == 1)
        ejecuta("COMMIT");
    else
        ejecuta("RELEASE SAVEPOINT nivel" + std::to_string(profundidad_ - 1));
    --profundidad_;
}

void ConexionSqlite::deshacer() {
    if (profundidad_ == 0) throw ErrorBase(kErrorUso, "Deshacer sin una transacción abierta");
    // Se baja el nivel aunque el motor falle: la transacción ya no sirve.
    int nivel = --profundidad_;
    if (nivel == 0) {
        if (!sqlite3_get_autocommit(base_)) directa("ROLLBACK");
    } else {
        std::string punto = "nivel" + std::to_string(nivel);
        directa("ROLLBACK TO SAVEPOINT " + punto);
        directa("RELEASE SAVEPOINT " + punto);
    }
}

}  // namespace nomira::store
