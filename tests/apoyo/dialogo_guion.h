#pragma once
// Un Dialogo para las pruebas: responde con un guion y anota todo lo que se le dijo.
#include <deque>
#include <string>
#include <vector>

#include "common/dialogo.h"

namespace nomira::pruebas {

class DialogoGuion : public common::Dialogo {
public:
    struct Mensaje {
        common::TipoAviso tipo;
        std::string titulo, texto;
    };

    // Respuestas a las próximas preguntas, en orden; sin guion se responde Sí.
    std::deque<bool> respuestas;
    std::vector<std::string> preguntas;  // "título|texto"
    std::vector<Mensaje> mensajes;

    bool confirmar(const std::string& titulo, const std::string& texto, bool) override {
        preguntas.push_back(titulo + "|" + texto);
        if (respuestas.empty()) return true;
        const bool r = respuestas.front();
        respuestas.pop_front();
        return r;
    }
    std::optional<std::string> pedirTexto(const std::string& titulo, const std::string& texto,
                                          const std::string& inicial) override {
        preguntas.push_back(titulo + "|" + texto);
        return inicial;
    }
    void avisar(common::TipoAviso tipo, const std::string& titulo, const std::string& texto) override {
        mensajes.push_back({tipo, titulo, texto});
    }
    using common::Dialogo::avisar;

    std::string ultimoMensaje() const { return mensajes.empty() ? "" : mensajes.back().texto; }
};

}  // namespace nomira::pruebas
