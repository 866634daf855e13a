#pragma once
// Correr nomira-cli desde una prueba, con stderr junto a stdout.
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace nomira::pruebas {

struct SalidaCli {
    int estado;
    std::string texto;
};

// $NOMIRA_CLI, o el nomira-cli que se compiló junto con las pruebas.
inline std::string rutaCli() {
    if (const char* r = std::getenv("NOMIRA_CLI"); r && *r) return r;
    return NOMIRA_CLI_RUTA;
}

inline SalidaCli cli(const std::string& argumentos) {
    const std::string orden = rutaCli() + " " + argumentos + " 2>&1 </dev/null";
    FILE* p = popen(orden.c_str(), "r");
    std::string texto;
    std::array<char, 512> b{};
    while (fgets(b.data(), b.size(), p)) texto += b.data();
    const int estado = pclose(p);
    return {WEXITSTATUS(estado), texto};
}

}  // namespace nomira::pruebas
