#include "screens/variables/pantalla_franjas.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "common/formato.h"
#include "common/numeros.h"
#include "frame/ventana/texto_qt.h"
#include "master/franjas.h"

namespace nomira::pantallas {

using ventana::deQt;

namespace {

// Como la conversión a número de la pantalla: lo que no es número no se guarda.
double numero(const ventana::CampoNumero* campo) {
    if (!common::esNumerico(campo->valor())) throw common::Fallo(13, "No coinciden los tipos");
    return common::textoANumero(campo->valor());
}

}  // namespace

PantallaFranjas::PantallaFranjas(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form406", "Franjas IRPF", padre) {
    auto* campos = new QFormLayout;
    const std::pair<const char*, QLineEdit*> filas[] = {
        {"Franja", franja}, {"Min", min}, {"Max", max}, {"Tasa", tasa}};
    for (const auto& [etiqueta, campo] : filas) {
        campo->setObjectName(QString(etiqueta).toLower());
        campo->setMaximumWidth(160);
        campos->addRow(etiqueta, campo);
    }
    grilla->setObjectName("grilla");
    // Un clic trae el número de la franja; doble clic o Enter la busca.
    grilla->llenarAlElegir({{1, franja}});
    connect(grilla, &QAbstractItemView::clicked, this, [this] {
        olvidarHallado({min, max, tasa});
    });
    connect(grilla, &ventana::Grilla::abrir, this, [this] { Buscar_Click(); });
    auto* todo = new QVBoxLayout(lienzo());
    todo->addLayout(campos);
    todo->addLayout(botonera({{Qt::Key_F1, "F1 Ayuda", [this] { ayuda(); }},
                              {Qt::Key_F2, "F2 Buscar", [this] { Buscar_Click(); }},
                              {Qt::Key_F3, "F3 Consultar", [this] { Consultar_Click(); }},
                              {Qt::Key_F5, "F5 Agregar", [this] { Agregar_Click(); }},
                              {Qt::Key_F7, "F7 Eliminar", [this] { Eliminar_Click(); }},
                              {Qt::Key_F8, "F8 Imprimir", [this] { Imprimir_Click(); }}}));
    todo->addWidget(grilla, 1);
    pedirTamano(560, 480);

    alPulsarEnter(franja, [this] {
        if (deQt(franja).empty()) {
            advertir("Debe completar el campo Franja.");
            return false;
        }
        Buscar_Click();
        return false;
    });
    for (const auto& [campo, mensaje] : {std::pair{min, "Debe completar el campo Min."},
                                         std::pair{max, "Debe completar el campo Max."}})
        alPulsarEnter(campo, [this, campo, mensaje] {
            if (!deQt(campo).empty()) return true;
            advertir(mensaje);
            return false;
        });
    limpiar();
    Consultar_Click();
}

void PantallaFranjas::Buscar_Click() {
    intentar("Buscar_Click", [this] {
        if (deQt(franja).empty()) return advertir("Debe completar el campo Franja.");
        const auto hallada = master::buscarFranja(base(), static_cast<long>(numero(franja)));
        habilitarSegunHallado(hallada.has_value());
        if (hallada) {
            min->setText(QString::fromStdString(common::numeroATexto(hallada->min)));
            max->setText(QString::fromStdString(common::numeroATexto(hallada->max)));
            tasa->setText(QString::fromStdString(common::numeroATexto(hallada->tasa)));
        } else {
            min->setFocus();
        }
    });
}

void PantallaFranjas::Consultar_Click() {
    intentar("Consultar_Click", [this] {
        std::vector<std::vector<std::string>> celdas;
        int n = 0;
        for (const auto& f : master::listarFranjas(base()))
            celdas.push_back({std::to_string(++n), std::to_string(f.franja),
                              common::formatear(f.min, "##,##0.00"),
                              common::formatear(f.max, "##,##0.00"),
                              common::formatear(f.tasa, "##,##0.00")});
        grilla->mostrar({"Nro", "Franja", "Min", "Max", "Tasa"}, celdas, {0, 1, 2, 3, 4});
    });
}

void PantallaFranjas::Agregar_Click() {
    if (!camposValidos()) return;
    intentar("Agregar_Click", [this] {
        if (const auto m =
                master::rechazoFranja(numero(franja), numero(min), numero(max), numero(tasa)))
            return advertir(*m);
        if (!confirmar("Agregar registro")) return;
        master::agregarFranja(
            base(), {static_cast<long>(numero(franja)), numero(min), numero(max), numero(tasa)});
        Consultar_Click();
        limpiar();
    });
}

void PantallaFranjas::Eliminar_Click() {
    intentar("Eliminar_Click", [this] {
        if (!confirmar("Eliminar registro")) return;
        master::eliminarFranja(base(), static_cast<long>(numero(franja)));
        Consultar_Click();
        limpiar();
    });
}

void PantallaFranjas::Imprimir_Click() {
    intentar("Imprimir_Click", [this] {
        imprimirInforme(master::lineasListaFranjas(master::listarFranjas(base())), "franjas");
    });
}

void PantallaFranjas::limpiar() {
    olvidarHallado({franja, min, max, tasa});
    franja->setFocus();
}

}  // namespace nomira::pantallas
