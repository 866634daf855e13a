#include "screens/haberes/lista_validacion.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "frame/ventana/texto_qt.h"

namespace nomira::pantallas {

ListaValidacion::ListaValidacion(const std::string& titulo,
                                 const std::vector<engine::Hallazgo>& hallazgos, QWidget* padre)
    : QDialog(padre) {
    setObjectName("ListaValidacion");
    setWindowTitle(ventana::aQt(titulo));
    auto* tabla = new QTableWidget(static_cast<int>(hallazgos.size()), 3);
    tabla->setObjectName("hallazgos");
    tabla->setHorizontalHeaderLabels({"Control", "Persona", "Mensaje"});
    tabla->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabla->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
    for (std::size_t i = 0; i < hallazgos.size(); ++i) {
        const auto& h = hallazgos[i];
        const int fila = static_cast<int>(i);
        tabla->setItem(fila, 0, new QTableWidgetItem(QString::number(h.control)));
        tabla->setItem(fila, 1, new QTableWidgetItem(ventana::aQt(h.nombre)));
        tabla->setItem(fila, 2, new QTableWidgetItem(ventana::aQt(h.texto)));
        lineas_.push_back(std::to_string(h.control) + ". " + h.nombre + ": " + h.texto);
    }
    lineas_.push_back(engine::kValidacionTerminada);

    auto* copiar = new QPushButton("&Copiar");
    copiar->setObjectName("Copiar");
    auto* imprimir = new QPushButton("&Imprimir");
    imprimir->setObjectName("Imprimir");
    auto* cerrar = new QPushButton("&Salir");
    cerrar->setObjectName("Salir");
    connect(copiar, &QPushButton::clicked, this, [this] {
        QString texto;
        for (const auto& l : lineas_) texto += ventana::aQt(l) + "\n";
        QApplication::clipboard()->setText(texto);
    });
    connect(imprimir, &QPushButton::clicked, this, &ListaValidacion::imprimir);
    connect(cerrar, &QPushButton::clicked, this, &QDialog::accept);
    auto* botones = new QHBoxLayout;
    botones->addWidget(copiar);
    botones->addWidget(imprimir);
    botones->addStretch();
    botones->addWidget(cerrar);
    auto* capa = new QVBoxLayout(this);
    capa->addWidget(tabla, 1);
    capa->addWidget(new QLabel(ventana::aQt(
        std::string(engine::kValidacionTerminada) + " " + std::to_string(hallazgos.size()) +
        (hallazgos.size() == 1 ? " hallazgo." : " hallazgos."))));
    capa->addLayout(botones);
    resize(900, 420);
}

}  // namespace nomira::pantallas
