#pragma once
// El Dialogo de las pantallas: cuadros de mensaje con el ícono de cada clase de aviso.
// El título va también dentro del cuadro, en negrita sobre el texto: el gestor de
// ventanas corta los títulos largos, y en muchas preguntas lo importante está ahí.
#include <QMessageBox>
#include <QWidget>

#include "common/dialogo.h"

namespace nomira::ventana {

// ¿La pregunta borra o reescribe algo? Entonces responder con Enter no debe hacerlo.
bool preguntaQueDestruye(const std::string& titulo, const std::string& texto);

// El cuadro armado, sin mostrar: título en la barra y repetido en negrita, el texto
// debajo. Las preguntas llevan Sí y No.
void armarCaja(QMessageBox& caja, const std::string& titulo, const std::string& texto);

class DialogoQt : public common::Dialogo {
  public:
    explicit DialogoQt(QWidget* padre) : padre_(padre) {}
    bool confirmar(const std::string& titulo, const std::string& texto, bool porDefectoSi) override;
    std::optional<std::string> pedirTexto(const std::string& titulo, const std::string& texto,
                                          const std::string& inicial) override;
    void avisar(common::TipoAviso tipo, const std::string& titulo,
                const std::string& texto) override;
    using common::Dialogo::avisar;

  private:
    QWidget* padre_;
};

}  // namespace nomira::ventana
