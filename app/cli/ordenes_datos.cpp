// actualizar-valores: los valores legales de fechas nuevas, sin tocar los del usuario.
#include <iostream>

#include "cli/ordenes.h"
#include "common/reloj.h"
#include "frame/carpeta.h"
#include "master/datos_iniciales.h"

namespace nomira::cli {

void registrarOrdenesDatos(CLI::App& app, Contexto& ctx) {
    auto* orden =
        app.add_subcommand("actualizar-valores",
                           "Agrega a la base los valores legales y franjas que todavía no tiene");
    orden->callback([&ctx] {
        ctx.accion = [&ctx] {
            auto base = ctx.abrir();
            const auto r = master::actualizarValores(*base, frame::carpetaDatos(), common::hoy());
            std::cout << "Valores agregados: " << r.variables << '\n'
                      << "Franjas agregadas: " << r.franjas << '\n';
            if (r.pendientes > 0)
                std::cout << "Valores que rigen desde una fecha futura: " << r.pendientes << '\n';
            return 0;
        };
    });
}

}  // namespace nomira::cli
