#pragma once
// Ingreso al programa: USUARIO y PASSWORD contra los usuarios de la configuración.
#include <QDialog>
#include <QLineEdit>

#include "frame/sesion.h"

namespace nomira::ventana {

class PantallaIngreso : public QDialog {
    Q_OBJECT
public:
    PantallaIngreso(frame::Sesion& sesion, QWidget* padre = nullptr);

signals:
    void ingreso(int categoria);

private:
    void enterEnUsuario();
    void enterEnPassword();
    void buscar();

    frame::Sesion& sesion_;
    QLineEdit* usuario_;
    QLineEdit* password_;
};

}  // namespace nomira::ventana
