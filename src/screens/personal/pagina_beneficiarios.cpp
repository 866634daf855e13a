#include "screens/personal/pagina_beneficiarios.h"

#include <QGridLayout>
#include <QLabel>

#include "screens/personal/pagina_conyuge.h"

namespace nomira::pantallas {

using P = master::Persona;

// Los tres beneficiarios lado a lado, un campo por fila.
PaginaBeneficiarios::PaginaBeneficiarios(CamposFicha& f) {
    struct Columnas {
        std::string P::*tipodedoc, P::*paisdeldoc, P::*documento, P::*nombre, P::*fechanac,
            P::*nacionalidad, P::*sexo, P::*causa, P::*relacion, P::*regimen, P::*porcentaje,
            P::*monto, P::*fechadesde, P::*fechapres;
    };
    const Columnas bens[] = {
        {&P::tipodedocben, &P::paisdeldocben, &P::documentoben, &P::nombreben, &P::fechanacben,
         &P::nacionalidadben, &P::sexoben, &P::causaben, &P::relacionfilialben, &P::regimenben,
         &P::porcentajeben, &P::montoben, &P::fechadesdeben, &P::fechapresben},
        {&P::tipodedocben2, &P::paisdeldocben2, &P::documentoben2, &P::nombreben2, &P::fechanacben2,
         &P::nacionalidadben2, &P::sexoben2, &P::causaben2, &P::relacionfilialben2, &P::regimenben2,
         &P::porcentajeben2, &P::montoben2, &P::fechadesdeben2, &P::fechapresben2},
        {&P::tipodedocben3, &P::paisdeldocben3, &P::documentoben3, &P::nombreben3, &P::fechanacben3,
         &P::nacionalidadben3, &P::sexoben3, &P::causaben3, &P::relacionfilialben3, &P::regimenben3,
         &P::porcentajeben3, &P::montoben3, &P::fechadesdeben3, &P::fechapresben3}};
    const QStringList etiquetas = {
        "Tipo de Documento", "País del Doc.",    "Documento", "Nombre",
        "Fecha Nac.",        "Nacionalidad",     "Sexo",      "Causa",
        "Relación Filial",   "Sistema de Salud", "Porc.",     "Cant Hijos",
        "Fecha Des.",        "Fecha Pres."};
    auto* g = new QGridLayout(this);
    for (int i = 0; i < etiquetas.size(); ++i)
        g->addWidget(new QLabel(etiquetas[i]), i + 1, 0, Qt::AlignRight);
    for (int b = 0; b < 3; ++b) {
        const auto& c = bens[b];
        const std::string k = b == 0 ? "" : std::to_string(b + 1);
        auto n = [&](const char* base) { return std::string(base) + k; };
        g->addWidget(new QLabel(QString("Beneficiario %1").arg(b + 1)), 0, b + 1);
        auto* nombre = f.texto(c.nombre, n("nombreben").c_str());
        f.pantalla().alPulsarEnter(nombre,
                                   [&f, nombre] { return f.enterNombre(nombre, "Beneficiario"); });
        QWidget* campos[] = {
            f.lista(c.tipodedoc, n("tipodedocben").c_str(), {"DO", "PA"}),
            f.catalogo(c.paisdeldoc, n("paisdeldocben").c_str(), "Form32", "paises"),
            f.texto(c.documento, n("documentoben").c_str()),
            nombre,
            f.fecha(c.fechanac, n("fechanacben").c_str()),
            f.listaConTextos(c.nacionalidad, n("nacionalidadben").c_str(), kNacionalidades),
            f.listaConTextos(c.sexo, n("sexoben").c_str(), kSexos),
            f.lista(c.causa, n("causaben").c_str(),
                    {"01-Menor de Edad", "02-Incapacidad", "03-Incapacidad al 4.5%",
                     "04-Menor de Edad al 4.5%"}),
            f.lista(c.relacion, n("relacionfilialben").c_str(),
                    {"03-Hijo/Hija Natural Rec.Leg.", "09-Tutelado", "11-Curatelado"}),
            f.lista(c.regimen, n("regimenben").c_str(), {"01-Privada", "02-Pública"}),
            f.lista(c.porcentaje, n("porcentajeben").c_str(), {"00-0%", "01-50%", "02-100%"}),
            f.numero(c.monto, n("montoben").c_str(), 60, ventana::ClaseNumero::Entero),
            f.fecha(c.fechadesde, n("fechadesdeben").c_str()),
            f.fecha(c.fechapres, n("fechapresben").c_str())};
        for (int i = 0; i < 14; ++i) {
            campos[i]->setProperty("rotulo",
                                   etiquetas[i] + QString(" del beneficiario %1").arg(b + 1));
            g->addWidget(campos[i], i + 1, b + 1);
        }
    }
    g->setRowStretch(16, 1);
}

}  // namespace nomira::pantallas
