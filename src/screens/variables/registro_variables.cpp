#include "screens/variables/registro_variables.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/variables/pantalla_aumentos.h"
#include "screens/variables/pantalla_franjas.h"
#include "screens/variables/pantalla_sueldos_minimos.h"
#include "screens/variables/pantalla_variables.h"

namespace nomira::pantallas {

void registrarPantallasVariables() {
    auto& r = ventana::registroPantallas();
    r["Form406"] = [](frame::Sesion& s, QWidget* p) { return new PantallaFranjas(s, p); };
    r["Form407"] = [](frame::Sesion& s, QWidget* p) { return new PantallaSueldosMinimos(s, p); };
    // Form408 se abre desde Form407 con el sector elegido; registrada así abre sin
    // sector y sólo sirve para los sueldos de una empresa.
    r["Form408"] = [](frame::Sesion& s, QWidget* p) { return new PantallaAumentos(s, {}, p); };
    for (const auto& i : instanciasVariables())
        ventana::registroPantallas()[i.formulario] = [&i](frame::Sesion& s, QWidget* padre) {
            return new PantallaVariables(s, i, padre);
        };
}

}  // namespace nomira::pantallas
