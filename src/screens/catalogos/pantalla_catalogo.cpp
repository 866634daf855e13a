#include "screens/catalogos/pantalla_catalogo.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "common/texto.h"
#include "frame/ventana/piezas.h"
#include "master/catalogos.h"
#include "store/esquema.h"

namespace nomira::pantallas {

using ventana::aQt;
using ventana::botonConTecla;
using ventana::deQt;

PantallaCatalogo::PantallaCatalogo(frame::Sesion& sesion,
                                   const ConfiguracionCatalogo& configuracion, QWidget* padre)
    : Pantalla(sesion, configuracion.formulario, configuracion.titulo, padre),
      configuracion_(configuracion) {
    // El combo que tenía el foco al pulsar "*" es el que espera la respuesta.
    if (padre) {
        QWidget* foco = padre->focusWidget();
        if (foco && qobject_cast<QComboBox*>(foco->parentWidget())) foco = foco->parentWidget();
        llamador_ = qobject_cast<QComboBox*>(foco);
    }
    auto* todo = new QVBoxLayout(lienzo());
    campos_.resize(configuracion_.listas.size());
    for (int i = 0; i < static_cast<int>(configuracion_.listas.size()); ++i)
        todo->addWidget(armarLista(i));

    auto* abajo = new QHBoxLayout;
    if (configuracion_.actividades) {
        auto* marco = new QGroupBox("Ac.Lab.");
        auto* fila = new QHBoxLayout(marco);
        for (int a = 1; a <= 3; ++a) {
            auto* r = new QRadioButton(QString::number(a));
            r->setObjectName("Actividad" + QString::number(a));
            fila->addWidget(r);
            actividades_.push_back(r);
        }
        actividades_.front()->setChecked(true);
        abajo->addWidget(marco);
    }
    abajo->addStretch();
    if (configuracion_.devuelve) {
        auto* elegir = botonConTecla("Seleccionar", Qt::Key_F9);
        connect(elegir, &QPushButton::clicked, this, &PantallaCatalogo::seleccionar);
        tecla(QKeySequence(Qt::Key_F9), [this] { seleccionar(); });
        abajo->addWidget(elegir);
    }
    auto* salir = botonConTecla("Salir");
    connect(salir, &QPushButton::clicked, this, &QWidget::close);
    tecla(QKeySequence(Qt::Key_Escape), [this] { close(); });
    abajo->addWidget(salir);
    todo->addLayout(abajo);

    // F5 y F7 obran sobre la lista donde está el foco.
    tecla(QKeySequence(Qt::Key_F5), [this] { agregar(listaConFoco()); });
    tecla(QKeySequence(Qt::Key_F7), [this] { eliminar(listaConFoco()); });
    intentar("Form_Load", [this] {
        for (int i = 0; i < static_cast<int>(campos_.size()); ++i) llenar(i, 0);
    });
    setMinimumWidth(460);
}

QWidget* PantallaCatalogo::armarLista(int indice) {
    const auto& lista = configuracion_.listas[static_cast<std::size_t>(indice)];
    auto& c = campos_[static_cast<std::size_t>(indice)];
    auto* caja = new QGroupBox(lista.titulo);
    if (!*lista.titulo) caja->setFlat(true);
    auto* grilla = new QGridLayout(caja);
    const int n = static_cast<int>(lista.columnas.size());
    for (int k = 0; k < n; ++k) {
        const auto& col = lista.columnas[static_cast<std::size_t>(k)];
        grilla->addWidget(new QLabel(col.etiqueta), k, 0);
        QWidget* campo = nullptr;
        if (col.libre) {
            auto* e = new QLineEdit;
            c.combos.push_back(nullptr);
            c.libres.push_back(e);
            campo = e;
        } else {
            auto* combo = new QComboBox;
            combo->setEditable(true);
            combo->setInsertPolicy(QComboBox::NoInsert);
            combo->setMinimumWidth(300);
            c.combos.push_back(combo);
            c.libres.push_back(nullptr);
            campo = combo;
        }
        campo->setObjectName(QString("Lista%1Columna%2").arg(indice + 1).arg(k + 1));
        grilla->addWidget(campo, k, 1);
    }
    // Elegida una madre (Enter o de la lista), se llena la columna que cuelga de ella.
    const int v = valor(indice);
    for (int k = 0; k < v; ++k) {
        auto* madre = c.combos[static_cast<std::size_t>(k)];
        alPulsarEnter(madre, [this, indice, k] {
            llenar(indice, k + 1);
            return true;
        });
        connect(madre, &QComboBox::activated, this,
                [this, indice, k] { intentar("Combo1_KeyPress", [&] { llenar(indice, k + 1); }); });
    }
    // F5 y F7 sirven en las dos listas; el rótulo las muestra en la primera.
    auto* agregar = botonConTecla("Agregar", indice == 0 ? Qt::Key_F5 : Qt::Key_unknown);
    auto* eliminar = botonConTecla("Eliminar", indice == 0 ? Qt::Key_F7 : Qt::Key_unknown);
    agregar->setObjectName("Agregar" + QString::number(indice + 1));
    eliminar->setObjectName("Eliminar" + QString::number(indice + 1));
    connect(agregar, &QPushButton::clicked, this, [this, indice] { this->agregar(indice); });
    connect(eliminar, &QPushButton::clicked, this, [this, indice] { this->eliminar(indice); });
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(agregar);
    botones->addWidget(eliminar);
    grilla->addLayout(botones, n, 0, 1, 2);
    return caja;
}

int PantallaCatalogo::valor(int lista) const {
    const auto& cols = configuracion_.listas[static_cast<std::size_t>(lista)].columnas;
    int v = 0;
    for (int k = 0; k < static_cast<int>(cols.size()); ++k)
        if (!cols[static_cast<std::size_t>(k)].libre) v = k;
    return v;
}

void PantallaCatalogo::llenar(int lista, int columna) {
    const auto& l = configuracion_.listas[static_cast<std::size_t>(lista)];
    const auto& c = campos_[static_cast<std::size_t>(lista)];
    auto* combo = c.combos[static_cast<std::size_t>(columna)];
    const std::string origen = *l.columnas[static_cast<std::size_t>(columna)].origen
                                   ? l.columnas[static_cast<std::size_t>(columna)].origen
                                   : l.tabla;
    const auto& tabla = store::tabla(origen);
    std::vector<std::pair<std::string, std::string>> iguales;
    for (int k = 0; k < columna; ++k)
        iguales.emplace_back(tabla.columnas[static_cast<std::size_t>(k)].nombre,
                             deQt(c.combos[static_cast<std::size_t>(k)]->currentText()));
    const auto escrito = combo->currentText();
    combo->clear();
    for (const auto& fila : master::filasCatalogo(base(), origen, iguales))
        combo->addItem(aQt(fila.at(static_cast<std::size_t>(columna))));
    combo->setCurrentText(columna == 0 ? escrito : QString());
}

QComboBox* PantallaCatalogo::combo(int lista, int columna) const {
    return campos_.at(static_cast<std::size_t>(lista)).combos.at(static_cast<std::size_t>(columna));
}

QLineEdit* PantallaCatalogo::libre(int lista, int columna) const {
    return campos_.at(static_cast<std::size_t>(lista)).libres.at(static_cast<std::size_t>(columna));
}

int PantallaCatalogo::actividad() const {
    for (std::size_t i = 0; i < actividades_.size(); ++i)
        if (actividades_[i]->isChecked()) return static_cast<int>(i) + 1;
    return 0;
}

int PantallaCatalogo::listaConFoco() const {
    const QWidget* foco = focusWidget();
    for (std::size_t i = 0; i < campos_.size(); ++i) {
        for (auto* combo : campos_[i].combos)
            if (combo && foco && (foco == combo || combo->isAncestorOf(foco)))
                return static_cast<int>(i);
        for (auto* e : campos_[i].libres)
            if (e && foco == e) return static_cast<int>(i);
    }
    return 0;
}

void PantallaCatalogo::agregar(int lista) {
    intentar(lista == 0 ? "Agregar_Click" : "Agregar2_Click", [&] {
        const auto& l = configuracion_.listas[static_cast<std::size_t>(lista)];
        const auto& c = campos_[static_cast<std::size_t>(lista)];
        std::vector<std::string> valores;
        bool vacio = false, sinGuion = false;
        for (std::size_t k = 0; k < l.columnas.size(); ++k) {
            const std::string v =
                c.combos[k] ? deQt(c.combos[k]->currentText()) : deQt(c.libres[k]->text());
            if (c.combos[k]) {
                vacio = vacio || v.empty();
                sinGuion = sinGuion || v.find('-') == std::string::npos;
            }
            valores.push_back(v);
        }
        if (vacio) return advertir(l.mensajeVacio);
        if (sinGuion) return advertir(l.mensajeSinGuion);
        master::agregarACatalogo(base(), l.tabla, valores);
        auto* combo = c.combos[static_cast<std::size_t>(valor(lista))];
        combo->addItem(aQt(valores[static_cast<std::size_t>(valor(lista))]));
        combo->setCurrentText("");
        for (auto* e : c.libres)
            if (e) e->clear();
        combo->setFocus();
    });
}

void PantallaCatalogo::eliminar(int lista) {
    intentar(lista == 0 ? "Eliminar_Click" : "Eliminar2_Click", [&] {
        const auto& l = configuracion_.listas[static_cast<std::size_t>(lista)];
        const auto& c = campos_[static_cast<std::size_t>(lista)];
        const int v = valor(lista);
        auto* combo = c.combos[static_cast<std::size_t>(v)];
        if (deQt(combo->currentText()).empty()) return advertir(l.mensajeVacio);
        const auto& tabla = store::tabla(l.tabla);
        std::vector<std::pair<std::string, std::string>> iguales;
        for (int k = 0; k <= v; ++k)
            if (c.combos[static_cast<std::size_t>(k)])
                iguales.emplace_back(tabla.columnas[static_cast<std::size_t>(k)].nombre,
                                     deQt(c.combos[static_cast<std::size_t>(k)]->currentText()));
        master::eliminarDeCatalogo(base(), l.tabla, iguales);
        const int i = combo->findText(combo->currentText().trimmed());
        if (i >= 0) combo->removeItem(i);
        combo->setCurrentText("");
    });
}

void PantallaCatalogo::seleccionar() {
    intentar("CargarCombo", [&] {
        const std::string v = deQt(combo(0, valor(0))->currentText());
        if (v.find('-') != std::string::npos) {
            const QString texto = aQt(common::textoDeCatalogo(v));
            emit elegido(texto, actividad());
            QWidget* llamadora = parentWidget();
            const bool propia = llamadora && QMetaObject::invokeMethod(llamadora, "recibirCatalogo",
                                                                       Q_ARG(QString, objectName()),
                                                                       Q_ARG(QString, texto),
                                                                       Q_ARG(int, actividad()));
            if (!propia && llamador_) llamador_->setCurrentText(texto);
        }
        close();
    });
}

}  // namespace nomira::pantallas
