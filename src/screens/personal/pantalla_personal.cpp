#include "screens/personal/pantalla_personal.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <fstream>

#include "common/reloj.h"
#include "frame/carpeta.h"
#include "frame/ventana/impresion.h"
#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/texto_qt.h"
#include "frame/ventana/ventana_ayuda.h"
#include "master/configuracion.h"
#include "master/empresas.h"

namespace nomira::pantallas {

using ventana::aQt;

namespace {

using O = master::OrdenPersonal;

// Las claves de la grilla, con el procedimiento de siempre de cada una.
const std::pair<const char*, O> kClaves[] = {
    {"Nombre", O::Nombre},       {"Fecha Nac.", O::FechaNac}, {"Documento", O::Documento},
    {"Fecha Ing.", O::FechaIng}, {"Categoría", O::Categoria}, {"Tipo de Rem.", O::TipoRem},
    {"Fecha Eg.", O::FechaEg},   {"Seg. Salud", O::SegSalud}, {"FSueVig", O::FSueVig}};

}  // namespace

PantallaPersonal::PantallaPersonal(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form3", "Personal", padre) {
    empresa_ = new QComboBox;
    empresa_->setObjectName("empresa");
    empresa_->setEditable(true);
    empresa_->setInsertPolicy(QComboBox::NoInsert);
    empresa_->addItem("");
    intentar("Form_Load", [this] {
        for (const auto& e : master::nombresDeEmpresas(base())) empresa_->addItem(aQt(e));
    });
    empresa_->setCurrentText("");
    nombre_ = new QComboBox;
    nombre_->setObjectName("nombre");
    nombre_->setEditable(true);
    nombre_->setInsertPolicy(QComboBox::NoInsert);
    connect(empresa_, &QComboBox::currentTextChanged, this, [this] { cargarNombres(); });
    activos_ = new ventana::GrupoOpciones("", {{"Activos", "Activos"}, {"Todos", "Todos"}});
    activos_->setObjectName("activos");
    clave_ = new QComboBox;
    clave_->setObjectName("buscarPorClave");
    clave_->addItem("");
    for (const auto& [texto, orden] : kClaves) clave_->addItem(texto);
    connect(clave_, &QComboBox::activated, this, [this] { ordenar(); });
    buscarPor_ = new QLineEdit;
    buscarPor_->setObjectName("buscarPor");
    alPulsarEnter(buscarPor_, [this] {
        ordenar();
        return false;
    });
    grilla_ = new ventana::Grilla;
    grilla_->setObjectName("grilla");
    // Un clic trae el nombre; doble clic o Enter abre la ficha.
    grilla_->llenarAlElegir({{1, nombre_}});
    connect(grilla_, &ventana::Grilla::abrir, this, [this] { buscar(); });

    auto* campos = new QGridLayout;
    campos->addWidget(new QLabel("Empresa"), 0, 0);
    campos->addWidget(empresa_, 0, 1);
    campos->addWidget(new QLabel("Nombre del Personal"), 1, 0);
    campos->addWidget(nombre_, 1, 1);
    campos->addWidget(activos_, 0, 2, 2, 1);
    campos->addWidget(new QLabel("Buscar por"), 2, 0);
    auto* busca = new QHBoxLayout;
    busca->addWidget(clave_);
    busca->addWidget(buscarPor_, 1);
    campos->addLayout(busca, 2, 1, 1, 2);
    campos->setColumnStretch(1, 1);

    auto* botones = botonera({{Qt::Key_F1, "F1 Ayuda", [this] { ayuda(); }},
                              {Qt::Key_F2, "F2 Buscar", [this] { buscar(); }},
                              {Qt::Key_F3, "F3 Consultar", [this] { consultar(); }},
                              {Qt::Key_F5, "F5 Agregar", [this] { agregar(); }},
                              {Qt::Key_F6, "F6 Modificar", [this] { buscar(); }},
                              {Qt::Key_F7, "F7 Eliminar", [this] { buscar(); }},
                              {Qt::Key_F8, "F8 Imprimir", [this] { imprimir(); }},
                              {Qt::Key_F9, "F9 Copiar", [this] { guardarOficial(); }}});
    auto* todo = new QVBoxLayout(lienzo());
    todo->addLayout(campos);
    todo->addLayout(botones);
    todo->addWidget(grilla_, 1);
    pedirTamano(980, 600);
}

std::string PantallaPersonal::empresa() const {
    return empresa_->currentText().trimmed().toStdString();
}

void PantallaPersonal::cargarNombres() {
    intentar("CargarNombredelPersonal", [this] {
        const auto escrito = nombre_->currentText();
        nombre_->clear();
        nombre_->addItem("");
        for (const auto& n : master::nombresDelPersonal(base(), empresa()))
            nombre_->addItem(aQt(n));
        nombre_->setCurrentText(escrito);
    });
}

void PantallaPersonal::consultar() {
    intentar("Consultar_Click", [this] {
        if (empresa().empty()) return advertir("Debe completar el campo Empresa.");
        master::ConsultaPersonal c{empresa(), activos_->valor() == "Activos", orden_,
                                   buscarPor_->text().trimmed().toStdString()};
        listados_ = master::consultarPersonal(base(), c, common::hoy());
        grilla_->mostrar(master::encabezadosListado(), master::filasListado(listados_), {0});
    });
}

void PantallaPersonal::ordenar() {
    const auto i = clave_->currentIndex();
    orden_ = i <= 0 ? O::NroFun : kClaves[i - 1].second;
    consultar();
}

FichaPersonal* PantallaPersonal::abrirFicha() {
    if (!ficha_) {
        ficha_ = new FichaPersonal(sesion_, this);
        ficha_->setAttribute(Qt::WA_DeleteOnClose);
        ficha_->alCambiarNombres = [this](const std::string&, bool) {
            cargarNombres();
            if (grilla_->filas() > 0) consultar();
        };
    }
    ficha_->show();
    ficha_->raise();
    return ficha_;
}

void PantallaPersonal::buscar() {
    intentar("Buscar_Click", [this] {
        const auto nombre = nombre_->currentText().trimmed().toStdString();
        if (empresa().empty() || nombre.empty())
            return advertir("Debe completar los campos Empresa y Nombre del Personal.");
        if (!master::leerEmpresa(base(), empresa()))
            return advertir("No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.");
        auto* ficha = abrirFicha();
        if (!ficha->abrir(empresa(), nombre)) ficha->nueva(empresa(), nombre);
    });
}

void PantallaPersonal::agregar() {
    intentar("Agregar_Click", [this] {
        if (empresa().empty()) return advertir("Debe completar el campo Empresa.");
        abrirFicha()->nueva(empresa(), nombre_->currentText().trimmed().toStdString());
    });
}

void PantallaPersonal::imprimir() {
    intentar("Imprimir_Click", [this] {
        const auto destino =
            ventana::destinoDe(master::leerConfiguracion(base()), ventana::UsoImpresora::Informes);
        ventana::imprimirLineas(master::lineasListado(empresa(), listados_), destino, "personal",
                                dialogo());
    });
}

void PantallaPersonal::guardarOficial() {
    intentar("GuardarOficial", [this] {
        const auto ruta = frame::rutaSoftware("personal.txt");
        std::filesystem::create_directories(ruta.parent_path());
        std::ofstream f(ruta, std::ios::binary);
        for (const auto& linea : master::lineasListado(empresa(), listados_)) f << linea << "\n";
        if (!f) throw common::Fallo(75, "Error de acceso a la ruta o el archivo: " + ruta.string());
    });
}

}  // namespace nomira::pantallas
