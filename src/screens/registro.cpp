#include "screens/registro.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/aguinaldo/registro_aguinaldo.h"
#include "screens/catalogos/registro_catalogos.h"
#include "screens/conceptos/registro_conceptos.h"
#include "screens/egreso/registro_egreso.h"
#include "screens/empresas/registro_empresas.h"
#include "screens/haberes/registro_haberes.h"
#include "screens/obras/registro_obras.h"
#include "screens/personal/registro_personal.h"
#include "screens/vacacional/registro_vacacional.h"
#include "screens/variables/registro_variables.h"

namespace nomira::pantallas {

// Una línea por carpeta de pantallas: cada una sabe qué formularios son suyos.
void registrarTodas() {
    ventana::registrarPantallasDelMarco();
    registrarPantallasAguinaldo();
    registrarPantallasCatalogos();
    registrarPantallasConceptos();
    registrarPantallasEgreso();
    registrarPantallasEmpresas();
    registrarPantallasHaberes();
    registrarPantallasObras();
    registrarPantallasPersonal();
    registrarPantallasVacacional();
    registrarPantallasVariables();
}

}  // namespace nomira::pantallas
