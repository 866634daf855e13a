#include "screens/empresas/ficha_empresa.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "frame/ventana/campo_numero.h"
#include "frame/ventana/piezas.h"
#include "master/catalogos.h"
#include "master/informe_empresas.h"

namespace nomira::pantallas {

using ventana::aQt;
using ventana::botonConTecla;
using ventana::deQt;

namespace {

std::string textoDe(const QWidget* w) {
    if (auto* e = qobject_cast<const QLineEdit*>(w)) return deQt(e->text());
    if (auto* c = qobject_cast<const QComboBox*>(w)) return deQt(c->currentText());
    return "";
}

void ponerTexto(QWidget* w, const std::string& texto) {
    if (auto* e = qobject_cast<QLineEdit*>(w)) e->setText(aQt(texto));
    if (auto* c = qobject_cast<QComboBox*>(w)) c->setCurrentText(aQt(texto));
}

}  // namespace

FichaEmpresa::FichaEmpresa(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form21", "Empresa", padre) {
    intentar("Form_Load", [this] {
        armar();
        nueva("");
    });
}

ventana::ComboCatalogo* FichaEmpresa::catalogo(const char* columna, const char* formulario,
                                               const char* tabla, const char* columnaMadre) {
    // Las listas que dependen de otra buscan con Like '*texto': la empresa guarda
    // el texto sin código de la madre.
    auto cargador = [this, tabla, columnaMadre] {
        master::FiltrosCatalogo filtros;
        if (columnaMadre) filtros.emplace_back("nombre", textoDe(campos_.at(columnaMadre)));
        return master::textosCatalogo(base(), tabla, filtros);
    };
    auto* combo = new ventana::ComboCatalogo(sesion_, formulario, cargador);
    combo->setMinimumWidth(200);
    campos_[columna] = combo;
    if (columnaMadre) {
        auto* madre = qobject_cast<ventana::ComboCatalogo*>(campos_.at(columnaMadre));
        alPulsarEnter(madre, [combo] {
            combo->recargar();
            return true;
        });
        connect(madre, &QComboBox::activated, combo,
                [this, combo] { intentar("KeyPress", [combo] { combo->recargar(); }); });
    }
    return combo;
}

void FichaEmpresa::armar() {
    auto texto = [this](const char* columna) {
        auto* e = new QLineEdit;
        e->setMinimumWidth(200);
        campos_[columna] = e;
        return e;
    };
    auto entero = [this](const char* columna) {
        auto* e = new ventana::CampoNumero(ventana::ClaseNumero::Entero);
        e->setMinimumWidth(200);
        campos_[columna] = e;
        return e;
    };
    auto fecha = [this](const char* columna) {
        auto* f = new ventana::CampoFecha;
        campos_[columna] = f;
        alPulsarEnter(f, [this, f] {
            if (f->formatoValido()) return true;
            advertir(ventana::kFormatoFecha);
            return false;
        });
        return f;
    };
    auto grupo = [](const QString& titulo) {
        auto* g = new QGroupBox(titulo);
        auto* f = new QFormLayout(g);
        f->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        return std::make_pair(g, f);
    };

    // Los campos se crean en el orden del registro: así avanza Enter.
    auto [datos, d] = grupo("Empresa");
    d->addRow("Empresa", texto("empresa"));
    d->addRow("NroEmp", entero("nroemp"));
    d->addRow("Dirección", texto("direccion"));
    d->addRow("Teléfono", texto("telefono"));
    d->addRow("Fax", texto("fax"));
    d->addRow("e-mail", texto("mail"));
    d->addRow("Departamento", catalogo("depto", "Form26", "depto"));
    d->addRow("Localidad", catalogo("localidad", "Form27", "local", "depto"));
    alPulsarEnter(campos_.at("localidad"), [this] {
        buscarCodigoPostal();
        return true;
    });
    d->addRow("C.Post.", texto("codpostal"));
    d->addRow("Actividad", texto("actividad"));
    d->addRow("R.U.T.", texto("ruc"));
    d->addRow("B.P.S.", texto("bps"));
    d->addRow("B.S.E./PIN FOCER", texto("bse"));
    d->addRow("M.T.S.S.", texto("mtss"));
    d->addRow("Fecha Inscrip.", fecha("fechainsc"));
    d->addRow("Inicio Activid.", fecha("fechainiact"));

    auto [clase, c] = grupo("Aportación y grupos");
    c->addRow("Tipo Contribuyente", catalogo("tipocontrib", "Form22", "tipocontrib"));
    c->addRow("Tipo Aportación", catalogo("tipoaport", "Form23", "tipoaport"));
    c->addRow("Grupo Act. M.T.S.S.", catalogo("grupoact", "Form24", "grupoact"));
    c->addRow("Sub Grupo M.T.S.S.", catalogo("subgrupoact", "Form25", "subgrupoact", "grupoact"));
    c->addRow("Grupo Con. Salarios", catalogo("grupoconsal", "Form29", "grupoconsal"));
    // El subgrupo va junto a su grupo, aunque en la fila sea la última columna.
    c->addRow("Sub Grupo Con. Sal.",
              catalogo("subgrupoconsal", "Form290", "subgrupoconsal", "grupoconsal"));
    c->addRow("Persona de Contacto", texto("perscont"));

    auto [sucursales, su] = grupo("Sucursales");
    su->addRow("Dirección Sucursal 1", texto("direccionsuc2"));
    su->addRow("Grupo Con. Sal. S1", catalogo("deptosuc2", "Form29", "grupoconsal"));
    su->addRow("Sub G. Con. Sal. S1",
               catalogo("locsuc2", "Form290", "subgrupoconsal", "deptosuc2"));
    su->addRow("Dirección Sucursal 2", texto("direccionsuc3"));
    su->addRow("Grupo Con. Sal. S2", catalogo("deptosuc3", "Form29", "grupoconsal"));
    su->addRow("Sub G. Con. Sal. S2",
               catalogo("locsuc3", "Form290", "subgrupoconsal", "deptosuc3"));

    auto [otros, o] = grupo("Otros datos");
    o->addRow("Exon.", texto("exon"));
    auto* representante = new ventana::ComboCatalogo(sesion_, "", [this] {
        return master::nombresDelPersonal(base(), textoDe(campos_.at("empresa")));
    });
    representante->setMinimumWidth(200);
    campos_["persrep"] = representante;
    o->addRow("Persona Representante", representante);
    o->addRow("Conv. Banco", texto("seccional"));
    central_ = ventana::GrupoOpciones::siNo("");
    central_->setFlat(true);
    o->addRow("Cent.Plan.", central_);

    auto [cierres, ci] = grupo("Feriados y cierres de las sucursales");
    ci->addRow("Feriado P.1", fecha("fechainiact2"));
    ci->addRow("F.Cierre S1", fecha("fechafinact2"));
    ci->addRow("Est.S1", texto("estado2"));
    ci->addRow("Feriado P.2", fecha("fechainiact3"));
    ci->addRow("F.Cierre S2", fecha("fechafinact3"));
    ci->addRow("Est.S2", texto("estado3"));

    auto* botones = new QHBoxLayout;
    botones->addStretch();
    const std::pair<const char*, Qt::Key> acciones[] = {{"Agregar", Qt::Key_F5},
                                                        {"Modificar", Qt::Key_F6},
                                                        {"Eliminar", Qt::Key_F7},
                                                        {"Imprimir", Qt::Key_F8}};
    for (const auto& [nombre, f] : acciones) {
        auto* b = botonConTecla(nombre, f);
        botones_[nombre] = b;
        botones->addWidget(b);
        tecla(QKeySequence(f), [b] {
            if (b->isEnabled()) b->click();
        });
    }
    connect(botones_["Agregar"], &QPushButton::clicked, this, &FichaEmpresa::agregar);
    connect(botones_["Modificar"], &QPushButton::clicked, this, &FichaEmpresa::modificar);
    connect(botones_["Eliminar"], &QPushButton::clicked, this, &FichaEmpresa::eliminar);
    connect(botones_["Imprimir"], &QPushButton::clicked, this, &FichaEmpresa::imprimir);
    auto* salir = botonConTecla("Salir");
    connect(salir, &QPushButton::clicked, this, &QWidget::close);
    tecla(QKeySequence(Qt::Key_Escape), [this] { close(); });
    tecla(QKeySequence(Qt::Key_F1), [this] { ayuda(); });
    botones->addWidget(salir);

    auto* grilla = new QGridLayout;
    grilla->addWidget(datos, 0, 0, 3, 1);
    grilla->addWidget(clase, 0, 1);
    grilla->addWidget(sucursales, 1, 1);
    grilla->addWidget(otros, 0, 2);
    grilla->addWidget(cierres, 1, 2);
    grilla->setRowStretch(2, 1);
    grilla->setColumnStretch(0, 1);
    grilla->setColumnStretch(1, 1);
    grilla->setColumnStretch(2, 1);
    auto* todo = new QVBoxLayout(lienzo());
    todo->addLayout(grilla);
    todo->addLayout(botones);
    hacerFicha();
}

QWidget* FichaEmpresa::campo(const std::string& columna) const {
    if (columna == "centralplanilla") return central_;
    return campos_.at(columna);
}

QPushButton* FichaEmpresa::boton(const std::string& nombre) const {
    return botones_.at(nombre);
}

void FichaEmpresa::habilitar(bool agregar, bool modificar, bool eliminar) {
    botones_.at("Agregar")->setEnabled(agregar);
    botones_.at("Modificar")->setEnabled(modificar);
    botones_.at("Eliminar")->setEnabled(eliminar);
}

master::Empresa FichaEmpresa::leerCampos() const {
    master::Empresa e;
    for (const auto& c : master::camposEmpresa())
        if (auto it = campos_.find(c.columna); it != campos_.end())
            e.*c.miembro = textoDe(it->second);
    e.centralplanilla = deQt(central_->valor());
    return e;
}

void FichaEmpresa::ponerCampos(const master::Empresa& e) {
    for (const auto& c : master::camposEmpresa()) {
        auto it = campos_.find(c.columna);
        if (it == campos_.end()) continue;
        const std::string& v = e.*c.miembro;
        ponerTexto(it->second,
                   std::string(c.columna).starts_with("fecha") ? master::fechaDeEmpresa(v) : v);
    }
    central_->ponerValor(aQt(e.centralplanilla));
    // Las listas que dependen de otra siguen a la madre recién puesta.
    for (const char* hija :
         {"localidad", "subgrupoact", "subgrupoconsal", "locsuc2", "locsuc3", "persrep"})
        qobject_cast<ventana::ComboCatalogo*>(campos_.at(hija))->recargar();
}

void FichaEmpresa::nueva(const std::string& nombre) {
    master::Empresa e;
    e.empresa = nombre;
    e.nroemp = std::to_string(master::proximoNroEmp(base()));
    e.centralplanilla = "Si";
    ponerCampos(e);
    qobject_cast<QLineEdit*>(campos_.at("empresa"))->setReadOnly(false);
    habilitar(true, false, false);
}

void FichaEmpresa::cargar(const master::Empresa& empresa, bool modificar, bool eliminar) {
    ponerCampos(empresa);
    // El nombre no se cambia aquí: eso es de mantenimiento.
    qobject_cast<QLineEdit*>(campos_.at("empresa"))->setReadOnly(true);
    habilitar(false, modificar, eliminar);
}

bool FichaEmpresa::fechasValidas() {
    for (const auto& [columna, w] : campos_)
        if (auto* f = qobject_cast<ventana::CampoFecha*>(w); f && !f->formatoValido()) {
            advertir(ventana::kFormatoFecha);
            f->setFocus();
            return false;
        }
    return true;
}

void FichaEmpresa::buscarCodigoPostal() {
    // Una localidad que no está en la tabla deja el código como se escribió.
    if (auto cp = master::codigoPostal(base(), textoDe(campos_.at("depto")),
                                       textoDe(campos_.at("localidad"))))
        ponerTexto(campos_.at("codpostal"), *cp);
}

void FichaEmpresa::agregar() {
    intentar("Agregar_Click", [this] {
        const auto e = leerCampos();
        if (e.empresa.empty()) return advertir("Debe completar el campo Empresa.");
        if (!fechasValidas() || !camposValidos() || !confirmar("Agregar Empresa")) return;
        master::agregarEmpresa(base(), e);
        cargar(e, true, true);
        emit guardada();
    });
}

void FichaEmpresa::modificar() {
    intentar("Modificar_Click", [this] {
        if (!fechasValidas() || !camposValidos() || !confirmar("Modificar Empresa")) return;
        master::modificarEmpresa(base(), leerCampos());
        emit guardada();
    });
}

void FichaEmpresa::eliminar() {
    intentar("Eliminar_Click", [this] {
        if (!confirmar("Eliminar Empresa", false)) return;
        master::eliminarEmpresa(base(), leerCampos().empresa);
        emit guardada();
        close();
    });
}

void FichaEmpresa::imprimir() {
    intentar("Imprimir_Click",
             [this] { imprimirInforme(master::lineasFichaEmpresa(leerCampos()), "empresa"); });
}

}  // namespace nomira::pantallas
