#include "screens/conceptos/pantalla_conceptos_persona.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "common/numeros.h"
#include "master/conceptos.h"
#include "master/empresas.h"
#include "master/personal.h"

namespace nomira::pantallas {

namespace {

std::string s(const QComboBox* c) { return c->currentText().trimmed().toStdString(); }
std::string s(const QLineEdit* c) { return c->text().trimmed().toStdString(); }

}  // namespace

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
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(campos);
    todo->addLayout(botonera({{Qt::Key_F1, "F1 Ayuda", [this] { ayuda(); }},
                              {Qt::Key_F2, "F2 Buscar", [this] { Buscar_Click(); }},
                              {Qt::Key_F3, "F3 Consultar", [this] { Consultar_Click(); }},
                              {Qt::Key_F5, "F5 Agregar", [this] { Agregar_Click(); }},
                              {Qt::Key_F7, "F7 Eliminar", [this] { Eliminar_Click(); }}}));
    todo->addWidget(grilla, 1);
    resize(640, 460);

    empresa->addItem("");
    intentar("Form_Load", [this] {
        for (const auto& e : master::nombresDeEmpresas(base())) empresa->addItem(QString::fromStdString(e));
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
        for (const auto& n : master::nombresDelPersonal(base(), s(empresa)))
            nombre->addItem(QString::fromStdString(n));
        nombre->setCurrentText(escrito);
    });
}

void PantallaConceptosPersona::Buscar_Click() {
    intentar("Buscar_Click", [this] {
        if (s(empresa).empty() || s(nombre).empty() || s(codigo).empty())
            return advertir("Debe completar los campos Empresa, Nombre del Personal y Código.");
        if (!master::leerEmpresa(base(), s(empresa)))
            return advertir("No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.");
        if (!master::leerPersona(base(), s(empresa), s(nombre)))
            return advertir(
                "El Nombre del Personal no existe en esta Empresa, deberá 1ero ingresarlo en la "
                "ventana Personal.");
        const long n = static_cast<long>(common::textoANumero(s(codigo)));
        const auto c = master::leerConcepto(base(), n);
        if (!c) return advertir(master::kCodigoInexistente);
        concepto->setText(QString::fromStdString(c->concepto));
        habilitarSegunHallado(master::existeConceptoPersona(base(), s(empresa), s(nombre), n));
    });
}

void PantallaConceptosPersona::Consultar_Click() {
    intentar("Consultar_Click", [this] {
        std::vector<std::vector<std::string>> filas;
        for (const auto& c : master::listarConceptosPersona(base(), s(empresa), s(nombre)))
            filas.push_back({c.codigo, c.concepto, c.tipo});
        grilla->mostrar({"Código", "Concepto", "Tipo"}, filas, {0});
    });
}

void PantallaConceptosPersona::Agregar_Click() {
    intentar("Agregar_Click", [this] {
        const long n = static_cast<long>(common::textoANumero(s(codigo)));
        if (const auto rechazo = master::agregarConceptoPersona(base(), s(empresa), s(nombre), n))
            return advertir(*rechazo);
        Consultar_Click();
        limpiar();
    });
}

void PantallaConceptosPersona::Eliminar_Click() {
    intentar("Eliminar_Click", [this] {
        if (!confirmar("Eliminar registro")) return;
        master::eliminarConceptoPersona(base(), s(empresa), s(nombre),
                                        static_cast<long>(common::textoANumero(s(codigo))));
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
