// Los campos de la ficha enlazados con sus columnas, lo empaquetado y las teclas
// Enter de cada campo.
#include <QRadioButton>

#include "common/antiguedad.h"
#include "common/cedula.h"
#include "common/empaquetados.h"
#include "common/reloj.h"
#include "master/catalogos.h"
#include "master/listado_personal.h"
#include "master/validacion_personal.h"
#include "screens/personal/ficha_personal.h"

namespace nomira::pantallas {

namespace {

QString q(const std::string& s) {
    return QString::fromStdString(s);
}
std::string s(const QString& t) {
    return t.trimmed().toStdString();
}

}  // namespace

QLineEdit* FichaPersonal::texto(std::string master::Persona::*m, const char* nombre, int ancho) {
    auto* e = new QLineEdit;
    e->setObjectName(nombre);
    if (ancho > 0) e->setMaximumWidth(ancho);
    enlaces_.push_back(
        {m, [e] { return s(e->text()); }, [e](const std::string& v) { e->setText(q(v)); }});
    return e;
}

ventana::CampoFecha* FichaPersonal::fecha(std::string master::Persona::*m, const char* nombre) {
    auto* e = new ventana::CampoFecha;
    e->setObjectName(nombre);
    enlaces_.push_back(
        {m, [e] { return s(e->text()); },
         [e](const std::string& v) { e->setText(q(master::fechaParaPantalla(v))); }});
    alPulsarEnter(e, [this, e] { return enterFecha(e); });
    return e;
}

QComboBox* FichaPersonal::lista(std::string master::Persona::*m, const char* nombre,
                                const QStringList& items) {
    auto* c = new QComboBox;
    c->setObjectName(nombre);
    c->setMinimumWidth(120);
    c->setEditable(true);
    c->setInsertPolicy(QComboBox::NoInsert);
    c->addItem("");
    c->addItems(items);
    enlaces_.push_back({m, [c] { return s(c->currentText()); },
                        [c](const std::string& v) { c->setCurrentText(q(v)); }});
    return c;
}

ventana::ComboCatalogo* FichaPersonal::catalogo(std::string master::Persona::*m, const char* nombre,
                                                const char* formulario, const char* tabla) {
    std::string t = tabla;
    auto* c = new ventana::ComboCatalogo(sesion_, formulario,
                                         [this, t] { return master::textosCatalogo(base(), t); });
    c->setObjectName(nombre);
    c->setMinimumWidth(180);
    enlaces_.push_back({m, [c] { return s(c->currentText()); },
                        [c](const std::string& v) { c->setCurrentText(q(v)); }});
    return c;
}

ventana::GrupoOpciones* FichaPersonal::opciones(std::string master::Persona::*m, const char* nombre,
                                                const QString& titulo,
                                                std::vector<std::pair<QString, QString>> items) {
    auto* g = new ventana::GrupoOpciones(titulo, std::move(items));
    g->setObjectName(nombre);
    if (m)
        enlaces_.push_back({m, [g] { return g->valor().toStdString(); },
                            [g](const std::string& v) { g->ponerValor(q(v)); }});
    return g;
}

std::vector<std::string> FichaPersonal::categoriasDe(const QString& sector) {
    return master::textosCatalogo(
        base(), "categorias", {{"nombre", grupo_}, {"nombre2", subgrupo_}, {"nombre3", s(sector)}});
}

// Sector y Categoría dependen del grupo y subgrupo de consejo de salarios de la empresa.
void FichaPersonal::enlazarActividad(int n, Actividad& a) {
    a.sector->cambiarCargador([this] {
        return master::textosCatalogo(base(), "sectores",
                                      {{"nombre", grupo_}, {"nombre2", subgrupo_}});
    });
    auto* sector = a.sector;
    a.categoria->cambiarCargador([this, sector] { return categoriasDe(sector->currentText()); });
    auto* categoria = a.categoria;
    alPulsarEnter(sector, [categoria] {
        categoria->recargar();
        return true;
    });
    alPulsarEnter(a.fechaeg, [this, n] { return enterFechaEgreso(n); });
}

master::Persona FichaPersonal::juntar() const {
    master::Persona p;
    for (const auto& e : enlaces_) p.*e.miembro = e.leer();
    p.empresa = s(empresa_->text());
    common::SocMedica sm{tafap_->valor().toStdString(),    bseap_->valor().toStdString(),
                         nfam_->valor().toStdString(),     l19321_->valor().toStdString(),
                         multiemp_->valor().toStdString(), ""};
    // El monto del otro empleo sólo se guarda con Multi Emp. en "Si".
    if (sm.multiemp == "Si") sm.montoOtroEmpleo = s(montoOtroEmpleo_->text());
    p.socmedica = sm.texto();
    p.horario = common::Horario{horario_->text().toStdString(), banco_->currentText().toStdString(),
                                cuenta_->text().toStdString()}
                    .texto();
    p.sexocon =
        common::SexoCon{sexocon_->valor().toStdString(), sns_->valor().toStdString()}.texto();
    return p;
}

void FichaPersonal::mostrar(const master::Persona& p) {
    for (const auto& e : enlaces_) e.poner(p.*e.miembro);
    empresa_->setText(q(p.empresa));
    const auto sm = common::SocMedica::leer(p.socmedica);
    tafap_->ponerValor(q(sm.tafap));
    bseap_->ponerValor(q(sm.bseap));
    nfam_->ponerValor(q(sm.nfam));
    l19321_->ponerValor(q(sm.l19321));
    multiemp_->ponerValor(q(sm.multiemp));
    montoOtroEmpleo_->setText(q(sm.montoOtroEmpleo));
    const auto h = common::Horario::leer(p.horario);
    horario_->setText(q(h.horario).trimmed());
    banco_->setCurrentText(q(h.banco).trimmed());
    cuenta_->setText(q(h.cuenta).trimmed());
    const auto sc = common::SexoCon::leer(p.sexocon);
    sexocon_->ponerValor(q(sc.sexo));
    sns_->ponerValor(q(sc.ingresaSns));
}

bool FichaPersonal::enterFecha(ventana::CampoFecha* campo) {
    if (campo->formatoValido()) return true;
    advertir(ventana::kFormatoFecha);
    return false;
}

bool FichaPersonal::enterFechaEgreso(int n) {
    auto& a = actividades_[n];
    if (!enterFecha(a.fechaeg)) return false;
    if (a.fechaeg->text().isEmpty() || a.fechaing->text().isEmpty()) return true;
    a.motivoeg->setCurrentText("");
    a.motivoeg->recargar();
    const auto inicio = common::inicioDeAntiguedad(s(a.fechaing->text()), s(referencias_->text()));
    a.antiguedad->setText(
        QString::number(common::antiguedadEntre(inicio, s(a.fechaeg->text())).anios));
    return true;
}

bool FichaPersonal::enterDocumento() {
    const auto v = common::DigitoVerificador(s(documento_->text()));
    documento_->setText(q(v.documento));
    const auto texto = common::mensajeCedula(v.resultado);
    if (v.resultado != common::ResultadoCedula::Correcta) {
        advertir(texto);
        return false;
    }
    informar(texto);
    credencial_->setFocus();
    return false;
}

bool FichaPersonal::enterNombre(QLineEdit* campo, const std::string& quien) {
    const auto m = master::comprobarComa(s(campo->text()), quien);
    if (m.empty()) return true;
    advertir(m);
    return false;
}

bool FichaPersonal::enterCantBfc() {
    if (s(cantbfc_->text()) == "0") {
        advertir(
            "El campo C.BFC no puede ser cero (o tiene la cant. de bases fictas o queda vacío).");
        cantbfc_->clear();
        return false;
    }
    if (exon_->text().trimmed().isEmpty()) exon_->setText("9");
    return true;
}

}  // namespace nomira::pantallas
