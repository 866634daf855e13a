#include "screens/registro.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/conceptos/registro_conceptos.h"
#include "screens/personal/pantalla_personal.h"

namespace nomira::pantallas {

void registrarTodas() {
    ventana::registrarPantallasDelMarco();
    registrarPantallasConceptos();
    registrarPantallasPersonal();
}

}  // namespace nomira::pantallas
