#include "master/variables.h"

namespace nomira::master {

double LectorVariables::valor(std::string_view nombre) {
    if (auto it = leidas_.find(nombre); it != leidas_.end()) return it->second;
    // Las filas sin fecha van al final en los dos motores.
    const auto r = base_.consulta(
        "SELECT valor FROM definiciondevariables WHERE nombre = ? "
        "ORDER BY fecha IS NULL, fecha DESC LIMIT 1",
        {std::string(nombre)});
    const double v = r.vacio() ? 0.0 : r.primera().real("valor");
    leidas_.emplace(std::string(nombre), v);
    return v;
}

}  // namespace nomira::master
