#include "screens/conceptos/registro_conceptos.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/conceptos/pantalla_concepto.h"
#include "screens/conceptos/pantalla_conceptos.h"
#include "screens/conceptos/pantalla_conceptos_persona.h"

namespace nomira::pantallas {

void registrarPantallasConceptos() {
    auto& r = ventana::registroPantallas();
    r["Form4"] = [](frame::Sesion& s, QWidget* p) { return new PantallaConceptos(s, p); };
    r["Form40"] = [](frame::Sesion& s, QWidget* p) { return new PantallaConceptosPersona(s, p); };
    // Form41 se abre desde Form4 con el concepto elegido; registrada así abre vacía.
    r["Form41"] = [](frame::Sesion& s, QWidget* p) {
        return new PantallaConcepto(s, 0, ModoConcepto::Agregar, p);
    };
}

}  // namespace nomira::pantallas
