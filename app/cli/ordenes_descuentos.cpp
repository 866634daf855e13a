// descuentos y renglon: la generación de los descuentos del mes de una persona
// o de toda una empresa, y una fila tecleada como en la pantalla de liquidación
// (Enter en la cantidad y luego en el total).
#include <iostream>

#include "cli/ordenes.h"
#include "common/numeros.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/renglon.h"

namespace nomira::cli {

namespace {

struct OpcionesMes {
    std::string empresa, mes;
    std::optional<std::string> nombre;  // sin --nombre, descuentos va sobre toda la empresa
};

struct OpcionesRenglon {
    std::string empresa, nombre, mes;
    long codigo = 0;
    std::optional<std::string> cant, total, periodo;
};

std::optional<common::Mes> leerMes(const std::string& texto) {
    auto mes = common::Mes::desdeTexto(texto);
    if (!mes) std::cerr << "El mes debe tener el formato MM/aa.\n";
    return mes;
}

void mostrar(const engine::FilaLiquidada& f) {
    std::cout << f.fila.codigo << " | " << f.fila.concepto << " | " << f.fila.tipo << " | "
              << common::numeroATexto(f.fila.cant) << " | " << engine::pesos(f.fila.total) << '\n';
}

int descuentos(const Contexto& ctx, const OpcionesMes& o) {
    const auto mes = leerMes(o.mes);
    if (!mes || !nombreAceptado(o.nombre)) return 1;
    auto base = ctx.abrir();
    if (!empresaAceptada(*base, o.empresa)) return 1;
    auto dialogo = ctx.dialogo();
    const char* procedimiento = o.nombre ? "DescPerm_Click" : "ActDesPermxEmpresa_Click";
    try {
        if (o.nombre) {
            const auto r =
                engine::descuentosDeUnaPersona(*base, o.empresa, *o.nombre, *mes, dialogo);
            for (const auto& f : r.filas) mostrar(f);
            return r.hecho ? 0 : 1;
        }
        const auto r = engine::descuentosDeLaEmpresa(
            *base, o.empresa, *mes, dialogo,
            [](std::size_t i, std::size_t n, const std::string& nombre) {
                std::cerr << i << "/" << n << " " << nombre << '\n';
            });
        for (const auto& p : r.personas)
            for (const auto& f : p.filas) {
                std::cout << p.nombre << " | ";
                mostrar(f);
            }
        if (r.fallo) std::rethrow_exception(r.fallo);
        return 0;
    } catch (const common::Fallo& f) {
        std::cerr << common::textoErrorInesperado(f, procedimiento, "Form42") << '\n';
        return 2;
    }
}

int renglon(const Contexto& ctx, const OpcionesRenglon& o) {
    const auto mes = leerMes(o.mes);
    if (!mes) return 1;
    auto base = ctx.abrir();
    if (!empresaAceptada(*base, o.empresa)) return 1;
    auto dialogo = ctx.dialogo();
    if (o.periodo) dialogo.responderTexto(*o.periodo);
    engine::ContextoFormula c;
    auto mp = engine::leerMesDeLaPersona(*base, o.empresa, o.nombre, *mes, c, dialogo);
    if (!mp) return 1;
    try {
        const auto buscado = engine::buscarRenglon(*mp, c, o.codigo, dialogo);
        if (!buscado) return 1;
        const std::string textoCant = o.cant.value_or(buscado->textoCant);
        const auto calculo = engine::calcularRenglon(*mp, c, buscado->concepto, textoCant, dialogo);
        if (!calculo) return 1;
        // Lo que queda en las casillas después del Enter en la cantidad; un
        // total tecleado reemplaza el calculado.
        const std::string cant = common::numeroATexto(calculo->cant);
        const std::string total = o.total.value_or(common::numeroATexto(calculo->total.aDouble()));
        if (engine::guardarRenglon(*base, *mp, c, *calculo, cant, total, dialogo)) return 1;
        std::cout << calculo->concepto.codigo << " | " << calculo->texto << " | " << cant << " | "
                  << engine::pesos(common::textoANumero(total)) << '\n';
        if (!calculo->fechadesdelic.empty())
            std::cout << "período " << calculo->fechadesdelic << " - " << calculo->fechahastalic
                      << '\n';
        std::cerr << calculo->explicacion << '\n';
        return 0;
    } catch (const common::Fallo& f) {
        std::cerr << common::textoErrorInesperado(f, "Text5_KeyPress", "Form42") << '\n';
        return 2;
    }
}

}  // namespace

void registrarOrdenesDescuentos(CLI::App& app, Contexto& ctx) {
    auto* de = app.add_subcommand(
        "descuentos", "Genera los descuentos del mes de una persona o de toda la empresa");
    static OpcionesMes d;
    de->add_option("--empresa", d.empresa, "Empresa")->required();
    de->add_option("--nombre", d.nombre, "Persona; sin ella, todas las de la empresa");
    de->add_option("--mes", d.mes, "Mes que se liquida, MM/aa")->required();
    de->fallthrough();  // --si y --no también después de la orden
    de->callback([&ctx] { ctx.accion = [&ctx] { return descuentos(ctx, d); }; });

    auto* re = app.add_subcommand(
        "renglon", "Calcula y guarda una fila del mes como al teclearla en la liquidación");
    static OpcionesRenglon r;
    re->add_option("--empresa", r.empresa, "Empresa")->required();
    re->add_option("--nombre", r.nombre, "Persona, \"apellidos, nombres\"")->required();
    re->add_option("--mes", r.mes, "Mes que se liquida, MM/aa")->required();
    re->add_option("--codigo", r.codigo, "Código del concepto")->required();
    re->add_option("--cant", r.cant, "Cantidad tecleada; sin ella, la que propone el código");
    re->add_option("--total", r.total, "Total tecleado; reemplaza el calculado");
    re->add_option("--periodo", r.periodo, "Período de una licencia, dd/mm/aa-dd/mm/aa");
    re->fallthrough();
    re->callback([&ctx] { ctx.accion = [&ctx] { return renglon(ctx, r); }; });
}

}  // namespace nomira::cli
