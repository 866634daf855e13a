#include "screens/registro.h"

#include "frame/ventana/registro_pantallas.h"

namespace nomira::pantallas {

void registrarTodas() { ventana::registrarPantallasDelMarco(); }

}  // namespace nomira::pantallas
