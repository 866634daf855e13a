#include "screens/variables/pantalla_abm.h"

#include "frame/ventana/impresion.h"
#include "frame/ventana/ventana_ayuda.h"

namespace nomira::pantallas {

QHBoxLayout* PantallaAbm::botonera(const std::vector<Accion>& acciones) {
    auto* fila = new QHBoxLayout;
    for (const auto& a : acciones) {
        auto* b = new QPushButton(a.texto);
        b->setObjectName(QString(a.texto).section(' ', 1));
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, a.hacer);
        fila->addWidget(b);
        tecla(QKeySequence(a.tecla), [b] {
            if (b->isEnabled()) b->click();
        });
    }
    fila->addStretch();
    return fila;
}

QPushButton* PantallaAbm::boton(const QString& nombre) const {
    return findChild<QPushButton*>(nombre);
}

void PantallaAbm::habilitarSegunHallado(bool hallado) {
    if (auto* b = boton("Agregar")) b->setEnabled(!hallado);
    if (auto* b = boton("Modificar")) b->setEnabled(hallado);
    if (auto* b = boton("Eliminar")) b->setEnabled(hallado);
}

PantallaAbm::~PantallaAbm() {
    for (const auto& c : hijas_) disconnect(c);
}

void PantallaAbm::abrirHija(QWidget* hija, std::function<void()> alCerrar) {
    hija->setAttribute(Qt::WA_DeleteOnClose);
    hijas_.push_back(connect(hija, &QObject::destroyed, this, std::move(alCerrar)));
    hija->show();
}

void PantallaAbm::ayuda() {
    auto* v = new ventana::VentanaAyuda(this);
    v->setAttribute(Qt::WA_DeleteOnClose);
    v->show();
}

void PantallaAbm::imprimirInforme(const std::vector<std::string>& lineas,
                                  const std::string& documento) {
    const auto destino =
        ventana::destinoDe(master::leerConfiguracion(base()), ventana::UsoImpresora::Informes);
    ventana::imprimirLineas(lineas, destino, documento);
}

}  // namespace nomira::pantallas
