// copiar-base: mudar un estudio de SQLite a PostgreSQL o al revés; respaldar: la copia de
// seguridad.
#include <iostream>

#include "cli/ordenes.h"
#include "maintenance/copia_base.h"
#include "maintenance/respaldo.h"

namespace nomira::cli {

void registrarOrdenesMantenimiento(CLI::App& app, Contexto& ctx) {
    auto* copiar = app.add_subcommand("copiar-base",
                                      "Copia una base entera a otra vacía (SQLite o PostgreSQL)");
    static std::string desde, hacia;
    copiar->add_option("--desde", desde, "Base de origen")->required();
    copiar->add_option("--hacia", hacia, "Base de destino, vacía")->required();
    copiar->callback([&ctx] {
        ctx.accion = [] {
            exigirBaseExistente(desde);
            auto origen = store::abrir(desde, store::Apertura::Existente);
            auto destino = store::abrir(hacia);
            std::int64_t total = 0;
            maintenance::copiarBase(*origen, *destino, [&](const maintenance::TablaCopiada& t) {
                total += t.filas;
                if (t.filas) std::cerr << t.tabla << ": " << t.filas << '\n';
            });
            std::cout << "Copia finalizada: " << total << " filas.\n";
            return 0;
        };
    });

    auto* respaldar =
        app.add_subcommand("respaldar", "Guarda una copia de seguridad de la base en un archivo");
    static std::string archivo;
    respaldar->add_option("--hacia", archivo, "Archivo de la copia")->required();
    respaldar->callback([&ctx] {
        ctx.accion = [&ctx] {
            auto base = ctx.abrir();
            maintenance::respaldarBase(*base, archivo);
            std::cout << "Copia finalizada.\n";
            return 0;
        };
    });
}

}  // namespace nomira::cli
