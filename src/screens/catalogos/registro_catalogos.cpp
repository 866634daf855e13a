#include "screens/catalogos/registro_catalogos.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/catalogos/catalogos_del_sistema.h"

namespace nomira::pantallas {

void registrarPantallasCatalogos() {
    auto& r = ventana::registroPantallas();
    for (const auto& c : catalogosDelSistema())
        r[c.formulario] = [&c](frame::Sesion& s, QWidget* p) -> QWidget* {
            return new PantallaCatalogo(s, c, p);
        };
}

}  // namespace nomira::pantallas
