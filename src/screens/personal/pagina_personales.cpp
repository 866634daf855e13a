#include "screens/personal/pagina_personales.h"

#include <QHBoxLayout>

#include "common/cedula.h"
#include "common/empaquetados.h"
#include "frame/ventana/texto_qt.h"
#include "screens/personal/rejilla.h"

namespace nomira::pantallas {

using P = master::Persona;
using ventana::aQt;
using ventana::deQt;

PaginaPersonales::PaginaPersonales(CamposFicha& campos) : campos_(campos) {
    auto& c = campos_;
    Rejilla r(this, 3);
    empresa = new QLineEdit;
    empresa->setObjectName("empresa");
    empresa->setReadOnly(true);
    r.campo("Empresa", empresa, 2);
    nombre = c.texto(&P::nombre, "nombre");
    r.campo("Nombre", nombre, 2);
    r.saltar();
    nrofun = c.texto(&P::nrofun, "nrofun", 80);
    r.campo("NroFun.", nrofun);
    nroord = c.texto(&P::nroord, "nroord", 80);
    r.campo("NroOrd.", nroord);
    r.campo("Nro Suc.", c.texto(&P::nrosuc, "nrosuc", 80));
    r.campo("Dirección", c.texto(&P::direccion, "direccion"), 2);
    r.campo("Teléfono", c.texto(&P::telefono, "telefono"));
    r.campo("BSE/Ap.", c.texto(&P::otrotelefono, "otrotelefono"));
    r.campo("Fecha Nac.", c.fecha(&P::fechanac, "fechanac"));
    r.campo("Lugar de Nacimiento", c.catalogo(&P::lugarnac, "lugarnac", "Form32", "paises"));
    r.campo("Estado Civil",
            c.lista(&P::estcivil, "estcivil",
                    {"Soltero", "Casado", "Divorciado", "Viudo", "Separado", "Concubino"}));
    r.campo("Tipo de Documento", c.lista(&P::tipodedoc, "tipodedoc", {"DO", "PA"}));
    r.campo("País del Doc.", c.catalogo(&P::paisdeldoc, "paisdeldoc", "Form32", "paises"));
    documento_ = c.texto(&P::documento, "documento");
    c.pantalla().alPulsarEnter(documento_, [this] { return enterDocumento(); });
    r.campo("Documento", documento_);
    credencial_ = c.texto(&P::credencial, "credencial");
    r.campo("Cred.", credencial_);
    r.campo("Depto/Caja Act.", c.catalogo(&P::depto, "depto", "Form26", "depto"));
    r.campo("Localidad", c.catalogo(&P::localidad, "localidad", "Form27", "local"));
    r.saltar();
    auto* marcos = new QHBoxLayout;
    marcos->addWidget(
        c.opciones(&P::nacionalidad, "nacionalidad", "Nacionalidad",
                   {{"U", "Uruguayo/a"}, {"L", "Ciudadano Legal"}, {"E", "Extranjero"}}));
    marcos->addWidget(
        c.opciones(&P::sexo, "sexo", "Sexo", {{"M", "Masculino"}, {"F", "Femenino"}}));
    marcos->addWidget(
        c.opciones(&P::imprecibo, "imprecibo", "Imp.recibo?", {{"Si", "Si"}, {"No", "No"}}));
    marcos->addWidget(
        c.opciones(&P::impaclab, "impaclab", "Ac.Lab", {{"1", "1"}, {"2", "2"}, {"3", "3"}}));
    marcos->addStretch();
    r.capa(marcos);
    auto* empaquetados = new QHBoxLayout;
    tafap_ = c.opciones(nullptr, "tafap", "T.Afap/Perm.", {{"Si", "Si"}, {"No", "No"}});
    bseap_ = c.opciones(nullptr, "bseap", "C/A", {{"C", "C"}, {"A", "A"}});
    nfam_ = c.opciones(nullptr, "nfam", "N.Fam.", {{"Si", "Si"}, {"No", "No"}});
    l19321_ = c.opciones(nullptr, "l19321", "L.19321", {{"Si", "Si"}, {"No", "No"}});
    multiemp_ = c.opciones(nullptr, "multiemp", "Multi Emp.", {{"Si", "Si"}, {"No", "No"}});
    montoOtroEmpleo_ = new ventana::CampoNumero;
    montoOtroEmpleo_->setObjectName("montootroempleo");
    montoOtroEmpleo_->setProperty("rotulo", "Monto del otro empleo");
    montoOtroEmpleo_->setMaximumWidth(100);
    for (auto* m : {tafap_, bseap_, nfam_, l19321_, multiemp_}) empaquetados->addWidget(m);
    empaquetados->addWidget(montoOtroEmpleo_, 0, Qt::AlignBottom);
    empaquetados->addStretch();
    r.capa(empaquetados);
    r.campo("Observaciones", c.texto(&P::observaciones, "observaciones"), 5);
    r.terminar();
}

void PaginaPersonales::volcar(master::Persona& p) const {
    p.empresa = deQt(empresa);
    common::SocMedica sm{tafap_->valor().toStdString(),    bseap_->valor().toStdString(),
                         nfam_->valor().toStdString(),     l19321_->valor().toStdString(),
                         multiemp_->valor().toStdString(), ""};
    // El monto del otro empleo sólo se guarda con Multi Emp. en "Si".
    if (sm.multiemp == "Si") sm.montoOtroEmpleo = montoOtroEmpleo_->valor();
    p.socmedica = sm.texto();
}

void PaginaPersonales::cargar(const master::Persona& p) {
    empresa->setText(aQt(p.empresa));
    const auto sm = common::SocMedica::leer(p.socmedica);
    tafap_->ponerValor(aQt(sm.tafap));
    bseap_->ponerValor(aQt(sm.bseap));
    // Sin valor (una persona nueva): lo que tiene la mayoría del personal, sin
    // asignación, sin la ley y con un solo empleo.
    auto oNo = [](const std::string& v) { return aQt(v.empty() ? "No" : v); };
    nfam_->ponerValor(oNo(sm.nfam));
    l19321_->ponerValor(oNo(sm.l19321));
    multiemp_->ponerValor(oNo(sm.multiemp));
    montoOtroEmpleo_->setText(aQt(sm.montoOtroEmpleo));
}

bool PaginaPersonales::enterDocumento() {
    const auto v = common::DigitoVerificador(deQt(documento_));
    documento_->setText(aQt(v.documento));
    const auto texto = common::mensajeCedula(v.resultado);
    if (v.resultado != common::ResultadoCedula::Correcta) {
        campos_.pantalla().advertir(texto);
        return false;
    }
    campos_.pantalla().informar(texto);
    credencial_->setFocus();
    return false;
}

}  // namespace nomira::pantallas
