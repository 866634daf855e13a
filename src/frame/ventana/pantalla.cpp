#include "frame/ventana/pantalla.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

namespace nomira::ventana {

Pantalla::Pantalla(frame::Sesion& sesion, const QString& formulario, const QString& titulo,
                   QWidget* padre)
    : QWidget(padre, Qt::Window), sesion_(sesion) {
    setObjectName(formulario);
    setWindowTitle(titulo);
    // Enter en un campo pasa al siguiente, como en todas las pantallas del sistema.
    qApp->installEventFilter(this);
}

void Pantalla::alPulsarEnter(QWidget* campo, std::function<bool()> validar) {
    validaciones_[campo] = std::move(validar);
}

bool Pantalla::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) return false;
    auto* tecla = static_cast<QKeyEvent*>(evento);
    if (tecla->key() != Qt::Key_Return && tecla->key() != Qt::Key_Enter) return false;
    auto* campo = qobject_cast<QWidget*>(objeto);
    if (!campo || campo->window() != this) return false;
    // Un combo editable entrega las teclas a su línea de edición.
    if (auto* linea = qobject_cast<QLineEdit*>(campo); linea && qobject_cast<QComboBox*>(linea->parent()))
        campo = static_cast<QWidget*>(linea->parent());
    if (qobject_cast<QAbstractButton*>(campo)) return false;
    if (!qobject_cast<QLineEdit*>(campo) && !qobject_cast<QComboBox*>(campo)) return false;
    if (auto it = validaciones_.find(campo); it != validaciones_.end()) {
        bool sigue = false;
        intentar("KeyPress", [&] { sigue = it->second(); });
        if (!sigue) return true;
    }
    focusNextChild();  // relativo al campo con el foco
    return true;
}

void Pantalla::advertir(const std::string& texto) { dialogo().avisar(common::TipoAviso::Advertencia, texto); }

void Pantalla::informar(const std::string& texto) { dialogo().avisar(common::TipoAviso::Informacion, texto); }

bool Pantalla::confirmar(const std::string& titulo, bool porDefectoSi) {
    return dialogo().confirmar(titulo, "¿Desea continuar?", porDefectoSi);
}

void Pantalla::intentar(const char* procedimiento, const std::function<void()>& accion) {
    try {
        accion();
    } catch (const std::exception& e) {
        common::avisarErrorInesperado(dialogo(), e, procedimiento, objectName().toStdString());
    }
}

void Pantalla::tecla(const QKeySequence& secuencia, std::function<void()> accion) {
    auto* atajo = new QShortcut(secuencia, this);
    atajo->setContext(Qt::WindowShortcut);
    connect(atajo, &QShortcut::activated, this, std::move(accion));
}

}  // namespace nomira::ventana
