// La carga por omisión: INSERT de varias filas por sentencia, en tramos de
// tamaño fijo. La sentencia del tramo completo se prepara una vez.
#include <algorithm>

#include "store/conexion.h"

namespace nomira::store {

namespace {

// SQLite acepta hasta 32766 parámetros por sentencia.
constexpr std::size_t kParametros = 30000;
constexpr std::size_t kFilasPorTramo = 200;

class CargaPorInsercion final : public Carga {
  public:
    CargaPorInsercion(Conexion& c, const std::string& tabla,
                      const std::vector<std::string>& columnas)
        : c_(c),
          columnas_(columnas.size()),
          porTramo_(std::clamp<std::size_t>(kParametros / std::max<std::size_t>(columnas.size(), 1),
                                            1, kFilasPorTramo)) {
        cabecera_ = "INSERT INTO " + tabla + " (";
        for (std::size_t i = 0; i < columnas.size(); ++i)
            cabecera_ += (i ? ", " : "") + columnas[i];
        cabecera_ += ") VALUES ";
        tramoCompleto_ = sentencia(porTramo_);
        pendientes_.reserve(porTramo_ * columnas_);
    }

    void agregar(const std::vector<Valor>& fila) override {
        if (fila.size() != columnas_)
            throw ErrorBase(kErrorUso, "La fila trae " + std::to_string(fila.size()) +
                                           " columnas y la carga espera " +
                                           std::to_string(columnas_));
        pendientes_.insert(pendientes_.end(), fila.begin(), fila.end());
        if (pendientes_.size() == porTramo_ * columnas_) {
            c_.ejecuta(tramoCompleto_, pendientes_);
            pendientes_.clear();
        }
    }

    void terminar() override {
        if (pendientes_.empty()) return;
        c_.ejecuta(sentencia(pendientes_.size() / columnas_), pendientes_);
        pendientes_.clear();
    }

  private:
    std::string sentencia(std::size_t filas) const {
        std::string marcas = "(";
        for (std::size_t i = 0; i < columnas_; ++i) marcas += i ? ", ?" : "?";
        marcas += ")";
        std::string sql = cabecera_;
        for (std::size_t f = 0; f < filas; ++f) sql += (f ? ", " : "") + marcas;
        return sql;
    }

    Conexion& c_;
    std::size_t columnas_;
    std::size_t porTramo_;
    std::string cabecera_;
    std::string tramoCompleto_;
    std::vector<Valor> pendientes_;
};

}  // namespace

std::unique_ptr<Carga> Conexion::cargar(const std::string& tabla,
                                        const std::vector<std::string>& columnas) {
    return std::make_unique<CargaPorInsercion>(*this, tabla, columnas);
}

}  // namespace nomira::store
