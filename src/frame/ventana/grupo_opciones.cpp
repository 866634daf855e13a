#include "frame/ventana/grupo_opciones.h"

#include <QHBoxLayout>

namespace nomira::ventana {

GrupoOpciones::GrupoOpciones(const QString& titulo, std::vector<std::pair<QString, QString>> opciones,
                             QWidget* padre)
    : QGroupBox(titulo, padre) {
    auto* fila = new QHBoxLayout(this);
    for (auto& [valor, etiqueta] : opciones) {
        auto* boton = new QRadioButton(etiqueta);
        boton->setObjectName(valor);
        fila->addWidget(boton);
        opciones_.emplace_back(valor, boton);
    }
    if (!opciones_.empty()) opciones_.front().second->setChecked(true);
}

GrupoOpciones* GrupoOpciones::siNo(const QString& titulo, QWidget* padre) {
    return new GrupoOpciones(titulo, {{"Si", "Si"}, {"No", "No"}}, padre);
}

QString GrupoOpciones::valor() const {
    for (const auto& [valor, boton] : opciones_)
        if (boton->isChecked()) return valor;
    return {};
}

void GrupoOpciones::ponerValor(const QString& valor) {
    for (const auto& [v, boton] : opciones_)
        if (v.compare(valor, Qt::CaseInsensitive) == 0) return boton->setChecked(true);
    if (!opciones_.empty()) opciones_.front().second->setChecked(true);
}

}  // namespace nomira::ventana
