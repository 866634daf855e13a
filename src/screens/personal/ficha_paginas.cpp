// Las páginas de datos personales y de la primera actividad.
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "common/fechas.h"
#include "common/reloj.h"
#include "screens/personal/ficha_personal.h"
#include "screens/personal/rejilla.h"

namespace nomira::pantallas {

using P = master::Persona;

QWidget* FichaPersonal::paginaPersonales() {
    auto* pagina = new QWidget;
    Rejilla r(pagina, 3);
    empresa_ = new QLineEdit;
    empresa_->setObjectName("empresa");
    empresa_->setReadOnly(true);
    r.campo("Empresa", empresa_, 2);
    nombre_ = texto(&P::nombre, "nombre");
    r.campo("Nombre", nombre_, 2);
    r.saltar();
    nrofun_ = texto(&P::nrofun, "nrofun", 80);
    r.campo("NroFun.", nrofun_);
    nroord_ = texto(&P::nroord, "nroord", 80);
    r.campo("NroOrd.", nroord_);
    r.campo("Nro Suc.", texto(&P::nrosuc, "nrosuc", 80));
    r.campo("Dirección", texto(&P::direccion, "direccion"), 2);
    r.campo("Teléfono", texto(&P::telefono, "telefono"));
    r.campo("BSE/Ap.", texto(&P::otrotelefono, "otrotelefono"));
    r.campo("Fecha Nac.", fecha(&P::fechanac, "fechanac"));
    r.campo("Lugar de Nacimiento", catalogo(&P::lugarnac, "lugarnac", "Form32", "paises"));
    r.campo("Estado Civil",
            lista(&P::estcivil, "estcivil",
                  {"Soltero", "Casado", "Divorciado", "Viudo", "Separado", "Concubino"}));
    r.campo("Tipo de Documento", lista(&P::tipodedoc, "tipodedoc", {"DO", "PA"}));
    r.campo("País del Doc.", catalogo(&P::paisdeldoc, "paisdeldoc", "Form32", "paises"));
    documento_ = texto(&P::documento, "documento");
    alPulsarEnter(documento_, [this] { return enterDocumento(); });
    r.campo("Documento", documento_);
    credencial_ = texto(&P::credencial, "credencial");
    r.campo("Cred.", credencial_);
    r.campo("Depto/Caja Act.", catalogo(&P::depto, "depto", "Form26", "depto"));
    r.campo("Localidad", catalogo(&P::localidad, "localidad", "Form27", "local"));
    r.saltar();
    auto* marcos = new QHBoxLayout;
    marcos->addWidget(
        opciones(&P::nacionalidad, "nacionalidad", "Nacionalidad",
                 {{"U", "Uruguayo/a"}, {"L", "Ciudadano Legal"}, {"E", "Extranjero"}}));
    marcos->addWidget(opciones(&P::sexo, "sexo", "Sexo", {{"M", "Masculino"}, {"F", "Femenino"}}));
    marcos->addWidget(
        opciones(&P::imprecibo, "imprecibo", "Imp.recibo?", {{"Si", "Si"}, {"No", "No"}}));
    marcos->addWidget(
        opciones(&P::impaclab, "impaclab", "Ac.Lab", {{"1", "1"}, {"2", "2"}, {"3", "3"}}));
    marcos->addStretch();
    r.capa(marcos);
    auto* empaquetados = new QHBoxLayout;
    tafap_ = opciones(nullptr, "tafap", "T.Afap/Perm.", {{"Si", "Si"}, {"No", "No"}});
    bseap_ = opciones(nullptr, "bseap", "C/A", {{"C", "C"}, {"A", "A"}});
    nfam_ = opciones(nullptr, "nfam", "N.Fam.", {{"Si", "Si"}, {"No", "No"}});
    l19321_ = opciones(nullptr, "l19321", "L.19321", {{"Si", "Si"}, {"No", "No"}});
    multiemp_ = opciones(nullptr, "multiemp", "Multi Emp.", {{"Si", "Si"}, {"No", "No"}});
    montoOtroEmpleo_ = new QLineEdit;
    montoOtroEmpleo_->setObjectName("montootroempleo");
    montoOtroEmpleo_->setMaximumWidth(100);
    for (auto* m : {tafap_, bseap_, nfam_, l19321_, multiemp_}) empaquetados->addWidget(m);
    empaquetados->addWidget(montoOtroEmpleo_, 0, Qt::AlignBottom);
    empaquetados->addStretch();
    r.capa(empaquetados);
    r.campo("Observaciones", texto(&P::observaciones, "observaciones"), 5);
    r.terminar();
    return pagina;
}

QWidget* FichaPersonal::paginaPrimeraActividad() {
    auto* pagina = new QWidget;
    Rejilla r(pagina, 3);
    auto& a = actividades_[0];
    a.fechaing = fecha(&P::fechaing, "fechaing");
    r.campo("Fecha Ing.", a.fechaing);
    a.sector = catalogo(&P::sector, "sector", "Form39", "sectores");
    r.campo("Sector", a.sector);
    a.categoria = catalogo(&P::categoria, "categoria", "Form390", "categorias");
    r.campo("Categoría", a.categoria);
    sueldo_ = texto(&P::sueldo, "sueldo", 120);
    alPulsarEnter(sueldo_, [this] {
        fechasuevig_->setText(
            QString::fromStdString("01/" + common::CalculaMesAnterior(common::hoy())));
        return true;
    });
    r.campo("Sueldo", sueldo_);
    tiposueldo_ = opciones(&P::tiposueldo, "tiposueldo", "Tipo",
                           {{"S", "Sueldo"}, {"J", "Jornal"}, {"H", "Hora"}});
    // Un sueldo mensual es de ocho horas diarias.
    if (auto* boton = tiposueldo_->findChild<QRadioButton*>("S"))
        connect(boton, &QRadioButton::clicked, this, [this] { htrab_->setText("8"); });
    r.ancho(tiposueldo_, 2);
    htrab_ = texto(&P::htrab, "htrab", 60);
    r.campo("H.Trab.", htrab_);
    fechasuevig_ = fecha(&P::fechasuevig, "fechasuevig");
    r.campo("FSueVig", fechasuevig_);
    r.campo("FCatVig", fecha(&P::fechacatvig, "fechacatvig"));
    a.fechaeg = fecha(&P::fechaeg, "fechaeg");
    r.campo("Fecha Eg.", a.fechaeg);
    a.motivoeg = catalogo(&P::motivoeg, "motivoeg", "Form38", "motivodeegreso");
    r.campo("Motivo de Egreso", a.motivoeg);
    a.antiguedad = texto(&P::antiguedad, "antiguedad", 60);
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
            catalogo(&P::tiporemmtss, "tiporemmtss", "Form33", "tiporemmtss"));
    r.campo("Tipo de rem. B.P.S.", catalogo(&P::tiporembps, "tiporembps", "Form34", "tiporembps"));
    r.campo("Seguro salud", catalogo(&P::segurosalud, "segurosalud", "Form35", "segurosalud"));
    r.campo("Vínculo funcional",
            catalogo(&P::vinculofun, "vinculofun", "Form36", "vinculofuncional"));
    cantbfc_ = texto(&P::cantbfc, "cantbfc", 60);
    alPulsarEnter(cantbfc_, [this] { return enterCantBfc(); });
    r.campo("C.BFC", cantbfc_);
    exon_ = texto(&P::exon, "exon", 60);
    r.campo("Exon.", exon_);
    r.campo("H.Sem.", texto(&P::cesp, "cesp", 60));
    referencias_ = texto(&P::referencias, "referencias");
    r.campo("Referencias", referencias_, 5);
    r.saltar();
    r.ancho(marcoCategorias(), 3);
    r.terminar();
    enlazarActividad(0, a);
    return pagina;
}

// La categoría anterior y la de antes, y el marco para deshacer un cambio.
QWidget* FichaPersonal::marcoCategorias() {
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
        QWidget* campos[] = {
            texto(l.cat, ("cat" + suf).c_str()), texto(l.nroord, ("nroord" + suf).c_str(), 60),
            texto(l.sue, ("sue" + suf).c_str(), 100), fecha(l.fsue, ("fechasuevig" + suf).c_str()),
            fecha(l.fcat, ("fechacatvig" + suf).c_str())};
        for (int i = 0; i < 5; ++i) {
            static_cast<QLineEdit*>(campos[i])->setReadOnly(true);
            campos[i]->setFocusPolicy(Qt::NoFocus);
            g->addWidget(campos[i], fila, i + 1);
        }
        ++fila;
    }
    deshacer_ = opciones(nullptr, "deshacer", "Eliminar Cambio Categoría",
                         {{"0", "0"}, {"1", "1"}, {"2", "2"}});
    g->addWidget(deshacer_, 0, 6, 3, 1);
    return marco;
}

}  // namespace nomira::pantallas
