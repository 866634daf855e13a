#include "screens/conceptos/pantalla_concepto.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QVBoxLayout>

namespace nomira::pantallas {

namespace {

const char* titulo(ModoConcepto modo) {
    switch (modo) {
        case ModoConcepto::Agregar: return "Agregar Concepto y Fórmula";
        case ModoConcepto::Modificar: return "Modificar Concepto y Fórmula";
        case ModoConcepto::Eliminar: return "Eliminar Concepto y Fórmula";
    }
    return "";
}

QString q(const std::string& s) { return QString::fromStdString(s); }
std::string s(const QLineEdit* c) { return c->text().trimmed().toStdString(); }

}  // namespace

PantallaConcepto::PantallaConcepto(frame::Sesion& sesion, long numero, ModoConcepto modo,
                                   QWidget* padre)
    : Pantalla(sesion, "Form41", titulo(modo), padre) {
    using ventana::GrupoOpciones;
    especificode = new GrupoOpciones(
        "Específico de", {{"S", "Sueldo"}, {"J", "Jornales"}, {"H", "Horas"}, {"G", "General"}});
    tipo = new GrupoOpciones("Tipo", {{"Hab", "Haber"}, {"Des", "Desc."}});
    unidad = new GrupoOpciones("Unidad", {{"I", "Importe"}, {"T", "Tiempo"}, {"P", "Porcentaje"}});
    permanente = GrupoOpciones::siNo("Permanente");
    gravado = GrupoOpciones::siNo("Gravado");
    aguinaldo = GrupoOpciones::siNo("Aguinaldo");
    lic = GrupoOpciones::siNo("Lic/Ipd.");
    ipd = GrupoOpciones::siNo("Irpf.");
    const std::pair<GrupoOpciones*, const char*> marcos[] = {
        {especificode, "especificode"}, {tipo, "tipo"},       {unidad, "unidad"},
        {permanente, "permanente"},     {gravado, "gravado"}, {aguinaldo, "aguinaldo"},
        {lic, "lic"},                   {ipd, "ipd"}};
    for (const auto& [m, nombre] : marcos) m->setObjectName(nombre);
    codigo->setObjectName("codigo");
    concepto->setObjectName("concepto");
    formula->setObjectName("formula");
    codigo->setReadOnly(true);
    codigo->setMaximumWidth(100);
    codigo->setText(QString::number(numero));

    auto* campos = new QFormLayout;
    campos->addRow("Código", codigo);
    campos->addRow("Concepto", concepto);
    campos->addRow("Fórmula", formula);
    auto* opciones = new QGridLayout;
    opciones->addWidget(especificode, 0, 0);
    opciones->addWidget(tipo, 0, 1);
    opciones->addWidget(unidad, 0, 2);
    opciones->addWidget(permanente, 0, 3);
    opciones->addWidget(gravado, 1, 0);
    opciones->addWidget(aguinaldo, 1, 1);
    opciones->addWidget(lic, 1, 2);
    opciones->addWidget(ipd, 1, 3);
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(campos);
    todo->addLayout(opciones);
    todo->addLayout(botonera({{Qt::Key_F5, "F5 Agregar", [this] { Agregar_Click(); }},
                              {Qt::Key_F6, "F6 Modificar", [this] { Modificar_Click(); }},
                              {Qt::Key_F7, "F7 Eliminar", [this] { Eliminar_Click(); }}}));
    todo->addStretch();
    resize(760, 280);

    boton("Agregar")->setEnabled(modo == ModoConcepto::Agregar);
    boton("Modificar")->setEnabled(modo == ModoConcepto::Modificar);
    boton("Eliminar")->setEnabled(modo == ModoConcepto::Eliminar);
    if (modo != ModoConcepto::Agregar)
        intentar("Form_Load", [this, numero] {
            if (const auto c = master::leerConcepto(base(), numero)) cargar(*c);
        });
    concepto->setFocus();
}

master::Concepto PantallaConcepto::leido() const {
    return {s(codigo),          s(concepto),          especificode->valor().toStdString(),
            s(formula),         tipo->valor().toStdString(), unidad->valor().toStdString(),
            permanente->valor().toStdString(), gravado->valor().toStdString(),
            aguinaldo->valor().toStdString(),  lic->valor().toStdString(),
            ipd->valor().toStdString()};
}

void PantallaConcepto::cargar(const master::Concepto& c) {
    concepto->setText(q(c.concepto));
    formula->setText(q(c.formula));
    const std::pair<ventana::GrupoOpciones*, const std::string*> valores[] = {
        {especificode, &c.especificode}, {tipo, &c.tipo},       {unidad, &c.unidad},
        {permanente, &c.permanente},     {gravado, &c.gravado}, {aguinaldo, &c.aguinaldo},
        {lic, &c.lic},                   {ipd, &c.ipd}};
    for (const auto& [marco, valor] : valores) marco->ponerValor(q(*valor));
}

void PantallaConcepto::Agregar_Click() {
    intentar("Agregar_Click", [this] {
        if (!confirmar("Agregar Concepto")) return;
        auto c = leido();
        if (const auto rechazo = master::prepararConcepto(c)) return advertir(*rechazo);
        master::agregarConcepto(base(), c);
        close();
    });
}

void PantallaConcepto::Modificar_Click() {
    intentar("Modificar_Click", [this] {
        if (!confirmar("Modificar Concepto")) return;
        auto c = leido();
        if (const auto rechazo = master::prepararConcepto(c)) return advertir(*rechazo);
        master::modificarConcepto(base(), c);
        close();
    });
}

void PantallaConcepto::Eliminar_Click() {
    intentar("Eliminar_Click", [this] {
        if (!confirmar("Eliminar Concepto")) return;
        master::eliminarConcepto(base(), std::stol(s(codigo)));
        close();
    });
}

}  // namespace nomira::pantallas
