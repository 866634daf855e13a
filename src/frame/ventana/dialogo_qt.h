#pragma once
// El Dialogo de las pantallas: cuadros de mensaje con el ícono de cada clase de aviso.
#include <QWidget>

#include "common/dialogo.h"

namespace nomira::ventana {

class DialogoQt : public common::Dialogo {
public:
    explicit DialogoQt(QWidget* padre) : padre_(padre) {}
    bool confirmar(const std::string& titulo, const std::string& texto, bool porDefectoSi) override;
    std::optional<std::string> pedirTexto(const std::string& titulo, const std::string& texto,
                                          const std::string& inicial) override;
    void avisar(common::TipoAviso tipo, const std::string& titulo, const std::string& texto) override;
    using common::Dialogo::avisar;

private:
    QWidget* padre_;
};

}  // namespace nomira::ventana
