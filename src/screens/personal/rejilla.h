#pragma once
// Reparte los campos de una página en filas de pares etiqueta-campo, de
// izquierda a derecha, para que siete páginas llenas se lean a 1024x768.
#include <QGridLayout>
#include <QLabel>
#include <QWidget>

namespace nomira::pantallas {

class Rejilla {
  public:
    Rejilla(QWidget* pagina, int pares) : capa_(new QGridLayout(pagina)), pares_(pares) {
        capa_->setHorizontalSpacing(8);
        capa_->setVerticalSpacing(4);
    }
    // Etiqueta y campo; `ocupa` pares de columnas.
    void campo(const QString& etiqueta, QWidget* w, int ocupa = 1) {
        lugar(ocupa);
        auto* l = new QLabel(etiqueta);
        l->setBuddy(w);
        capa_->addWidget(l, fila_, par_ * 2, Qt::AlignRight);
        capa_->addWidget(w, fila_, par_ * 2 + 1, 1, std::min(ocupa, pares_ - par_) * 2 - 1);
        par_ += ocupa;
    }
    // Un campo sin etiqueta (un marco de opciones).
    void ancho(QWidget* w, int ocupa) {
        lugar(ocupa);
        capa_->addWidget(w, fila_, par_ * 2, 1, std::min(ocupa, pares_ - par_) * 2);
        par_ += ocupa;
    }
    void capa(QLayout* l) {
        saltar();
        capa_->addLayout(l, fila_, 0, 1, pares_ * 2);
        ++fila_;
    }
    void saltar() {
        if (par_ > 0) ++fila_;
        par_ = 0;
    }
    QGridLayout* capaPrincipal() {
        saltar();
        return capa_;
    }
    void terminar() {
        saltar();
        capa_->setRowStretch(capa_->rowCount(), 1);
        for (int i = 0; i < pares_; ++i) capa_->setColumnStretch(i * 2 + 1, 1);
    }

  private:
    void lugar(int ocupa) {
        if (par_ > 0 && par_ + ocupa > pares_) saltar();
    }
    QGridLayout* capa_;
    int pares_;
    int fila_ = 0, par_ = 0;
};

}  // namespace nomira::pantallas
