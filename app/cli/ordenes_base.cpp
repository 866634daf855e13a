// init y resumen: crear una base y ver qué tiene.
#include <iostream>

#include "cli/ordenes.h"
#include "frame/arranque.h"
#include "frame/carpeta.h"
#include "frame/usuarios.h"

namespace nomira::cli {

std::string Contexto::destino() const {
    if (!base.empty()) return base;
    if (auto d = frame::destinoConfigurado()) return *d;
    throw common::Fallo(53, "No se encontró " + frame::rutaNomira("base.txt").string() +
                                ": indique la base con --base.");
}

std::unique_ptr<store::Conexion> Contexto::abrir() const { return frame::abrirBase(destino()); }

frame::DialogoConsola Contexto::dialogo() const { return frame::DialogoConsola(std::cerr, respuesta); }

namespace {

std::int64_t contar(store::Conexion& base, const std::string& tabla) {
    return base.consulta("SELECT COUNT(*) AS n FROM " + tabla).primera().entero("n");
}

int resumen(const Contexto& ctx) {
    auto base = ctx.abrir();
    std::int64_t filas = 0;
    for (const char* t : {"habydesc", "aguinaldos", "salvacacional", "egresos"}) filas += contar(*base, t);
    std::cout << "Base: " << base->destino() << '\n'
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
            frame::crearBaseNueva(destino, usuario, password);
            // Sin base.txt, la base nueva pasa a ser la del programa.
            if (!frame::destinoConfigurado()) frame::escribirLinea("base.txt", destino);
            std::cout << "Base creada: " << destino << '\n';
            return 0;
        };
    });

    auto* res = app.add_subcommand("resumen", "Muestra la base y cuántas empresas, personas y filas tiene");
    res->callback([&ctx] { ctx.accion = [&ctx] { return resumen(ctx); }; });
}

}  // namespace nomira::cli
