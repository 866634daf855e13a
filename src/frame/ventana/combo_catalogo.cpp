#include "frame/ventana/combo_catalogo.h"

#include <QKeyEvent>

#include "frame/ventana/registro_pantallas.h"

namespace nomira::ventana {

ComboCatalogo::ComboCatalogo(frame::Sesion& sesion, std::string formulario, Cargador cargador,
                             QWidget* padre)
    : QComboBox(padre), sesion_(sesion), formulario_(std::move(formulario)), cargador_(std::move(cargador)) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    if (!formulario_.empty()) setToolTip("* - Traer Tabla");
    recargar();
}

void ComboCatalogo::cambiarCargador(Cargador cargador) {
    cargador_ = std::move(cargador);
    recargar();
}

void ComboCatalogo::recargar() {
    const auto escrito = currentText();
    clear();
    addItem("");
    if (cargador_)
        for (const auto& v : cargador_()) addItem(QString::fromStdString(v));
    setCurrentText(escrito);
}

void ComboCatalogo::keyPressEvent(QKeyEvent* e) {
    if (e->text() != "*" || formulario_.empty()) return QComboBox::keyPressEvent(e);
    const auto& registro = registroPantallas();
    auto it = registro.find(formulario_);
    if (it == registro.end()) return;
    QWidget* catalogo = it->second(sesion_, window());
    catalogo->setAttribute(Qt::WA_DeleteOnClose);
    connect(catalogo, &QObject::destroyed, this, &ComboCatalogo::recargar);
    catalogo->show();
}

}  // namespace nomira::ventana
