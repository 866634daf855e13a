// egreso: la liquidación por egreso de una persona y una actividad (con
// --descuentos, también sus descuentos); y sus filas del mes para liquidacion
// --tabla egresos.
#include <iostream>

#include "cli/ordenes.h"
#include "common/numeros.h"
#include "engine/calculos/explicacion.h"
#include "engine/egreso/liquidacion_egreso.h"

namespace nomira::cli {

namespace {

struct OpcionesEgreso {
    std::string empresa, nombre, mes;
    int actividad = 1;
    std::string incidencias = "si", vacacional = "no", licencia = "no";
    bool descuentos = false;
};

void mostrarFila(const engine::FilaMes& f) {
    std::cout << f.codigo << " | " << f.concepto << " | " << f.tipo << " | "
              << common::numeroATexto(f.cant) << " | " << engine::pesos(f.total) << '\n';
}

int egreso(const Contexto& ctx, const OpcionesEgreso& o) {
    const auto mes = common::Mes::desdeTexto(o.mes);
    if (!mes) {
        std::cerr << "El mes debe tener el formato MM/aa.\n";
        return 1;
    }
    auto base = ctx.abrir();
    if (!empresaAceptada(*base, o.empresa)) return 1;
    auto dialogo = ctx.dialogo();
    try {
        const engine::OpcionesEgreso op{o.actividad, o.incidencias == "si", o.licencia == "si",
                                        o.vacacional == "si"};
        const auto r =
            engine::egresoDeUnaPersona(*base, o.empresa, o.nombre, *mes, op, o.descuentos, dialogo);
        for (const auto& f : r.filas) mostrarFila(f.fila);
        return r.hecho ? 0 : 1;
    } catch (const common::Fallo& f) {
        std::cerr << common::textoErrorInesperado(
                         f, o.descuentos ? "DescPerm_Click" : "HabPerm_Click", "Form45")
                  << '\n';
        return 2;
    }
}

}  // namespace

int mostrarEgreso(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                  const common::Mes& mes, bool explicar) {
    const auto filas =
        engine::filasDeLaPersona(base, empresa, nombre, mes, engine::TablaLiquidacion::Egresos);
    for (const auto& f : filas) {
        mostrarFila(f);
        if (explicar && !f.explicacion.empty()) std::cout << "    " << f.explicacion << '\n';
    }
    const auto c = engine::cifrasDelEgreso(filas);
    std::cout << "T.Haberes: " << engine::pesos(c.haberes) << '\n'
              << "Total Descuentos: " << engine::pesos(c.descuentos) << '\n'
              << "Líquido Neto: " << engine::pesos(c.liquido) << '\n'
              << "Líquido a Cobrar: " << engine::pesos(c.aCobrar) << '\n';
    return 0;
}

void registrarOrdenesEgreso(CLI::App& app, Contexto& ctx) {
    auto* eg = app.add_subcommand("egreso", "Liquida el egreso de una persona en una actividad");
    static OpcionesEgreso e;
    eg->add_option("--empresa", e.empresa, "Empresa")->required();
    eg->add_option("--nombre", e.nombre, "Persona")->required();
    eg->add_option("--mes", e.mes, "Mes del egreso, MM/aa")->required();
    eg->add_option("--actividad", e.actividad, "Actividad laboral: 1, 2 o 3")
        ->check(CLI::Range(1, 3));
    for (auto [opcion, destino, ayuda] :
         {std::tuple{"--incidencias", &e.incidencias, "El IPD de un despido lleva sus incidencias"},
          {"--licencia", &e.licencia, "Al IPD se le suma la licencia no gozada"},
          {"--vacacional", &e.vacacional, "Al IPD se le suma el salario vacacional"}})
        eg->add_option(opcion, *destino, std::string(ayuda) + ": si o no")
            ->check(CLI::IsMember({"si", "no"}));
    eg->add_flag("--descuentos", e.descuentos, "Genera también sus descuentos");
    eg->fallthrough();
    eg->callback([&ctx] { ctx.accion = [&ctx] { return egreso(ctx, e); }; });
}

}  // namespace nomira::cli
