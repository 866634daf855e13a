#include "screens/haberes/renglon_en_mano.h"

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/mes/filas_persona.h"
#include "frame/ventana/texto_qt.h"
#include "master/conceptos.h"
#include "screens/haberes/casillas_renglon.h"
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
    : pantalla_(pantalla), cabecera_(cabecera), abierto_(mes), c_(armarCasillasRenglon(this)) {
    pantalla_.alPulsarEnter(c_.codigo, [this] { return Buscar_Click(); });
    pantalla_.alPulsarEnter(c_.concepto, [this] { return Descripcion_Click(); });
    pantalla_.alPulsarEnter(c_.cant, [this] { return cantEnter(); });
    pantalla_.alPulsarEnter(c_.total, [this] { return totalEnter(); });
    // La fila maneja los botones de la pantalla: Agregar si es nueva, Modificar
    // y Eliminar si ya estaba; y recibe el foco al elegir la persona.
    connect(this, &RenglonEnMano::hallada, this,
            [this](bool existe) { pantalla_.habilitarSegunHallado(existe); });
    connect(this, &RenglonEnMano::vaciada, this, [this] {
        pantalla_.habilitarSegunHallado(false);
        if (auto* agregar = pantalla_.boton("Agregar")) agregar->setEnabled(false);
    });
    connect(&cabecera_, &CabeceraMes::pasarALaFila, this, [this] { c_.codigo->setFocus(); });
}

void RenglonEnMano::limpiar() {
    buscado_.reset();
    calculo_.reset();
    c_.limpiar();
    emit vaciada();
}

void RenglonEnMano::traer(const std::string& codigo) {
    c_.codigo->setText(aQt(codigo));
    Buscar_Click();
}

bool RenglonEnMano::Buscar_Click() {
    pantalla_.intentar("Buscar_Click", [this] {
        if (cabecera_.empresa().empty() || cabecera_.nombre().empty() || deQt(c_.codigo).empty() ||
            cabecera_.mesVacio())
            return pantalla_.advertir(kFaltaCodigo);
        const auto codigo = numero(deQt(c_.codigo));
        if (!cabecera_.releer()) return;
        buscado_ = abierto_.buscar(codigo);
        calculo_.reset();
        if (!buscado_) return;
        c_.concepto->setText(aQt(buscado_->concepto.concepto));
        c_.unidad->setText(aQt(buscado_->concepto.unidad));
        c_.cant->setText(aQt(buscado_->textoCant));
        // El importe con la misma forma que en la grilla.
        if (buscado_->textoTotal.empty())
            c_.total->clear();
        else
            c_.total->ponerImporte(common::textoANumero(buscado_->textoTotal));
        emit hallada(buscado_->existe);
        c_.cant->setFocus();
    });
    return false;
}

bool RenglonEnMano::Descripcion_Click() {
    pantalla_.intentar("Descripcion_Click", [this] {
        const auto texto = common::mayusculas(deQt(c_.concepto));
        if (texto.empty()) return pantalla_.advertir(kFaltaCodigo);
        auto c = engine::conceptoPorNombre(pantalla_.base(), texto);
        if (!c) {
            const auto parecidos = master::buscarConceptos(pantalla_.base(), "concepto", texto);
            if (!parecidos.empty()) c = parecidos.front();
        }
        if (!c) return pantalla_.advertir(kCodigoNoExiste);
        c_.codigo->setText(aQt(c->codigo));
        Buscar_Click();
    });
    return false;
}

bool RenglonEnMano::cantEnter() {
    if (!pantalla_.campoValido(c_.cant)) return false;
    pantalla_.intentar("Text5_KeyPress", [this] {
        if (!abierto_.abierto() || !buscado_) return pantalla_.advertir(kFaltaCodigo);
        calculo_ = abierto_.calcular(buscado_->concepto, c_.cant->valor());
        // Una respuesta No a las preguntas de la licencia deja la fila como estaba.
        if (!calculo_) return;
        c_.concepto->setText(aQt(calculo_->texto));
        c_.cant->setText(aQt(common::numeroATexto(calculo_->cant)));
        c_.total->ponerImporte(calculo_->total.aDouble());
        if (calculo_->impuesto) emit impuesto(*calculo_->impuesto);
        c_.total->setFocus();
        c_.total->end(false);
    });
    return false;
}

bool RenglonEnMano::totalEnter() {
    if (!pantalla_.campoValido(c_.total)) return false;
    auto* agregar = pantalla_.boton("Agregar");
    auto* modificar = pantalla_.boton("Modificar");
    if (agregar && agregar->isEnabled())
        guardar("Agregar_Click");
    else if (modificar && modificar->isEnabled())
        guardar("Modificar_Click");
    else if (c_.total->text().trimmed().isEmpty())
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
            calculo.texto = deQt(c_.concepto);
            calculo.cant = common::textoANumero(c_.cant->valor());
            calculo.total = common::Dinero::desdeDouble(common::textoANumero(c_.total->valor()));
        }
        const auto rechazo = abierto_.guardar(calculo, c_.cant->valor(), c_.total->valor());
        if (rechazo && *rechazo == engine::kFaltaTotal) return;  // se completa el total
        limpiar();
        emit mesCambiado();
        c_.codigo->setFocus();
    });
}

void RenglonEnMano::eliminar() {
    pantalla_.intentar("Eliminar_Click", [this] {
        if (!abierto_.abierto() || !buscado_) return pantalla_.advertir(kFaltaCodigo);
        const auto rechazo = abierto_.eliminar(buscado_->concepto);
        if (rechazo && rechazo->empty()) return;  // respondió No
        limpiar();
        emit mesCambiado();
        c_.codigo->setFocus();
    });
}

void RenglonEnMano::comoSeCalculo(const ventana::Grilla* grilla) {
    pantalla_.intentar("ComoSeCalculo_Click", [this, grilla] {
        std::string codigo = deQt(c_.codigo), concepto = deQt(c_.concepto);
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
