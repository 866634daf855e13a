#pragma once
// Variables fechadas (definiciondevariables): BPC, SALMIN, TOPEAFAP y las que
// defina el usuario. Siempre vale la fila más nueva, nunca la del mes que se
// liquida.
#include <string>
#include <string_view>
#include <unordered_map>

#include "store/conexion.h"

namespace nomira::master {

// Un lector por corrida de liquidación: recuerda cada nombre que ya leyó, así
// una fórmula que se evalúa para muchas personas consulta la base una vez por
// variable. Una corrida nueva crea un lector nuevo y vuelve a leer.
class LectorVariables {
  public:
    explicit LectorVariables(store::Conexion& base) : base_(base) {}

    // El valor de la fila con la fecha más nueva; 0 si no hay ninguna. El
    // nombre se compara tal como viene, distinguiendo mayúsculas.
    double valor(std::string_view nombre);

    store::Conexion& base() { return base_; }

  private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view s) const {
            return std::hash<std::string_view>{}(s);
        }
    };

    store::Conexion& base_;
    std::unordered_map<std::string, double, Hash, std::equal_to<>> leidas_;
};

}  // namespace nomira::master
