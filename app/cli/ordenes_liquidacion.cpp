// haberes, liquidacion y borrar: la generación de los haberes permanentes del
// mes (una persona o toda la empresa), el mes de una persona con su desglose,
// y el borrado de una fila o de los haberes o descuentos del mes.
#include <algorithm>
#include <iostream>

#include "cli/ordenes.h"
#include "common/numeros.h"
#include "common/reloj.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/explicaciones.h"
#include "engine/mes/haberes.h"
#include "engine/mes/mes_en_pantalla.h"
#include "engine/mes/renglon.h"

namespace nomira::cli {

namespace {

struct OpcionesLiquidacion {
    std::string empresa, mes;
    std::optional<std::string> nombre;  // sin --nombre, haberes va sobre toda la empresa
    bool explicar = false;
    long codigo = 0;
    bool haberes = false, descuentos = false;
    std::string tabla = "habydesc";  // liquidacion: habydesc, aguinaldos o salvacacional
};

// El mes tecleado, o el anterior al de hoy.
std::optional<common::Mes> mesDe(const std::string& texto) {
    const std::string t = texto.empty() ? common::CalculaMesAnterior(common::hoy()) : texto;
    auto mes = common::Mes::desdeTexto(t);
    if (!mes) std::cerr << "El mes debe tener el formato MM/aa.\n";
    return mes;
}

void mostrar(const engine::FilaLiquidada& f, bool explicar) {
    std::cout << f.fila.codigo << " | " << f.fila.concepto << " | " << f.fila.tipo << " | "
              << common::numeroATexto(f.fila.cant) << " | " << engine::pesos(f.fila.total) << '\n';
    if (explicar && !f.explicacion.empty()) std::cout << "    " << f.explicacion << '\n';
}

int haberes(const Contexto& ctx, const OpcionesLiquidacion& o) {
    const auto mes = mesDe(o.mes);
    if (!mes || !nombreAceptado(o.nombre)) return 1;
    auto base = ctx.abrir();
    if (!empresaAceptada(*base, o.empresa)) return 1;
    auto dialogo = ctx.dialogo();
    const char* procedimiento = o.nombre ? "HabPerm_Click" : "ActHamPermxEmpresa_Click";
    try {
        if (o.nombre) {
            const auto r = engine::generarHaberesPermanentes(*base, o.empresa, *o.nombre, *mes,
                                                             dialogo, engine::conArchivoDeHoras());
            for (const auto& f : r.filas) mostrar(f, o.explicar);
            return r.hecho ? 0 : 1;
        }
        const auto r = engine::haberesDeLaEmpresa(
            *base, o.empresa, *mes, dialogo, engine::conArchivoDeHoras(),
            [](std::size_t i, std::size_t n, const std::string& nombre) {
                std::cerr << "persona " << i << " de " << n << ": " << nombre << '\n';
            });
        for (const auto& p : r.personas)
            for (const auto& f : p.filas) {
                std::cout << p.nombre << " | ";
                mostrar(f, o.explicar);
            }
        if (r.fallo) std::rethrow_exception(r.fallo);
        dialogo.avisar(common::TipoAviso::Informacion, "Actualización finalizada.");
        return 0;
    } catch (const common::Fallo& f) {
        std::cerr << common::textoErrorInesperado(f, procedimiento, "Form42") << '\n';
        return 2;
    }
}

// Las filas del mes como las dos grillas y las cifras del desglose.
int liquidacion(const Contexto& ctx, const OpcionesLiquidacion& o) {
    const auto mes = mesDe(o.mes);
    if (!mes) return 1;
    auto base = ctx.abrir();
    if (!empresaAceptada(*base, o.empresa)) return 1;
    const auto& nombre = o.nombre.value();
    if (o.tabla == "aguinaldos")
        return mostrarAguinaldo(*base, o.empresa, nombre, *mes, o.explicar);
    if (o.tabla == "egresos") return mostrarEgreso(*base, o.empresa, nombre, *mes, o.explicar);
    auto dialogo = ctx.dialogo();
    if (o.tabla == "salvacacional")
        return mostrarVacacional(*base, dialogo, o.empresa, nombre, *mes, o.explicar);
    engine::ContextoFormula c;
    const auto mp = engine::leerMesDeLaPersona(*base, o.empresa, nombre, *mes, c, dialogo);
    if (!mp) return 1;
    // Los haberes primero, como las dos grillas.
    auto filas = engine::filasParaGrillas(*base, o.empresa, nombre, *mes);
    std::stable_partition(filas.begin(), filas.end(),
                          [](const auto& f) { return f.tipo == "Hab"; });
    for (const auto& f : filas) {
        std::cout << f.codigo << " | " << f.concepto << " | " << f.tipo << " | "
                  << common::numeroATexto(f.cant) << " | " << engine::pesos(f.total) << '\n';
        if (!o.explicar) continue;
        const auto texto = engine::leerExplicacion(*base, engine::TablaLiquidacion::Habydesc,
                                                   o.empresa, nombre, *mes, f.codigo);
        if (!texto.empty()) std::cout << "    " << texto << '\n';
    }
    const auto& d = mp->desglose;
    const auto cifras = engine::cifrasDelMes(d, filas);
    std::cout << "T.Haberes: " << engine::pesos(cifras.totalhab) << '\n'
              << "Total Descuentos: " << engine::pesos(cifras.totaldes) << '\n'
              << "Líquido Neto: " << engine::pesos(cifras.liquidoneto) << '\n'
              << "Líquido a Cobrar: " << engine::pesos(cifras.aCobrar) << '\n'
              << "M.Irpf: " << engine::pesos(cifras.montoirpf) << '\n'
              << "M.Dedu.: " << engine::pesos(cifras.montodedu) << '\n';
    if (o.explicar)
        std::cout << engine::explicacion(d) << '\n' << engine::explicacion(d.liquido) << '\n';
    return 0;
}

int borrar(const Contexto& ctx, const OpcionesLiquidacion& o) {
    const auto mes = mesDe(o.mes);
    if (!mes) return 1;
    const auto& nombre = o.nombre.value();
    if (o.empresa.empty() || nombre.empty() || o.mes.empty()) {
        std::cerr << engine::kFaltanCamposMes << '\n';
        return 1;
    }
    if ((o.codigo != 0) + o.haberes + o.descuentos != 1) {
        std::cerr << "Indique una sola de --codigo, --haberes o --descuentos.\n";
        return 1;
    }
    auto base = ctx.abrir();
    if (!empresaAceptada(*base, o.empresa)) return 1;
    auto dialogo = ctx.dialogo();
    try {
        if (o.haberes || o.descuentos) {
            const long n =
                o.haberes
                    ? engine::eliminarHaberesDelMes(*base, o.empresa, nombre, *mes, dialogo)
                    : engine::eliminarDescuentosDelMes(*base, o.empresa, nombre, *mes, dialogo);
            if (n >= 0) std::cout << "filas borradas: " << n << '\n';
            return 0;
        }
        engine::ContextoFormula c;
        auto mp = engine::leerMesDeLaPersona(*base, o.empresa, nombre, *mes, c, dialogo);
        if (!mp) return 1;
        const auto buscado = engine::buscarRenglon(*mp, c, o.codigo, dialogo);
        if (!buscado) return 1;
        const auto m = engine::eliminarRenglon(*base, *mp, c, buscado->concepto, dialogo);
        return m && !m->empty() ? 1 : 0;
    } catch (const common::Fallo& f) {
        std::cerr << common::textoErrorInesperado(f,
                                                  o.haberes      ? "HabPerm2_Click"
                                                  : o.descuentos ? "DescPerm2_Click"
                                                                 : "Eliminar_Click",
                                                  "Form42")
                  << '\n';
        return 2;
    }
}

}  // namespace

void registrarOrdenesLiquidacion(CLI::App& app, Contexto& ctx) {
    static OpcionesLiquidacion h, l, b;
    auto* ha = app.add_subcommand(
        "haberes", "Genera los haberes permanentes del mes de una persona o de toda la empresa");
    ha->add_option("--empresa", h.empresa, "Empresa")->required();
    ha->add_option("--nombre", h.nombre, "Persona; sin ella, todas las de la empresa");
    ha->add_option("--mes", h.mes, "Mes que se liquida, MM/aa; sin él, el mes anterior");
    ha->add_flag("--explicar", h.explicar, "Muestra cómo se llegó a cada importe");
    ha->callback([&ctx] { ctx.accion = [&ctx] { return haberes(ctx, h); }; });

    auto* li = app.add_subcommand("liquidacion", "Muestra el mes de una persona con su desglose");
    li->add_option("--empresa", l.empresa, "Empresa")->required();
    li->add_option("--nombre", l.nombre, "Persona")->required();
    li->add_option("--mes", l.mes, "Mes, MM/aa; sin él, el mes anterior");
    li->add_flag("--explicar", l.explicar, "Muestra cómo se llegó a las cifras del desglose");
    li->add_option("--tabla", l.tabla, "habydesc (el mes), aguinaldos, salvacacional o egresos")
        ->check(CLI::IsMember({"habydesc", "aguinaldos", "salvacacional", "egresos"}));
    li->callback([&ctx] { ctx.accion = [&ctx] { return liquidacion(ctx, l); }; });

    auto* bo = app.add_subcommand(
        "borrar", "Borra una fila, los haberes o los descuentos del mes de una persona");
    bo->add_option("--empresa", b.empresa, "Empresa")->required();
    bo->add_option("--nombre", b.nombre, "Persona")->required();
    bo->add_option("--mes", b.mes, "Mes, MM/aa")->required();
    bo->add_option("--codigo", b.codigo, "Código de la fila");
    bo->add_flag("--haberes", b.haberes, "Todos los haberes del mes");
    bo->add_flag("--descuentos", b.descuentos, "Todos los descuentos del mes");
    bo->callback([&ctx] { ctx.accion = [&ctx] { return borrar(ctx, b); }; });
}

}  // namespace nomira::cli
