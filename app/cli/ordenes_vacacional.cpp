// vacacional: el salario vacacional del mes de una persona. Con --codigo, una
// fila como en su pantalla (Enter en la cantidad y luego en el total) o su
// baja con --borrar; sin --codigo, las filas del mes y sus cifras.
#include <iostream>

#include "cli/ordenes.h"
#include "common/numeros.h"
#include "engine/calculos/explicacion.h"
#include "engine/vacacional/desglose_vacacional.h"
#include "engine/vacacional/renglon_vacacional.h"

namespace nomira::cli {

namespace {

struct OpcionesVacacional {
    std::string empresa, nombre, mes;
    std::optional<std::string> codigo, cant, total, periodo;
    bool borrar = false, explicar = false;
};

// "dd/mm/aa-dd/mm/aa" en sus dos fechas, como las casillas Desde y Hasta.
std::optional<std::pair<std::string, std::string>> leerPeriodo(const std::string& p) {
    const auto guion = p.find('-');
    if (guion == std::string::npos) return std::nullopt;
    return std::make_pair(p.substr(0, guion), p.substr(guion + 1));
}

void mostrarFilas(const engine::MesPersona& mp, bool explicar) {
    for (const auto& f : engine::filasVacacional(mp)) {
        std::cout << f.codigo << " | " << f.concepto << " | " << common::numeroATexto(f.cant)
                  << " | " << engine::pesos(f.total);
        if (!f.desdelic.empty() || !f.hastalic.empty()) {
            const auto d = common::Fecha::desdeTexto(f.desdelic);
            const auto h = common::Fecha::desdeTexto(f.hastalic);
            std::cout << " | " << (d ? d->ddmmyy() : "") << "-" << (h ? h->ddmmyy() : "");
        }
        std::cout << '\n';
        if (explicar && !f.explicacion.empty()) std::cout << "    " << f.explicacion << '\n';
    }
}

void mostrarDesglose(const engine::DesgloseVacacional& d) {
    std::cout << "T.Haberes: " << engine::pesos(d.haberes) << '\n'
              << "M.Irpf: " << engine::pesos(d.montoirpf) << '\n'
              << "Total Descuentos: " << engine::pesos(d.descuentos) << '\n'
              << "M.Dedu.: " << engine::pesos(d.deducciones) << '\n'
              << "Líquido a Cobrar: " << engine::pesos(d.liquido) << '\n';
}

// Las casillas como quedan después del Enter en la cantidad; --total y
// --periodo las reemplazan como si se tecleara en ellas.
std::optional<engine::CasillasVacacional> casillas(const OpcionesVacacional& o,
                                                   const engine::VacacionalBuscado& b) {
    engine::CasillasVacacional c;
    c.cant = common::numeroATexto(b.calculo.cant);
    c.total = o.total.value_or(common::numeroATexto(b.calculo.total.aDouble()));
    c.desdelic = b.desdelic;
    c.hastalic = b.hastalic;
    if (o.periodo) {
        const auto p = leerPeriodo(*o.periodo);
        if (!p) return std::nullopt;
        c.desdelic = p->first;
        c.hastalic = p->second;
    }
    return c;
}

int fila(store::Conexion& base, frame::DialogoConsola& dialogo, const OpcionesVacacional& o,
         engine::VacacionalBuscado& b, engine::ContextoFormula& ctx) {
    if (o.borrar) {
        const auto m = engine::eliminarVacacional(base, b, ctx, dialogo);
        return m && !m->empty() ? 1 : 0;
    }
    engine::calcularVacacional(b, ctx, o.cant.value_or(b.textoCant), dialogo);
    const auto c = casillas(o, b);
    if (!c) {
        std::cerr << "El período debe tener el formato dd/mm/aa-dd/mm/aa.\n";
        return 1;
    }
    if (engine::guardarVacacional(base, b, ctx, *c, dialogo)) return 1;
    return 0;
}

int vacacional(const Contexto& ctx, const OpcionesVacacional& o) {
    const auto mes = common::Mes::desdeTexto(o.mes);
    if (!mes) {
        std::cerr << "El mes debe tener el formato MM/aa.\n";
        return 1;
    }
    for (const auto* numero : {&o.cant, &o.total})
        if (*numero && !numero->value().empty() && !leerNumero(numero->value())) {
            std::cerr << "--cant y --total deben ser números escritos con \".\": \""
                      << numero->value() << "\" no lo es.\n";
            return 1;
        }
    auto base = ctx.abrir();
    auto dialogo = ctx.dialogo();
    engine::ContextoFormula c;
    const char* procedimiento = o.borrar ? "Eliminar_Click" : "Buscar_Click";
    try {
        if (!o.codigo)
            return mostrarVacacional(*base, dialogo, o.empresa, o.nombre, *mes, o.explicar);
        auto r = engine::buscarVacacional(*base, {o.empresa, o.nombre, mes, *o.codigo}, c, dialogo);
        if (!r.buscado) return 1;
        procedimiento = o.borrar ? "Eliminar_Click" : "Text5_KeyPress";
        if (const int estado = fila(*base, dialogo, o, *r.buscado, c)) return estado;
        mostrarFilas(r.buscado->mp, o.explicar);
        procedimiento = "Desglose";
        mostrarDesglose(engine::desgloseVacacional(r.buscado->mp, c, dialogo));
        return 0;
    } catch (const common::Fallo& f) {
        std::cerr << common::textoErrorInesperado(f, procedimiento, "Form44") << '\n';
        return 2;
    }
}

}  // namespace

int mostrarVacacional(store::Conexion& base, common::Dialogo& dialogo, const std::string& empresa,
                      const std::string& nombre, const common::Mes& mes, bool explicar) {
    engine::ContextoFormula c;
    auto mp = engine::leerMesDeLaPersona(base, empresa, nombre, mes, c, dialogo);
    if (!mp) return 1;
    mostrarFilas(*mp, explicar);
    mostrarDesglose(engine::desgloseVacacional(*mp, c, dialogo));
    return 0;
}

void registrarOrdenesVacacional(CLI::App& app, Contexto& ctx) {
    static OpcionesVacacional v;
    auto* va = app.add_subcommand(
        "vacacional",
        "El salario vacacional del mes de una persona: una fila por código, su baja, o las "
        "filas y sus cifras");
    va->add_option("--empresa", v.empresa, "Empresa")->required();
    va->add_option("--nombre", v.nombre, "Persona, \"apellidos, nombres\"")->required();
    va->add_option("--mes", v.mes, "Mes, MM/aa")->required();
    va->add_option("--codigo", v.codigo, "Código del concepto; sin él, las filas del mes");
    va->add_option("--cant", v.cant, "Cantidad tecleada; sin ella, la de la fila guardada");
    va->add_option("--total", v.total, "Total tecleado; reemplaza el calculado");
    va->add_option("--periodo", v.periodo, "Período de la licencia, dd/mm/aa-dd/mm/aa");
    va->add_flag("--borrar", v.borrar, "Borra la fila del código (pregunta; --si o --no)");
    va->add_flag("--explicar", v.explicar, "Muestra cómo se llegó a cada importe");
    va->fallthrough();
    va->callback([&ctx] { ctx.accion = [&ctx] { return vacacional(ctx, v); }; });
}

}  // namespace nomira::cli
