#include "screens/obras/ficha_obra.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "frame/ventana/piezas.h"
#include "master/catalogos.h"

namespace nomira::pantallas {

using ventana::aQt;
using ventana::botonConTecla;
using ventana::deQt;

FichaObra::FichaObra(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form292", "Obra", padre) {
    auto texto = [this](const char* columna) {
        auto* e = new QLineEdit;
        e->setObjectName(columna);
        campos_[columna] = e;
        return e;
    };
    auto* datos = new QFormLayout;
    datos->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    datos->addRow("Empresa", texto("empresa"));
    campos_.at("empresa")->setReadOnly(true);
    datos->addRow("NroObra", texto("nroobra"));
    actividad_ = new ventana::ComboCatalogo(sesion_, "Form293", [this] {
        return master::textosCatalogo(base(), "actividadprincipal");
    });
    actividad_->setMinimumWidth(280);
    datos->addRow("Act.Principal", actividad_);
    datos->addRow("Empresa Titular", texto("empresatitular"));
    datos->addRow("Dirección", texto("direccion"));
    datos->addRow("Teléfono", texto("telefono"));
    datos->addRow("B.P.S.", texto("bps"));
    datos->addRow("R.U.T.", texto("ruc"));

    // Sin botón marcado se guarda 0: por eso no hay uno elegido de entrada.
    auto* marco = new QGroupBox("Forma Realización Obra");
    auto* opciones = new QVBoxLayout(marco);
    formas_ = new QButtonGroup(this);
    int valor = 1;
    for (const auto& forma : master::formasDeRealizacion()) {
        auto* r = new QRadioButton(aQt(forma));
        r->setObjectName(QString("Forma%1").arg(valor));
        formas_->addButton(r, valor++);
        opciones->addWidget(r);
    }

    auto* botones = new QHBoxLayout;
    botones->addStretch();
    const std::tuple<const char*, Qt::Key, void (FichaObra::*)()> acciones[] = {
        {"Agregar", Qt::Key_F5, &FichaObra::agregar},
        {"Modificar", Qt::Key_F6, &FichaObra::modificar},
        {"Eliminar", Qt::Key_F7, &FichaObra::eliminar},
        {"Imprimir", Qt::Key_F8, &FichaObra::imprimir},
    };
    for (const auto& [nombre, f, metodo] : acciones) {
        auto* b = botonConTecla(nombre, f);
        botones_[nombre] = b;
        botones->addWidget(b);
        connect(b, &QPushButton::clicked, this, metodo);
        tecla(QKeySequence(f), [b] {
            if (b->isEnabled()) b->click();
        });
    }
    auto* salir = botonConTecla("Salir");
    connect(salir, &QPushButton::clicked, this, &QWidget::close);
    tecla(QKeySequence(Qt::Key_Escape), [this] { close(); });
    botones->addWidget(salir);

    auto* medio = new QHBoxLayout;
    medio->addLayout(datos, 1);
    medio->addWidget(marco, 0, Qt::AlignTop);
    auto* todo = new QVBoxLayout(lienzo());
    todo->addLayout(medio);
    todo->addLayout(botones);
    hacerFicha();
    preparar(OperacionObra::Agregar, {});
}

void FichaObra::preparar(OperacionObra operacion, const master::Obra& obra) {
    static const char* const kTitulos[] = {"Agregar Obra", "Modificar Obra", "Eliminar Obra",
                                           "Obra"};
    setWindowTitle(kTitulos[static_cast<int>(operacion)]);
    ponerCampos(obra);
    // Consultar (Buscar) deja modificar o eliminar la obra encontrada.
    botones_.at("Agregar")->setEnabled(operacion == OperacionObra::Agregar);
    botones_.at("Modificar")
        ->setEnabled(operacion == OperacionObra::Modificar ||
                     operacion == OperacionObra::Consultar);
    botones_.at("Eliminar")
        ->setEnabled(operacion == OperacionObra::Eliminar || operacion == OperacionObra::Consultar);
    // El número es la clave: sólo se escribe al agregar.
    campos_.at("nroobra")->setReadOnly(operacion != OperacionObra::Agregar);
}

master::Obra FichaObra::leerCampos() const {
    master::Obra o;
    for (const auto& c : master::camposObra())
        if (auto it = campos_.find(c.columna); it != campos_.end())
            o.*c.miembro = deQt(it->second->text());
    o.actprincipal = deQt(actividad_->currentText());
    o.formarealizacion = formas_->checkedId() > 0 ? std::to_string(formas_->checkedId()) : "0";
    return o;
}

void FichaObra::ponerCampos(const master::Obra& o) {
    for (const auto& c : master::camposObra())
        if (auto it = campos_.find(c.columna); it != campos_.end())
            it->second->setText(aQt(o.*c.miembro));
    actividad_->setCurrentText(aQt(o.actprincipal));
    const int forma = o.formarealizacion.size() == 1 ? o.formarealizacion[0] - '0' : 0;
    // Un grupo exclusivo no deja desmarcar: se suelta, se limpia y se vuelve a atar.
    formas_->setExclusive(false);
    for (auto* b : formas_->buttons()) b->setChecked(formas_->id(b) == forma);
    formas_->setExclusive(true);
}

void FichaObra::agregar() {
    if (!camposValidos()) return;
    intentar("Agregar_Click", [this] {
        const auto o = leerCampos();
        if (o.nroobra.empty()) return advertir("Debe seleccionar el campo NroObra.");
        if (!confirmar("Agregar Obra")) return;
        master::agregarObra(base(), o);
        master::Obra limpia;
        limpia.empresa = o.empresa;
        ponerCampos(limpia);
        campos_.at("empresatitular")->setFocus();
        emit agregada(aQt(o.nroobra));
        close();
    });
}

void FichaObra::modificar() {
    if (!camposValidos()) return;
    intentar("Modificar_Click", [this] {
        if (!confirmar("Modificar Obra")) return;
        master::modificarObra(base(), leerCampos());
        emit modificada();
    });
}

void FichaObra::eliminar() {
    intentar("Eliminar_Click", [this] {
        if (!confirmar("Eliminar Obra", false)) return;
        const auto o = leerCampos();
        master::eliminarObra(base(), o.empresa, o.nroobra);
        emit eliminada(aQt(o.nroobra));
        close();
    });
}

void FichaObra::imprimir() {
    intentar("Imprimir_Click",
             [this] { imprimirInforme(master::lineasFichaObra(leerCampos()), "obra"); });
}

}  // namespace nomira::pantallas
