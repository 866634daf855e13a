#include "screens/personal/registro_personal.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/personal/ficha_personal.h"
#include "screens/personal/pantalla_personal.h"

namespace nomira::pantallas {

void registrarPantallasPersonal() {
    auto& r = ventana::registroPantallas();
    r["Form3"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaPersonal(s, p);
    };
    r["Form31"] = [](frame::Sesion& s, QWidget* p) -> QWidget* { return new FichaPersonal(s, p); };
}

}  // namespace nomira::pantallas
