// variable, variables, franja, franjas y aumentar-sueldos: los valores que cambian
// por decreto y los aumentos de una empresa, sin pasar por las pantallas.
#include <iostream>

#include "cli/ordenes.h"
#include "common/formato.h"
#include "common/numeros.h"
#include "common/reloj.h"
#include "master/aumentos.h"
#include "master/franjas.h"
#include "master/variables.h"

namespace nomira::cli {

namespace {

int variable(const Contexto& ctx, const std::string& nombre, const std::string& fecha,
             const std::string& valor) {
    const auto f = common::Fecha::desdeTexto(fecha);
    const auto v = leerNumero(valor);
    if (nombre.empty() || !f || fecha.size() != 8) {
        std::cerr << "Debe completar el campo Nombre y los campos de tipo fecha deben tener el "
                     "formato: dd/MM/aa.\n";
        return 1;
    }
    if (!v) {
        std::cerr << "El valor debe ser un número: " << valor << ".\n";
        return 1;
    }
    master::agregarVariable(*ctx.abrir(), nombre, *f, *v);
    return 0;
}

int variables(const Contexto& ctx, const std::string& nombre) {
    auto base = ctx.abrir();
    const auto filas = nombre.empty() ? master::listarTodasLasVariables(*base)
                                      : master::listarVariable(*base, nombre);
    for (const auto& f : filas)
        std::cout << f.nombre << '\t' << f.fecha << '\t' << common::numeroATexto(f.valor) << '\n';
    return 0;
}

int franja(const Contexto& ctx, const std::vector<std::string>& a) {
    const char* mensajes[] = {"Debe completar el campo Franja.", "Debe completar el campo Min.",
                              "Debe completar el campo Max.", "Debe completar el campo Tasa."};
    double v[4];
    for (int i = 0; i < 4; ++i) {
        const auto n = leerNumero(a.at(i));
        if (!n) {
            std::cerr << mensajes[i] << '\n';
            return 1;
        }
        v[i] = *n;
    }
    if (const auto rechazo = master::rechazoFranja(v[0], v[1], v[2], v[3])) {
        std::cerr << *rechazo << '\n';
        return 1;
    }
    master::reemplazarFranja(*ctx.abrir(), {static_cast<long>(v[0]), v[1], v[2], v[3]});
    return 0;
}

int franjas(const Contexto& ctx) {
    for (const auto& f : master::listarFranjas(*ctx.abrir()))
        std::cout << f.franja << '\t' << common::numeroATexto(f.min) << '\t'
                  << common::numeroATexto(f.max) << '\t' << common::numeroATexto(f.tasa) << '\n';
    return 0;
}

struct OpcionesAumento {
    std::string empresa, porcentaje, fsuevig, categoria;
    bool bajar = false;
};

int aumentar(const Contexto& ctx, const OpcionesAumento& o) {
    const auto p = leerNumero(o.porcentaje);
    const auto f = common::Fecha::desdeTexto(o.fsuevig);
    if (o.empresa.empty() || !p || !f) {
        std::cerr << "Debe completar los campos Porcentaje, Empresa y FSueVig.\n";
        return 1;
    }
    if (const auto rechazo = master::rechazoPorcentaje(*p)) {
        std::cerr << *rechazo << '\n';
        return 1;
    }
    auto base = ctx.abrir();
    if (!empresaAceptada(*base, o.empresa)) return 1;
    auto dialogo = ctx.dialogo();
    if (!master::confirmarPorcentaje(dialogo, *p, o.bajar)) return 1;
    const int n = master::aumentarSueldosEmpresa(*base, {o.empresa, *p, *f, o.categoria, o.bajar},
                                                 common::hoy());
    std::cerr << (o.bajar ? "Decremento de Sueldos x Empresas finalizado."
                          : "Aumento de Sueldos x Empresas finalizado.")
              << '\n';
    std::cout << n << '\n';
    return 0;
}

}  // namespace

void registrarOrdenesVariables(CLI::App& app, Contexto& ctx) {
    static std::string nombre, fecha, valor, listada;
    auto* va = app.add_subcommand("variable", "Agrega un valor fechado de una variable");
    va->add_option("NOMBRE", nombre, "Nombre de la variable (BPC, SALMIN...)")->required();
    va->add_option("FECHA", fecha, "Fecha desde la que vale, dd/mm/aa")->required();
    va->add_option("VALOR", valor, "Valor")->required();
    va->callback([&ctx] { ctx.accion = [&ctx] { return variable(ctx, nombre, fecha, valor); }; });

    auto* vs = app.add_subcommand("variables", "Lista los valores fechados, de una o de todas");
    vs->add_option("NOMBRE", listada, "Sólo esta variable");
    vs->callback([&ctx] { ctx.accion = [&ctx] { return variables(ctx, listada); }; });

    static std::vector<std::string> datosFranja;
    auto* fr = app.add_subcommand("franja", "Agrega o reemplaza una franja del IRPF");
    fr->add_option("DATOS", datosFranja, "N MIN MAX TASA")->expected(4)->required();
    fr->callback([&ctx] { ctx.accion = [&ctx] { return franja(ctx, datosFranja); }; });

    auto* fs = app.add_subcommand("franjas", "Lista las franjas del IRPF");
    fs->callback([&ctx] { ctx.accion = [&ctx] { return franjas(ctx); }; });

    static OpcionesAumento o;
    auto* au = app.add_subcommand("aumentar-sueldos",
                                  "Aumenta (o con --bajar, baja) los sueldos de una empresa");
    au->add_option("--empresa", o.empresa, "Empresa")->required();
    au->add_option("--porcentaje", o.porcentaje, "Porcentaje")->required();
    au->add_option("--fsuevig", o.fsuevig, "Fecha de vigencia del sueldo, dd/mm/aa")->required();
    au->add_option("--categoria", o.categoria, "Sólo las personas de esta categoría");
    au->add_flag("--bajar", o.bajar, "Baja los sueldos en vez de aumentarlos");
    au->fallthrough();  // --si y --no también después de la orden
    au->callback([&ctx] { ctx.accion = [&ctx] { return aumentar(ctx, o); }; });
}

}  // namespace nomira::cli
