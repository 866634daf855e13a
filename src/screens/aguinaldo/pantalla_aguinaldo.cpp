#include "screens/aguinaldo/pantalla_aguinaldo.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "engine/aguinaldo/aguinaldo.h"
#include "engine/calculos/explicacion.h"
#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/texto_qt.h"
#include "screens/haberes/partes_liquidacion.h"

namespace nomira::pantallas {

PantallaAguinaldo::PantallaAguinaldo(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form43", "Aguinaldos", padre), mes_(base(), dialogo()) {
    cabecera_ = new CabeceraMes(*this, mes_, "&F.MesAct.", false);
    auto* todo = new QVBoxLayout(lienzo());
    todo->addWidget(cabecera_);
    todo->addWidget(armarActividad());
    todo->addWidget(armarGrillas(), 1);
    todo->addLayout(armarCifras());
    todo->addWidget(armarGeneraciones());
    todo->addWidget(armarTeclas());

    connect(cabecera_, &CabeceraMes::mesOlvidado, this, [this] { olvidar(); });
    connect(cabecera_, &CabeceraMes::mesAbierto, this, [this] { Consultar_Click(); });
    connect(cabecera_, &CabeceraMes::pasarALaFila, this, [this] { boton("HabPerm")->setFocus(); });
    olvidar();
    cabecera_->empezar();
}

QWidget* PantallaAguinaldo::armarActividad() {
    auto* marco = new QGroupBox("Actividad laboral");
    auto* capa = new QHBoxLayout(marco);
    auto* grupo = new QButtonGroup(marco);
    for (int i = 0; i < 3; ++i) {
        auto* b = new QRadioButton(QString("Act. Lab &%1").arg(i + 1));
        b->setObjectName(QString("Option%1").arg(i + 1));
        grupo->addButton(b);
        capa->addWidget(b);
        actividades_[static_cast<std::size_t>(i)] = b;
    }
    actividades_[0]->setChecked(true);
    capa->addStretch();
    return marco;
}

int PantallaAguinaldo::actividad() const {
    for (std::size_t i = 0; i < actividades_.size(); ++i)
        if (actividades_[i]->isChecked()) return static_cast<int>(i) + 1;
    return 1;
}

QWidget* PantallaAguinaldo::armarGrillas() {
    const auto g = grillasLiquidacion("Haberes por mes");
    haberes_ = g.haberes;
    descuentos_ = g.descuentos;
    return g.contenedor;
}

QLayout* PantallaAguinaldo::armarCifras() {
    return filaDeCifras({{"sumademeses", "Suma de los meses"},
                         {"aguinaldo", "Aguinaldo"},
                         {"totaldes", "Total Descuentos"},
                         {"liquidoacobrar", "Líquido a Cobrar"}},
                        cifras_);
}

QWidget* PantallaAguinaldo::armarGeneraciones() {
    auto* marco = marcoDeBotones(
        "Aguinaldo",
        {{"HabPerm", "&Hab. Perm.", [this] { HabPerm_Click(); }},
         {"DescPerm", "&Desc. Perm.", [this] { DescPerm_Click(); }},
         {"ActAguinxEmpresa", "Act. Aguin. x &Empresa", [this] { ActAguinxEmpresa_Click(); }}});
    // Fuera del marco: sigue habilitado mientras corre toda la empresa.
    avance_ = new AvanceEmpresa;
    auto* capa = new QWidget;
    auto* v = new QVBoxLayout(capa);
    v->setContentsMargins(0, 0, 0, 0);
    v->addWidget(marco);
    v->addWidget(avance_);
    return capa;
}

QWidget* PantallaAguinaldo::armarTeclas() {
    auto* teclas = teclasFunciones(teclasSinFilaEnMano(*this, [this] { Consultar_Click(); }));
    // Los recibos llegan con su pantalla.
    teclasPendientes(teclas, {"Imp.", "Copiar"});
    return teclas;
}

void PantallaAguinaldo::HabPerm_Click() {
    intentar("HabPerm_Click", [this] {
        if (!cabecera_->completa(engine::kFaltanCamposHaberesAguinaldo)) return;
        engine::haberesAguinaldoDeUnaPersona(base(), cabecera_->empresa(), cabecera_->nombre(),
                                             *cabecera_->mes(), actividad(), dialogo());
        Consultar_Click();
    });
}

void PantallaAguinaldo::DescPerm_Click() {
    intentar("DescPerm_Click", [this] {
        if (!cabecera_->completa(engine::kFaltanCamposDescuentosAguinaldo)) return;
        engine::descuentosAguinaldoDeUnaPersona(base(), cabecera_->empresa(), cabecera_->nombre(),
                                                *cabecera_->mes(), dialogo());
        Consultar_Click();
    });
}

void PantallaAguinaldo::ActAguinxEmpresa_Click() {
    intentar("ActAguinxEmpresa_Click", [this] {
        const auto mes = cabecera_->mes();
        if (cabecera_->empresa().empty() || cabecera_->mesVacio() || !mes) {
            advertir(engine::kFaltaEmpresa);
            return;
        }
        // Al terminar sin detenerse el motor avisa "Actualización finalizada.".
        const auto r = avance_->correr(this, [&] {
            return engine::aguinaldoDeLaEmpresa(base(), cabecera_->empresa(), *mes, actividad(),
                                                dialogo(), avance_->progreso(),
                                                avance_->cancelar());
        });
        Consultar_Click();
        if (r.fallo) std::rethrow_exception(r.fallo);
    });
}

void PantallaAguinaldo::olvidar() {
    haberes_->mostrar({"Mes", "Concepto", "Act.", "Total"}, {}, {0, 3});
    descuentos_->mostrar({"Concepto", "Total"}, {}, {1});
    for (auto& [nombre, c] : cifras_) c->clear();
}

void PantallaAguinaldo::Consultar_Click() {
    intentar("Consultar_Click", [this] {
        olvidar();
        const auto leidas = cabecera_->filasDe(engine::TablaLiquidacion::Aguinaldos);
        if (!leidas) return;
        const auto& filas = *leidas;
        std::vector<std::vector<std::string>> hab, des;
        for (const auto& f : filas) {
            if (f.tipo == "Hab")
                hab.push_back({f.mes, f.concepto, f.aclab, engine::pesos(f.total)});
            else
                des.push_back({f.concepto, engine::pesos(f.total)});
        }
        haberes_->mostrar({"Mes", "Concepto", "Act.", "Total"}, hab, {0, 3});
        descuentos_->mostrar({"Concepto", "Total"}, des, {1});
        for (auto* g : {haberes_, descuentos_})
            g->horizontalHeader()->setSectionResizeMode(g == haberes_ ? 1 : 0,
                                                        QHeaderView::Stretch);
        const auto c = engine::cifrasDelAguinaldo(filas);
        for (auto [nombre, importe] : {std::pair{"sumademeses", c.sumaDeMeses},
                                       {"aguinaldo", c.haberes},
                                       {"totaldes", c.descuentos},
                                       {"liquidoacobrar", c.liquido}})
            cifras_.at(nombre)->setText(ventana::aQt(engine::pesos(importe)));
    });
}

void PantallaAguinaldo::prepararCaptura() {
    cabecera_->elegirUnMesConFilas();
    // El pago que cubre ese mes: junio para enero a junio, diciembre para el resto.
    if (const auto m = cabecera_->mes()) {
        const common::Mes pago{m->anio, m->mes <= 6 ? 6 : 12};
        qobject_cast<QLineEdit*>(cabecera_->campoMes())->setText(ventana::aQt(pago.texto()));
        Consultar_Click();
    }
}

}  // namespace nomira::pantallas
