#include "screens/haberes/partes_liquidacion.h"

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace nomira::pantallas {

QHBoxLayout* filaDeCifras(std::initializer_list<std::pair<const char*, const char*>> nombres,
                          std::map<std::string, QLineEdit*>& cifras) {
    auto* capa = new QHBoxLayout;
    for (const auto& [nombre, rotulo] : nombres) {
        auto* c = new QLineEdit;
        c->setObjectName(nombre);
        c->setMaximumWidth(c->fontMetrics().horizontalAdvance(QString(12, '0')) + 14);
        c->setReadOnly(true);
        c->setFocusPolicy(Qt::NoFocus);
        c->setAlignment(Qt::AlignRight);
        cifras[nombre] = c;
        capa->addWidget(new QLabel(rotulo));
        capa->addWidget(c);
        capa->addSpacing(8);
    }
    capa->addStretch();
    return capa;
}

GrillasLiquidacion grillasLiquidacion(const char* tituloHaberes) {
    GrillasLiquidacion g{new QWidget, new ventana::Grilla, new ventana::Grilla};
    g.haberes->setObjectName("haberes");
    g.descuentos->setObjectName("descuentos");
    auto* capa = new QHBoxLayout(g.contenedor);
    capa->setContentsMargins(0, 0, 0, 0);
    for (auto [grilla, titulo] :
         {std::pair{g.haberes, tituloHaberes}, {g.descuentos, "Descuentos"}}) {
        auto* marco = new QGroupBox(titulo);
        (new QVBoxLayout(marco))->addWidget(grilla);
        capa->addWidget(marco, 1);
        grilla->setFocusPolicy(Qt::ClickFocus);
    }
    return g;
}

void teclasPendientes(QWidget* teclas, std::initializer_list<const char*> nombres) {
    for (const char* pendiente : nombres) {
        auto* b = teclas->findChild<QPushButton*>(pendiente);
        b->setEnabled(false);
        b->setToolTip("Todavía no disponible");
    }
}

}  // namespace nomira::pantallas
