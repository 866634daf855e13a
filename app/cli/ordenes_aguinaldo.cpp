// aguinaldo: los haberes del aguinaldo de junio o diciembre de una persona (y,
// con --descuentos, sus descuentos) o de toda la empresa; y las filas del pago
// de una persona con sus cifras, para liquidacion --tabla aguinaldos.
#include <iostream>

#include "cli/ordenes.h"
#include "engine/aguinaldo/aguinaldo.h"
#include "engine/calculos/explicacion.h"

namespace nomira::cli {

namespace {

struct OpcionesAguinaldo {
    std::string empresa, mes;
    std::optional<std::string> nombre;  // sin --nombre, toda la empresa
    int actividad = 1;
    bool descuentos = false;
};

void mostrarFila(const engine::FilaMes& f) {
    std::cout << f.mes << " | " << f.concepto << " | " << f.tipo << " | "
              << (f.aclab.empty() ? "-" : f.aclab) << " | " << engine::pesos(f.total) << '\n';
}

int aguinaldo(const Contexto& ctx, const OpcionesAguinaldo& o) {
    const auto mes = common::Mes::desdeTexto(o.mes);
    if (!mes) {
        std::cerr << "El mes debe tener el formato MM/aa.\n";
        return 1;
    }
    if (!nombreAceptado(o.nombre)) return 1;
    auto base = ctx.abrir();
    if (!empresaAceptada(*base, o.empresa)) return 1;
    auto dialogo = ctx.dialogo();
    const char* procedimiento = !o.nombre      ? "ActAguinxEmpresa_Click"
                                : o.descuentos ? "DescPerm_Click"
                                               : "HabPerm_Click";
    try {
        if (o.nombre) {
            auto r = engine::haberesAguinaldoDeUnaPersona(*base, o.empresa, *o.nombre, *mes,
                                                          o.actividad, dialogo);
            if (r.hecho && o.descuentos) {
                auto d = engine::descuentosAguinaldoDeUnaPersona(*base, o.empresa, *o.nombre, *mes,
                                                                 dialogo);
                r.filas.insert(r.filas.end(), d.filas.begin(), d.filas.end());
                r.hecho = d.hecho;
            }
            for (const auto& f : r.filas) mostrarFila(f.fila);
            return r.hecho || r.aviso.empty() ? 0 : 1;
        }
        const auto r = engine::aguinaldoDeLaEmpresa(
            *base, o.empresa, *mes, o.actividad, dialogo,
            [](std::size_t i, std::size_t n, const std::string& nombre) {
                std::cerr << i << "/" << n << " " << nombre << '\n';
            });
        for (const auto& p : r.personas)
            for (const auto& f : p.filas) {
                std::cout << p.nombre << " | ";
                mostrarFila(f.fila);
            }
        if (r.fallo) std::rethrow_exception(r.fallo);
        return 0;
    } catch (const common::Fallo& f) {
        std::cerr << common::textoErrorInesperado(f, procedimiento, "Form43") << '\n';
        return 2;
    }
}

}  // namespace

int mostrarAguinaldo(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                     const common::Mes& pago, bool explicar) {
    const auto filas =
        engine::filasDeLaPersona(base, empresa, nombre, pago, engine::TablaLiquidacion::Aguinaldos);
    for (const auto& f : filas) {
        mostrarFila(f);
        if (explicar && !f.explicacion.empty()) std::cout << "    " << f.explicacion << '\n';
    }
    const auto c = engine::cifrasDelAguinaldo(filas);
    std::cout << "Suma de los meses: " << engine::pesos(c.sumaDeMeses) << '\n'
              << "Aguinaldo: " << engine::pesos(c.haberes) << '\n'
              << "Total Descuentos: " << engine::pesos(c.descuentos) << '\n'
              << "Líquido a Cobrar: " << engine::pesos(c.liquido) << '\n';
    return 0;
}

void registrarOrdenesAguinaldo(CLI::App& app, Contexto& ctx) {
    auto* ag = app.add_subcommand(
        "aguinaldo",
        "Liquida el aguinaldo de junio o diciembre de una persona o de toda la empresa");
    static OpcionesAguinaldo a;
    ag->add_option("--empresa", a.empresa, "Empresa")->required();
    ag->add_option("--nombre", a.nombre, "Persona; sin ella, todas las de la empresa");
    ag->add_option("--mes", a.mes, "Mes del pago, 06/aa o 12/aa")->required();
    ag->add_option("--actividad", a.actividad, "Actividad laboral: 1, 2 o 3")
        ->check(CLI::Range(1, 3));
    ag->add_flag("--descuentos", a.descuentos,
                 "Con una persona, genera también sus descuentos (la empresa siempre los genera)");
    ag->fallthrough();
    ag->callback([&ctx] { ctx.accion = [&ctx] { return aguinaldo(ctx, a); }; });
}

}  // namespace nomira::cli
