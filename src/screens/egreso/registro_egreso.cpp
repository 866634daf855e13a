#include "screens/egreso/registro_egreso.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/egreso/pantalla_incidencias.h"

namespace nomira::pantallas {

void registrarPantallasEgreso() {
    ventana::registroPantallas()["Form70"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaIncidencias(s, ClaseIncidencias::Ipd, p);
    };
    ventana::registroPantallas()["Form76"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaIncidencias(s, ClaseIncidencias::Licencia, p);
    };
}

}  // namespace nomira::pantallas
