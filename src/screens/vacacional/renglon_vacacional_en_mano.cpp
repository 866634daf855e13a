#include "screens/vacacional/renglon_vacacional_en_mano.h"

#include "common/numeros.h"
#include "engine/mes/renglon.h"
#include "frame/ventana/texto_qt.h"

namespace nomira::pantallas {

using ventana::aQt;
using ventana::deQt;

RenglonVacacionalEnMano::RenglonVacacionalEnMano(ventana::Pantalla& pantalla, CabeceraMes& cabecera)
    : pantalla_(pantalla), cabecera_(cabecera), c_(armarCasillasRenglon(this)) {
    for (auto [nombre, rotulo, campo] :
         {std::tuple{"desdelic", "Desde", &desde_}, std::tuple{"hastalic", "Hasta", &hasta_}}) {
        *campo = new ventana::CampoFecha;
        (*campo)->setObjectName(nombre);
        anchoEnCifras(*campo, 9);
        c_.agregarColumna(rotulo, *campo);
    }
    pantalla_.alPulsarEnter(c_.codigo, [this] { return Buscar_Click(); });
    pantalla_.alPulsarEnter(c_.cant, [this] { return cantEnter(); });
    pantalla_.alPulsarEnter(c_.total, [this] { return totalEnter(); });
}

void RenglonVacacionalEnMano::limpiar() {
    buscado_.reset();
    c_.limpiar();
    desde_->clear();
    hasta_->clear();
    emit vaciada();
}

void RenglonVacacionalEnMano::traer(const std::string& codigo) {
    c_.codigo->setText(aQt(codigo));
    Buscar_Click();
}

bool RenglonVacacionalEnMano::Buscar_Click() {
    pantalla_.intentar("Buscar_Click", [this] {
        // Un mes vacío o mal escrito es un campo que falta.
        const engine::ClaveVacacional clave{cabecera_.empresa(), cabecera_.nombre(),
                                            cabecera_.mesVacio() ? std::nullopt : cabecera_.mes(),
                                            deQt(c_.codigo)};
        ctx_ = {};
        auto r = engine::buscarVacacional(pantalla_.base(), clave, ctx_, pantalla_.dialogo());
        buscado_ = std::move(r.buscado);
        if (!buscado_) {
            if (r.limpiarCasillas) limpiar();
            return;
        }
        const auto& b = *buscado_;
        c_.concepto->setText(aQt(b.calculo.texto));
        c_.unidad->setText(aQt(b.concepto.unidad));
        c_.cant->setText(aQt(b.textoCant));
        if (b.textoTotal.empty())
            c_.total->clear();
        else
            c_.total->ponerImporte(common::textoANumero(b.textoTotal));
        desde_->setText(aQt(b.desdelic));
        hasta_->setText(aQt(b.hastalic));
        emit hallada(b.existe);
        c_.cant->setFocus();
    });
    return false;
}

bool RenglonVacacionalEnMano::cantEnter() {
    if (!pantalla_.campoValido(c_.cant)) return false;
    pantalla_.intentar("Text5_KeyPress", [this] {
        if (!buscado_) return pantalla_.advertir(engine::kFaltanCamposVacacional);
        const auto r =
            engine::calcularVacacional(*buscado_, ctx_, c_.cant->valor(), pantalla_.dialogo());
        c_.concepto->setText(aQt(r.texto));
        c_.cant->setText(aQt(common::numeroATexto(r.cant)));
        c_.total->ponerImporte(r.total.aDouble());
        c_.total->setFocus();
        c_.total->end(false);
    });
    return false;
}

bool RenglonVacacionalEnMano::totalEnter() {
    if (!pantalla_.campoValido(c_.total)) return false;
    if (c_.total->text().trimmed().isEmpty())
        pantalla_.advertir(engine::kFaltaTotal);
    else if (!buscado_)
        pantalla_.advertir(engine::kFaltanCamposVacacional);
    else
        guardar(buscado_->existe ? "Modificar_Click" : "Agregar_Click");
    return false;
}

void RenglonVacacionalEnMano::agregar() {
    guardar("Agregar_Click");
}

void RenglonVacacionalEnMano::modificar() {
    guardar("Modificar_Click");
}

void RenglonVacacionalEnMano::guardar(const char* procedimiento) {
    if (!pantalla_.camposValidos()) return;
    pantalla_.intentar(procedimiento, [this] {
        if (!buscado_) return pantalla_.advertir(engine::kFaltanCamposVacacional);
        // Sin Enter en la cantidad la fila va con lo tecleado; el motor anota el total tecleado.
        const engine::CasillasVacacional casillas{c_.cant->valor(), c_.total->valor(), deQt(desde_),
                                                  deQt(hasta_)};
        // Rechazada (ya avisado): la fila queda en mano para corregirla.
        if (engine::guardarVacacional(pantalla_.base(), *buscado_, ctx_, casillas,
                                      pantalla_.dialogo()))
            return;
        hecho();
    });
}

void RenglonVacacionalEnMano::eliminar() {
    pantalla_.intentar("Eliminar_Click", [this] {
        if (!buscado_) return pantalla_.advertir(engine::kFaltanCamposVacacional);
        if (engine::eliminarVacacional(pantalla_.base(), *buscado_, ctx_, pantalla_.dialogo()))
            return;  // respondió No
        hecho();
    });
}

void RenglonVacacionalEnMano::hecho() {
    limpiar();
    emit mesCambiado();
    c_.codigo->setFocus();
}

}  // namespace nomira::pantallas
