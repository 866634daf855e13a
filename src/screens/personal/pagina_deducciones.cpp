#include "screens/personal/pagina_deducciones.h"

#include <QGridLayout>
#include <QLabel>
#include <tuple>

#include "master/catalogos.h"

namespace nomira::pantallas {

using P = master::Persona;

PaginaDeducciones::PaginaDeducciones(CamposFicha& f) {
    struct Columnas {
        std::string P::*codigo, P::*categoria, P::*fechadesde, P::*fechapres;
    };
    const Columnas deds[] = {
        {&P::codigoded, &P::categoriaded, &P::fechadesdeded, &P::fechapresded},
        {&P::codigoded2, &P::categoriaded2, &P::fechadesdeded2, &P::fechapresded2},
        {&P::codigoded3, &P::categoriaded3, &P::fechadesdeded3, &P::fechapresded3}};
    auto* g = new QGridLayout(this);
    const QStringList titulos = {"", "Código de Deducción", "Categoría", "Fecha Des.",
                                 "Fecha Pres."};
    for (int i = 1; i < titulos.size(); ++i) g->addWidget(new QLabel(titulos[i]), 0, i);
    for (int d = 0; d < 3; ++d) {
        const auto& c = deds[d];
        const std::string k = d == 0 ? "" : std::to_string(d + 1);
        auto n = [&](const char* base) { return std::string(base) + k; };
        auto* codigo = f.catalogo(c.codigo, n("codigoded").c_str(), "", "codigodeducciones");
        auto* categoria =
            f.catalogo(c.categoria, n("categoriaded").c_str(), "", "categoriadeducciones");
        // La categoría de una deducción se elige entre las de su código.
        categoria->cambiarCargador([&f, codigo] {
            const auto cod = master::codigoEnCatalogo(f.pantalla().base(), "codigodeducciones",
                                                      codigo->currentText().toStdString());
            return master::textosCatalogo(f.pantalla().base(), "categoriadeducciones",
                                          {{"nombre", cod.empty() ? "NADA" : cod}});
        });
        g->addWidget(new QLabel(QString("Deducción %1").arg(d + 1)), d + 1, 0);
        g->addWidget(codigo, d + 1, 1);
        g->addWidget(categoria, d + 1, 2);
        for (auto [columna, nombre, rotulo, lugar] :
             {std::tuple{c.fechadesde, "fechadesdeded", "Fecha Des.", 3},
              std::tuple{c.fechapres, "fechapresded", "Fecha Pres.", 4}}) {
            auto* fecha = f.fecha(columna, n(nombre).c_str());
            fecha->setProperty("rotulo", QString("%1 de la deducción %2").arg(rotulo).arg(d + 1));
            g->addWidget(fecha, d + 1, lugar);
        }
        f.pantalla().alPulsarEnter(codigo, [categoria] {
            categoria->recargar();
            return true;
        });
    }
    g->setColumnStretch(1, 2);
    g->setColumnStretch(2, 2);
    g->setRowStretch(4, 1);
}

}  // namespace nomira::pantallas
