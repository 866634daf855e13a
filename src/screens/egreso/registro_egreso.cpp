#include "screens/egreso/registro_egreso.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/egreso/pantalla_egreso.h"

namespace nomira::pantallas {

void registrarPantallasEgreso() {
    ventana::registroPantallas()["Form45"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaEgreso(s, p);
    };
}

}  // namespace nomira::pantallas
