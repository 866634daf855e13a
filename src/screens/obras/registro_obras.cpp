#include "screens/obras/registro_obras.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/obras/ficha_obra.h"
#include "screens/obras/pantalla_obras.h"

namespace nomira::pantallas {

void registrarPantallasObras() {
    auto& r = ventana::registroPantallas();
    r["Form291"] = [](frame::Sesion& s, QWidget* p) -> QWidget* { return new PantallaObras(s, p); };
    r["Form292"] = [](frame::Sesion& s, QWidget* p) -> QWidget* { return new FichaObra(s, p); };
}

}  // namespace nomira::pantallas
