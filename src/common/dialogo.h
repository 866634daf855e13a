#pragma once
// Las preguntas y avisos del núcleo pasan por aquí: las pantallas responden con
// cuadros de mensaje, nomira-cli con sus opciones y stderr, las pruebas con guiones.
#include <optional>
#include <exception>
#include <string>

#include "common/fallo.h"

namespace nomira::common {

enum class TipoAviso { Advertencia, Informacion, Confirmacion, Error };

// Títulos de los cuadros según su clase.
inline const char* tituloAviso(TipoAviso t) {
    switch (t) {
        case TipoAviso::Advertencia: return "Mensaje de advertencia";
        case TipoAviso::Informacion: return "Mensaje de información";
        case TipoAviso::Confirmacion: return "Mensaje de confirmación";
        case TipoAviso::Error: return "Mensaje de error";
    }
    return "";
}

class Dialogo {
public:
    virtual ~Dialogo() = default;
    // Pregunta Sí/No; devuelve true por Sí.
    virtual bool confirmar(const std::string& titulo, const std::string& texto,
                           bool porDefectoSi = true) = 0;
    // Pide un texto; nullopt si se cancela.
    virtual std::optional<std::string> pedirTexto(const std::string& titulo,
                                                  const std::string& texto,
                                                  const std::string& inicial = "") = 0;
    // El tipo decide el ícono; el título lo elige quien avisa.
    virtual void avisar(TipoAviso tipo, const std::string& titulo, const std::string& texto) = 0;
    void avisar(TipoAviso tipo, const std::string& texto) { avisar(tipo, tituloAviso(tipo), texto); }
};

// El cuadro "Error inesperado <n> en <procedimiento> del <pantalla> " de una acción que falló.
inline void avisarErrorInesperado(Dialogo& d, const std::exception& e, const std::string& procedimiento,
                                  const std::string& pantalla) {
    const auto* f = dynamic_cast<const Fallo*>(&e);
    const Fallo generico(0, e.what());
    d.avisar(TipoAviso::Error, "Nomira", textoErrorInesperado(f ? *f : generico, procedimiento, pantalla));
}

}  // namespace nomira::common
