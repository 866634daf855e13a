#include "screens/empresas/registro_empresas.h"

#include "frame/ventana/registro_pantallas.h"
#include "screens/empresas/ficha_empresa.h"
#include "screens/empresas/pantalla_empresas.h"

namespace nomira::pantallas {

void registrarPantallasEmpresas() {
    auto& r = ventana::registroPantallas();
    r["Form2"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaEmpresas(s, p);
    };
    r["Form21"] = [](frame::Sesion& s, QWidget* p) -> QWidget* { return new FichaEmpresa(s, p); };
}

}  // namespace nomira::pantallas
