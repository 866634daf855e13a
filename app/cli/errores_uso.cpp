// Los errores de la línea de órdenes en castellano. CLI11 los da en inglés:
// las clases comunes se reconocen por su tipo y el detalle se toma de la
// opción que falta o del texto que las acompaña.
#include <cctype>
#include <regex>
#include <string>
#include <vector>

#include "cli/ordenes.h"

namespace nomira::cli {

namespace {

// Las opciones obligatorias que no se dieron, en la aplicación y en la orden elegida.
std::vector<std::string> faltantes(const CLI::App& app) {
    std::vector<std::string> nombres;
    std::vector<const CLI::App*> apps = {&app};
    for (const auto* orden : app.get_subcommands()) apps.push_back(orden);
    for (const auto* a : apps)
        for (const auto* o : a->get_options())
            if (o->get_required() && o->count() == 0) nombres.push_back(o->get_name());
    return nombres;
}

std::string unir(const std::vector<std::string>& partes, const char* separador) {
    std::string r;
    for (const auto& p : partes) r += (r.empty() ? "" : separador) + p;
    return r;
}

// Un valor sin nombre de opción, como TEXTO de evaluar.
bool esValor(const std::string& nombre) {
    return !nombre.starts_with("-");
}

// "-1", "-(2*3)": una expresión con signo menos que se tomó por una opción.
bool pareceExpresion(const std::string& texto) {
    const std::size_t i = texto.find_first_not_of('-');
    return i != std::string::npos && i > 0 &&
           (std::isdigit(static_cast<unsigned char>(texto[i])) || texto[i] == '(' ||
            texto[i] == '.' || texto[i] == '[');
}

std::string faltan(const CLI::App& app, const std::string& ingles) {
    if (ingles.starts_with("A subcommand"))
        return "Falta la orden. Las órdenes se ven con: nomira-cli --help";
    auto nombres = faltantes(app);
    if (nombres.empty()) {
        std::smatch m;
        if (!std::regex_match(ingles, m, std::regex("(.+) is required"))) return "";
        nombres.push_back(m[1]);
    }
    if (nombres.size() == 1)
        return (esValor(nombres[0]) ? "Falta el valor " : "Falta la opción ") + nombres[0] + ".";
    return "Faltan " + unir(nombres, ", ") + ".";
}

std::string sobran(const std::string& ingles) {
    const auto dos = ingles.find(": ");
    if (dos == std::string::npos) return "";
    std::vector<std::string> sobrantes;
    const std::regex blancos("\\s+");
    const std::string lista = ingles.substr(dos + 2);
    for (std::sregex_token_iterator i(lista.begin(), lista.end(), blancos, -1), fin; i != fin; ++i)
        if (i->length()) sobrantes.push_back(*i);
    if (sobrantes.empty()) return "";
    const std::string& primero = sobrantes.front();
    if (primero.starts_with("-")) return "La opción " + primero + " no existe.";
    return (sobrantes.size() == 1 ? "Sobra el valor " : "Sobran los valores ") +
           unir(sobrantes, " ") + ".";
}

std::string traducir(const CLI::ParseError& e, const CLI::App& app) {
    const std::string ingles = e.what();
    std::smatch m;
    if (dynamic_cast<const CLI::RequiredError*>(&e)) return faltan(app, ingles);
    if (dynamic_cast<const CLI::ExtrasError*>(&e)) return sobran(ingles);
    if (dynamic_cast<const CLI::ConversionError*>(&e)) {
        if (std::regex_match(ingles, m, std::regex("Could not convert: (\\S+) = (.*)")))
            return "El valor " + m[2].str() + " de " + m[1].str() + " no es un número válido.";
        if (std::regex_match(ingles, m,
                             std::regex("The value (.*) is not an allowed value for (.+)")))
            return "El valor " + m[1].str() + " no es válido para " + m[2].str() + ".";
        if (std::regex_match(ingles, m, std::regex("(\\S+): .*")))
            return "La opción " + m[1].str() + " no lleva valor.";
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&e)) {
        if (std::regex_match(
                ingles, m,
                std::regex("Expected (exactly|at least) (\\d+) arguments to (.+), got (\\d+)")))
            return m[3].str() + " lleva " + (m[1] == "exactly" ? "" : "al menos ") + m[2].str() +
                   " valores y se dieron " + m[4].str() + ".";
        if (std::regex_match(
                ingles, m,
                std::regex("(\\S+): At (least|Most) (\\d+) required but received (\\d+)")))
            return m[1].str() + " lleva " + (m[2] == "least" ? "al menos " : "a lo sumo ") +
                   m[3].str() + " valores y se dieron " + m[4].str() + ".";
        if (std::regex_match(ingles, m, std::regex("(\\S+): (\\d+) required .* missing")))
            return m[1].str() + " lleva " + m[2].str() + " valores.";
        if (std::regex_match(ingles, m, std::regex("(\\S+?):? .*")))
            return "No es la cantidad de valores que lleva " + m[1].str() + ".";
    }
    if (dynamic_cast<const CLI::ExcludesError*>(&e) &&
        std::regex_match(ingles, m, std::regex("(\\S+) excludes (\\S+)")))
        return m[1].str() + " y " + m[2].str() + " no se pueden usar juntas.";
    if (dynamic_cast<const CLI::RequiresError*>(&e) &&
        std::regex_match(ingles, m, std::regex("(\\S+) requires (\\S+)")))
        return m[1].str() + " se usa junto con " + m[2].str() + ".";
    return "";
}

void ponerEnCastellano(CLI::App& app) {
    for (auto* o : app.get_options()) {
        const std::string tipo = o->get_type_name();
        if (tipo == "TEXT") o->type_name("TEXTO");
        if (tipo == "INT") o->type_name("ENTERO");
        if (o->get_group() == "Options") o->group("Opciones");
    }
    for (auto* orden : app.get_subcommands(std::function<bool(CLI::App*)>{})) {
        if (orden->get_group() == "Subcommands") orden->group("Órdenes");
        ponerEnCastellano(*orden);
    }
}

// Lo que quedó sin leer y parece una expresión con signo menos ("-1", "--1",
// "-(2)"): CLI11 lo toma por una opción, y la orden dice cómo escribirlo.
std::string sugerencia(const CLI::App& app) {
    std::vector<std::string> sobrantes = app.remaining(true);
    for (const auto* orden : app.get_subcommands())
        for (const auto& r : orden->remaining()) sobrantes.push_back(r);
    for (const auto& r : sobrantes)
        if (pareceExpresion(r))
            return "\nUna expresión que empieza con un signo menos va después de --, "
                   "por ejemplo: nomira-cli evaluar -- " +
                   r;
    return "";
}

}  // namespace

void enCastellano(CLI::App& app) {
    auto f = app.get_formatter();
    for (const auto& [ingles, castellano] : {std::pair{"Usage", "Uso"},
                                             {"OPTIONS", "OPCIONES"},
                                             {"Positionals", "Valores"},
                                             {"SUBCOMMAND", "ORDEN"},
                                             {"REQUIRED", "OBLIGATORIA"},
                                             {"Needs", "Necesita"},
                                             {"Excludes", "Excluye"}})
        f->label(ingles, castellano);
    ponerEnCastellano(app);
}

std::string mensajeDeUso(const CLI::ParseError& e, const CLI::App& app) {
    std::string mensaje = traducir(e, app);
    // Lo que no se reconoce se muestra igual, pero dicho como un error de la orden.
    if (mensaje.empty()) mensaje = std::string("La orden no es válida: ") + e.what();
    mensaje += sugerencia(app);
    if (mensaje.find("--help") == std::string::npos)
        mensaje += "\nLa ayuda de cada orden se ve con: nomira-cli ORDEN --help";
    return mensaje;
}

}  // namespace nomira::cli
