#include "frame/ventana/dialogo_qt.h"

#include <QInputDialog>

#include "common/texto.h"
#include "frame/ventana/texto_qt.h"

namespace nomira::ventana {

bool preguntaQueDestruye(const std::string& titulo, const std::string& texto) {
    const auto t = common::mayusculas(titulo + " " + texto);
    for (const char* palabra : {"ELIMIN", "ELIM.", "BORRA", "REEMPLAZ", "SOBRESCRIB", "REPARAR",
                                "COMPACTAR", "CERRADO EL PROGRAMA"})
        if (t.find(palabra) != std::string::npos) return true;
    return false;
}

void armarCaja(QMessageBox& caja, const std::string& titulo, const std::string& texto) {
    caja.setWindowTitle(aQt(titulo));
    caja.setTextFormat(Qt::RichText);
    caja.setText("<p><b>" + aQt(titulo).toHtmlEscaped() + "</b></p><p>" +
                 aQt(texto).toHtmlEscaped().replace('\n', "<br>") + "</p>");
}

bool DialogoQt::confirmar(const std::string& titulo, const std::string& texto, bool porDefectoSi) {
    QMessageBox caja(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No, padre_);
    armarCaja(caja, titulo, texto);
    const bool si = porDefectoSi && !preguntaQueDestruye(titulo, texto);
    caja.setDefaultButton(si ? QMessageBox::Yes : QMessageBox::No);
    return caja.exec() == QMessageBox::Yes;
}

std::optional<std::string> DialogoQt::pedirTexto(const std::string& titulo,
                                                 const std::string& texto,
                                                 const std::string& inicial) {
    bool ok = false;
    const auto r = QInputDialog::getText(padre_, aQt(titulo), aQt(texto), QLineEdit::Normal,
                                         aQt(inicial), &ok);
    if (!ok) return std::nullopt;
    return r.toStdString();
}

void DialogoQt::avisar(common::TipoAviso tipo, const std::string& titulo,
                       const std::string& texto) {
    QMessageBox::Icon icono = QMessageBox::Information;
    if (tipo == common::TipoAviso::Advertencia) icono = QMessageBox::Warning;
    if (tipo == common::TipoAviso::Error) icono = QMessageBox::Critical;
    QMessageBox caja(icono, {}, {}, QMessageBox::Ok, padre_);
    armarCaja(caja, titulo, texto);
    caja.exec();
}

}  // namespace nomira::ventana
