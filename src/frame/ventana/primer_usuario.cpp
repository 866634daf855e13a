#include "frame/ventana/primer_usuario.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "frame/ingreso.h"
#include "frame/usuarios.h"

namespace nomira::ventana {

DialogoPrimerUsuario::DialogoPrimerUsuario(common::Dialogo& dialogo, QWidget* padre)
    : QDialog(padre),
      dialogo_(dialogo),
      usuario_(new QLineEdit),
      password_(new QLineEdit),
      repetido_(new QLineEdit) {
    setObjectName("PrimerUsuario");
    setWindowTitle("Primer administrador");
    usuario_->setObjectName("usuario");
    password_->setObjectName("password");
    repetido_->setObjectName("repetido");
    password_->setEchoMode(QLineEdit::Password);
    repetido_->setEchoMode(QLineEdit::Password);
    auto* aviso = new QLabel(
        "Se creó una base de datos nueva. Indique el usuario administrador (categoría 1).\n"
        "Para poder ingresar, escriba el usuario y el password todo en mayúsculas o todo en "
        "minúsculas.");
    aviso->setWordWrap(true);
    auto* campos = new QFormLayout;
    campos->addRow("USUARIO", usuario_);
    campos->addRow("PASSWORD", password_);
    campos->addRow("Repita el PASSWORD", repetido_);
    auto* botones = new QDialogButtonBox(QDialogButtonBox::Ok);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(aviso);
    todo->addLayout(campos);
    todo->addWidget(botones);
    connect(botones, &QDialogButtonBox::accepted, this, &DialogoPrimerUsuario::aceptar);
    // Enter pasa al campo siguiente, y en el último acepta.
    botones->button(QDialogButtonBox::Ok)->setAutoDefault(false);
    connect(usuario_, &QLineEdit::returnPressed, password_, [this] { password_->setFocus(); });
    connect(password_, &QLineEdit::returnPressed, repetido_, [this] { repetido_->setFocus(); });
    connect(repetido_, &QLineEdit::returnPressed, this, &DialogoPrimerUsuario::aceptar);
}

void DialogoPrimerUsuario::aceptar() {
    using common::TipoAviso;
    if (usuario().empty() || password().empty())
        return dialogo_.avisar(TipoAviso::Advertencia, frame::kFaltanCampos);
    if (password_->text() != repetido_->text())
        return dialogo_.avisar(TipoAviso::Advertencia, "Los dos PASSWORD no coinciden.");
    if (const auto rechazo = frame::rechazoUsuario(usuario(), password())) {
        dialogo_.avisar(TipoAviso::Advertencia, *rechazo);
        (*rechazo == frame::kUsuarioMezclado ? usuario_ : password_)->setFocus();
        return;
    }
    accept();
}

}  // namespace nomira::ventana
