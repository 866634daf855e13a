#include "screens/conceptos/pantalla_conceptos_persona.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "common/numeros.h"
#include "frame/ventana/texto_qt.h"
#include "master/conceptos.h"
#include "master/empresas.h"
#include "master/personal.h"

namespace nomira::pantallas {

using ventana::deQt;

PantallaConceptosPersona::PantallaConceptosPersona(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form40", "Conceptos Permanentes x Personal", padre) {
    empresa->setObjectName("empresa");
    nombre->setObjectName("nombre");
    codigo->setObjectName("codigo");
    concepto->setObjectName("concepto");
    grilla->setObjectName("grilla");
    for (auto* c : {empresa, nombre}) {
        c->setEditable(true);
        c->setInsertPolicy(QComboBox::NoInsert);
        c->setMinimumWidth(320);
    }
    codigo->setMaximumWidth(100);
    auto* campos = new QFormLayout;
    campos->addRow("Empresa", empresa);
    campos->addRow("Nombre del Personal", nombre);
    auto* filaCodigo = new QHBoxLayout;
    filaCodigo->addWidget(codigo);
    filaCodigo->addWidget(concepto, 1);
    campos->addRow("Código", filaCodigo);
    auto* todo = new QVBoxLayout(lienzo());
    todo->addLayout(campos);
    todo->addLayout(botonera({{Qt::Key_F1, "F1 Ayuda", [this] { ayuda(); }},
                              {Qt::Key_F2, "F2 Buscar", [this] { Buscar_Click(); }},
                              {Qt::Key_F3, "F3 Consultar", [this] { Consultar_Click(); }},
                              {Qt::Key_F5, "F5 Agregar", [this] { Agregar_Click(); }},
                              {Qt::Key_F7, "F7 Eliminar", [this] { Eliminar_Click(); }}}));
    todo->addWidget(grilla, 1);
    pedirTamano(640, 460);

    empresa->addItem("");
    intentar("Form_Load", [this] {
        for (const auto& e : master::nombresDeEmpresas(base()))
            empresa->addItem(QString::fromStdString(e));
    });
    alPulsarEnter(empresa, [this] {
        CargarNombredelPersonal();
        return true;
    });
    alPulsarEnter(nombre, [this] {
        Consultar_Click();
        return true;
    });
    alPulsarEnter(codigo, [this] {
        Buscar_Click();
        return false;
    });
    limpiar();
    empresa->setFocus();
}

void PantallaConceptosPersona::CargarNombredelPersonal() {
    intentar("CargarNombredelPersonal", [this] {
        const auto escrito = nombre->currentText();
        nombre->clear();
        nombre->addItem("");
        for (const auto& n : master::nombresDelPersonal(base(), deQt(empresa)))
            nombre->addItem(QString::fromStdString(n));
        nombre->setCurrentText(escrito);
    });
}

void PantallaConceptosPersona::Buscar_Click() {
    intentar("Buscar_Click", [this] {
        if (deQt(empresa).empty() || deQt(nombre).empty() || deQt(codigo).empty())
            return advertir("Debe completar los campos Empresa, Nombre del Personal y Código.");
        if (!master::leerEmpresa(base(), deQt(empresa)))
            return advertir("No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.");
        if (!master::leerPersona(base(), deQt(empresa), deQt(nombre)))
            return advertir(
                "El Nombre del Personal no existe en esta Empresa, deberá 1ero ingresarlo en la "
                "ventana Personal.");
        const long n = static_cast<long>(common::textoANumero(deQt(codigo)));
        const auto c = master::leerConcepto(base(), n);
        if (!c) return advertir(master::kCodigoInexistente);
        concepto->setText(QString::fromStdString(c->concepto));
        habilitarSegunHallado(
            master::existeConceptoPersona(base(), deQt(empresa), deQt(nombre), n));
    });
}

void PantallaConceptosPersona::Consultar_Click() {
    intentar("Consultar_Click", [this] {
        std::vector<std::vector<std::string>> filas;
        for (const auto& c : master::listarConceptosPersona(base(), deQt(empresa), deQt(nombre)))
            filas.push_back({c.codigo, c.concepto, c.tipo});
        grilla->mostrar({"Código", "Concepto", "Tipo"}, filas, {0});
    });
}

void PantallaConceptosPersona::Agregar_Click() {
    intentar("Agregar_Click", [this] {
        const long n = static_cast<long>(common::textoANumero(deQt(codigo)));
        if (const auto rechazo =
                master::agregarConceptoPersona(base(), deQt(empresa), deQt(nombre), n))
            return advertir(*rechazo);
        Consultar_Click();
        limpiar();
    });
}

void PantallaConceptosPersona::Eliminar_Click() {
    intentar("Eliminar_Click", [this] {
        if (!confirmar("Eliminar registro")) return;
        master::eliminarConceptoPersona(base(), deQt(empresa), deQt(nombre),
                                        static_cast<long>(common::textoANumero(deQt(codigo))));
        Consultar_Click();
        limpiar();
    });
}

void PantallaConceptosPersona::limpiar() {
    codigo->clear();
    concepto->clear();
    boton("Agregar")->setEnabled(false);
    boton("Eliminar")->setEnabled(false);
    codigo->setFocus();
}

}  // namespace nomira::pantallas
