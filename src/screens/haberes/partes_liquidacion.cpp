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

std::vector<ventana::AccionTecla> teclasSinFilaEnMano(ventana::Pantalla& pantalla,
                                                      std::function<void()> consultar) {
    auto* p = &pantalla;
    return {
        {Qt::Key_F1, "F1 Ayuda", [p] { p->ayuda(); }},
        {Qt::Key_F2, "F2 Refresh", consultar},
        {Qt::Key_F3, "F3 Consultar", consultar},
        {Qt::Key_F8, "F8 Imp.", [] {}},
        {Qt::Key_F9, "F9 Copiar", [] {}},
        {Qt::Key_F10, "F10 Concep.", [p] { p->abrirRegistrada("Form4"); }},
    };
}

QGroupBox* marcoDeBotones(const char* titulo, const std::vector<BotonGeneracion>& botones) {
    auto* marco = new QGroupBox(titulo);
    auto* capa = new QHBoxLayout(marco);
    for (const auto& [nombre, texto, accion] : botones) {
        auto* b = new QPushButton(texto);
        b->setObjectName(nombre);
        b->setAutoDefault(false);
        QObject::connect(b, &QPushButton::clicked, b, accion);
        capa->addWidget(b);
    }
    return marco;
}

void teclasPendientes(QWidget* teclas, std::initializer_list<const char*> nombres) {
    for (const char* pendiente : nombres) {
        auto* b = teclas->findChild<QPushButton*>(pendiente);
        b->setEnabled(false);
        b->setToolTip("Todavía no disponible");
    }
}

}  // namespace nomira::pantallas
