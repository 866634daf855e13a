#pragma once
// Primer arranque: pide el primer administrador (categoría 1) de la base nueva.
#include <QDialog>
#include <QLineEdit>

#include "common/dialogo.h"

namespace nomira::ventana {

class DialogoPrimerUsuario : public QDialog {
    Q_OBJECT
public:
    DialogoPrimerUsuario(common::Dialogo& dialogo, QWidget* padre = nullptr);
    std::string usuario() const { return usuario_->text().trimmed().toStdString(); }
    std::string password() const { return password_->text().toStdString(); }

private:
    void aceptar();
    common::Dialogo& dialogo_;
    QLineEdit *usuario_, *password_, *repetido_;
};

}  // namespace nomira::ventana
