#pragma once
// Lo que la ventana principal tiene abierto y todas las pantallas leen:
// la conexión con la base y la categoría del usuario que ingresó.
#include <memory>

#include "common/dialogo.h"
#include "frame/permisos.h"
#include "store/conexion.h"

namespace nomira::frame {

struct Sesion {
    std::unique_ptr<store::Conexion> base;
    int categoria = 0;  // 0 hasta el primer ingreso
    common::Dialogo* dialogo = nullptr;  // cuadros de mensaje; en las pruebas, un guion

    bool ingresado() const { return categoria != 0; }
    // Se lee la configuración en cada pedido: otra PC pudo cambiar los permisos.
    bool puede(Grupo grupo) const {
        if (grupo == Grupo::Ninguno) return true;
        return base && permitido(master::leerConfiguracion(*base), categoria, grupo);
    }
};

}  // namespace nomira::frame
