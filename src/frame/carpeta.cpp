#include "frame/carpeta.h"

#include <cstdlib>
#include <fstream>

namespace nomira::frame {

namespace fs = std::filesystem;

fs::path raiz() {
    if (const char* r = std::getenv("NOMIRA_RAIZ"); r && *r) return r;
    if (const char* h = std::getenv("HOME"); h && *h) return h;
    return fs::current_path();
}

fs::path rutaSoftware(const std::string& nombre) { return raiz() / "Software" / nombre; }

fs::path rutaNomira(const std::string& nombre) { return raiz() / "Software" / "Nomira" / nombre; }

std::optional<std::string> leerLinea(const std::string& archivo) {
    std::ifstream f(rutaNomira(archivo));
    if (!f) return std::nullopt;
    std::string linea;
    std::getline(f, linea);
    while (!linea.empty() && (linea.back() == '\r' || linea.back() == '\n')) linea.pop_back();
    return linea;
}

void escribirLinea(const std::string& archivo, const std::string& linea) {
    fs::create_directories(rutaNomira());
    std::ofstream f(rutaNomira(archivo), std::ios::trunc);
    f << linea << '\n';
}

fs::path carpetaDatos() {
    if (const char* d = std::getenv("NOMIRA_DATOS"); d && *d) return d;
    return NOMIRA_DATOS;
}

}  // namespace nomira::frame
