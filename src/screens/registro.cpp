#include "screens/registro.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/conceptos/registro_conceptos.h"
#include "screens/empresas/registro_empresas.h"
#include "screens/haberes/pantalla_haberes.h"
#include "screens/personal/pantalla_personal.h"

namespace nomira::pantallas {

void registrarTodas() {
    ventana::registrarPantallasDelMarco();
    registrarPantallasConceptos();
    registrarPantallasEmpresas();
    registrarPantallasPersonal();
    registrarPantallasHaberes();
}

}  // namespace nomira::pantallas
