// usuario: agrega un usuario o le pone un password nuevo. Es la salida de quien
// quedó afuera; corre con los permisos de quien puede abrir la base.
#include <iostream>

#include "cli/ordenes.h"
#include "frame/usuarios.h"

namespace nomira::cli {

namespace {

struct OpcionesUsuario {
    std::string nombre, password, categoria;
};

int usuario(const Contexto& ctx, const OpcionesUsuario& o) {
    auto base = ctx.abrir();
    std::string mensaje;
    const auto r = frame::guardarUsuario(*base, o.nombre, o.password, o.categoria, mensaje);
    if (!r) {
        std::cerr << mensaje << '\n';
        return 1;
    }
    std::cout << (*r == frame::UsuarioGuardado::Agregado ? "Usuario agregado: "
                                                         : "Password cambiado: ")
              << o.nombre << '\n';
    return 0;
}

}  // namespace

void registrarOrdenesUsuario(CLI::App& app, Contexto& ctx) {
    static OpcionesUsuario o;
    auto* u = app.add_subcommand(
        "usuario", "Agrega un usuario o cambia el password (y la categoría) de uno que ya está");
    u->add_option("--nombre", o.nombre, "USUARIO, todo en mayúsculas o todo en minúsculas")
        ->required();
    u->add_option("--password", o.password, "PASSWORD, todo en mayúsculas o todo en minúsculas")
        ->required();
    u->add_option(
        "--categoria", o.categoria,
        "1 administrador, 2 supervisor, 3 operador; sin ella, la que tenía (1 si es nuevo)");
    u->callback([&ctx] { ctx.accion = [&ctx] { return usuario(ctx, o); }; });
}

}  // namespace nomira::cli
