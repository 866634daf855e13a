#include "screens/personal/ficha_personal.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "frame/ventana/texto_qt.h"
#include "master/empresas.h"
#include "screens/personal/pagina_actividad.h"
#include "screens/personal/pagina_beneficiarios.h"
#include "screens/personal/pagina_conyuge.h"
#include "screens/personal/pagina_deducciones.h"
#include "screens/personal/pagina_otra_actividad.h"
#include "screens/personal/pagina_personales.h"

namespace nomira::pantallas {

using ventana::aQt;

FichaPersonal::FichaPersonal(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form31", "Datos del Personal", padre), campos_(*this, sesion) {
    personales_ = new PaginaPersonales(campos_);
    primera_ = new PaginaActividad(campos_);
    auto referencias = [this] { return primera_->referencias(); };
    auto* segunda = new PaginaOtraActividad(campos_, 2, referencias);
    auto* tercera = new PaginaOtraActividad(campos_, 3, referencias);
    actividades_ = {&primera_->actividad, &segunda->actividad, &tercera->actividad};
    paginas_ = new QTabWidget;
    paginas_->setObjectName("paginas");
    const std::pair<PaginaFicha*, const char*> paginas[] = {
        {personales_, "Datos Personales"},
        {primera_, "D.Lab. 1ra Act."},
        {segunda, "D.Lab. 2da Act."},
        {tercera, "D.Lab. 3ra Act."},
        {new PaginaConyuge(campos_), "Datos Cónyuge"},
        {new PaginaBeneficiarios(campos_), "Datos Beneficiarios"},
        {new PaginaDeducciones(campos_), "Otras Deducciones"}};
    for (auto [pagina, titulo] : paginas) {
        paginas_->addTab(pagina, titulo);
        todas_.push_back(pagina);
    }
    auto* nombre = personales_->nombre;
    alPulsarEnter(nombre, [this, nombre] { return campos_.enterNombre(nombre, "Personal"); });

    auto* botones = botonera({{Qt::Key_F5, "F5 Agregar", [this] { agregar(); }},
                              {Qt::Key_F6, "F6 Modificar", [this] { modificar(); }},
                              {Qt::Key_F7, "F7 Eliminar", [this] { eliminar(); }},
                              {Qt::Key_F8, "F8 Imprimir", [this] { imprimir(); }}});
    auto* salir = new QPushButton("Salir");
    salir->setObjectName("Salir");
    salir->setAutoDefault(false);
    connect(salir, &QPushButton::clicked, this, &QWidget::close);
    botones->addWidget(salir);
    auto* todo = new QVBoxLayout(lienzo());
    todo->addWidget(paginas_);
    todo->addLayout(botones);
    // Los botones son hijos de la pantalla recién ahora, con la capa puesta.
    agregar_ = boton("Agregar");
    modificar_ = boton("Modificar");
    eliminar_ = boton("Eliminar");
    imprimir_ = boton("Imprimir");
    hacerFicha();
    limpiar();
    ponerModo(false);
}

master::Persona FichaPersonal::juntar() const {
    master::Persona p;
    campos_.juntar(p);
    for (const auto* pagina : todas_) pagina->volcar(p);
    return p;
}

void FichaPersonal::mostrar(const master::Persona& p) {
    campos_.mostrar(p);
    for (auto* pagina : todas_) pagina->cargar(p);
}

void FichaPersonal::leerConsejo(const std::string& empresa) {
    if (const auto e = master::leerEmpresa(base(), empresa)) {
        campos_.grupo = e->grupoconsal;
        campos_.subgrupo = e->subgrupoconsal;
    }
}

void FichaPersonal::recargarSectores() {
    for (auto* a : actividades_) a->recargarSector();
}

void FichaPersonal::nueva(const std::string& empresa, const std::string& nombre) {
    intentar("Form_Load", [&] {
        limpiar();
        personales_->empresa->setText(aQt(empresa));
        personales_->nombre->setText(aQt(nombre));
        leerConsejo(empresa);
        recargarSectores();
        personales_->nrofun->setText(aQt(master::proponerNrofun(base(), empresa)));
        personales_->nroord->setText(aQt(master::proponerNroord(base(), empresa)));
        ponerModo(false);
    });
}

bool FichaPersonal::abrir(const std::string& empresa, const std::string& nombre) {
    bool hay = false;
    intentar("CargarText", [&] {
        const auto p = master::leerPersona(base(), empresa, nombre);
        if (!p) return;
        leerConsejo(empresa);
        limpiar();
        recargarSectores();
        mostrar(*p);
        for (auto* a : actividades_) a->recargarCategoria();
        ponerModo(true);
        hay = true;
    });
    return hay;
}

void FichaPersonal::limpiar() {
    mostrar(master::Persona{});
    primera_->deshacer->ponerValor("0");
    paginas_->setCurrentIndex(0);
}

// Nueva: sólo Agregar. Guardada: Modificar, Eliminar e Imprimir, y el nombre no
// se cambia aquí (eso es de Reemplazar nombre del personal).
void FichaPersonal::ponerModo(bool existente) {
    agregar_->setEnabled(!existente);
    modificar_->setEnabled(existente);
    eliminar_->setEnabled(existente);
    imprimir_->setEnabled(existente);
    personales_->nombre->setReadOnly(existente);
}

}  // namespace nomira::pantallas
