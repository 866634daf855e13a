#include "screens/obras/pantalla_obras.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>

#include "frame/ventana/piezas.h"
#include "master/empresas.h"
#include "master/obras.h"
#include "screens/obras/ficha_obra.h"

namespace nomira::pantallas {

using ventana::accionConTecla;
using ventana::deQt;
using ventana::llevarListado;

PantallaObras::PantallaObras(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form291", "Obras", padre) {
    empresa_ = new ventana::ComboCatalogo(sesion_, "",
                                          [this] { return master::nombresDeEmpresas(base()); });
    empresa_->setObjectName("Empresa");
    empresa_->setMinimumWidth(320);
    nroObra_ = new QComboBox;
    nroObra_->setObjectName("NroObra");
    nroObra_->setEditable(true);
    nroObra_->setInsertPolicy(QComboBox::NoInsert);
    nroObra_->setMinimumWidth(140);
    grilla_ = new ventana::Grilla;
    elegirCarpeta_ = [this] {
        return QFileDialog::getExistingDirectory(this, "Copiar obras.txt a la carpeta");
    };

    auto* barra = new QToolBar;
    barra->setToolButtonStyle(Qt::ToolButtonTextOnly);
    const std::tuple<const char*, Qt::Key, void (PantallaObras::*)()> acciones[] = {
        {"Buscar", Qt::Key_F2, &PantallaObras::buscar},
        {"Consultar", Qt::Key_F3, &PantallaObras::consultar},
        {"Agregar", Qt::Key_F5, &PantallaObras::agregar},
        {"Modificar", Qt::Key_F6, &PantallaObras::modificar},
        {"Eliminar", Qt::Key_F7, &PantallaObras::eliminar},
        {"Imprimir", Qt::Key_F8, &PantallaObras::imprimir},
        {"Copiar", Qt::Key_F9, &PantallaObras::copiar},
    };
    for (const auto& [nombre, f, metodo] : acciones) {
        auto* a = accionConTecla(barra, nombre, f);
        connect(a, &QAction::triggered, this, metodo);
        tecla(QKeySequence(f), [this, metodo] { (this->*metodo)(); });
    }

    auto* arriba = new QGridLayout;
    arriba->addWidget(new QLabel("Empresa"), 0, 0);
    arriba->addWidget(empresa_, 0, 1);
    arriba->addWidget(new QLabel("NroObra"), 0, 2);
    arriba->addWidget(nroObra_, 0, 3);
    arriba->setColumnStretch(1, 1);
    // Elegida la empresa, sus obras.
    alPulsarEnter(empresa_, [this] {
        cargarNroObra();
        consultar();
        return true;
    });
    connect(empresa_, &QComboBox::activated, this, [this] {
        cargarNroObra();
        consultar();
    });
    grilla_->llenarAlElegir({{0, nroObra_}});
    // Doble clic o Enter la abre.
    connect(grilla_, &ventana::Grilla::abrir, this, [this] { buscar(); });

    auto* todo = new QVBoxLayout(lienzo());
    todo->addWidget(barra);
    todo->addLayout(arriba);
    todo->addWidget(grilla_, 1);
    pedirTamano(760, 420);
}

std::string PantallaObras::textoEmpresa() const {
    return deQt(empresa_->currentText());
}
std::string PantallaObras::textoObra() const {
    return deQt(nroObra_->currentText());
}

void PantallaObras::cargarNroObra() {
    intentar("CargarNroObra", [this] {
        const auto escrito = nroObra_->currentText();
        nroObra_->clear();
        const auto numeros = master::numerosDeObra(base(), textoEmpresa());
        for (const auto& n : numeros) nroObra_->addItem(QString::fromStdString(n));
        nroObra_->setCurrentText(escrito);
        for (const auto& n : master::numerosRepetidos(numeros))
            advertir("El NroObra " + n +
                     " está ingresado 2 veces, deberá cambiar uno de los 2 ya que el NroObra debe "
                     "ser único.");
    });
}

void PantallaObras::consultar() {
    intentar("Consultar_Click", [this] {
        if (textoEmpresa().empty()) return advertir("Debe completar el campo Empresa.");
        std::vector<std::vector<std::string>> filas;
        for (const auto& o : master::obrasDeEmpresa(base(), textoEmpresa()))
            filas.push_back({o.nroobra, master::textoFormaRealizacion(o.formarealizacion),
                             o.actprincipal, o.empresatitular, o.direccion, o.telefono, o.bps,
                             o.ruc});
        grilla_->mostrar({"NroObra", "Real.Obra", "Act.Principal", "EmpTitular", "Dirección",
                          "Teléfono", "B.P.S.", "R.U.T."},
                         filas);
    });
}

FichaObra* PantallaObras::abrirFicha() {
    if (ficha_) ficha_->close();
    ficha_ = new FichaObra(sesion_, this);
    ficha_->setAttribute(Qt::WA_DeleteOnClose);
    connect(ficha_, &QObject::destroyed, this, [this] { ficha_ = nullptr; });
    connect(ficha_, &FichaObra::agregada, this, [this](const QString& nro) {
        nroObra_->addItem(nro);
        nroObra_->setCurrentText(nro);
        consultar();
    });
    connect(ficha_, &FichaObra::eliminada, this, [this](const QString& nro) {
        if (const int i = nroObra_->findText(nro); i >= 0) nroObra_->removeItem(i);
        nroObra_->setCurrentText("");
        consultar();
    });
    connect(ficha_, &FichaObra::modificada, this, &PantallaObras::consultar);
    return ficha_;
}

void PantallaObras::agregar() {
    intentar("Agregar_Click", [this] {
        if (textoEmpresa().empty()) return advertir("Debe completar el campo Empresa.");
        if (!master::aportaPorConstruccion(base(), textoEmpresa()))
            return advertir("Las obras se cargan solamente para el rubro Construcción.");
        master::Obra o;
        o.empresa = textoEmpresa();
        auto* f = abrirFicha();
        f->preparar(OperacionObra::Agregar, o);
        f->show();
    });
}

void PantallaObras::modificar() {
    intentar("Modificar_Click", [this] {
        if (textoEmpresa().empty()) return advertir("Debe completar el campo Empresa.");
        const auto o = master::leerObra(base(), textoEmpresa(), textoObra());
        if (!o) return advertir("Debe seleccionar el campo NroObra.");
        auto* f = abrirFicha();
        f->preparar(OperacionObra::Modificar, *o);
        f->show();
    });
}

void PantallaObras::eliminar() {
    intentar("Eliminar_Click", [this] {
        if (textoEmpresa().empty()) return advertir("Debe completar el campo Empresa.");
        const auto o = master::leerObra(base(), textoEmpresa(), textoObra());
        if (!o) return advertir("Debe seleccionar el campo NroObra.");
        auto* f = abrirFicha();
        f->preparar(OperacionObra::Eliminar, *o);
        f->show();
    });
}

void PantallaObras::buscar() {
    intentar("Buscar_Click", [this] {
        if (textoEmpresa().empty() || textoObra().empty())
            return advertir("Debe completar los campos Empresa y NroObra.");
        if (!master::leerEmpresa(base(), textoEmpresa()))
            return advertir("No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.");
        if (const auto o = master::leerObra(base(), textoEmpresa(), textoObra())) {
            auto* f = abrirFicha();
            f->preparar(OperacionObra::Consultar, *o);
            f->show();
            return;
        }
        if (!master::aportaPorConstruccion(base(), textoEmpresa()))
            return advertir("Las obras se cargan solamente para el rubro Construcción.");
        master::Obra nueva;
        nueva.empresa = textoEmpresa();
        nueva.nroobra = textoObra();
        auto* f = abrirFicha();
        f->preparar(OperacionObra::Agregar, nueva);
        f->show();
    });
}

void PantallaObras::imprimir() {
    intentar("Imprimir_Click", [this] {
        if (textoEmpresa().empty()) return advertir("Debe completar el campo Empresa.");
        imprimirInforme(master::lineasListadoObras(textoEmpresa(),
                                                   master::obrasDeEmpresa(base(), textoEmpresa())),
                        "obras");
    });
}

void PantallaObras::copiar() {
    intentar("Copiar_Click", [this] {
        if (textoEmpresa().empty()) return advertir("Debe completar el campo Empresa.");
        // GuardarOficial: la lista en "<raíz>/Software/obras.txt", luego a la carpeta elegida.
        llevarListado(master::lineasListadoObras(textoEmpresa(),
                                                 master::obrasDeEmpresa(base(), textoEmpresa())),
                      "obras.txt", elegirCarpeta_);
    });
}

}  // namespace nomira::pantallas
