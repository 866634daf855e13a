#pragma once
// El Dialogo de nomira-cli: las preguntas se responden con --si o --no (o con su
// respuesta por defecto) y los mensajes van a stderr tal como los muestran las pantallas.
#include <deque>
#include <iosfwd>
#include <optional>

#include "common/dialogo.h"

namespace nomira::frame {

class DialogoConsola : public common::Dialogo {
public:
    DialogoConsola(std::ostream& salida, std::optional<bool> respuesta)
        : salida_(salida), respuesta_(respuesta) {}

    bool confirmar(const std::string& titulo, const std::string& texto, bool porDefectoSi) override;
    std::optional<std::string> pedirTexto(const std::string& titulo, const std::string& texto,
                                          const std::string& inicial) override;
    void avisar(common::TipoAviso tipo, const std::string& titulo, const std::string& texto) override;
    using common::Dialogo::avisar;

    // Respuestas a los próximos pedidos de texto, en orden (el período de una
    // licencia, --periodo); sin ellas se responde lo propuesto.
    void responderTexto(std::string texto) { textos_.push_back(std::move(texto)); }

    // Hubo un aviso de advertencia o de error: la orden fue rechazada.
    bool rechazada() const { return rechazada_; }

private:
    std::ostream& salida_;
    std::optional<bool> respuesta_;
    bool rechazada_ = false;
    std::deque<std::string> textos_;
};

}  // namespace nomira::frame
