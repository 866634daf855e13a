// nomira-cli [--base RUTA] <orden> [opciones]
#include <iostream>

#include "cli/ordenes.h"
#include "common/fallo.h"

int main(int argc, char** argv) {
    using namespace nomira;
    CLI::App app{"Nomira: liquidación de sueldos desde la línea de órdenes"};
    // Antes de las órdenes: cada una copia la opción de ayuda de la aplicación.
    app.set_help_flag("-h,--help", "Muestra esta ayuda y termina");
    app.require_subcommand(1);
    cli::Contexto ctx;
    app.add_option("--base", ctx.base, "Archivo SQLite o cadena de conexión PostgreSQL");
    bool si = false, no = false;
    auto* opcionSi = app.add_flag("--si", si, "Responde Sí a las preguntas");
    app.add_flag("--no", no, "Responde No a las preguntas")->excludes(opcionSi);
    cli::registrarOrdenesBase(app, ctx);
    cli::registrarOrdenesFormula(app, ctx);
    cli::registrarOrdenesMantenimiento(app, ctx);
    cli::registrarOrdenesDatos(app, ctx);
    cli::registrarOrdenesVariables(app, ctx);
    cli::registrarOrdenesDescuentos(app, ctx);
    cli::registrarOrdenesLiquidacion(app, ctx);
    cli::registrarOrdenesAguinaldo(app, ctx);
    cli::registrarOrdenesEgreso(app, ctx);
    cli::registrarOrdenesVacacional(app, ctx);
    cli::registrarOrdenesIncidencias(app, ctx);
    cli::registrarOrdenesDemo(app, ctx);
    cli::registrarOrdenesUsuario(app, ctx);
    cli::enCastellano(app);

    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& e) {
        return app.exit(e);  // --help
    } catch (const CLI::ParseError& e) {
        std::cerr << cli::mensajeDeUso(e, app) << '\n';
        return 1;
    }
    if (si) ctx.respuesta = true;
    if (no) ctx.respuesta = false;
    try {
        return ctx.accion ? ctx.accion() : 0;
    } catch (const cli::Rechazo& r) {
        std::cerr << r.what() << '\n';
        return 1;
    } catch (const common::Fallo& f) {
        std::cerr << "Error inesperado " << f.numero() << ' ' << f.descripcion() << '\n';
        return 2;
    } catch (const std::exception& e) {
        std::cerr << "Error inesperado " << e.what() << '\n';
        return 2;
    }
}
