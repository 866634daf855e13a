#include "screens/conceptos/pantalla_conceptos.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <fstream>

#include "common/numeros.h"
#include "frame/carpeta.h"
#include "frame/ventana/texto_qt.h"
#include "screens/conceptos/pantalla_concepto.h"

namespace nomira::pantallas {

using ventana::deQt;

PantallaConceptos::PantallaConceptos(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form4", "Conceptos y Fórmulas", padre) {
    textoCodigo->setObjectName("codigo");
    textoCodigo->setMaximumWidth(100);
    buscarPor->setObjectName("buscarPor");
    criterio->setObjectName("criterio");
    for (const auto& c : master::criteriosBusquedaConceptos()) criterio->addItem(c.etiqueta);
    grilla->setObjectName("grilla");
    // Un clic trae el código; doble clic o Enter abre su ficha para modificarla.
    grilla->llenarAlElegir({{0, textoCodigo}});
    connect(grilla, &ventana::Grilla::abrir, this, [this] { abrirConcepto(1); });

    auto* campos = new QFormLayout;
    campos->addRow("Código", textoCodigo);
    auto* busca = new QHBoxLayout;
    busca->addWidget(criterio);
    busca->addWidget(buscarPor, 1);
    campos->addRow("Buscar por", busca);
    auto* todo = new QVBoxLayout(lienzo());
    todo->addLayout(campos);
    todo->addLayout(botonera({{Qt::Key_F1, "F1 Ayuda", [this] { ayuda(); }},
                              {Qt::Key_F2, "F2 Buscar", [this] { Buscar_Click(); }},
                              {Qt::Key_F3, "F3 Consultar", [this] { Consultar_Click(); }},
                              {Qt::Key_F5, "F5 Agregar", [this] { abrirConcepto(0); }},
                              {Qt::Key_F6, "F6 Modificar", [this] { abrirConcepto(1); }},
                              {Qt::Key_F7, "F7 Eliminar", [this] { abrirConcepto(2); }},
                              {Qt::Key_F8, "F8 Imprimir", [this] { Imprimir_Click(); }},
                              {Qt::Key_F9, "F9 Copiar", [this] { GuardarOficial(); }}}));
    todo->addWidget(grilla, 1);
    pedirTamano(980, 560);

    // Enter en el código muestra ese concepto.
    alPulsarEnter(textoCodigo, [this] {
        if (deQt(textoCodigo).empty()) {
            advertir("Debe completar el campo Código.");
            return false;
        }
        intentar("Buscar_Click", [this] {
            const auto c = master::leerConcepto(base(), codigo());
            Desplegar(c ? std::vector{*c} : std::vector<master::Concepto>{});
        });
        return true;
    });
    alPulsarEnter(buscarPor, [this] {
        Buscar_Click();
        return false;
    });
    Consultar_Click();
    textoCodigo->setFocus();
}

long PantallaConceptos::codigo() const {
    return static_cast<long>(common::textoANumero(deQt(textoCodigo)));
}

void PantallaConceptos::Buscar_Click() {
    intentar("Buscar_Click", [this] {
        if (deQt(buscarPor).empty()) return advertir("Debe completar el campo Buscar por.");
        const auto& c = master::criteriosBusquedaConceptos().at(criterio->currentIndex());
        Desplegar(master::buscarConceptos(base(), c.columna, deQt(buscarPor)));
    });
}

void PantallaConceptos::Consultar_Click() {
    intentar("Consultar_Click", [this] { Desplegar(master::listarConceptos(base())); });
}

void PantallaConceptos::Desplegar(const std::vector<master::Concepto>& conceptos) {
    std::vector<std::vector<std::string>> filas;
    for (const auto& c : conceptos)
        filas.push_back({c.codigo, c.concepto, c.especificode, c.formula, c.tipo, c.unidad,
                         c.permanente, c.gravado, c.aguinaldo, c.lic, c.ipd});
    grilla->mostrar({"Código", "Concepto", "Específico de", "Fórmula", "Tipo", "Unidad", "Perm.",
                     "Grav.", "Agui.", "Lic/Ipd.", "Irpf."},
                    filas, {0});
}

// 0 agregar, 1 modificar, 2 eliminar: Form41 con el botón de esa operación.
void PantallaConceptos::abrirConcepto(int modo) {
    const char* procedimientos[] = {"Agregar_Click", "Modificar_Click", "Eliminar_Click"};
    intentar(procedimientos[modo], [this, modo] {
        if (deQt(textoCodigo).empty()) return advertir("Debe completar el campo Código.");
        abrirHija(new PantallaConcepto(sesion_, codigo(), static_cast<ModoConcepto>(modo), this),
                  [this] { Consultar_Click(); });
    });
}

void PantallaConceptos::Imprimir_Click() {
    intentar("Imprimir_Click", [this] {
        imprimirInforme(master::lineasListaConceptos(master::listarConceptos(base())), "conceptos");
    });
}

void PantallaConceptos::GuardarOficial() {
    intentar("GuardarOficial", [this] {
        std::filesystem::create_directories(frame::rutaSoftware());
        std::ofstream archivo(frame::rutaSoftware("conceptos.txt"), std::ios::binary);
        for (const auto& l : master::lineasListaConceptos(master::listarConceptos(base())))
            archivo << l << "\r\n";
        if (!archivo) throw common::Fallo(75, "Error de acceso a la ruta o el archivo");
    });
}

}  // namespace nomira::pantallas
