// evaluar y formula: probar una expresión, o la fórmula de un concepto para una
// persona y un mes, sin pasar por la pantalla de liquidación.
#include <iostream>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>

#include "cli/ordenes.h"
#include "common/numeros.h"
#include "engine/formulas/evaluador.h"
#include "engine/formulas/formula.h"
#include "master/empresas.h"

namespace nomira::cli {

namespace {

using engine::ContextoFormula;

struct Campos {
    std::map<std::string, double*> numeros;
    std::map<std::string, common::Dinero*> importes;
};

// Los campos del contexto que se pueden dar con --dato; psnis, pfocer, cant y
// total los calcula la fórmula.
Campos campos(ContextoFormula& c) {
    return {{{"cantarchivo", &c.cantarchivo},
             {"sueldo", &c.sueldo},
             {"sueldo2", &c.sueldo2},
             {"sueldo3", &c.sueldo3},
             {"htrab", &c.htrab},
             {"cantbfc", &c.cantbfc}},
            {{"importearchivo", &c.importearchivo},
             {"montograv", &c.montograv},
             {"montogravag", &c.montogravag},
             {"montosv", &c.montosv},
             {"totalhab", &c.totalhab},
             {"liquidonetograv", &c.liquidonetograv},
             {"liquidoneto", &c.liquidoneto},
             {"montogravalim", &c.montogravalim}}};
}

using Datos = std::vector<std::pair<std::string, double>>;

// "montograv=1000" -> (montograv, 1000); lanza invalid_argument con el mensaje.
Datos leerDatos(const std::vector<std::string>& textos) {
    ContextoFormula muestra;
    const auto conocidos = campos(muestra);
    Datos datos;
    for (const auto& d : textos) {
        const auto igual = d.find('=');
        const std::string nombre = d.substr(0, igual);
        if (!conocidos.numeros.contains(nombre) && !conocidos.importes.contains(nombre)) {
            std::string lista;
            for (const auto& [n, _] : conocidos.numeros) lista += " " + n;
            for (const auto& [n, _] : conocidos.importes) lista += " " + n;
            throw std::invalid_argument("El dato " + nombre + " no existe. Los datos son:" + lista +
                                        ".");
        }
        const std::string valor = igual == std::string::npos ? "" : d.substr(igual + 1);
        if (!common::esNumerico(valor))
            throw std::invalid_argument("El dato " + nombre + " debe ser un número: " + d + ".");
        datos.emplace_back(nombre, common::textoANumero(valor));
    }
    return datos;
}

void ponerDatos(ContextoFormula& c, const Datos& datos) {
    auto destino = campos(c);
    for (const auto& [nombre, v] : datos) {
        if (auto it = destino.numeros.find(nombre); it != destino.numeros.end())
            *it->second = v;
        else
            *destino.importes.at(nombre) = common::Dinero::desdeDouble(v);
    }
}

struct OpcionesOrden {
    std::string empresa, nombre, mes, texto;
    std::optional<std::string> cant;
    std::vector<std::string> datos;
};

int formula(const Contexto& ctx, const OpcionesOrden& o) {
    const auto mes = common::Mes::desdeTexto(o.mes);
    if (!mes) {
        std::cerr << "El mes debe tener el formato MM/aa.\n";
        return 1;
    }
    Datos datos;
    try {
        datos = leerDatos(o.datos);
    } catch (const std::invalid_argument& e) {
        std::cerr << e.what() << '\n';
        return 1;
    }

    auto base = ctx.abrir();
    if (!empresaAceptada(*base, o.empresa)) return 1;
    master::LectorVariables variables(*base);
    ContextoFormula c;
    c.variables = &variables;
    c.empresa = o.empresa;
    c.nombre = o.nombre;
    c.periodo = *mes;
    c.textoCant = o.cant.value_or("");
    c.formula = o.texto;
    const auto persona = master::leerPersona(*base, o.empresa, o.nombre);
    if (persona) {
        c.persona = &*persona;
        engine::cargarPersona(c, *persona);
    }
    if (const auto e = master::leerEmpresa(*base, o.empresa))
        c.tipoaporte = master::tipoaporteDe(*base, *e);
    ponerDatos(c, datos);  // después de la persona: un --dato la corrige

    auto dialogo = ctx.dialogo();
    try {
        engine::CalculoFormula(c, dialogo);
    } catch (const common::Fallo& f) {
        std::cerr << common::textoErrorInesperado(f, "CalculoFormula", "Form42") << '\n';
        return 2;
    }
    std::cout << "cant=" << common::numeroATexto(c.cant)
              << " total=" << common::numeroATexto(c.total) << '\n';
    return 0;
}

}  // namespace

void registrarOrdenesFormula(CLI::App& app, Contexto& ctx) {
    auto* ev = app.add_subcommand("evaluar", "Evalúa una expresión sin corchetes");
    static std::string expresion;
    ev->add_option("TEXTO", expresion,
                   "La expresión. Si empieza con un signo menos, escriba -- antes: "
                   "nomira-cli evaluar -- -1+2")
        ->required();
    ev->callback([&ctx] {
        ctx.accion = [] {
            std::cout << common::numeroATexto(engine::evaluarExpresion(expresion)) << '\n';
            return 0;
        };
    });

    auto* fo = app.add_subcommand(
        "formula", "Calcula una fórmula para una persona y un mes, como la liquidación mensual");
    static OpcionesOrden o;
    fo->add_option("--empresa", o.empresa, "Empresa")->required();
    fo->add_option("--nombre", o.nombre, "Persona, \"apellidos, nombres\"")->required();
    fo->add_option("--mes", o.mes, "Mes que se liquida, MM/aa")->required();
    fo->add_option("--cant", o.cant, "Cantidad tecleada; sin ella, la casilla vacía");
    fo->add_option("--dato", o.datos, "Campo del cálculo, NOMBRE=VALOR (montograv, totalhab...)");
    fo->add_option("TEXTO", o.texto, "La fórmula, con sus corchetes")->required();
    fo->callback([&ctx] { ctx.accion = [&ctx] { return formula(ctx, o); }; });
}

}  // namespace nomira::cli
