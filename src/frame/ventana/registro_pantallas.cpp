#include "frame/ventana/registro_pantallas.h"

#include "frame/ventana/pantalla_configuracion.h"
#include "frame/ventana/pantalla_ingreso.h"

namespace nomira::ventana {

std::map<std::string, FabricaPantalla>& registroPantallas() {
    static std::map<std::string, FabricaPantalla> registro;
    return registro;
}

void registrarPantallasDelMarco() {
    auto& r = registroPantallas();
    r["Form14"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        auto* w = new PantallaIngreso(s, p);
        w->setModal(true);
        return w;
    };
    r["Form13"] = [](frame::Sesion& s, QWidget* p) -> QWidget* { return new PantallaConfiguracion(s, p); };
}

}  // namespace nomira::ventana
