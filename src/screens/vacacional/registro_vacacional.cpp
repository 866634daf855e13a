#include "screens/vacacional/registro_vacacional.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/vacacional/pantalla_vacacional.h"

namespace nomira::pantallas {

void registrarPantallasVacacional() {
    ventana::registroPantallas()["Form44"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaVacacional(s, p);
    };
}

}  // namespace nomira::pantallas
