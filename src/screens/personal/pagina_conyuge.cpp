#include "screens/personal/pagina_conyuge.h"

#include "common/empaquetados.h"
#include "frame/ventana/texto_qt.h"
#include "screens/personal/rejilla.h"

namespace nomira::pantallas {

using P = master::Persona;
using ventana::aQt;

const std::vector<std::pair<QString, QString>> kNacionalidades = {
    {"U", "Uruguaya"}, {"L", "Ciudadanía legal"}, {"E", "Extranjera"}};
const std::vector<std::pair<QString, QString>> kSexos = {{"M", "Masculino"}, {"F", "Femenino"}};

PaginaConyuge::PaginaConyuge(CamposFicha& campos) {
    auto& c = campos;
    Rejilla r(this, 2);
    r.campo("Tipo de Documento", c.lista(&P::tipodedoccon, "tipodedoccon", {"DO", "PA"}));
    r.campo("País del Doc.", c.catalogo(&P::paisdeldoccon, "paisdeldoccon", "Form32", "paises"));
    r.campo("Documento", c.texto(&P::documentocon, "documentocon"));
    auto* nombre = c.texto(&P::nombrecon, "nombrecon");
    c.pantalla().alPulsarEnter(nombre, [&c, nombre] { return c.enterNombre(nombre, "Cónyuge"); });
    r.campo("Nombre", nombre);
    r.campo("Fecha Nac.", c.fecha(&P::fechanaccon, "fechanaccon"));
    r.campo("Nacionalidad",
            c.listaConTextos(&P::nacionalidadcon, "nacionalidadcon", kNacionalidades));
    sexocon_ = c.opciones(nullptr, "sexocon", "Sexo", kSexos);
    r.ancho(sexocon_, 1);
    sns_ = c.opciones(nullptr, "sns", "Ingresa al SNS", {{"No", "No"}, {"Si", "Si"}});
    r.ancho(sns_, 1);
    r.campo("Fecha Des.", c.fecha(&P::fechadesdecon, "fechadesdecon"));
    r.campo("Fecha Pres.", c.fecha(&P::fechaprescon, "fechaprescon"));
    r.terminar();
}

void PaginaConyuge::volcar(master::Persona& p) const {
    p.sexocon =
        common::SexoCon{sexocon_->valor().toStdString(), sns_->valor().toStdString()}.texto();
}

void PaginaConyuge::cargar(const master::Persona& p) {
    const auto sc = common::SexoCon::leer(p.sexocon);
    sexocon_->ponerValor(aQt(sc.sexo));
    sns_->ponerValor(aQt(sc.ingresaSns));
}

}  // namespace nomira::pantallas
