#pragma once
// Un valor por texto de sentencia. Casi todas las sentencias son literales que
// vuelven desde la misma dirección: se busca primero allí, donde comparar el
// texto es más barato que calcularle el hash.
#include <string>
#include <string_view>
#include <unordered_map>

#include "store/conexion.h"

namespace nomira::store {

template <class V>
class PorSentencia {
  public:
    // Nulo si el texto no está.
    V* buscar(std::string_view sql) {
        if (const auto d = porDireccion_.find(sql.data());
            d != porDireccion_.end() && d->second->first == sql)
            return &d->second->second;
        const auto it = porTexto_.find(sql);
        if (it == porTexto_.end()) return nullptr;
        porDireccion_[sql.data()] = &*it;
        return &it->second;
    }
    V& agregar(std::string_view sql, V valor) {
        auto& e = *porTexto_.insert_or_assign(std::string(sql), std::move(valor)).first;
        porDireccion_[sql.data()] = &e;
        return e.second;
    }
    std::size_t size() const { return porTexto_.size(); }
    void clear() {
        porDireccion_.clear();
        porTexto_.clear();
    }
    auto begin() { return porTexto_.begin(); }
    auto end() { return porTexto_.end(); }

  private:
    using Mapa = MapaPorTexto<V>;
    Mapa porTexto_;
    // La última entrada vista en cada dirección de texto.
    std::unordered_map<const char*, typename Mapa::value_type*> porDireccion_;
};

}  // namespace nomira::store
