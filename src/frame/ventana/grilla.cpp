#include "frame/ventana/grilla.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

#include "common/texto.h"

namespace nomira::ventana {

Grilla::Grilla(QWidget* padre) : QTableView(padre), modelo_(new QStandardItemModel(this)) {
    setModel(modelo_);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    connect(this, &QAbstractItemView::doubleClicked, this, &Grilla::abrir);
}

void Grilla::keyPressEvent(QKeyEvent* e) {
    if ((e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) && currentIndex().isValid()) {
        emit clicked(currentIndex());
        emit abrir();
        return;
    }
    QTableView::keyPressEvent(e);
}

void Grilla::mostrar(const std::vector<std::string>& encabezados,
                     const std::vector<std::vector<std::string>>& filas,
                     const std::set<int>& derecha) {
    modelo_->clear();
    QStringList titulos;
    for (const auto& e : encabezados) titulos << QString::fromStdString(e);
    modelo_->setHorizontalHeaderLabels(titulos);
    for (const auto& fila : filas) {
        QList<QStandardItem*> celdas;
        for (std::size_t i = 0; i < fila.size(); ++i) {
            auto* celda = new QStandardItem(QString::fromStdString(fila[i]));
            if (derecha.count(static_cast<int>(i)))
                celda->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            celdas << celda;
        }
        modelo_->appendRow(celdas);
    }
    resizeColumnsToContents();
}

void Grilla::llenarAlElegir(std::vector<std::pair<int, QWidget*>> campos) {
    if (campos_.empty()) connect(this, &QAbstractItemView::clicked, this, &Grilla::llenarCampos);
    campos_ = std::move(campos);
}

namespace {

// En un combo de catálogo la grilla muestra el texto guardado ("Vendedor") y la
// lista lo tiene con su código ("02-Vendedor"): se elige ese renglón.
int renglonDe(const QComboBox* combo, const QString& texto) {
    if (const int i = combo->findText(texto); i >= 0) return i;
    const auto buscado = texto.toStdString();
    for (int i = 0; i < combo->count(); ++i)
        if (common::textoDeCatalogo(combo->itemText(i).toStdString()) == buscado) return i;
    return -1;
}

}  // namespace

void Grilla::llenarCampos() {
    const auto indice = currentIndex();
    if (!indice.isValid()) return;
    for (const auto& [columna, campo] : campos_) {
        const QString texto = modelo_->item(indice.row(), columna)->text();
        if (auto* linea = qobject_cast<QLineEdit*>(campo)) {
            linea->setText(texto);
        } else if (auto* combo = qobject_cast<QComboBox*>(campo)) {
            if (const int i = renglonDe(combo, texto); i >= 0)
                combo->setCurrentIndex(i);
            else
                combo->setCurrentText(texto);
        }
    }
}

std::string Grilla::elegida(int columna) const {
    const auto indice = currentIndex();
    if (!indice.isValid()) return {};
    return modelo_->item(indice.row(), columna)->text().toStdString();
}

}  // namespace nomira::ventana
