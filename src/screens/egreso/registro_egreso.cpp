#include "screens/egreso/registro_egreso.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/egreso/pantalla_egreso.h"
#include "screens/egreso/pantalla_incidencias.h"

namespace nomira::pantallas {

void registrarPantallasEgreso() {
    auto& r = ventana::registroPantallas();
    r["Form45"] = [](frame::Sesion& s, QWidget* p) -> QWidget* { return new PantallaEgreso(s, p); };
    r["Form70"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaIncidencias(s, ClaseIncidencias::Ipd, p);
    };
    r["Form76"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaIncidencias(s, ClaseIncidencias::Licencia, p);
    };
}

}  // namespace nomira::pantallas
