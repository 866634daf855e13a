#include "screens/empresas/pantalla_empresas.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include "frame/ventana/piezas.h"
#include "master/informe_empresas.h"
#include "screens/empresas/ficha_empresa.h"

namespace nomira::pantallas {

using ventana::accionConTecla;
using ventana::deQt;
using ventana::llevarListado;

PantallaEmpresas::PantallaEmpresas(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form2", "Empresas", padre) {
    empresa_ = new ventana::ComboCatalogo(sesion_, "",
                                          [this] { return master::nombresDeEmpresas(base()); });
    empresa_->setObjectName("Empresa");
    empresa_->setMinimumWidth(320);
    buscarPor_ = new QLineEdit;
    buscarPor_->setObjectName("BuscarPor");
    grilla_ = new ventana::Grilla;
    elegirCarpeta_ = [this] {
        return QFileDialog::getExistingDirectory(this, "Copiar empresas.txt a la carpeta");
    };

    auto* barra = new QToolBar;
    barra->setToolButtonStyle(Qt::ToolButtonTextOnly);
    const std::tuple<const char*, Qt::Key, void (PantallaEmpresas::*)()> acciones[] = {
        {"Buscar", Qt::Key_F2, &PantallaEmpresas::buscar},
        {"Consultar", Qt::Key_F3, &PantallaEmpresas::consultar},
        {"Agregar", Qt::Key_F5, &PantallaEmpresas::agregar},
        {"Modificar", Qt::Key_F6, &PantallaEmpresas::modificar},
        {"Eliminar", Qt::Key_F7, &PantallaEmpresas::eliminar},
        {"Imprimir", Qt::Key_F8, &PantallaEmpresas::imprimir},
        {"Copiar", Qt::Key_F9, &PantallaEmpresas::copiar},
    };
    for (const auto& [nombre, f, metodo] : acciones) {
        auto* a = accionConTecla(barra, nombre, f);
        connect(a, &QAction::triggered, this, metodo);
        tecla(QKeySequence(f), [this, metodo] { (this->*metodo)(); });
    }

    // Las claves de orden de la grilla.
    auto* claves = new QGroupBox("Ordenar por");
    auto* fila = new QGridLayout(claves);
    using O = master::OrdenEmpresas;
    const std::pair<const char*, O> ordenes[] = {
        {"Dirección", O::Direccion}, {"Teléfono", O::Telefono}, {"Actividad", O::Actividad},
        {"R.U.T.", O::Ruc},          {"B.P.S.", O::Bps},        {"TipoContrib", O::TipoContrib},
        {"TipoAport", O::TipoAport}, {"GrupoAct", O::GrupoAct}, {"SubGrupoAct", O::SubGrupoAct},
    };
    int i = 0;
    for (const auto& [texto, orden] : ordenes) {
        auto* b = new QPushButton(texto);
        b->setAutoDefault(false);
        b->setFocusPolicy(Qt::NoFocus);
        connect(b, &QPushButton::clicked, this, [this, orden] { ordenar(orden); });
        fila->addWidget(b, 0, i++);
    }

    auto* arriba = new QGridLayout;
    arriba->addWidget(new QLabel("Empresa"), 0, 0);
    arriba->addWidget(empresa_, 0, 1);
    arriba->addWidget(new QLabel("Buscar por"), 0, 2);
    arriba->addWidget(buscarPor_, 0, 3);
    arriba->setColumnStretch(1, 2);
    arriba->setColumnStretch(3, 1);
    alPulsarEnter(buscarPor_, [this] {
        if (deQt(buscarPor_->text()).empty()) {
            advertir("Debe completar el campo Buscar por.");
            return false;
        }
        ordenar(orden_);
        return false;
    });
    // Elegir una fila de la grilla elige la empresa.
    grilla_->llenarAlElegir({{1, empresa_}});
    // Doble clic o Enter la abre.
    connect(grilla_, &ventana::Grilla::abrir, this, [this] { buscar(); });

    auto* todo = new QVBoxLayout(lienzo());
    todo->addWidget(barra);
    todo->addLayout(arriba);
    todo->addWidget(claves);
    todo->addWidget(grilla_, 1);
    pedirTamano(1000, 560);
    intentar("Form_Load", [this] { desplegar(master::consultarEmpresas(base())); });
}

std::string PantallaEmpresas::nombre() const {
    return deQt(empresa_->currentText());
}

void PantallaEmpresas::desplegar(std::vector<master::Empresa> empresas) {
    mostradas_ = std::move(empresas);
    grilla_->mostrar(master::encabezadosGrillaEmpresas(), master::filasGrillaEmpresas(mostradas_),
                     {0, 2});
}

void PantallaEmpresas::consultar() {
    intentar("Consultar_Click", [this] { desplegar(master::consultarEmpresas(base())); });
}

void PantallaEmpresas::ordenar(master::OrdenEmpresas orden) {
    orden_ = orden;
    intentar("Buscar_Click", [this] {
        desplegar(master::consultarEmpresas(base(), orden_, deQt(buscarPor_->text())));
    });
}

void PantallaEmpresas::abrirFicha(const std::function<void(FichaEmpresa&)>& preparar) {
    if (ficha_) ficha_->close();
    ficha_ = new FichaEmpresa(sesion_, this);
    ficha_->setAttribute(Qt::WA_DeleteOnClose);
    connect(ficha_, &QObject::destroyed, this, [this] { ficha_ = nullptr; });
    // Después de guardar, la lista y la grilla muestran lo nuevo.
    connect(ficha_, &FichaEmpresa::guardada, this, [this] {
        empresa_->recargar();
        consultar();
    });
    preparar(*ficha_);
    ficha_->show();
}

void PantallaEmpresas::buscar() {
    intentar("Buscar_Click", [this] {
        const auto n = nombre();
        if (n.empty()) return advertir("Debe completar el campo Empresa.");
        if (auto e = master::leerEmpresa(base(), n))
            abrirFicha([&](FichaEmpresa& f) { f.cargar(*e, true, true); });
        else
            abrirFicha([&](FichaEmpresa& f) { f.nueva(n); });
    });
}

void PantallaEmpresas::agregar() {
    intentar("Agregar_Click", [this] {
        const auto n = nombre();
        if (n.empty()) return advertir("Debe completar el campo Empresa.");
        abrirFicha([&](FichaEmpresa& f) { f.nueva(n); });
    });
}

void PantallaEmpresas::modificar() {
    intentar("Modificar_Click", [this] {
        const auto e = master::leerEmpresa(base(), nombre());
        if (!e) return advertir("Debe seleccionar el campo Empresa.");
        abrirFicha([&](FichaEmpresa& f) { f.cargar(*e, true, false); });
    });
}

void PantallaEmpresas::eliminar() {
    intentar("Eliminar_Click", [this] {
        const auto e = master::leerEmpresa(base(), nombre());
        if (!e) return advertir("Debe seleccionar el campo Empresa.");
        abrirFicha([&](FichaEmpresa& f) { f.cargar(*e, false, true); });
    });
}

void PantallaEmpresas::imprimir() {
    intentar("Imprimir_Click",
             [this] { imprimirInforme(master::lineasListadoEmpresas(mostradas_), "empresas"); });
}

void PantallaEmpresas::copiar() {
    intentar("Copiar_Click", [this] {
        // GuardarOficial: la grilla en "<raíz>/Software/empresas.txt".
        llevarListado(master::lineasListadoEmpresas(mostradas_, ""), "empresas.txt",
                      elegirCarpeta_);
    });
}

}  // namespace nomira::pantallas
