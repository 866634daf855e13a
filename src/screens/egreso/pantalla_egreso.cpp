#include "screens/egreso/pantalla_egreso.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

#include "common/numeros.h"
#include "engine/aguinaldo/aguinaldo.h"
#include "engine/calculos/explicacion.h"
#include "engine/egreso/liquidacion_egreso.h"
#include "frame/ventana/texto_qt.h"
#include "screens/haberes/partes_liquidacion.h"

namespace nomira::pantallas {

PantallaEgreso::PantallaEgreso(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form45", "Liquidación por Egreso", padre),
      mes_(base(), dialogo(), engine::TablaLiquidacion::Egresos) {
    cabecera_ = new CabeceraMes(*this, mes_, "&F.MesAct.", false);
    renglon_ = new RenglonEnMano(*this, *cabecera_, mes_);
    actividad_ = new ventana::GrupoOpciones("Ac.Lab", {{"1", "&1"}, {"2", "&2"}, {"3", "&3"}});
    actividad_->setObjectName("aclab");
    incidencias_ = new ventana::GrupoOpciones("Incidencias IPD", {{"Si", "Sí"}, {"No", "No"}});
    incidencias_->setObjectName("incidencias");
    vacacional_ = new ventana::GrupoOpciones("Vac.", {{"No", "No"}, {"Si", "Sí"}});
    vacacional_->setObjectName("vacacional");
    licencia_ = new ventana::GrupoOpciones("Lic.", {{"No", "No"}, {"Si", "Sí"}});
    licencia_->setObjectName("licencia");
    const auto g = grillasLiquidacion("Haberes");
    haberes_ = g.haberes;
    descuentos_ = g.descuentos;

    auto* todo = new QVBoxLayout(lienzo());
    todo->addWidget(cabecera_);
    auto* opciones = new QHBoxLayout;
    for (auto* grupo : {actividad_, incidencias_, vacacional_, licencia_})
        opciones->addWidget(grupo);
    opciones->addStretch();
    todo->addLayout(opciones);
    todo->addWidget(renglon_);
    todo->addWidget(g.contenedor, 1);
    todo->addLayout(filaDeCifras({{"totalhab", "T.Haberes"},
                                  {"totaldes", "Total Descuentos"},
                                  {"liquidoneto", "Líquido Neto"},
                                  {"liquidoacobrar", "Líquido a Cobrar"}},
                                 cifras_));
    todo->addWidget(armarBotones());
    todo->addWidget(armarTeclas());

    connect(cabecera_, &CabeceraMes::mesOlvidado, this, [this] { olvidar(); });
    connect(cabecera_, &CabeceraMes::mesAbierto, this, [this] { Consultar_Click(); });
    connect(renglon_, &RenglonEnMano::mesCambiado, this, [this] { Consultar_Click(); });
    for (auto* grilla : {haberes_, descuentos_})
        connect(grilla, &QAbstractItemView::clicked, this,
                [this, grilla] { renglon_->traer(grilla->elegida(0)); });
    olvidar();
    renglon_->limpiar();
    cabecera_->empezar(renglon_->campoCodigo());
}

QWidget* PantallaEgreso::armarBotones() {
    return marcoDeBotones("Egreso", {{"HabPerm", "&Hab. Perm.", [this] { HabPerm_Click(); }},
                                     {"DescPerm", "&Desc. Perm.", [this] { DescPerm_Click(); }}});
}

QWidget* PantallaEgreso::armarTeclas() {
    auto acciones = teclasSinFilaEnMano(*this, [this] { Consultar_Click(); });
    // Las filas que se teclean, como en el mes.
    acciones.insert(acciones.begin() + 3,
                    {{Qt::Key_F5, "F5 Agregar", [this] { renglon_->agregar(); }},
                     {Qt::Key_F6, "F6 Modificar", [this] { renglon_->modificar(); }},
                     {Qt::Key_F7, "F7 Eliminar", [this] { renglon_->eliminar(); }}});
    auto* teclas = teclasFunciones(acciones);
    // Los recibos llegan con su pantalla.
    teclasPendientes(teclas, {"Imp.", "Copiar"});
    return teclas;
}

void PantallaEgreso::HabPerm_Click() {
    intentar("HabPerm_Click", [this] {
        if (!cabecera_->completa(engine::kFaltanCamposHaberesAguinaldo)) return;
        const engine::OpcionesEgreso op{
            static_cast<int>(common::textoANumero(ventana::deQt(actividad_->valor()))),
            incidencias_->valor() == "Si", licencia_->valor() == "Si",
            vacacional_->valor() == "Si"};
        engine::egresoDeUnaPersona(base(), cabecera_->empresa(), cabecera_->nombre(),
                                   *cabecera_->mes(), op, false, dialogo());
        // La fila en mano trabaja sobre el mes como quedó.
        cabecera_->releer();
        Consultar_Click();
    });
}

void PantallaEgreso::DescPerm_Click() {
    intentar("DescPerm_Click", [this] {
        if (!cabecera_->completa(engine::kFaltanCamposDescuentosAguinaldo)) return;
        engine::descuentosEgresoDeUnaPersona(base(), cabecera_->empresa(), cabecera_->nombre(),
                                             *cabecera_->mes(), dialogo());
        cabecera_->releer();
        Consultar_Click();
    });
}

void PantallaEgreso::olvidar() {
    const std::vector<std::string> columnas = {"Código", "Concepto", "Unid.", "Cant.", "Total"};
    haberes_->mostrar(columnas, {}, {0, 3, 4});
    descuentos_->mostrar(columnas, {}, {0, 3, 4});
    for (auto& [nombre, c] : cifras_) c->clear();
}

void PantallaEgreso::Consultar_Click() {
    intentar("Consultar_Click", [this] {
        olvidar();
        const auto leidas = cabecera_->filasDe(engine::TablaLiquidacion::Egresos);
        if (!leidas) return;
        const auto& filas = *leidas;
        std::vector<std::vector<std::string>> hab, des;
        for (const auto& f : filas)
            (f.tipo == "Hab" ? hab : des)
                .push_back({std::to_string(f.codigo), f.concepto, f.unidad,
                            common::numeroATexto(f.cant), engine::pesos(f.total)});
        const std::vector<std::string> columnas = {"Código", "Concepto", "Unid.", "Cant.", "Total"};
        haberes_->mostrar(columnas, hab, {0, 3, 4});
        descuentos_->mostrar(columnas, des, {0, 3, 4});
        for (auto* g : {haberes_, descuentos_})
            g->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
        const auto c = engine::cifrasDelEgreso(filas);
        for (auto [nombre, importe] : {std::pair{"totalhab", c.haberes},
                                       {"totaldes", c.descuentos},
                                       {"liquidoneto", c.liquido},
                                       {"liquidoacobrar", c.aCobrar}})
            cifras_.at(nombre)->setText(ventana::aQt(engine::pesos(importe)));
    });
}

void PantallaEgreso::prepararCaptura() {
    cabecera_->elegirUnMesConFilas(
        [this](const std::string& empresa, const std::string& nombre, const common::Mes& mes) {
            return !engine::filasDeLaPersona(base(), empresa, nombre, mes,
                                             engine::TablaLiquidacion::Egresos)
                        .empty();
        });
}

}  // namespace nomira::pantallas
