#include "screens/haberes/casillas_renglon.h"

#include <QLabel>

namespace nomira::pantallas {

void anchoEnCifras(QLineEdit* c, int caracteres) {
    c->setMaximumWidth(c->fontMetrics().horizontalAdvance(QString(caracteres, '0')) + 14);
}

void CasillasRenglon::limpiar() {
    for (auto* c :
         {codigo, concepto, unidad, static_cast<QLineEdit*>(cant), static_cast<QLineEdit*>(total)})
        c->clear();
}

void CasillasRenglon::agregarColumna(const char* rotulo, QLineEdit* casilla) {
    const int columna = capa->columnCount();
    auto* l = new QLabel(rotulo);
    l->setBuddy(casilla);
    capa->addWidget(l, 0, columna);
    capa->addWidget(casilla, 1, columna);
}

CasillasRenglon armarCasillasRenglon(QWidget* dueno) {
    CasillasRenglon r{new QLineEdit,
                      new QLineEdit,
                      new QLineEdit,
                      new ventana::CampoNumero,
                      new ventana::CampoNumero,
                      new QGridLayout(dueno)};
    r.codigo->setObjectName("codigo");
    anchoEnCifras(r.codigo, 6);
    r.concepto->setObjectName("concepto");
    r.unidad->setObjectName("unidad");
    anchoEnCifras(r.unidad, 3);
    r.unidad->setReadOnly(true);
    r.unidad->setFocusPolicy(Qt::NoFocus);
    r.cant->setObjectName("cant");
    anchoEnCifras(r.cant, 10);
    r.total->setObjectName("total");
    anchoEnCifras(r.total, 14);

    r.capa->setContentsMargins(0, 0, 0, 0);
    for (auto [rotulo, c] : {std::pair<const char*, QLineEdit*>{"Código", r.codigo},
                             {"Concepto", r.concepto},
                             {"Unid.", r.unidad},
                             {"Cant.", r.cant},
                             {"Total", r.total}})
        r.agregarColumna(rotulo, c);
    r.capa->setColumnStretch(1, 1);
    return r;
}

}  // namespace nomira::pantallas
