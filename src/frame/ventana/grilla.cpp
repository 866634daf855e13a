#include "frame/ventana/grilla.h"

#include <QHeaderView>
#include <QKeyEvent>

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

std::string Grilla::elegida(int columna) const {
    const auto indice = currentIndex();
    if (!indice.isValid()) return {};
    return modelo_->item(indice.row(), columna)->text().toStdString();
}

}  // namespace nomira::ventana
