#include "screens/conceptos/registro_conceptos.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/conceptos/pantalla_concepto.h"
#include "screens/conceptos/pantalla_conceptos.h"
#include "screens/conceptos/pantalla_conceptos_persona.h"
#include "screens/variables/pantalla_aumentos.h"
#include "screens/variables/pantalla_franjas.h"
#include "screens/variables/pantalla_sueldos_minimos.h"
#include "screens/variables/pantalla_variables.h"

namespace nomira::pantallas {

void registrarPantallasConceptos() {
    auto& r = ventana::registroPantallas();
    r["Form4"] = [](frame::Sesion& s, QWidget* p) { return new PantallaConceptos(s, p); };
    r["Form40"] = [](frame::Sesion& s, QWidget* p) { return new PantallaConceptosPersona(s, p); };
    // Form41 y Form408 se abren desde Form4 y Form407 con lo elegido allí; registrados
    // así abren vacíos (Form408 sin sector: sólo sirve para los sueldos de una empresa).
    r["Form41"] = [](frame::Sesion& s, QWidget* p) {
        return new PantallaConcepto(s, 0, ModoConcepto::Agregar, p);
    };
    r["Form406"] = [](frame::Sesion& s, QWidget* p) { return new PantallaFranjas(s, p); };
    r["Form407"] = [](frame::Sesion& s, QWidget* p) { return new PantallaSueldosMinimos(s, p); };
    r["Form408"] = [](frame::Sesion& s, QWidget* p) { return new PantallaAumentos(s, {}, p); };
    registrarPantallasVariables();
}

}  // namespace nomira::pantallas
