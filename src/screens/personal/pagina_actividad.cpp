#include "screens/personal/pagina_actividad.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include "common/empaquetados.h"
#include "common/fechas.h"
#include "common/reloj.h"
#include "frame/ventana/texto_qt.h"
#include "screens/personal/rejilla.h"

namespace nomira::pantallas {

using P = master::Persona;
using ventana::aQt;
using ventana::deQt;

PaginaActividad::PaginaActividad(CamposFicha& campos) : campos_(campos) {
    auto& c = campos_;
    auto& a = actividad;
    Rejilla r(this, 3);
    a.fechaing = c.fecha(&P::fechaing, "fechaing");
    r.campo("Fecha Ing.", a.fechaing);
    a.sector = c.catalogo(&P::sector, "sector", "Form39", "sectores");
    r.campo("Sector", a.sector);
    a.categoria = c.catalogo(&P::categoria, "categoria", "Form390", "categorias");
    r.campo("Categoría", a.categoria);
    sueldo_ = c.numero(&P::sueldo, "sueldo", 120);
    c.pantalla().alPulsarEnter(sueldo_, [this] {
        fechasuevig_->setText(aQt("01/" + common::CalculaMesAnterior(common::hoy())));
        return true;
    });
    r.campo("Sueldo", sueldo_);
    tiposueldo_ = c.opciones(&P::tiposueldo, "tiposueldo", "Tipo",
                             {{"S", "Sueldo"}, {"J", "Jornal"}, {"H", "Hora"}});
    // Un sueldo mensual es de ocho horas diarias.
    if (auto* boton = tiposueldo_->findChild<QRadioButton*>("S"))
        QObject::connect(boton, &QRadioButton::clicked, this, [this] { htrab_->setText("8"); });
    r.ancho(tiposueldo_, 2);
    htrab_ = c.numero(&P::htrab, "htrab", 60);
    r.campo("H.Trab.", htrab_);
    fechasuevig_ = c.fecha(&P::fechasuevig, "fechasuevig");
    r.campo("FSueVig", fechasuevig_);
    r.campo("FCatVig", c.fecha(&P::fechacatvig, "fechacatvig"));
    a.fechaeg = c.fecha(&P::fechaeg, "fechaeg");
    r.campo("Fecha Eg.", a.fechaeg);
    a.motivoeg = c.catalogo(&P::motivoeg, "motivoeg", "Form38", "motivodeegreso");
    r.campo("Motivo de Egreso", a.motivoeg);
    a.antiguedad = c.numero(&P::antiguedad, "antiguedad", 60, ventana::ClaseNumero::Entero);
    r.campo("Antiguedad", a.antiguedad);
    horario_ = new QLineEdit;
    horario_->setObjectName("horario");
    horario_->setMaxLength(30);
    r.campo("Horario de Trabajo", horario_, 2);
    banco_ = new QComboBox;
    banco_->setObjectName("banco");
    banco_->setEditable(true);
    banco_->addItems({"", "BROU", "BHU", "Bandes", "BBVA", "Scotia", "Sder", "BCU", "Htage", "HSBC",
                      "Citi", "BNA", "ITAU", "Abitab", "Rpagos", "Efvo.", "MiDin."});
    r.campo("Banco", banco_);
    cuenta_ = new QLineEdit;
    cuenta_->setObjectName("cuenta");
    cuenta_->setMaxLength(14);
    r.campo("Nro.Cta.", cuenta_);
    r.campo("Tipo de rem. M.T.S.S.",
            c.catalogo(&P::tiporemmtss, "tiporemmtss", "Form33", "tiporemmtss"));
    r.campo("Tipo de rem. B.P.S.",
            c.catalogo(&P::tiporembps, "tiporembps", "Form34", "tiporembps"));
    r.campo("Seguro salud", c.catalogo(&P::segurosalud, "segurosalud", "Form35", "segurosalud"));
    r.campo("Vínculo funcional",
            c.catalogo(&P::vinculofun, "vinculofun", "Form36", "vinculofuncional"));
    cantbfc_ = c.numero(&P::cantbfc, "cantbfc", 60);
    c.pantalla().alPulsarEnter(cantbfc_, [this] { return enterCantBfc(); });
    r.campo("C.BFC", cantbfc_);
    exon_ = c.texto(&P::exon, "exon", 60);
    r.campo("Exon.", exon_);
    r.campo("H.Sem.", c.numero(&P::cesp, "cesp", 60));
    referencias_ = c.texto(&P::referencias, "referencias");
    r.campo("Referencias", referencias_, 5);
    r.saltar();
    r.ancho(marcoCategorias(), 3);
    r.terminar();
    a.enlazar(c, [this] { return referencias(); });
}

std::string PaginaActividad::referencias() const {
    return deQt(referencias_);
}

// La categoría anterior y la de antes, y el marco para deshacer un cambio.
QWidget* PaginaActividad::marcoCategorias() {
    auto* marco = new QGroupBox("Cambios de categoría");
    auto* g = new QGridLayout(marco);
    const QStringList titulos = {"", "Categoría", "NroOrd.", "Sueldo", "FSueVig", "FCatVig"};
    for (int i = 1; i < titulos.size(); ++i) g->addWidget(new QLabel(titulos[i]), 0, i);
    struct Lugar {
        const char* titulo;
        std::string P::*cat, P::*nroord, P::*sue, P::*fsue, P::*fcat;
        const char* sufijo;
    };
    const Lugar lugares[] = {
        {"1er cambio", &P::cat3, &P::nroord3, &P::sue3, &P::fechasuevig3, &P::fechacatvig3, "3"},
        {"2do cambio", &P::cat2, &P::nroord2, &P::sue2, &P::fechasuevig2, &P::fechacatvig2, "2"}};
    int fila = 1;
    for (const auto& l : lugares) {
        g->addWidget(new QLabel(l.titulo), fila, 0);
        const std::string suf = l.sufijo;
        QLineEdit* campos[] = {campos_.texto(l.cat, ("cat" + suf).c_str()),
                               campos_.texto(l.nroord, ("nroord" + suf).c_str(), 60),
                               campos_.texto(l.sue, ("sue" + suf).c_str(), 100),
                               campos_.fecha(l.fsue, ("fechasuevig" + suf).c_str()),
                               campos_.fecha(l.fcat, ("fechacatvig" + suf).c_str())};
        for (int i = 0; i < 5; ++i) {
            campos[i]->setReadOnly(true);
            campos[i]->setFocusPolicy(Qt::NoFocus);
            g->addWidget(campos[i], fila, i + 1);
        }
        ++fila;
    }
    deshacer = campos_.opciones(nullptr, "deshacer", "Eliminar Cambio Categoría",
                                {{"0", "0"}, {"1", "1"}, {"2", "2"}});
    g->addWidget(deshacer, 0, 6, 3, 1);
    return marco;
}

void PaginaActividad::volcar(master::Persona& p) const {
    p.horario = common::Horario{horario_->text().toStdString(), banco_->currentText().toStdString(),
                                cuenta_->text().toStdString()}
                    .texto();
}

void PaginaActividad::cargar(const master::Persona& p) {
    const auto h = common::Horario::leer(p.horario);
    horario_->setText(aQt(h.horario).trimmed());
    banco_->setCurrentText(aQt(h.banco).trimmed());
    cuenta_->setText(aQt(h.cuenta).trimmed());
}

bool PaginaActividad::enterCantBfc() {
    if (cantbfc_->valor() == "0") {
        campos_.pantalla().advertir(
            "El campo C.BFC no puede ser cero (o tiene la cant. de bases fictas o queda vacío).");
        cantbfc_->clear();
        return false;
    }
    if (exon_->text().trimmed().isEmpty()) exon_->setText("9");
    return true;
}

}  // namespace nomira::pantallas
