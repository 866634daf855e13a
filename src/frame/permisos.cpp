#include "frame/permisos.h"

#include "common/numeros.h"

namespace nomira::frame {

int columnaPermiso(Grupo grupo, int categoria) {
    if (grupo == Grupo::Ninguno || categoria < 1 || categoria > 3) return 0;
    return (categoria - 1) * 6 + static_cast<int>(grupo) + 1;
}

bool permitido(const master::Configuracion& c, int categoria, Grupo grupo) {
    if (grupo == Grupo::Ninguno) return true;
    const int columna = columnaPermiso(grupo, categoria);
    if (columna == 0) return false;
    const auto& valor = c.checks[columna - 1];
    return common::esNumerico(valor) && common::textoANumero(valor) == 1;
}

}  // namespace nomira::frame
