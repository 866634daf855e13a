#include "screens/haberes/pantalla_haberes.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "common/formato.h"
#include "common/numeros.h"
#include "engine/validacion/validacion.h"
#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/texto_qt.h"
#include "screens/haberes/lista_validacion.h"
#include "screens/haberes/partes_liquidacion.h"

namespace nomira::pantallas {

namespace {

std::string pesos(common::Dinero d) {
    return common::formatear(d.aDouble(), "##,##0.00");
}

void desplegar(ventana::Grilla* grilla, const std::vector<engine::FilaGuardada>& filas,
               const char* tipo) {
    std::vector<std::vector<std::string>> celdas;
    for (const auto& f : filas)
        if (f.tipo == tipo)
            celdas.push_back({std::to_string(f.codigo), f.concepto, f.unidad,
                              common::numeroATexto(f.cant), pesos(f.total)});
    grilla->mostrar({"Código", "Concepto", "Unid.", "Cant.", "Total"}, celdas, {0, 3, 4});
    grilla->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
}

}  // namespace

PantallaHaberes::PantallaHaberes(frame::Sesion& sesion, QWidget* padre)
    : Pantalla(sesion, "Form42", "Haberes y Descuentos", padre), mes_(base(), dialogo()) {
    cabecera_ = new CabeceraMes(*this, mes_);
    renglon_ = new RenglonEnMano(*this, *cabecera_, mes_);
    generaciones_ = new PanelGeneraciones(*this, *cabecera_);
    irpf_ = new CuadroIRPF;

    auto* todo = new QVBoxLayout(lienzo());
    todo->addWidget(cabecera_);
    todo->addWidget(renglon_);
    todo->addWidget(armarGrillas(), 1);
    todo->addLayout(armarCifras());
    auto* abajo = new QHBoxLayout;
    abajo->addWidget(generaciones_, 3);
    abajo->addWidget(irpf_, 2);
    todo->addLayout(abajo);
    todo->addWidget(armarTeclas());

    connect(cabecera_, &CabeceraMes::mesOlvidado, this, [this] { olvidarMes(); });
    connect(cabecera_, &CabeceraMes::mesTecleado, irpf_, &CuadroIRPF::limpiar);
    connect(cabecera_, &CabeceraMes::mesAbierto, this, [this] { Consultar_Click(); });
    connect(renglon_, &RenglonEnMano::mesCambiado, this, [this] { Consultar_Click(); });
    connect(renglon_, &RenglonEnMano::impuesto, this, &PantallaHaberes::mostrarIRPF);
    connect(generaciones_, &PanelGeneraciones::mesCambiado, this, [this] { releer(); });
    connect(generaciones_, &PanelGeneraciones::irpfOlvidado, irpf_, &CuadroIRPF::limpiar);
    connect(generaciones_, &PanelGeneraciones::impuesto, this, &PantallaHaberes::mostrarIRPF);
    connect(generaciones_, &PanelGeneraciones::comoSeCalculo, this,
            [this] { renglon_->comoSeCalculo(ultimaGrilla_); });
    // Después de toda la empresa, las grillas son de la persona en pantalla.
    connect(generaciones_, &PanelGeneraciones::empresaCorrida, this, [this] { releer(); });

    renglon_->limpiar();
    cabecera_->empezar(renglon_->campoCodigo());
}

QWidget* PantallaHaberes::armarGrillas() {
    const auto g = grillasLiquidacion("Haberes");
    haberes_ = g.haberes;
    descuentos_ = g.descuentos;
    for (auto* grilla : {haberes_, descuentos_}) {
        // Elegir una fila la trae a la fila en mano.
        connect(grilla, &QAbstractItemView::clicked, this, [this, grilla] {
            ultimaGrilla_ = grilla;
            renglon_->traer(grilla->elegida(0));
        });
    }
    return g.contenedor;
}

QLayout* PantallaHaberes::armarCifras() {
    return filaDeCifras({{"totalhab", "T.Haberes"},
                         {"totaldes", "Total Descuentos"},
                         {"liquidoneto", "Líquido Neto"},
                         {"liquidoacobrar", "Líquido a Cobrar"},
                         {"montoirpf", "M.Irpf"},
                         {"montodedu", "M.Dedu."}},
                        cifras_);
}

QWidget* PantallaHaberes::armarTeclas() {
    auto* teclas = new QGroupBox("Teclas Funciones");
    teclas->setObjectName("TeclasFunciones");
    teclas->setLayout(botonera({
        {Qt::Key_F1, "F1 Ayuda", [this] { ayuda(); }},
        {Qt::Key_F2, "F2 Refresh", [this] { Refrescar(); }},
        {Qt::Key_F3, "F3 Consultar", [this] { Consultar_Click(); }},
        {Qt::Key_F5, "F5 Agregar", [this] { renglon_->agregar(); }},
        {Qt::Key_F6, "F6 Modificar", [this] { renglon_->modificar(); }},
        {Qt::Key_F7, "F7 Eliminar", [this] { renglon_->eliminar(); }},
        {Qt::Key_F8, "F8 Imp.", [] {}},
        {Qt::Key_F9, "F9 Copiar", [] {}},
        {Qt::Key_F10, "F10 Concep.", [this] { abrirRegistrada("Form4"); }},
        {Qt::Key_F12, "F12 Validar", [this] { Validar_Click(); }},
    }));
    // Los recibos, la copia y la validación llegan con sus pantallas.
    teclasPendientes(teclas, {"Imp.", "Copiar"});
    return teclas;
}

void PantallaHaberes::olvidarMes() {
    mes_.cerrar();
    renglon_->limpiar();
    irpf_->limpiar();
    desplegar(haberes_, {}, "Hab");
    desplegar(descuentos_, {}, "Des");
    for (auto& [nombre, c] : cifras_) c->clear();
}

void PantallaHaberes::Consultar_Click() {
    intentar("Consultar_Click", [this] {
        if (!mes_.abierto()) return;
        const auto v = mes_.consultar();
        desplegar(haberes_, v.filas, "Hab");
        desplegar(descuentos_, v.filas, "Des");
        const auto& c = v.cifras;
        for (auto [nombre, importe] : {std::pair{"totalhab", c.totalhab},
                                       {"totaldes", c.totaldes},
                                       {"liquidoneto", c.liquidoneto},
                                       {"liquidoacobrar", c.aCobrar},
                                       {"montoirpf", c.montoirpf},
                                       {"montodedu", c.montodedu}})
            cifras_.at(nombre)->setText(ventana::aQt(pesos(importe)));
    });
}

void PantallaHaberes::Refrescar() {
    intentar("Form_KeyDown", [this] {
        if (cabecera_->releer()) Consultar_Click();
        renglon_->campoCodigo()->setFocus();
    });
}

void PantallaHaberes::releer() {
    renglon_->limpiar();
    if (cabecera_->releer())
        Consultar_Click();
    else
        olvidarMes();
    renglon_->campoCodigo()->setFocus();
}

void PantallaHaberes::mostrarIRPF(const engine::ImporteImpuesto& imp) {
    if (!mes_.abierto()) return;
    const auto& mp = mes_.mes();
    if (imp.irpfDiciembre)
        irpf_->mostrarDiciembre(*imp.irpfDiciembre);
    else if (imp.irpfMes)
        irpf_->mostrarMes(*imp.irpfMes, mp.desglose.montoirpf, mp.desglose.montonominal);
}

void PantallaHaberes::Validar_Click() {
    intentar("Validar_Click", [this] {
        const auto mes = cabecera_->mes();
        if (cabecera_->empresa().empty() || cabecera_->mesVacio() || !mes) {
            advertir(engine::kFaltanCamposValidacion);
            return;
        }
        const auto hallazgos =
            engine::validarMes(base(), cabecera_->empresa(), *mes, dialogo(), false);
        auto* lista = new ListaValidacion(
            "Validación de " + cabecera_->empresa() + " del " + mes->texto(), hallazgos, this);
        lista->setAttribute(Qt::WA_DeleteOnClose);
        connect(lista, &ListaValidacion::imprimir, this,
                [this, lista] { imprimirInforme(lista->lineas(), "Validación"); });
        lista->open();
    });
}

void PantallaHaberes::prepararCaptura() {
    cabecera_->elegirUnMesConFilas();
}

}  // namespace nomira::pantallas
