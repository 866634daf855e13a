#include "escenarios/escenario.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "apoyo/cli.h"

namespace nomira::pruebas::escenarios {

namespace fs = std::filesystem;

namespace {

std::string leerArchivo(const fs::path& ruta) {
    std::ifstream f(ruta, std::ios::binary);
    std::stringstream s;
    s << f.rdbuf();
    return s.str();
}

void escribirArchivo(const fs::path& ruta, const std::string& texto) {
    std::ofstream(ruta, std::ios::binary | std::ios::trunc) << texto;
}

void reemplazarTodo(std::string& texto, const std::string& que, const std::string& por) {
    if (que.empty()) return;
    for (auto p = texto.find(que); p != std::string::npos; p = texto.find(que, p + por.size()))
        texto.replace(p, que.size(), por);
}

// Una orden del shell: su stdout y su estado.
SalidaCli correr(const std::string& orden) {
    FILE* p = popen(orden.c_str(), "r");
    std::string texto;
    std::array<char, 4096> b{};
    for (std::size_t n; (n = fread(b.data(), 1, b.size(), p)) > 0;) texto.append(b.data(), n);
    const int estado = pclose(p);
    return {WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado), texto};
}

}  // namespace

Escenario leerEscenario(const fs::path& carpeta) {
    Escenario e{carpeta, "15/11/2026", {}};
    if (fs::exists(carpeta / "hoy")) {
        std::ifstream f(carpeta / "hoy");
        std::getline(f, e.hoy);
    }
    std::ifstream f(carpeta / "ordenes");
    for (std::string linea; std::getline(f, linea);) {
        const auto inicio = linea.find_first_not_of(" \t");
        if (inicio == std::string::npos || linea[inicio] == '#') continue;
        e.ordenes.push_back(linea.substr(inicio));
    }
    return e;
}

std::string correrOrdenes(const Escenario& e, const std::string& destino, const fs::path& raiz) {
    // stderr va a un archivo aparte: junto con stdout en el mismo caño, el
    // orden dependería de cuándo se vacía cada uno.
    const fs::path errores = raiz / ".stderr-escenario";
    std::string salida;
    for (const auto& linea : e.ordenes) {
        const auto r = correr("cd " + citado(raiz.string()) + " && " + citado(rutaCli()) +
                              " --base " + citado(destino) + " " + linea + " 2>" +
                              citado(errores.string()) + " </dev/null");
        salida += "$ nomira-cli " + linea + "\n" + r.texto;
        if (const auto err = leerArchivo(errores); !err.empty()) salida += "--- stderr\n" + err;
        if (r.estado != 0) salida += "[estado " + std::to_string(r.estado) + "]\n";
    }
    fs::remove(errores);
    // La base primero: en SQLite su ruta está dentro de la carpeta temporal.
    reemplazarTodo(salida, destino, "<BASE>");
    reemplazarTodo(salida, raiz.string(), "<RAIZ>");
    return salida;
}

std::string diferenciaCon(const fs::path& esperado, const std::string& obtenido, bool reescribir) {
    if (reescribir) {
        escribirArchivo(esperado, obtenido);
        return "";
    }
    if (fs::exists(esperado) && leerArchivo(esperado) == obtenido) return "";
    const fs::path tmp =
        fs::temp_directory_path() /
        ("nomira-obtenido-" + std::to_string(getpid()) + "-" +
         esperado.parent_path().filename().string() + "-" + esperado.filename().string());
    escribirArchivo(tmp, obtenido);
    const auto d = correr("diff -u --label " + citado(esperado.string()) + " --label obtenido " +
                          citado(fs::exists(esperado) ? esperado.string() : "/dev/null") + " " +
                          citado(tmp.string()));
    fs::remove(tmp);
    return d.texto.empty() ? "(difieren, pero diff no mostró nada)\n" : d.texto;
}

}  // namespace nomira::pruebas::escenarios
