// COPY FROM STDIN: las filas viajan en tramos de texto, sin una ida y vuelta
// por fila y sin juntarlas en memoria.
#include <memory>

#include "store/postgres.h"

namespace nomira::store {

namespace {

constexpr std::size_t kTramo = 256 * 1024;

// El formato de texto de COPY: tabulador entre columnas, \N para Null y la
// barra, el tabulador y los fines de línea escapados.
void agregarEscapado(std::string& destino, std::string_view texto) {
    for (char ch : texto) {
        switch (ch) {
            case '\\':
                destino += "\\\\";
                break;
            case '\t':
                destino += "\\t";
                break;
            case '\n':
                destino += "\\n";
                break;
            case '\r':
                destino += "\\r";
                break;
            default:
                destino += ch;
        }
    }
}

}  // namespace

class CargaPostgres final : public Carga {
  public:
    CargaPostgres(ConexionPostgres& c, const std::string& tabla,
                  const std::vector<std::string>& columnas)
        : c_(c), columnas_(columnas) {
        c_.asegurarConexion();
        std::string sql = "COPY " + tabla + " (";
        for (std::size_t i = 0; i < columnas.size(); ++i) sql += (i ? ", " : "") + columnas[i];
        sql += ") FROM STDIN";
        PGresult* r = PQexec(c_.conexion_, sql.c_str());
        if (PQresultStatus(r) != PGRES_COPY_IN) c_.fallar(r);
        PQclear(r);
        abierta_ = true;
        bufer_.reserve(kTramo + 4096);
    }

    ~CargaPostgres() override {
        if (!abierta_) return;
        // Sin terminar: el servidor descarta lo enviado y la transacción queda
        // en error, como con cualquier sentencia que falla.
        PQputCopyEnd(c_.conexion_, "carga interrumpida");
        while (PGresult* r = PQgetResult(c_.conexion_)) PQclear(r);
    }

    void agregar(const std::vector<Valor>& fila) override {
        if (fila.size() != columnas_.size())
            throw ErrorBase(kErrorUso, "La fila trae " + std::to_string(fila.size()) +
                                           " columnas y la carga espera " +
                                           std::to_string(columnas_.size()));
        for (std::size_t i = 0; i < fila.size(); ++i) {
            if (i) bufer_ += '\t';
            const Valor& v = fila[i];
            if (std::holds_alternative<Nulo>(v)) {
                bufer_ += "\\N";
            } else if (const auto* t = std::get_if<std::string>(&v)) {
                if (t->find('\0') != std::string::npos)
                    throw ErrorBase(kErrorUso, "La columna " + columnas_[i] +
                                                   " tiene un carácter nulo, que PostgreSQL no "
                                                   "guarda.");
                agregarEscapado(bufer_, *t);
            } else {
                bufer_ += textoParaPostgres(v);
            }
        }
        bufer_ += '\n';
        if (bufer_.size() >= kTramo) enviar();
    }

    void terminar() override {
        enviar();
        abierta_ = false;
        if (PQputCopyEnd(c_.conexion_, nullptr) != 1) c_.fallar(nullptr);
        PGresult* r = PQgetResult(c_.conexion_);
        if (PQresultStatus(r) != PGRES_COMMAND_OK) {
            while (PGresult* resto = PQgetResult(c_.conexion_)) PQclear(resto);
            c_.fallar(r);
        }
        PQclear(r);
        while (PGresult* resto = PQgetResult(c_.conexion_)) PQclear(resto);
    }

  private:
    void enviar() {
        if (bufer_.empty()) return;
        if (PQputCopyData(c_.conexion_, bufer_.data(), static_cast<int>(bufer_.size())) != 1) {
            abierta_ = false;
            c_.fallar(nullptr);
        }
        bufer_.clear();
    }

    ConexionPostgres& c_;
    std::vector<std::string> columnas_;
    std::string bufer_;
    bool abierta_ = false;
};

std::unique_ptr<Carga> ConexionPostgres::cargar(const std::string& tabla,
                                                const std::vector<std::string>& columnas) {
    return std::make_unique<CargaPostgres>(*this, tabla, columnas);
}

}  // namespace nomira::store
