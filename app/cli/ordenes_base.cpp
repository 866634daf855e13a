// init y resumen: crear una base y ver qué tiene.
#include <filesystem>
#include <iostream>

#include "cli/ordenes.h"
#include "frame/arranque.h"
#include "frame/carpeta.h"
#include "frame/usuarios.h"
#include "store/destino.h"

namespace nomira::cli {

std::string Contexto::destino() const {
    if (!base.empty()) return base;
    if (auto d = frame::destinoConfigurado()) return *d;
    throw common::Fallo(53, "No se encontró " + frame::rutaNomira("base.txt").string() +
                                ": indique la base con --base.");
}

void exigirBaseExistente(const std::string& destino) {
    if (!store::esDestinoPostgres(destino) && !std::filesystem::exists(destino))
        throw Rechazo("La base de datos '" + store::destinoParaMostrar(destino) +
                      "' no existe. Sólo init, demo y copiar-base --hacia crean una base.");
}

std::unique_ptr<store::Conexion> Contexto::abrir() const {
    const auto d = destino();
    exigirBaseExistente(d);
    return frame::abrirBase(d);
}

frame::DialogoConsola Contexto::dialogo() const {
    return frame::DialogoConsola(std::cerr, respuesta);
}

namespace {

std::int64_t contar(store::Conexion& base, const std::string& tabla) {
    return base.consulta("SELECT COUNT(*) AS n FROM " + tabla).primera().entero("n");
}

int resumen(const Contexto& ctx) {
    auto base = ctx.abrir();
    std::int64_t filas = 0;
    for (const char* t : {"habydesc", "aguinaldos", "salvacacional", "egresos"})
        filas += contar(*base, t);
    std::cout << "Base: " << store::destinoParaMostrar(base->destino()) << '\n'
              << "Empresas: " << contar(*base, "empresas") << '\n'
              << "Personas: " << contar(*base, "personal") << '\n'
              << "Filas de liquidación: " << filas << '\n';
    return 0;
}

}  // namespace

void registrarOrdenesBase(CLI::App& app, Contexto& ctx) {
    auto* init = app.add_subcommand("init", "Crea una base nueva con su esquema y configuración");
    static std::string usuario, password;
    init->add_option("--usuario", usuario, "Primer usuario (categoría 1)");
    init->add_option("--password", password, "Su contraseña");
    init->callback([&ctx] {
        ctx.accion = [&ctx] {
            if (usuario.empty() != password.empty()) {
                std::cerr << "Debe completar los campos USUARIO y PASSWORD.\n";
                return 1;
            }
            if (const auto rechazo = frame::rechazoUsuario(usuario, password)) {
                std::cerr << *rechazo << '\n';
                return 1;
            }
            const auto destino = ctx.destino();
            // Sin base.txt, la base nueva pasa a ser la del programa; una cadena
            // con contraseña no se escribe ahí, y se dice antes de crear nada.
            const bool escribirBaseTxt = !frame::destinoConfigurado();
            if (escribirBaseTxt && store::llevaContrasena(destino))
                throw Rechazo(frame::kContrasenaEnBaseTxt);
            frame::crearBaseNueva(destino, usuario, password);
            if (escribirBaseTxt) frame::guardarDestino(destino);
            std::cout << "Base creada: " << store::destinoParaMostrar(destino) << '\n';
            return 0;
        };
    });

    auto* res =
        app.add_subcommand("resumen", "Muestra la base y cuántas empresas, personas y filas tiene");
    res->callback([&ctx] { ctx.accion = [&ctx] { return resumen(ctx); }; });
}

}  // namespace nomira::cli
