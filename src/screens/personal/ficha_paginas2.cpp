// Las páginas de la segunda y tercera actividad, del cónyuge, de los beneficiarios
// y de las otras deducciones.
#include <QGridLayout>
#include <QLabel>

#include "master/catalogos.h"
#include "screens/personal/ficha_personal.h"
#include "screens/personal/rejilla.h"

namespace nomira::pantallas {

using P = master::Persona;

namespace {

// Las columnas de una actividad que se repiten en la segunda y en la tercera.
struct ColumnasActividad {
    std::string P::*fechaing, P::*sector, P::*categoria, P::*sueldo, P::*fechaeg, P::*motivoeg,
        P::*antiguedad, P::*horario, P::*tiporemmtss, P::*tiporembps, P::*segurosalud,
        P::*vinculofun, P::*exon, P::*cesp;
};

const ColumnasActividad kActividades[] = {
    {&P::fechaing2, &P::sector2, &P::categoria2, &P::sueldo2, &P::fechaeg2, &P::motivoeg2,
     &P::antiguedad2, &P::horario2, &P::tiporemmtss2, &P::tiporembps2, &P::segurosalud2,
     &P::vinculofun2, &P::exon2, &P::cesp2},
    {&P::fechaing3, &P::sector3, &P::categoria3, &P::sueldo3, &P::fechaeg3, &P::motivoeg3,
     &P::antiguedad3, &P::horario3, &P::tiporemmtss3, &P::tiporembps3, &P::segurosalud3,
     &P::vinculofun3, &P::exon3, &P::cesp3}};

const QStringList kNacionalidades = {"U", "L", "E"};

}  // namespace

QWidget* FichaPersonal::paginaOtraActividad(int n) {
    const auto& c = kActividades[n - 1];
    const std::string k = std::to_string(n + 1);
    auto nombre = [&](const char* base) { return std::string(base) + k; };
    auto* pagina = new QWidget;
    Rejilla r(pagina, 3);
    auto& a = actividades_[n];
    a.fechaing = fecha(c.fechaing, nombre("fechaing").c_str());
    r.campo("Fecha Ing.", a.fechaing);
    a.sector = catalogo(c.sector, nombre("sector").c_str(), "Form39", "sectores");
    r.campo("Sector", a.sector);
    a.categoria = catalogo(c.categoria, nombre("categoria").c_str(), "Form390", "categorias");
    r.campo("Categoría", a.categoria);
    r.campo("Sueldo", texto(c.sueldo, nombre("sueldo").c_str(), 120));
    r.campo("NroOrd.", texto(c.cesp, nombre("cesp").c_str(), 80));
    r.saltar();
    a.fechaeg = fecha(c.fechaeg, nombre("fechaeg").c_str());
    r.campo("Fecha Eg.", a.fechaeg);
    a.motivoeg = catalogo(c.motivoeg, nombre("motivoeg").c_str(), "Form38", "motivodeegreso");
    r.campo("Motivo de Egreso", a.motivoeg);
    a.antiguedad = texto(c.antiguedad, nombre("antiguedad").c_str(), 60);
    r.campo("Antiguedad", a.antiguedad);
    r.campo("Horario de Trabajo", texto(c.horario, nombre("horario").c_str()), 2);
    r.saltar();
    r.campo("Tipo de rem. M.T.S.S.",
            catalogo(c.tiporemmtss, nombre("tiporemmtss").c_str(), "Form33", "tiporemmtss"));
    r.campo("Tipo de rem. B.P.S.",
            catalogo(c.tiporembps, nombre("tiporembps").c_str(), "Form34", "tiporembps"));
    r.campo("Seguro salud",
            catalogo(c.segurosalud, nombre("segurosalud").c_str(), "Form35", "segurosalud"));
    r.campo("Vínculo funcional",
            catalogo(c.vinculofun, nombre("vinculofun").c_str(), "Form36", "vinculofuncional"));
    r.campo("Exon.", texto(c.exon, nombre("exon").c_str(), 60));
    r.terminar();
    enlazarActividad(n, a);
    return pagina;
}

QWidget* FichaPersonal::paginaConyuge() {
    auto* pagina = new QWidget;
    Rejilla r(pagina, 2);
    r.campo("Tipo de Documento", lista(&P::tipodedoccon, "tipodedoccon", {"DO", "PA"}));
    r.campo("País del Doc.", catalogo(&P::paisdeldoccon, "paisdeldoccon", "Form32", "paises"));
    r.campo("Documento", texto(&P::documentocon, "documentocon"));
    auto* nombre = texto(&P::nombrecon, "nombrecon");
    alPulsarEnter(nombre, [this, nombre] { return enterNombre(nombre, "Cónyuge"); });
    r.campo("Nombre", nombre);
    r.campo("Fecha Nac.", fecha(&P::fechanaccon, "fechanaccon"));
    r.campo("Nacionalidad", lista(&P::nacionalidadcon, "nacionalidadcon", kNacionalidades));
    sexocon_ = opciones(nullptr, "sexocon", "Sexo", {{"M", "Masculino"}, {"F", "Femenino"}});
    r.ancho(sexocon_, 1);
    sns_ = opciones(nullptr, "sns", "Ingresa al SNS", {{"No", "No"}, {"Si", "Si"}});
    r.ancho(sns_, 1);
    r.campo("Fecha Des.", fecha(&P::fechadesdecon, "fechadesdecon"));
    r.campo("Fecha Pres.", fecha(&P::fechaprescon, "fechaprescon"));
    r.terminar();
    return pagina;
}

// Los tres beneficiarios lado a lado, un campo por fila.
QWidget* FichaPersonal::paginaBeneficiarios() {
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
    auto* pagina = new QWidget;
    auto* g = new QGridLayout(pagina);
    for (int i = 0; i < etiquetas.size(); ++i)
        g->addWidget(new QLabel(etiquetas[i]), i + 1, 0, Qt::AlignRight);
    for (int b = 0; b < 3; ++b) {
        const auto& c = bens[b];
        const std::string k = b == 0 ? "" : std::to_string(b + 1);
        auto n = [&](const char* base) { return std::string(base) + k; };
        g->addWidget(new QLabel(QString("Beneficiario %1").arg(b + 1)), 0, b + 1);
        auto* nombre = texto(c.nombre, n("nombreben").c_str());
        alPulsarEnter(nombre, [this, nombre] { return enterNombre(nombre, "Beneficiario"); });
        QWidget* campos[] = {
            lista(c.tipodedoc, n("tipodedocben").c_str(), {"DO", "PA"}),
            catalogo(c.paisdeldoc, n("paisdeldocben").c_str(), "Form32", "paises"),
            texto(c.documento, n("documentoben").c_str()),
            nombre,
            fecha(c.fechanac, n("fechanacben").c_str()),
            lista(c.nacionalidad, n("nacionalidadben").c_str(), kNacionalidades),
            lista(c.sexo, n("sexoben").c_str(), {"M", "F"}),
            lista(c.causa, n("causaben").c_str(),
                  {"01-Menor de Edad", "02-Incapacidad", "03-Incapacidad al 4.5%",
                   "04-Menor de Edad al 4.5%"}),
            lista(c.relacion, n("relacionfilialben").c_str(),
                  {"03-Hijo/Hija Natural Rec.Leg.", "09-Tutelado", "11-Curatelado"}),
            lista(c.regimen, n("regimenben").c_str(), {"01-Privada", "02-Pública"}),
            lista(c.porcentaje, n("porcentajeben").c_str(), {"00-0%", "01-50%", "02-100%"}),
            texto(c.monto, n("montoben").c_str(), 60),
            fecha(c.fechadesde, n("fechadesdeben").c_str()),
            fecha(c.fechapres, n("fechapresben").c_str())};
        for (int i = 0; i < 14; ++i) g->addWidget(campos[i], i + 1, b + 1);
    }
    g->setRowStretch(16, 1);
    return pagina;
}

QWidget* FichaPersonal::paginaDeducciones() {
    struct Columnas {
        std::string P::*codigo, P::*categoria, P::*fechadesde, P::*fechapres;
    };
    const Columnas deds[] = {
        {&P::codigoded, &P::categoriaded, &P::fechadesdeded, &P::fechapresded},
        {&P::codigoded2, &P::categoriaded2, &P::fechadesdeded2, &P::fechapresded2},
        {&P::codigoded3, &P::categoriaded3, &P::fechadesdeded3, &P::fechapresded3}};
    auto* pagina = new QWidget;
    auto* g = new QGridLayout(pagina);
    const QStringList titulos = {"", "Código de Deducción", "Categoría", "Fecha Des.",
                                 "Fecha Pres."};
    for (int i = 1; i < titulos.size(); ++i) g->addWidget(new QLabel(titulos[i]), 0, i);
    for (int d = 0; d < 3; ++d) {
        const auto& c = deds[d];
        const std::string k = d == 0 ? "" : std::to_string(d + 1);
        auto n = [&](const char* base) { return std::string(base) + k; };
        auto* codigo = catalogo(c.codigo, n("codigoded").c_str(), "", "codigodeducciones");
        auto* categoria =
            catalogo(c.categoria, n("categoriaded").c_str(), "", "categoriadeducciones");
        // La categoría de una deducción se elige entre las de su código.
        categoria->cambiarCargador([this, codigo] {
            const auto cod = master::codigoEnCatalogo(base(), "codigodeducciones",
                                                      codigo->currentText().toStdString());
            return master::textosCatalogo(base(), "categoriadeducciones",
                                          {{"nombre", cod.empty() ? "NADA" : cod}});
        });
        g->addWidget(new QLabel(QString("Deducción %1").arg(d + 1)), d + 1, 0);
        g->addWidget(codigo, d + 1, 1);
        g->addWidget(categoria, d + 1, 2);
        g->addWidget(fecha(c.fechadesde, n("fechadesdeded").c_str()), d + 1, 3);
        g->addWidget(fecha(c.fechapres, n("fechapresded").c_str()), d + 1, 4);
        alPulsarEnter(codigo, [categoria] {
            categoria->recargar();
            return true;
        });
    }
    g->setColumnStretch(1, 2);
    g->setColumnStretch(2, 2);
    g->setRowStretch(4, 1);
    return pagina;
}

}  // namespace nomira::pantallas
