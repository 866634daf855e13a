#include "screens/haberes/pantalla_haberes.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "common/reloj.h"
#include "frame/ventana/registro_pantallas.h"
#include "master/empresas.h"

namespace nomira::pantallas {

namespace {

QLineEdit* campo(const char* nombre, int caracteres) {
    auto* c = new QLineEdit;
    c->setObjectName(nombre);
    c->setMaximumWidth(c->fontMetrics().horizontalAdvance(QString(caracteres, '0')) + 14);
    return c;
}

QComboBox* combo(const char* nombre) {
    auto* c = new QComboBox;
    c->setObjectName(nombre);
    c->setEditable(true);
    c->setInsertPolicy(QComboBox::NoInsert);
    c->setMinimumContentsLength(28);
    return c;
}

QPushButton* botonSuelto(const char* nombre, const QString& texto) {
    auto* b = new QPushButton(texto);
    b->setObjectName(nombre);
    b->setAutoDefault(false);
    return b;
}

}  // namespace

PantallaHaberes::PantallaHaberes(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form42", "Haberes y Descuentos", padre) {
    mesanterior_ = common::CalculaMesAnterior(common::hoy());
    armar();
    intentar("Form_Load", [this] {
        empresa_->addItem("");
        for (const auto& e : master::nombresDeEmpresas(base()))
            empresa_->addItem(QString::fromStdString(e));
        empresa_->setCurrentText("");
    });
    habilitarSegunHallado(false);
    boton("Agregar")->setEnabled(false);
    empresa_->setFocus();
}

void PantallaHaberes::armar() {
    auto* todo = new QVBoxLayout(this);
    todo->addLayout(armarCabecera());
    todo->addLayout(armarRenglon());

    haberes_ = new ventana::Grilla;
    haberes_->setObjectName("haberes");
    descuentos_ = new ventana::Grilla;
    descuentos_->setObjectName("descuentos");
    auto* grillas = new QHBoxLayout;
    for (auto [grilla, titulo] : {std::pair{haberes_, "Haberes"}, {descuentos_, "Descuentos"}}) {
        auto* marco = new QGroupBox(titulo);
        (new QVBoxLayout(marco))->addWidget(grilla);
        grillas->addWidget(marco, 1);
        grilla->setFocusPolicy(Qt::ClickFocus);
        // Elegir una fila la trae a la fila en mano.
        connect(grilla, &QAbstractItemView::clicked, this, [this, grilla = grilla] {
            ultimaGrilla_ = grilla;
            codigo_->setText(QString::fromStdString(grilla->elegida(0)));
            Buscar_Click();
        });
    }
    todo->addLayout(grillas, 1);
    todo->addLayout(armarCifras());
    todo->addLayout(armarGeneraciones());

    auto* teclas = new QGroupBox("Teclas Funciones");
    teclas->setObjectName("TeclasFunciones");
    teclas->setLayout(botonera({
        {Qt::Key_F1, "F1 Ayuda", [this] { ayuda(); }},
        {Qt::Key_F2, "F2 Refresh", [this] { Refrescar(); }},
        {Qt::Key_F3, "F3 Consultar", [this] { Consultar_Click(); }},
        {Qt::Key_F5, "F5 Agregar", [this] { Agregar_Click(); }},
        {Qt::Key_F6, "F6 Modificar", [this] { Modificar_Click(); }},
        {Qt::Key_F7, "F7 Eliminar", [this] { Eliminar_Click(); }},
        {Qt::Key_F8, "F8 Imp.", [] {}},
        {Qt::Key_F9, "F9 Copiar", [] {}},
        {Qt::Key_F10, "F10 Concep.",
         [this] {
             intentar("Form_KeyDown", [this] {
                 abrirHija(ventana::registroPantallas().at("Form4")(sesion_, this), [] {});
             });
         }},
        {Qt::Key_F12, "F12 Validar", [] {}},
    }));
    todo->addWidget(teclas);
    // Los recibos, la copia y la validación llegan con sus pantallas.
    for (const char* pendiente : {"Imp.", "Copiar", "Validar"}) {
        boton(pendiente)->setEnabled(false);
        boton(pendiente)->setToolTip("Todavía no disponible");
    }

    setTabOrder(empresa_, mes_);
    setTabOrder(mes_, nombre_);
    setTabOrder(nombre_, nrofun_);
    setTabOrder(nrofun_, codigo_);
    setTabOrder(codigo_, concepto_);
    setTabOrder(concepto_, cant_);
    setTabOrder(cant_, total_);
    resize(1120, 760);
}

QLayout* PantallaHaberes::armarCabecera() {
    empresa_ = combo("empresa");
    nombre_ = combo("nombre");
    mes_ = new ventana::CampoFecha(nullptr, ventana::FormaFecha::Mes);
    mes_->setObjectName("mes");
    nrofun_ = campo("nrofun", 6);
    auto* ant = botonSuelto("Ant", "< &Ant");
    auto* prox = botonSuelto("Prox", "&Prox >");
    auto* reliq = botonSuelto("Reliq", "Reliq por retro.");
    reliq->setEnabled(false);  // su pantalla todavía no está
    reliq->setToolTip("Todavía no disponible");

    connect(empresa_, &QComboBox::currentTextChanged, this, [this] {
        olvidarMes();
        CargarNombredelPersonal();
    });
    connect(nombre_, &QComboBox::activated, this, [this] { elegirPersona(); });
    alPulsarEnter(nombre_, [this] {
        elegirPersona();
        codigo_->setFocus();
        return false;
    });
    alPulsarEnter(mes_, [this] { return mesEnter(); });
    alPulsarEnter(nrofun_, [this] { return nrofunEnter(); });
    connect(ant, &QPushButton::clicked, this, [this] { moverPersona(-1); });
    connect(prox, &QPushButton::clicked, this, [this] { moverPersona(+1); });

    auto* capa = new QGridLayout;
    capa->addWidget(new QLabel("Empresa"), 0, 0);
    capa->addWidget(empresa_, 0, 1);
    capa->addWidget(new QLabel("FMesCargo"), 0, 2, Qt::AlignRight);
    capa->addWidget(mes_, 0, 3);
    capa->addWidget(reliq, 0, 5);
    capa->addWidget(new QLabel("Nombre del Personal"), 1, 0);
    capa->addWidget(nombre_, 1, 1);
    capa->addWidget(new QLabel("Nro Fun."), 1, 2, Qt::AlignRight);
    capa->addWidget(nrofun_, 1, 3);
    auto* mover = new QHBoxLayout;
    mover->addWidget(ant);
    mover->addWidget(prox);
    capa->addLayout(mover, 1, 5);
    capa->setColumnStretch(1, 1);
    capa->setColumnStretch(4, 1);
    return capa;
}

QLayout* PantallaHaberes::armarRenglon() {
    codigo_ = campo("codigo", 6);
    concepto_ = new QLineEdit;
    concepto_->setObjectName("concepto");
    unidad_ = campo("unidad", 3);
    unidad_->setReadOnly(true);
    unidad_->setFocusPolicy(Qt::NoFocus);
    cant_ = campo("cant", 10);
    total_ = campo("total", 14);
    for (auto* c : {cant_, total_}) c->setAlignment(Qt::AlignRight);
    alPulsarEnter(codigo_, [this] { return Buscar_Click(); });
    alPulsarEnter(concepto_, [this] { return Descripcion_Click(); });
    alPulsarEnter(cant_, [this] { return cantEnter(); });
    alPulsarEnter(total_, [this] { return totalEnter(); });

    auto* capa = new QGridLayout;
    int columna = 0;
    for (auto [rotulo, c] : {std::pair<const char*, QLineEdit*>{"Código", codigo_},
                             {"Concepto", concepto_},
                             {"Unid.", unidad_},
                             {"Cant.", cant_},
                             {"Total", total_}}) {
        capa->addWidget(new QLabel(rotulo), 0, columna);
        capa->addWidget(c, 1, columna++);
    }
    capa->setColumnStretch(1, 1);
    return capa;
}

QLayout* PantallaHaberes::armarCifras() {
    auto* capa = new QHBoxLayout;
    for (auto [nombre, rotulo] : {std::pair{"totalhab", "T.Haberes"},
                                  {"totaldes", "Total Descuentos"},
                                  {"liquidoneto", "Líquido Neto"},
                                  {"liquidoacobrar", "Líquido a Cobrar"},
                                  {"montoirpf", "M.Irpf"},
                                  {"montodedu", "M.Dedu."}}) {
        auto* c = campo(nombre, 12);
        c->setReadOnly(true);
        c->setFocusPolicy(Qt::NoFocus);
        c->setAlignment(Qt::AlignRight);
        cifras_[nombre] = c;
        capa->addWidget(new QLabel(rotulo));
        capa->addWidget(c);
        capa->addSpacing(8);
    }
    capa->addStretch();
    return capa;
}

QLayout* PantallaHaberes::armarGeneraciones() {
    auto* marco = new QGroupBox("Haberes y descuentos permanentes");
    auto* botones = new QGridLayout(marco);
    const std::tuple<const char*, const char*, void (PantallaHaberes::*)()> kBotones[] = {
        {"HabPerm", "&Hab. Perm.", &PantallaHaberes::HabPerm_Click},
        {"HabPerm2", "E&lim. Hab. Perm.", &PantallaHaberes::HabPerm2_Click},
        {"DescPerm", "&Desc. Perm.", &PantallaHaberes::DescPerm_Click},
        {"DescPerm2", "Eli&m. Desc. Perm.", &PantallaHaberes::DescPerm2_Click},
        {"ActHabPermxEmpresa", "Act. Hab. Perm. x &Empresa",
         &PantallaHaberes::ActHamPermxEmpresa_Click},
        {"ActDesPermxEmpresa", "Act. Des. Perm. x Empre&sa",
         &PantallaHaberes::ActDesPermxEmpresa_Click},
        {"ComoSeCalculo", "¿&Cómo se calculó?", &PantallaHaberes::ComoSeCalculo},
    };
    int i = 0;
    for (const auto& [nombre, texto, accion] : kBotones) {
        auto* b = botonSuelto(nombre, texto);
        connect(b, &QPushButton::clicked, this, [this, accion = accion] { (this->*accion)(); });
        botones->addWidget(b, i / 4, i % 4);
        ++i;
    }
    botones->setRowStretch(2, 1);
    // Fuera del marco: sigue habilitado mientras corre toda la empresa.
    avance_ = new AvanceEmpresa;
    auto* izquierda = new QVBoxLayout;
    izquierda->addWidget(marco, 1);
    izquierda->addWidget(avance_);

    irpf_ = new CuadroIRPF;
    auto* capa = new QHBoxLayout;
    capa->addLayout(izquierda, 3);
    capa->addWidget(irpf_, 2);
    return capa;
}

void registrarPantallasHaberes() {
    ventana::registroPantallas()["Form42"] = [](frame::Sesion& s, QWidget* p) -> QWidget* {
        return new PantallaHaberes(s, p);
    };
}

}  // namespace nomira::pantallas
