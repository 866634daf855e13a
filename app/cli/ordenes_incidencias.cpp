// incidencias: las pantallas de incidencias del IPD y de la licencia desde la
// línea de órdenes. Imprimen la traza tal como la muestra su cuadro, con sus
// líneas terminadas en CR LF; no escriben nada en la base.
#include <iostream>

#include "cli/ordenes.h"
#include "engine/egreso/incidencias_licencia.h"
#include "engine/egreso/ipd.h"

namespace nomira::cli {

namespace {

struct OpcionesIncidencias {
    std::string empresa, nombre, fecha;
    int actividad = 1;
    bool sinIncidencias = false;
    std::string licencia, vacacional;
};

// La fecha tecleada: vacía es el aviso de los campos de la pantalla; mal
// escrita se rechaza antes.
bool leerFecha(const std::string& texto, std::optional<common::Fecha>& fecha) {
    if (texto.empty()) return true;
    fecha = common::Fecha::desdeTexto(texto);
    if (!fecha) std::cerr << "La fecha debe tener el formato dd/mm/aa.\n";
    return fecha.has_value();
}

bool leerImporte(const std::string& texto, const char* campo, common::Dinero& importe) {
    if (texto.empty()) return true;
    const auto n = leerNumero(texto);
    if (!n) {
        std::cerr << "El campo " << campo << " debe ser un número.\n";
        return false;
    }
    importe = common::Dinero::desdeDouble(*n);
    return true;
}

template <class Calculo>
int generar(const Contexto& ctx, const OpcionesIncidencias& o, const char* pantalla,
            const Calculo& calculo) {
    std::optional<common::Fecha> fecha;
    if (!leerFecha(o.fecha, fecha)) return 1;
    auto base = ctx.abrir();
    if (!o.empresa.empty() && !empresaAceptada(*base, o.empresa)) return 1;
    auto dialogo = ctx.dialogo();
    try {
        // Sin traza, un mensaje detuvo el cálculo.
        const std::optional<std::string> traza = calculo(*base, fecha, dialogo);
        if (!traza) return 1;
        std::cout << *traza << std::flush;
        return 0;
    } catch (const common::Fallo& f) {
        std::cerr << common::textoErrorInesperado(f, "Generar_Click", pantalla) << '\n';
        return 2;
    }
}

int ipd(const Contexto& ctx, const OpcionesIncidencias& o) {
    engine::OpcionesIpd op;
    op.actividad = o.actividad;
    op.incidencias = !o.sinIncidencias;
    if (!leerImporte(o.licencia, "Lic.", op.licencia) ||
        !leerImporte(o.vacacional, "Vac.", op.salVacacional))
        return 1;
    return generar(ctx, o, "Form70", [&](store::Conexion& base, const auto& fecha, auto& dialogo) {
        const auto r = engine::incidenciasDelIpd(base, o.empresa, o.nombre, fecha, op, dialogo);
        return r.aviso.empty() ? std::optional(r.traza()) : std::nullopt;
    });
}

int licencia(const Contexto& ctx, const OpcionesIncidencias& o) {
    return generar(ctx, o, "Form76", [&](store::Conexion& base, const auto& fecha, auto& dialogo) {
        const auto r = engine::incidenciasDeLaLicencia(base, o.empresa, o.nombre, fecha, dialogo);
        return r ? std::optional(r->traza) : std::nullopt;
    });
}

void opcionesComunes(CLI::App* o, OpcionesIncidencias& op) {
    o->add_option("--empresa", op.empresa, "Empresa");
    o->add_option("--nombre", op.nombre, "Persona");
    o->add_option("--fecha", op.fecha, "Fecha, dd/mm/aa");
}

}  // namespace

void registrarOrdenesIncidencias(CLI::App& app, Contexto& ctx) {
    auto* in = app.add_subcommand(
        "incidencias", "Muestra el cálculo paso a paso de la indemnización o de la licencia");
    in->require_subcommand(1);

    static OpcionesIncidencias i;
    auto* ip = in->add_subcommand("ipd", "Incidencias del IPD a la fecha de egreso");
    opcionesComunes(ip, i);
    ip->add_option("--actividad", i.actividad, "Actividad laboral: 1, 2 o 3")
        ->check(CLI::Range(1, 3));
    ip->add_flag("--sin-incidencias", i.sinIncidencias, "El monto no toma las incidencias");
    ip->add_option("--licencia", i.licencia, "Licencia que se suma al monto");
    ip->add_option("--vacacional", i.vacacional, "Salario vacacional que se suma al monto");
    ip->callback([&ctx] { ctx.accion = [&ctx] { return ipd(ctx, i); }; });

    static OpcionesIncidencias l;
    auto* li = in->add_subcommand("licencia", "Incidencias de la licencia a una fecha");
    opcionesComunes(li, l);
    li->callback([&ctx] { ctx.accion = [&ctx] { return licencia(ctx, l); }; });
}

}  // namespace nomira::cli
