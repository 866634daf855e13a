#include "screens/empresas/registro_empresas.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/catalogos/catalogos_del_sistema.h"
#include "screens/empresas/ficha_empresa.h"
#include "screens/empresas/pantalla_empresas.h"
#include "screens/obras/ficha_obra.h"
#include "screens/obras/pantalla_obras.h"

namespace nomira::pantallas {

void registrarPantallasEmpresas() {
    auto& r = ventana::registroPantallas();
    r["Form2"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaEmpresas(s, p);
    };
    r["Form21"] = [](frame::Sesion& s, QWidget* p) -> QWidget* { return new FichaEmpresa(s, p); };
    r["Form291"] = [](frame::Sesion& s, QWidget* p) -> QWidget* { return new PantallaObras(s, p); };
    r["Form292"] = [](frame::Sesion& s, QWidget* p) -> QWidget* { return new FichaObra(s, p); };
    registrarPantallasCatalogos();
}

}  // namespace nomira::pantallas
