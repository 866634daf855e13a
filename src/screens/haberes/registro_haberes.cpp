#include "screens/haberes/registro_haberes.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/haberes/pantalla_haberes.h"

namespace nomira::pantallas {

void registrarPantallasHaberes() {
    ventana::registroPantallas()["Form42"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaHaberes(s, p);
    };
}

}  // namespace nomira::pantallas
