#include "master/registro.h"

#include "common/fechas.h"
#include "common/numeros.h"

namespace nomira::master {

store::Valor valorParaColumna(const std::string& texto, store::TipoColumna tipo) {
    using store::TipoColumna;
    if (tipo == TipoColumna::Texto) return texto;
    if (texto.empty() || (tipo != TipoColumna::Fecha && !common::esNumerico(texto))) return store::Nulo{};
    switch (tipo) {
        case TipoColumna::Entero:
            return static_cast<std::int64_t>(common::textoANumero(texto));
        case TipoColumna::Real:
        case TipoColumna::Dinero:
            return common::textoANumero(texto);
        case TipoColumna::Fecha:
            if (auto f = common::Fecha::desdeTexto(texto)) return f->iso();
            return store::Nulo{};
        case TipoColumna::Texto:
            break;
    }
    return texto;
}

std::vector<store::Valor> valoresParaColumnas(const std::string& tabla,
                                              const std::vector<const char*>& columnas,
                                              const std::vector<std::string>& textos) {
    const auto& t = store::tabla(tabla);
    std::vector<store::Valor> valores;
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        const int pos = t.posicion(columnas[i]);
        if (pos < 0) throw store::ErrorBase(3200, std::string("La tabla ") + tabla + " no tiene la columna " + columnas[i]);
        valores.push_back(valorParaColumna(textos.at(i), t.columnas[pos].tipo));
    }
    return valores;
}

std::string sqlInsertar(const std::string& tabla, const std::vector<const char*>& columnas) {
    std::string nombres, marcas;
    for (const auto* c : columnas) {
        nombres += (nombres.empty() ? "" : ", ") + std::string(c);
        marcas += marcas.empty() ? "?" : ", ?";
    }
    return "INSERT INTO " + tabla + " (" + nombres + ") VALUES (" + marcas + ")";
}

std::string sqlActualizar(const std::string& tabla, const std::vector<const char*>& columnas,
                          const std::vector<const char*>& claves) {
    std::string sql = "UPDATE " + tabla + " SET ";
    for (std::size_t i = 0; i < columnas.size(); ++i) sql += (i ? ", " : "") + std::string(columnas[i]) + " = ?";
    for (std::size_t i = 0; i < claves.size(); ++i) sql += (i ? " AND " : " WHERE ") + std::string(claves[i]) + " = ?";
    return sql;
}

}  // namespace nomira::master
