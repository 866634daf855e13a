#include "frame/ventana/dialogo_qt.h"

#include <QInputDialog>
#include <QMessageBox>


namespace nomira::ventana {

namespace {
QString q(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

bool DialogoQt::confirmar(const std::string& titulo, const std::string& texto, bool porDefectoSi) {
    const auto r = QMessageBox::question(padre_, q(titulo), q(texto), QMessageBox::Yes | QMessageBox::No,
                                         porDefectoSi ? QMessageBox::Yes : QMessageBox::No);
    return r == QMessageBox::Yes;
}

std::optional<std::string> DialogoQt::pedirTexto(const std::string& titulo, const std::string& texto,
                                                 const std::string& inicial) {
    bool ok = false;
    const auto r = QInputDialog::getText(padre_, q(titulo), q(texto), QLineEdit::Normal, q(inicial), &ok);
    if (!ok) return std::nullopt;
    return r.toStdString();
}

void DialogoQt::avisar(common::TipoAviso tipo, const std::string& titulo, const std::string& texto) {
    QMessageBox::Icon icono = QMessageBox::Information;
    if (tipo == common::TipoAviso::Advertencia) icono = QMessageBox::Warning;
    if (tipo == common::TipoAviso::Error) icono = QMessageBox::Critical;
    QMessageBox caja(icono, q(titulo), q(texto), QMessageBox::Ok, padre_);
    caja.exec();
}

}  // namespace nomira::ventana
