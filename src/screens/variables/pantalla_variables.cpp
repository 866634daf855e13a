#include "screens/variables/pantalla_variables.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "common/fallo.h"
#include "common/formato.h"
#include "common/numeros.h"
#include "common/reloj.h"
#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/texto_qt.h"
#include "master/variables.h"

namespace nomira::pantallas {

using ventana::aQt;
using ventana::deQt;

const std::vector<InstanciaVariables>& instanciasVariables() {
    static const std::vector<InstanciaVariables> tabla = {
        {"Form400", "Definición de Variables (OTROS)", ""},
        {"Form401", "Definición de Variables (BPC)", "BPC"},
        {"Form402", "Definición de Variables (BFC)", "BFC"},
        {"Form403", "Definición de Var. (CUOTAMUTUALIC)", "CUOTAMUTUALIC"},
        {"Form404", "Definición de Var. (CUOTAMUTUALCO)", "CUOTAMUTUALCO"},
        {"Form405", "Definición de Var. (UR)", "UR"},
        {"Form409", "Definición de Variables (SALMIN)", "SALMIN"},
        {"Form410", "Definición de Var. (EXCLUSIONIRPF)", "EXCLUSIONIRPF"},
    };
    return tabla;
}

PantallaVariables::PantallaVariables(frame::Sesion& sesion, const InstanciaVariables& instancia,
                                     QWidget* padre)
    : Pantalla(sesion, instancia.formulario, instancia.titulo, padre), instancia_(instancia) {
    nombre->setObjectName("nombre");
    fecha->setObjectName("fecha");
    valor->setObjectName("valor");
    grilla->setObjectName("grilla");
    // Un clic trae el nombre y la fecha de la fila; doble clic o Enter la busca.
    grilla->llenarAlElegir({{1, nombre}, {2, fecha}});
    connect(grilla, &QAbstractItemView::clicked, this, [this] { olvidarHallado({valor}); });
    connect(grilla, &ventana::Grilla::abrir, this, [this] { Buscar_Click(); });
    auto* campos = new QFormLayout;
    campos->addRow("Nombre", nombre);
    campos->addRow("Fecha", fecha);
    campos->addRow("Valor", valor);
    valor->setMaximumWidth(160);

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

    alPulsarEnter(nombre, [this] { return CalculoFecha(); });
    alPulsarEnter(fecha, [this] {
        if (!fechaCompleta()) {
            advertir(
                "Debe completar el campo Nombre y los campos de tipo fecha deben tener el formato: "
                "dd/MM/aa.");
            return false;
        }
        Buscar_Click();
        return false;
    });

    // Una variable fija ya trae su nombre: se empieza por la fecha.
    if (*instancia_.variable) {
        nombre->setText(instancia_.variable);
        nombre->setReadOnly(true);
        fecha->setText(aQt(common::CalculaFecha(common::hoy())));
    }
    limpiar();
    Consultar_Click();
}

bool PantallaVariables::CalculoFecha() {
    if (deQt(nombre).empty()) {
        advertir("Debe completar el campo Nombre.");
        return false;
    }
    fecha->setText(aQt(common::CalculaFecha(common::hoy())));
    fecha->setFocus();
    return false;
}

bool PantallaVariables::fechaCompleta() {
    return !deQt(nombre).empty() && fecha->formatoValido(false);
}

void PantallaVariables::Buscar_Click() {
    intentar("Buscar_Click", [this] {
        if (deQt(nombre).empty() || deQt(fecha).empty())
            return advertir("Debe completar los campos Nombre y Fecha.");
        const auto f = common::Fecha::desdeTexto(deQt(fecha));
        if (!f) throw common::Fallo(13, "No coinciden los tipos");
        const auto hallado = master::buscarVariable(base(), deQt(nombre), *f);
        habilitarSegunHallado(hallado.has_value());
        if (hallado) {
            valor->setText(aQt(common::numeroATexto(*hallado)));
        } else {
            valor->clear();
            valor->setFocus();
        }
    });
}

void PantallaVariables::Consultar_Click() {
    intentar("Consultar_Click", [this] {
        const auto filas = *instancia_.variable
                               ? master::listarVariable(base(), instancia_.variable)
                               : master::listarOtrasVariables(base());
        std::vector<std::vector<std::string>> celdas;
        int n = 0;
        for (const auto& f : filas)
            celdas.push_back(
                {std::to_string(++n), f.nombre, f.fecha, common::formatear(f.valor, "##,##0.00")});
        grilla->mostrar({"Nro", "Nombre", "Fecha", "Valor"}, celdas, {0, 3});
    });
}

void PantallaVariables::Agregar_Click() {
    if (!camposValidos()) return;
    intentar("Agregar_Click", [this] {
        if (!confirmar("Agregar registro")) return;
        const auto f = common::Fecha::desdeTexto(deQt(fecha));
        // Valor pasa a moneda: vacío o sin número no es un importe.
        if (!f || !common::esNumerico(valor->valor()))
            throw common::Fallo(13, "No coinciden los tipos");
        master::agregarVariable(base(), deQt(nombre), *f, common::textoANumero(valor->valor()));
        Consultar_Click();
        limpiar();
    });
}

void PantallaVariables::Eliminar_Click() {
    intentar("Eliminar_Click", [this] {
        if (!confirmar("Eliminar registro")) return;
        const auto f = common::Fecha::desdeTexto(deQt(fecha));
        if (!f) throw common::Fallo(13, "No coinciden los tipos");
        master::eliminarVariable(base(), deQt(nombre), *f);
        Consultar_Click();
        limpiar();
    });
}

void PantallaVariables::Imprimir_Click() {
    intentar("Imprimir_Click", [this] {
        const auto filas = *instancia_.variable
                               ? master::listarVariable(base(), instancia_.variable)
                               : master::listarOtrasVariables(base());
        imprimirInforme(master::lineasListaVariables(filas), "variables");
    });
}

// Deja la pantalla como al abrirla: sin valor y con Agregar y Eliminar apagados.
void PantallaVariables::limpiar() {
    if (!*instancia_.variable) {
        nombre->clear();
        fecha->clear();
    }
    olvidarHallado({valor});
    (*instancia_.variable ? static_cast<QWidget*>(fecha) : nombre)->setFocus();
}

}  // namespace nomira::pantallas
