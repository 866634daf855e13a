#include "frame/ventana/campo_fecha.h"

#include <QKeyEvent>

#include "common/fechas.h"

namespace nomira::ventana {

CampoFecha::CampoFecha(QWidget* padre, FormaFecha forma) : QLineEdit(padre), forma_(forma) {
    const bool mes = forma_ == FormaFecha::Mes;
    setMaxLength(mes ? 5 : 8);
    setPlaceholderText(mes ? "MM/aa" : "dd/mm/aa");
    setMaximumWidth(fontMetrics().horizontalAdvance("00/00/0000") + 16);
}

bool CampoFecha::formatoValido(bool vacioValido) const {
    const auto t = text();
    if (t.isEmpty()) return vacioValido;
    if (forma_ == FormaFecha::Mes) return t.size() == 5 && t[2] == '/';
    return t.size() == 8 && t[2] == '/' && t[5] == '/';
}

bool CampoFecha::esValida() const {
    if (text().isEmpty()) return true;
    if (!formatoValido()) return false;
    const auto t = text().toStdString();
    return forma_ == FormaFecha::Mes ? common::Mes::desdeTexto(t).has_value()
                                     : common::Fecha::desdeTexto(t).has_value();
}

void CampoFecha::keyPressEvent(QKeyEvent* e) {
    // La barra ya puesta por el campo: la que teclea el liquidador sobra.
    if (e->text() == "/" && !hasSelectedText() && cursorPosition() > 0 &&
        text()[cursorPosition() - 1] == '/') {
        e->accept();
        return;
    }
    QLineEdit::keyPressEvent(e);
    // Al escribir al final, la barra llega sola tras el día y tras el mes.
    if (!e->text().isEmpty() && e->text()[0].isDigit() && cursorPosition() == text().size() &&
        (text().size() == 2 || (text().size() == 5 && forma_ == FormaFecha::Dia)))
        insert("/");
}

}  // namespace nomira::ventana
