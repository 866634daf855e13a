#include "screens/conceptos/pantalla_concepto.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QVBoxLayout>

#include "engine/formulas/validar_formula.h"
#include "frame/ventana/piezas.h"
#include "frame/ventana/texto_qt.h"

namespace nomira::pantallas {

using ventana::aQt;
using ventana::deQt;

namespace {

const char* titulo(ModoConcepto modo) {
    switch (modo) {
        case ModoConcepto::Agregar:
            return "Agregar Concepto y Fórmula";
        case ModoConcepto::Modificar:
            return "Modificar Concepto y Fórmula";
        case ModoConcepto::Eliminar:
            return "Eliminar Concepto y Fórmula";
    }
    return "";
}

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
    const std::pair<GrupoOpciones*, const char*> marcos[] = {{especificode, "especificode"},
                                                             {tipo, "tipo"},
                                                             {unidad, "unidad"},
                                                             {permanente, "permanente"},
                                                             {gravado, "gravado"},
                                                             {aguinaldo, "aguinaldo"},
                                                             {lic, "lic"},
                                                             {ipd, "ipd"}};
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
    auto* todo = new QVBoxLayout(lienzo());
    todo->addLayout(campos);
    todo->addLayout(opciones);
    auto* botones = botonera({{Qt::Key_F5, "F5 Agregar", [this] { Agregar_Click(); }},
                              {Qt::Key_F6, "F6 Modificar", [this] { Modificar_Click(); }},
                              {Qt::Key_F7, "F7 Eliminar", [this] { Eliminar_Click(); }}});
    auto* salir = ventana::botonConTecla("Salir");
    connect(salir, &QPushButton::clicked, this, &QWidget::close);
    botones->addWidget(salir);
    todo->addLayout(botones);
    todo->addStretch();
    pedirTamano(760, 280);

    boton("Agregar")->setEnabled(modo == ModoConcepto::Agregar);
    boton("Modificar")->setEnabled(modo == ModoConcepto::Modificar);
    boton("Eliminar")->setEnabled(modo == ModoConcepto::Eliminar);
    if (modo != ModoConcepto::Agregar)
        intentar("Form_Load", [this, numero] {
            if (const auto c = master::leerConcepto(base(), numero)) cargar(*c);
        });
    // Un concepto nuevo no es permanente salvo que se lo pida: casi ninguno lo es.
    if (modo == ModoConcepto::Agregar) permanente->ponerValor("No");
    hacerFicha();
    concepto->setFocus();
}

bool PantallaConcepto::formulaEvaluable() {
    const auto r = engine::revisarFormula(deQt(formula));
    if (r.valida) return true;
    advertir("La fórmula no se puede evaluar: " + r.mensaje + ", en el carácter " +
             std::to_string(r.posicion) + ".");
    formula->setFocus();
    formula->setCursorPosition(static_cast<int>(r.posicion) - 1);
    return false;
}

master::Concepto PantallaConcepto::leido() const {
    return {deQt(codigo),
            deQt(concepto),
            especificode->valor().toStdString(),
            deQt(formula),
            tipo->valor().toStdString(),
            unidad->valor().toStdString(),
            permanente->valor().toStdString(),
            gravado->valor().toStdString(),
            aguinaldo->valor().toStdString(),
            lic->valor().toStdString(),
            ipd->valor().toStdString()};
}

void PantallaConcepto::cargar(const master::Concepto& c) {
    concepto->setText(aQt(c.concepto));
    formula->setText(aQt(c.formula));
    const std::pair<ventana::GrupoOpciones*, const std::string*> valores[] = {
        {especificode, &c.especificode},
        {tipo, &c.tipo},
        {unidad, &c.unidad},
        {permanente, &c.permanente},
        {gravado, &c.gravado},
        {aguinaldo, &c.aguinaldo},
        {lic, &c.lic},
        {ipd, &c.ipd}};
    for (const auto& [marco, valor] : valores) marco->ponerValor(aQt(*valor));
}

void PantallaConcepto::Agregar_Click() {
    intentar("Agregar_Click", [this] {
        if (!formulaEvaluable() || !confirmar("Agregar Concepto")) return;
        auto c = leido();
        if (const auto rechazo = master::prepararConcepto(c)) return advertir(*rechazo);
        master::agregarConcepto(base(), c);
        close();
    });
}

void PantallaConcepto::Modificar_Click() {
    intentar("Modificar_Click", [this] {
        if (!formulaEvaluable() || !confirmar("Modificar Concepto")) return;
        auto c = leido();
        if (const auto rechazo = master::prepararConcepto(c)) return advertir(*rechazo);
        master::modificarConcepto(base(), c);
        close();
    });
}

void PantallaConcepto::Eliminar_Click() {
    intentar("Eliminar_Click", [this] {
        if (!confirmar("Eliminar Concepto", false)) return;
        master::eliminarConcepto(base(), std::stol(deQt(codigo)));
        close();
    });
}

}  // namespace nomira::pantallas
