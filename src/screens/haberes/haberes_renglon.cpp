// Form42: la fila en mano. Enter en el código la busca, en la cantidad la
// calcula y en el total la guarda; Agregar, Modificar y Eliminar.
#include "common/dinero.h"
#include "common/numeros.h"
#include "common/texto.h"
#include "engine/mes/explicaciones.h"
#include "engine/mes/filas_persona.h"
#include "engine/mes/irpf_lector.h"
#include "screens/haberes/pantalla_haberes.h"
#include "screens/haberes/textos_haberes.h"

namespace nomira::pantallas {

namespace {

QString q(const std::string& s) {
    return QString::fromStdString(s);
}
std::string s(const QLineEdit* c) {
    return c->text().trimmed().toStdString();
}
long numero(const std::string& texto) {
    return static_cast<long>(common::textoANumero(texto));
}

}  // namespace

void PantallaHaberes::limpiarRenglon() {
    buscado_.reset();
    calculo_.reset();
    for (auto* c : {codigo_, concepto_, unidad_, cant_, total_}) c->clear();
    habilitarSegunHallado(false);
    boton("Agregar")->setEnabled(false);
}

bool PantallaHaberes::Buscar_Click() {
    intentar("Buscar_Click", [this] {
        if (empresa().empty() || nombre().empty() || s(codigo_).empty() ||
            (mes_->text().trimmed().isEmpty()))
            return advertir(kFaltaCodigo);
        const auto codigo = numero(s(codigo_));
        if (!BuscarVerif()) return;
        buscado_ = engine::buscarRenglon(*mp_, ctx_, codigo, dialogo());
        calculo_.reset();
        if (!buscado_) return;
        concepto_->setText(q(buscado_->concepto.concepto));
        unidad_->setText(q(buscado_->concepto.unidad));
        cant_->setText(q(buscado_->textoCant));
        total_->setText(q(buscado_->textoTotal));
        habilitarSegunHallado(buscado_->existe);
        cant_->setFocus();
    });
    return false;
}

bool PantallaHaberes::Descripcion_Click() {
    intentar("Descripcion_Click", [this] {
        const auto texto = common::mayusculas(s(concepto_));
        if (texto.empty()) return advertir(kFaltaCodigo);
        auto c = engine::conceptoPorNombre(base(), texto);
        if (!c) {
            const auto parecidos = master::buscarConceptos(base(), "concepto", texto);
            if (!parecidos.empty()) c = parecidos.front();
        }
        if (!c) return advertir(kCodigoNoExiste);
        codigo_->setText(q(c->codigo));
        Buscar_Click();
    });
    return false;
}

bool PantallaHaberes::cantEnter() {
    intentar("Text5_KeyPress", [this] {
        if (!mp_ || !buscado_) return advertir(kFaltaCodigo);
        calculo_ =
            engine::calcularRenglon(*mp_, ctx_, buscado_->concepto, s(cant_), dialogo());
        // Una respuesta No a las preguntas de la licencia deja la fila como estaba.
        if (!calculo_) return;
        concepto_->setText(q(calculo_->texto));
        cant_->setText(q(common::numeroATexto(calculo_->cant)));
        total_->setText(q(common::numeroATexto(calculo_->total.aDouble())));
        if (calculo_->impuesto) mostrarIRPF(*calculo_->impuesto);
        total_->setFocus();
        total_->end(false);
    });
    return false;
}

bool PantallaHaberes::totalEnter() {
    if (boton("Agregar")->isEnabled())
        Agregar_Click();
    else if (boton("Modificar")->isEnabled())
        Modificar_Click();
    else if (total_->text().trimmed().isEmpty())
        advertir(engine::kFaltaTotal);
    return false;
}

void PantallaHaberes::Agregar_Click() {
    guardar("Agregar_Click");
}
void PantallaHaberes::Modificar_Click() {
    guardar("Modificar_Click");
}

void PantallaHaberes::guardar(const char* procedimiento) {
    intentar(procedimiento, [this] {
        if (!mp_ || !buscado_) return advertir(kFaltaCodigo);
        // Sin Enter en la cantidad, la fila va con lo tecleado.
        engine::CalculoRenglon calculo;
        if (calculo_) {
            calculo = *calculo_;
        } else {
            calculo.concepto = buscado_->concepto;
            calculo.texto = s(concepto_);
            calculo.cant = common::textoANumero(s(cant_));
            calculo.total = common::Dinero::desdeDouble(common::textoANumero(s(total_)));
        }
        const auto rechazo =
            engine::guardarRenglon(base(), *mp_, ctx_, calculo, s(cant_), s(total_), dialogo());
        if (rechazo && *rechazo == engine::kFaltaTotal) return;  // se completa el total
        limpiarRenglon();
        Consultar_Click();
        codigo_->setFocus();
    });
}

void PantallaHaberes::Eliminar_Click() {
    intentar("Eliminar_Click", [this] {
        if (!mp_ || !buscado_) return advertir(kFaltaCodigo);
        const auto& c = buscado_->concepto;
        const auto rechazo = engine::eliminarRenglon(base(), *mp_, ctx_, c, dialogo());
        if (rechazo && rechazo->empty()) return;  // respondió No
        limpiarRenglon();
        Consultar_Click();
        codigo_->setFocus();
    });
}

void PantallaHaberes::mostrarIRPF(const engine::ImporteImpuesto& imp) {
    if (!mp_) return;
    if (imp.irpfDiciembre)
        irpf_->mostrarDiciembre(*imp.irpfDiciembre);
    else if (imp.irpfMes)
        irpf_->mostrarMes(*imp.irpfMes, mp_->desglose.montoirpf, mp_->desglose.montonominal);
}

void PantallaHaberes::ComoSeCalculo() {
    intentar("ComoSeCalculo_Click", [this] {
        // La fila en mano, o la elegida en una grilla.
        std::string codigo = s(codigo_), concepto = s(concepto_);
        if (codigo.empty() && ultimaGrilla_) {
            codigo = ultimaGrilla_->elegida(0);
            concepto = ultimaGrilla_->elegida(1);
        }
        if (!mp_ || codigo.empty())
            return advertir("Debe elegir una fila de Haberes o de Descuentos.");
        const auto explicacion =
            engine::leerExplicacion(base(), engine::TablaLiquidacion::Habydesc, mp_->empresa,
                                    mp_->nombre, mp_->mes, numero(codigo));
        const std::string texto = explicacion.empty()
                                      ? "La fila " + concepto + " no tiene explicación guardada."
                                      : concepto + ": " + explicacion;
        dialogo().avisar(common::TipoAviso::Informacion, "¿Cómo se calculó?", texto);
    });
}

}  // namespace nomira::pantallas
