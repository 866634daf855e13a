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

// Una orden del shell, con stderr junto a stdout.
inline SalidaCli ejecutar(const std::string& orden) {
    const std::string completa = "{ " + orden + "\n} 2>&1 </dev/null";
    FILE* p = popen(completa.c_str(), "r");
    std::string texto;
    std::array<char, 512> b{};
    while (fgets(b.data(), b.size(), p)) texto += b.data();
    const int estado = pclose(p);
    return {WEXITSTATUS(estado), texto};
}

// Texto entre comillas simples para el shell: una cadena de PostgreSQL o un
// nombre pueden traerlas.
inline std::string citado(const std::string& s) {
    std::string r = "'";
    for (char ch : s) r += ch == '\'' ? std::string("'\\''") : std::string(1, ch);
    return r + "'";
}

inline SalidaCli cli(const std::string& argumentos) {
    return ejecutar(rutaCli() + " " + argumentos);
}

}  // namespace nomira::pruebas
