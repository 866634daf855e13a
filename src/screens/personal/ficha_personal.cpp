#include "screens/personal/ficha_personal.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "frame/ventana/ventana_ayuda.h"
#include "master/empresas.h"

namespace nomira::pantallas {

FichaPersonal::FichaPersonal(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form31", "Datos del Personal", padre) {
    paginas_ = new QTabWidget;
    paginas_->setObjectName("paginas");
    paginas_->addTab(paginaPersonales(), "Datos Personales");
    paginas_->addTab(paginaPrimeraActividad(), "D.Lab. 1ra Act.");
    paginas_->addTab(paginaOtraActividad(1), "D.Lab. 2da Act.");
    paginas_->addTab(paginaOtraActividad(2), "D.Lab. 3ra Act.");
    paginas_->addTab(paginaConyuge(), "Datos Cónyuge");
    paginas_->addTab(paginaBeneficiarios(), "Datos Beneficiarios");
    paginas_->addTab(paginaDeducciones(), "Otras Deducciones");
    alPulsarEnter(nombre_, [this] { return enterNombre(nombre_, "Personal"); });

    auto* botones = botonera({{Qt::Key_F5, "F5 Agregar", [this] { agregar(); }},
                              {Qt::Key_F6, "F6 Modificar", [this] { modificar(); }},
                              {Qt::Key_F7, "F7 Eliminar", [this] { eliminar(); }},
                              {Qt::Key_F8, "F8 Imprimir", [this] { imprimir(); }}});
    tecla(QKeySequence(Qt::Key_F1), [this] { ayuda(); });
    auto* salir = new QPushButton("Salir");
    salir->setAutoDefault(false);
    connect(salir, &QPushButton::clicked, this, &QWidget::close);
    botones->addWidget(salir);
    auto* todo = new QVBoxLayout(this);
    todo->addWidget(paginas_);
    todo->addLayout(botones);
    // Los botones son hijos de la pantalla recién ahora, con la capa puesta.
    agregar_ = boton("Agregar");
    modificar_ = boton("Modificar");
    eliminar_ = boton("Eliminar");
    imprimir_ = boton("Imprimir");
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
