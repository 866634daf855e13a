#include "frame/ventana/revision_campos.h"

#include <QLabel>
#include <QStackedWidget>
#include <QVariant>

#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/campo_numero.h"

namespace nomira::ventana {

QString rotuloDe(const QWidget* campo) {
    if (const auto r = campo->property("rotulo"); r.isValid()) return r.toString();
    for (const auto* etiqueta : campo->window()->findChildren<QLabel*>())
        if (etiqueta->buddy() == campo) {
            auto t = etiqueta->text();
            t.remove('&');
            return t.trimmed();
        }
    return campo->objectName();
}

std::string problemaDe(const QWidget* campo) {
    const auto nombre = rotuloDe(campo).toStdString();
    if (const auto* n = qobject_cast<const CampoNumero*>(campo)) {
        if (n->isReadOnly() || n->esValido()) return "";
        if (n->clase() == ClaseNumero::Entero)
            return "El campo " + nombre + " debe tener un número entero: \"" +
                   n->text().toStdString() + "\" no lo es.";
        return "El campo " + nombre +
               " debe tener un número (la coma separa los decimales: " + "1234,50): \"" +
               n->text().toStdString() + "\" no lo es.";
    }
    if (const auto* f = qobject_cast<const CampoFecha*>(campo)) {
        if (f->isReadOnly() || f->esValida()) return "";
        if (f->forma() == FormaFecha::Mes)
            return "El campo " + nombre + " debe tener un mes con el formato MM/aa: \"" +
                   f->text().toStdString() + "\" no lo es.";
        return "El campo " + nombre + " debe tener una fecha que exista, con el formato " +
               "dd/mm/aa: \"" + f->text().toStdString() + "\" no lo es.";
    }
    return "";
}

std::optional<CampoConProblema> primerCampoConProblema(const QWidget* ventana) {
    for (auto* w : ventana->findChildren<QWidget*>()) {
        if (!w->isEnabled()) continue;
        if (auto m = problemaDe(w); !m.empty()) return CampoConProblema{w, std::move(m)};
    }
    return std::nullopt;
}

void mostrarCampo(QWidget* campo) {
    // Las páginas de un QTabWidget son hijas de su QStackedWidget.
    for (QWidget* w = campo; w && w->parentWidget(); w = w->parentWidget())
        if (auto* pila = qobject_cast<QStackedWidget*>(w->parentWidget()))
            pila->setCurrentWidget(w);
    campo->setFocus();
    if (auto* linea = qobject_cast<QLineEdit*>(campo)) linea->selectAll();
}

}  // namespace nomira::ventana
