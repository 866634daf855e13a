#include "frame/dialogo_consola.h"

#include <ostream>

namespace nomira::frame {

bool DialogoConsola::confirmar(const std::string& titulo, const std::string& texto, bool porDefectoSi) {
    const bool si = respuesta_.value_or(porDefectoSi);
    salida_ << titulo << ": " << texto << ' ' << (si ? "Sí" : "No") << '\n';
    return si;
}

std::optional<std::string> DialogoConsola::pedirTexto(const std::string& titulo, const std::string& texto,
                                                      const std::string& inicial) {
    std::string respuesta = inicial;
    if (!textos_.empty()) {
        respuesta = std::move(textos_.front());
        textos_.pop_front();
    }
    salida_ << titulo << ": " << texto << ' ' << respuesta << '\n';
    return respuesta;
}

void DialogoConsola::avisar(common::TipoAviso tipo, const std::string&, const std::string& texto) {
    if (tipo == common::TipoAviso::Advertencia || tipo == common::TipoAviso::Error) rechazada_ = true;
    salida_ << texto << '\n';
}

}  // namespace nomira::frame
