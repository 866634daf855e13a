#include "screens/personal/ficha_personal.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "frame/ventana/ventana_ayuda.h"
#include "master/empresas.h"

namespace nomira::pantallas {

FichaPersonal::FichaPersonal(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form31", "Datos del Personal", padre) {
    paginas_ = new QTabWidget;
    paginas_->setObjectName("TabStrip1");
    paginas_->addTab(paginaPersonales(), "Datos Personales");
    paginas_->addTab(paginaPrimeraActividad(), "D.Lab. 1ra Act.");
    paginas_->addTab(paginaOtraActividad(1), "D.Lab. 2da Act.");
    paginas_->addTab(paginaOtraActividad(2), "D.Lab. 3ra Act.");
    paginas_->addTab(paginaConyuge(), "Datos Cónyuge");
    paginas_->addTab(paginaBeneficiarios(), "Datos Beneficiarios");
    paginas_->addTab(paginaDeducciones(), "Otras Deducciones");
    alPulsarEnter(nombre_, [this] { return enterNombre(nombre_, "Personal"); });

    auto boton = [this](const char* nombre, const char* texto, void (FichaPersonal::*accion)()) {
        auto* b = new QPushButton(texto);
        b->setObjectName(nombre);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, accion);
        return b;
    };
    agregar_ = boton("Agregar", "F5 Agregar", &FichaPersonal::agregar);
    modificar_ = boton("Modificar", "F6 Modificar", &FichaPersonal::modificar);
    eliminar_ = boton("Eliminar", "F7 Eliminar", &FichaPersonal::eliminar);
    imprimir_ = boton("Imprimir", "F8 Imprimir", &FichaPersonal::imprimir);
    auto* salir = new QPushButton("Salir");
    salir->setAutoDefault(false);
    connect(salir, &QPushButton::clicked, this, &QWidget::close);
    // Las teclas valen sólo cuando su botón está habilitado, como el botón mismo.
    for (auto [tecla, b] : {std::pair{Qt::Key_F5, agregar_},
                            {Qt::Key_F6, modificar_},
                            {Qt::Key_F7, eliminar_},
                            {Qt::Key_F8, imprimir_}})
        this->tecla(QKeySequence(tecla), [b] {
            if (b->isEnabled()) b->click();
        });
    tecla(QKeySequence(Qt::Key_F1), [this] { (new ventana::VentanaAyuda(this))->show(); });

    auto* botones = new QHBoxLayout;
    for (auto* b : {agregar_, modificar_, eliminar_, imprimir_}) botones->addWidget(b);
    botones->addStretch();
    botones->addWidget(salir);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(paginas_);
    todo->addLayout(botones);
    resize(1000, 640);
    ponerModo(false);
}

void FichaPersonal::nueva(const std::string& empresa, const std::string& nombre) {
    intentar("Form_Load", [&] {
        limpiar();
        empresa_->setText(QString::fromStdString(empresa));
        nombre_->setText(QString::fromStdString(nombre));
        if (const auto e = master::leerEmpresa(base(), empresa)) {
            grupo_ = e->grupoconsal;
            subgrupo_ = e->subgrupoconsal;
        }
        for (auto& a : actividades_) a.sector->recargar();
        nrofun_->setText(QString::fromStdString(master::proponerNrofun(base(), empresa)));
        nroord_->setText(QString::fromStdString(master::proponerNroord(base(), empresa)));
        ponerModo(false);
    });
}

bool FichaPersonal::abrir(const std::string& empresa, const std::string& nombre) {
    bool hay = false;
    intentar("CargarText", [&] {
        const auto p = master::leerPersona(base(), empresa, nombre);
        if (!p) return;
        if (const auto e = master::leerEmpresa(base(), empresa)) {
            grupo_ = e->grupoconsal;
            subgrupo_ = e->subgrupoconsal;
        }
        limpiar();
        for (auto& a : actividades_) a.sector->recargar();
        mostrar(*p);
        for (auto& a : actividades_) a.categoria->recargar();
        ponerModo(true);
        hay = true;
    });
    return hay;
}

void FichaPersonal::limpiar() {
    mostrar(master::Persona{});
    deshacer_->ponerValor("0");
    paginas_->setCurrentIndex(0);
}

// Nueva: sólo Agregar. Guardada: Modificar, Eliminar e Imprimir, y el nombre no
// se cambia aquí (eso es de Reemplazar nombre del personal).
void FichaPersonal::ponerModo(bool existente) {
    agregar_->setEnabled(!existente);
    modificar_->setEnabled(existente);
    eliminar_->setEnabled(existente);
    imprimir_->setEnabled(existente);
    nombre_->setReadOnly(existente);
}

}  // namespace nomira::pantallas
