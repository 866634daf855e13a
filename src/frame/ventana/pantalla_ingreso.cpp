#include "frame/ventana/pantalla_ingreso.h"

#include <QFormLayout>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "frame/ingreso.h"
#include "frame/ventana/ventana_ayuda.h"

namespace nomira::ventana {

using common::TipoAviso;

PantallaIngreso::PantallaIngreso(frame::Sesion& sesion, QWidget* padre)
    : QDialog(padre), sesion_(sesion), usuario_(new QLineEdit), password_(new QLineEdit) {
    setObjectName("Form14");
    setWindowTitle("Ingreso");
    usuario_->setObjectName("usuario");
    password_->setObjectName("password");
    password_->setEchoMode(QLineEdit::Password);

    auto* campos = new QFormLayout;
    campos->addRow("USUARIO", usuario_);
    campos->addRow("PASSWORD", password_);
    auto* entrar = new QPushButton("Entrar");
    entrar->setObjectName("buscar");
    entrar->setAutoDefault(false);
    auto* cancelar = new QPushButton("Cancelar");
    cancelar->setAutoDefault(false);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(entrar);
    botones->addWidget(cancelar);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(campos);
    todo->addLayout(botones);

    connect(usuario_, &QLineEdit::returnPressed, this, &PantallaIngreso::enterEnUsuario);
    connect(password_, &QLineEdit::returnPressed, this, &PantallaIngreso::enterEnPassword);
    connect(entrar, &QPushButton::clicked, this, &PantallaIngreso::enterEnPassword);
    connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
    auto* f1 = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(f1, &QShortcut::activated, this, [this] { abrirAyuda(this, objectName()); });
}

void PantallaIngreso::enterEnUsuario() {
    if (usuario_->text().isEmpty()) {
        sesion_.dialogo->avisar(TipoAviso::Advertencia, frame::kFaltaUsuario);
        return;
    }
    password_->setFocus();
}

void PantallaIngreso::enterEnPassword() {
    if (usuario_->text().isEmpty() || password_->text().isEmpty()) {
        sesion_.dialogo->avisar(TipoAviso::Advertencia, frame::kFaltanCampos);
        return;
    }
    buscar();
}

void PantallaIngreso::buscar() {
    try {
        const auto categoria = frame::ingresar(*sesion_.base, usuario_->text().toStdString(),
                                               password_->text().toStdString());
        if (!categoria) {
            // Sin límite de intentos: la pantalla queda para probar otra vez.
            sesion_.dialogo->avisar(TipoAviso::Advertencia, frame::kIngresoIncorrecto);
            password_->selectAll();
            password_->setFocus();
            return;
        }
        sesion_.dialogo->avisar(TipoAviso::Informacion, "Mensaje de advertencia",
                                frame::kIngresoCorrecto);
        sesion_.categoria = *categoria;
        emit ingreso(*categoria);
        accept();
    } catch (const std::exception& e) {
        common::avisarErrorInesperado(*sesion_.dialogo, e, "Buscar_Click", "Form14");
    }
}

}  // namespace nomira::ventana
