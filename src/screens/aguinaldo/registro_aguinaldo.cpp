#include "screens/aguinaldo/registro_aguinaldo.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/aguinaldo/pantalla_aguinaldo.h"

namespace nomira::pantallas {

void registrarPantallasAguinaldo() {
    ventana::registroPantallas()["Form43"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaAguinaldo(s, p);
    };
}

}  // namespace nomira::pantallas
