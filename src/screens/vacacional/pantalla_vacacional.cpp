#include "screens/vacacional/pantalla_vacacional.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QVBoxLayout>

#include "common/formato.h"
#include "common/numeros.h"
#include "engine/mes/mes_persona.h"
#include "engine/vacacional/desglose_vacacional.h"
#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/texto_qt.h"
#include "screens/haberes/partes_liquidacion.h"

namespace nomira::pantallas {

namespace {

std::string pesos(common::Dinero d) {
    return common::formatear(d.aDouble(), "##,##0.00");
}

std::string ddmmyy(const std::string& iso) {
    const auto f = common::Fecha::desdeTexto(iso);
    return f ? f->ddmmyy() : "";
}

// Los haberes llevan el período de la licencia; los descuentos no. La unidad
// queda en la fila en mano.
void desplegar(ventana::Grilla* grilla, const std::vector<engine::FilaMes>& filas, bool haberes) {
    std::vector<std::vector<std::string>> celdas;
    for (const auto& f : filas) {
        if (engine::esHaberVacacional(f.concepto) != haberes) continue;
        std::vector<std::string> c{std::to_string(f.codigo), f.concepto,
                                   common::numeroATexto(f.cant), pesos(f.total)};
        if (haberes) {
            c.push_back(ddmmyy(f.desdelic));
            c.push_back(ddmmyy(f.hastalic));
        }
        celdas.push_back(std::move(c));
    }
    std::vector<std::string> titulos{"Código", "Concepto", "Cant.", "Total"};
    if (haberes) titulos.insert(titulos.end(), {"Desde", "Hasta"});
    grilla->mostrar(titulos, celdas, {0, 2, 3});
    grilla->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
}

}  // namespace

PantallaVacacional::PantallaVacacional(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form44", "Salario Vacacional", padre), mes_(base(), dialogo()) {
    cabecera_ = new CabeceraMes(*this, mes_, "Fecha", false);
    renglon_ = new RenglonVacacionalEnMano(*this, *cabecera_);
    auto* todo = new QVBoxLayout(lienzo());
    todo->addWidget(cabecera_);
    todo->addWidget(renglon_);
    todo->addWidget(armarGrillas(), 1);
    todo->addLayout(armarCifras());
    todo->addWidget(armarTeclas());

    connect(cabecera_, &CabeceraMes::mesOlvidado, this, [this] { olvidar(); });
    connect(cabecera_, &CabeceraMes::mesAbierto, this, [this] { Consultar_Click(); });
    connect(cabecera_, &CabeceraMes::pasarALaFila, this,
            [this] { renglon_->campoCodigo()->setFocus(); });
    connect(renglon_, &RenglonVacacionalEnMano::hallada, this,
            [this](bool existe) { habilitarSegunHallado(existe); });
    connect(renglon_, &RenglonVacacionalEnMano::vaciada, this, [this] {
        habilitarSegunHallado(false);
        boton("Agregar")->setEnabled(false);
    });
    connect(renglon_, &RenglonVacacionalEnMano::mesCambiado, this, [this] { Consultar_Click(); });

    olvidar();
    cabecera_->empezar(renglon_->campoCodigo());
}

QWidget* PantallaVacacional::armarGrillas() {
    const auto g = grillasLiquidacion("Haberes");
    haberes_ = g.haberes;
    descuentos_ = g.descuentos;
    // Los haberes tienen dos columnas más: el período.
    if (auto* capa = qobject_cast<QBoxLayout*>(g.contenedor->layout())) {
        capa->setStretch(0, 3);
        capa->setStretch(1, 2);
    }
    for (auto* grilla : {haberes_, descuentos_})
        connect(grilla, &QAbstractItemView::clicked, this,
                [this, grilla] { renglon_->traer(grilla->elegida(0)); });
    return g.contenedor;
}

QLayout* PantallaVacacional::armarCifras() {
    return filaDeCifras({{"totalhab", "T.Haberes"},
                         {"montoirpf", "M.Irpf"},
                         {"totaldes", "Total Descuentos"},
                         {"montodedu", "M.Dedu."},
                         {"liquido", "Líquido"}},
                        cifras_);
}

QWidget* PantallaVacacional::armarTeclas() {
    auto* teclas = new QGroupBox("Teclas Funciones");
    teclas->setObjectName("TeclasFunciones");
    teclas->setLayout(botonera({
        {Qt::Key_F5, "F5-Agregar", [this] { renglon_->agregar(); }},
        {Qt::Key_F6, "F6-Modificar", [this] { renglon_->modificar(); }},
        {Qt::Key_F7, "F7-Eliminar", [this] { renglon_->eliminar(); }},
        {Qt::Key_F3, "F3-Consultar", [this] { Consultar_Click(); }},
        {Qt::Key_F2, "F2-Refresh", [this] { Consultar_Click(); }},
        {Qt::Key_F8, "F8-Imprimir", [] {}},
        {Qt::Key_F9, "F9-Copiar", [] {}},
        {Qt::Key_F1, "F1-Ayuda", [this] { ayuda(); }},
        {Qt::Key_F10, "F10-Con.", [this] { abrirRegistrada("Form4"); }},
    }));
    // Los recibos llegan con su pantalla.
    teclasPendientes(teclas, {"Imprimir", "Copiar"});
    return teclas;
}

void PantallaVacacional::olvidar() {
    mes_.cerrar();
    renglon_->limpiar();
    desplegar(haberes_, {}, true);
    desplegar(descuentos_, {}, false);
    for (auto& [nombre, c] : cifras_) c->clear();
}

void PantallaVacacional::Consultar_Click() {
    intentar("Consultar_Click", [this] {
        // Las filas como están ahora: otra PC pudo cambiarlas.
        if (!cabecera_->releer()) return olvidar();
        const auto& mp = mes_.mes();
        const auto filas = engine::filasVacacional(mp);
        desplegar(haberes_, filas, true);
        desplegar(descuentos_, filas, false);
        const auto d = engine::desgloseVacacional(mp, mes_.contexto(), dialogo());
        for (auto [nombre, importe] : {std::pair{"totalhab", d.haberes},
                                       {"montoirpf", d.montoirpf},
                                       {"totaldes", d.descuentos},
                                       {"montodedu", d.deducciones},
                                       {"liquido", d.liquido}})
            cifras_.at(nombre)->setText(ventana::aQt(pesos(importe)));
    });
}

void PantallaVacacional::prepararCaptura() {
    cabecera_->elegirUnMesConFilas([this](const std::string& empresa, const std::string& nombre,
                                          const common::Mes& mes) {
        engine::ContextoFormula ctx;
        const auto mp = engine::leerMesDeLaPersona(base(), empresa, nombre, mes, ctx, dialogo());
        return mp && !engine::filasVacacional(*mp).empty();
    });
}

}  // namespace nomira::pantallas
