#include "screens/haberes/renglon_en_mano.h"

#include <QGridLayout>
#include <QLabel>

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/mes/filas_persona.h"
#include "frame/ventana/texto_qt.h"
#include "master/conceptos.h"
#include "screens/haberes/textos_haberes.h"

namespace nomira::pantallas {

using ventana::aQt;
using ventana::deQt;

namespace {

long numero(const std::string& texto) {
    return static_cast<long>(common::textoANumero(texto));
}

}  // namespace

RenglonEnMano::RenglonEnMano(ventana::Pantalla& pantalla, CabeceraMes& cabecera, MesAbierto& mes)
    : pantalla_(pantalla), cabecera_(cabecera), abierto_(mes) {
    auto ancho = [](QLineEdit* c, int caracteres) {
        c->setMaximumWidth(c->fontMetrics().horizontalAdvance(QString(caracteres, '0')) + 14);
    };
    codigo_ = new QLineEdit;
    codigo_->setObjectName("codigo");
    ancho(codigo_, 6);
    concepto_ = new QLineEdit;
    concepto_->setObjectName("concepto");
    unidad_ = new QLineEdit;
    unidad_->setObjectName("unidad");
    ancho(unidad_, 3);
    unidad_->setReadOnly(true);
    unidad_->setFocusPolicy(Qt::NoFocus);
    cant_ = new ventana::CampoNumero;
    cant_->setObjectName("cant");
    ancho(cant_, 10);
    total_ = new ventana::CampoNumero;
    total_->setObjectName("total");
    ancho(total_, 14);
    pantalla_.alPulsarEnter(codigo_, [this] { return Buscar_Click(); });
    pantalla_.alPulsarEnter(concepto_, [this] { return Descripcion_Click(); });
    pantalla_.alPulsarEnter(cant_, [this] { return cantEnter(); });
    pantalla_.alPulsarEnter(total_, [this] { return totalEnter(); });

    auto* capa = new QGridLayout(this);
    capa->setContentsMargins(0, 0, 0, 0);
    int columna = 0;
    for (auto [rotulo, c] : {std::pair<const char*, QLineEdit*>{"Código", codigo_},
                             {"Concepto", concepto_},
                             {"Unid.", unidad_},
                             {"Cant.", cant_},
                             {"Total", total_}}) {
        auto* l = new QLabel(rotulo);
        l->setBuddy(c);
        capa->addWidget(l, 0, columna);
        capa->addWidget(c, 1, columna++);
    }
    capa->setColumnStretch(1, 1);
}

void RenglonEnMano::limpiar() {
    buscado_.reset();
    calculo_.reset();
    for (auto* c : {codigo_, concepto_, unidad_, static_cast<QLineEdit*>(cant_),
                    static_cast<QLineEdit*>(total_)})
        c->clear();
    emit vaciada();
}

void RenglonEnMano::traer(const std::string& codigo) {
    codigo_->setText(aQt(codigo));
    Buscar_Click();
}

bool RenglonEnMano::Buscar_Click() {
    pantalla_.intentar("Buscar_Click", [this] {
        if (cabecera_.empresa().empty() || cabecera_.nombre().empty() || deQt(codigo_).empty() ||
            cabecera_.mesVacio())
            return pantalla_.advertir(kFaltaCodigo);
        const auto codigo = numero(deQt(codigo_));
        if (!cabecera_.releer()) return;
        buscado_ = abierto_.buscar(codigo);
        calculo_.reset();
        if (!buscado_) return;
        concepto_->setText(aQt(buscado_->concepto.concepto));
        unidad_->setText(aQt(buscado_->concepto.unidad));
        cant_->setText(aQt(buscado_->textoCant));
        // El importe con la misma forma que en la grilla.
        if (buscado_->textoTotal.empty())
            total_->clear();
        else
            total_->ponerImporte(common::textoANumero(buscado_->textoTotal));
        emit hallada(buscado_->existe);
        cant_->setFocus();
    });
    return false;
}

bool RenglonEnMano::Descripcion_Click() {
    pantalla_.intentar("Descripcion_Click", [this] {
        const auto texto = common::mayusculas(deQt(concepto_));
        if (texto.empty()) return pantalla_.advertir(kFaltaCodigo);
        auto c = engine::conceptoPorNombre(pantalla_.base(), texto);
        if (!c) {
            const auto parecidos = master::buscarConceptos(pantalla_.base(), "concepto", texto);
            if (!parecidos.empty()) c = parecidos.front();
        }
        if (!c) return pantalla_.advertir(kCodigoNoExiste);
        codigo_->setText(aQt(c->codigo));
        Buscar_Click();
    });
    return false;
}

bool RenglonEnMano::cantEnter() {
    if (!pantalla_.campoValido(cant_)) return false;
    pantalla_.intentar("Text5_KeyPress", [this] {
        if (!abierto_.abierto() || !buscado_) return pantalla_.advertir(kFaltaCodigo);
        calculo_ = abierto_.calcular(buscado_->concepto, cant_->valor());
        // Una respuesta No a las preguntas de la licencia deja la fila como estaba.
        if (!calculo_) return;
        concepto_->setText(aQt(calculo_->texto));
        cant_->setText(aQt(common::numeroATexto(calculo_->cant)));
        total_->ponerImporte(calculo_->total.aDouble());
        if (calculo_->impuesto) emit impuesto(*calculo_->impuesto);
        total_->setFocus();
        total_->end(false);
    });
    return false;
}

bool RenglonEnMano::totalEnter() {
    if (!pantalla_.campoValido(total_)) return false;
    auto* agregar = pantalla_.boton("Agregar");
    auto* modificar = pantalla_.boton("Modificar");
    if (agregar && agregar->isEnabled())
        guardar("Agregar_Click");
    else if (modificar && modificar->isEnabled())
        guardar("Modificar_Click");
    else if (total_->text().trimmed().isEmpty())
        pantalla_.advertir(engine::kFaltaTotal);
    return false;
}

void RenglonEnMano::agregar() {
    guardar("Agregar_Click");
}

void RenglonEnMano::modificar() {
    guardar("Modificar_Click");
}

void RenglonEnMano::guardar(const char* procedimiento) {
    if (!pantalla_.camposValidos()) return;
    pantalla_.intentar(procedimiento, [this] {
        if (!abierto_.abierto() || !buscado_) return pantalla_.advertir(kFaltaCodigo);
        // Sin Enter en la cantidad, la fila va con lo tecleado.
        engine::CalculoRenglon calculo;
        if (calculo_) {
            calculo = *calculo_;
        } else {
            calculo.concepto = buscado_->concepto;
            calculo.texto = deQt(concepto_);
            calculo.cant = common::textoANumero(cant_->valor());
            calculo.total = common::Dinero::desdeDouble(common::textoANumero(total_->valor()));
        }
        const auto rechazo = abierto_.guardar(calculo, cant_->valor(), total_->valor());
        if (rechazo && *rechazo == engine::kFaltaTotal) return;  // se completa el total
        limpiar();
        emit mesCambiado();
        codigo_->setFocus();
    });
}

void RenglonEnMano::eliminar() {
    pantalla_.intentar("Eliminar_Click", [this] {
        if (!abierto_.abierto() || !buscado_) return pantalla_.advertir(kFaltaCodigo);
        const auto rechazo = abierto_.eliminar(buscado_->concepto);
        if (rechazo && rechazo->empty()) return;  // respondió No
        limpiar();
        emit mesCambiado();
        codigo_->setFocus();
    });
}

void RenglonEnMano::comoSeCalculo(const ventana::Grilla* grilla) {
    pantalla_.intentar("ComoSeCalculo_Click", [this, grilla] {
        std::string codigo = deQt(codigo_), concepto = deQt(concepto_);
        if (codigo.empty() && grilla) {
            codigo = grilla->elegida(0);
            concepto = grilla->elegida(1);
        }
        if (!abierto_.abierto() || codigo.empty())
            return pantalla_.advertir("Debe elegir una fila de Haberes o de Descuentos.");
        const auto explicacion = abierto_.explicacion(numero(codigo));
        const std::string texto = explicacion.empty()
                                      ? "La fila " + concepto + " no tiene explicación guardada."
                                      : concepto + ": " + explicacion;
        pantalla_.dialogo().avisar(common::TipoAviso::Informacion, "¿Cómo se calculó?", texto);
    });
}

}  // namespace nomira::pantallas
