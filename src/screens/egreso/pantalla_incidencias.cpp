#include "screens/egreso/pantalla_incidencias.h"

#include <QButtonGroup>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/egreso/incidencias_licencia.h"
#include "engine/egreso/ipd.h"
#include "frame/ventana/texto_qt.h"
#include "master/empresas.h"
#include "master/personal.h"

namespace nomira::pantallas {

using ventana::aQt;
using ventana::deQt;

namespace {

// Las líneas de la traza, sin sus CR LF.
std::vector<std::string> lineas(const std::string& traza) {
    std::vector<std::string> v;
    std::size_t desde = 0;
    for (auto fin = traza.find("\r\n"); fin != std::string::npos;
         desde = fin + 2, fin = traza.find("\r\n", desde))
        v.push_back(traza.substr(desde, fin - desde));
    if (desde < traza.size()) v.push_back(traza.substr(desde));
    return v;
}

QPushButton* botonLlamado(const char* nombre, const char* texto) {
    auto* b = new QPushButton(texto);
    b->setObjectName(nombre);
    b->setAutoDefault(false);
    return b;
}

}  // namespace

PantallaIncidencias::PantallaIncidencias(frame::Sesion& sesion, ClaseIncidencias clase,
                                         QWidget* padre)
    : Pantalla(
          sesion, clase == ClaseIncidencias::Ipd ? "Form70" : "Form76",
          clase == ClaseIncidencias::Ipd ? "Incidencias del IPD" : "Incidencias de la licencia",
          padre),
      clase_(clase) {
    empresa_ = new QComboBox;
    empresa_->setObjectName("Combo1");
    empresa_->setEditable(true);
    nombre_ = new QComboBox;
    nombre_->setObjectName("Combo2");
    nombre_->setEditable(true);
    fecha_ = new ventana::CampoFecha;
    fecha_->setObjectName("Text1");

    auto* campos = new QFormLayout;
    campos->addRow("&Empresa", empresa_);
    campos->addRow("&Nombre del Personal", nombre_);
    campos->addRow(clase == ClaseIncidencias::Ipd ? "&Fecha Ipd" : "&Fecha", fecha_);

    texto_ = new QPlainTextEdit;
    texto_->setObjectName("Text");
    texto_->setReadOnly(true);
    texto_->setLineWrapMode(QPlainTextEdit::NoWrap);
    // Las columnas de la traza se alinean con blancos.
    texto_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    auto* generar = botonLlamado("Generar", "&Generar");
    auto* imprimir = botonLlamado("Imprimir", "&Imprimir");
    connect(generar, &QPushButton::clicked, this, [this] { Generar_Click(); });
    connect(imprimir, &QPushButton::clicked, this, [this] { Imprimir_Click(); });
    auto* botones = new QHBoxLayout;
    botones->addWidget(generar);
    botones->addWidget(imprimir);
    botones->addStretch();

    auto* todo = new QVBoxLayout(lienzo());
    todo->addLayout(campos);
    if (clase == ClaseIncidencias::Ipd) todo->addWidget(armarOpcionesIpd());
    todo->addLayout(botones);
    todo->addWidget(texto_, 1);
    pedirTamano(900, 600);

    connect(empresa_, &QComboBox::currentTextChanged, this, [this] { CargarNombredelPersonal(); });
    alPulsarEnter(empresa_, [] { return true; });
    alPulsarEnter(nombre_, [] { return true; });
    alPulsarEnter(fecha_, [this] { return campoValido(fecha_); });

    intentar("Form_Load", [this] {
        empresa_->addItem("");
        for (const auto& e : master::nombresDeEmpresas(base())) empresa_->addItem(aQt(e));
        empresa_->setCurrentText("");
    });
    empresa_->setFocus();
}

QWidget* PantallaIncidencias::armarOpcionesIpd() {
    auto* marco = new QGroupBox("Opciones");
    auto* capa = new QHBoxLayout(marco);
    auto* grupo = new QButtonGroup(marco);
    conIncidencias_ = new QRadioButton("Sí");
    conIncidencias_->setObjectName("Option4");
    auto* sin = new QRadioButton("No");
    sin->setObjectName("Option5");
    grupo->addButton(conIncidencias_);
    grupo->addButton(sin);
    conIncidencias_->setChecked(true);
    capa->addWidget(new QLabel("Incidencias IPD"));
    capa->addWidget(conIncidencias_);
    capa->addWidget(sin);
    licencia_ = new ventana::CampoNumero;
    licencia_->setObjectName("Text2");
    vacacional_ = new ventana::CampoNumero;
    vacacional_->setObjectName("Text3");
    capa->addWidget(new QLabel("Lic."));
    capa->addWidget(licencia_);
    capa->addWidget(new QLabel("Vac."));
    capa->addWidget(vacacional_);
    capa->addStretch();
    return marco;
}

void PantallaIncidencias::CargarNombredelPersonal() {
    intentar("CargarNombredelPersonal", [this] {
        const QSignalBlocker quieto(nombre_);
        nombre_->clear();
        nombre_->addItem("");
        const auto empresa = deQt(empresa_);
        if (!empresa.empty())
            for (const auto& n : master::nombresDelPersonal(base(), empresa))
                nombre_->addItem(aQt(n));
        nombre_->setCurrentText("");
    });
}

void PantallaIncidencias::Generar_Click() {
    intentar("Generar_Click", [this] {
        traza_.clear();
        texto_->clear();
        if (!camposValidos()) return;
        const auto escrita = deQt(fecha_);
        const auto fecha = escrita.empty() ? std::nullopt : common::Fecha::desdeTexto(escrita);
        const auto empresa = deQt(empresa_), nombre = deQt(nombre_);
        if (clase_ == ClaseIncidencias::Ipd) {
            engine::OpcionesIpd op;
            op.incidencias = conIncidencias_->isChecked();
            op.licencia = common::Dinero::desdeDouble(common::textoANumero(licencia_->valor()));
            op.salVacacional =
                common::Dinero::desdeDouble(common::textoANumero(vacacional_->valor()));
            traza_ =
                engine::incidenciasDelIpd(base(), empresa, nombre, fecha, op, dialogo()).traza();
        } else if (const auto r =
                       engine::incidenciasDeLaLicencia(base(), empresa, nombre, fecha, dialogo())) {
            traza_ = r->traza;
        }
        texto_->setPlainText(aQt(traza_).replace("\r\n", "\n"));
    });
}

void PantallaIncidencias::prepararCaptura() {
    for (int e = 1; e < empresa_->count(); ++e) {
        empresa_->setCurrentIndex(e);
        CargarNombredelPersonal();
        for (int n = 1; n < nombre_->count(); ++n) {
            const auto p = master::leerPersona(base(), deQt(empresa_), deQt(nombre_->itemText(n)));
            if (!p) continue;
            const auto a = engine::egresoDe(*p, 1);
            const bool despido = common::mayusculas(a.motivoeg) == "DESPIDO";
            if (!a.egreso || (clase_ == ClaseIncidencias::Ipd && !despido)) continue;
            nombre_->setCurrentIndex(n);
            fecha_->setText(aQt(a.egreso->ddmmyy()));
            Generar_Click();
            return;
        }
    }
}

void PantallaIncidencias::Imprimir_Click() {
    intentar("Imprimir_Click", [this] {
        if (traza_.empty()) return;
        imprimirInforme(lineas(traza_),
                        clase_ == ClaseIncidencias::Ipd ? "IncidenciasIpd" : "IncidenciasLicencia");
    });
}

}  // namespace nomira::pantallas
