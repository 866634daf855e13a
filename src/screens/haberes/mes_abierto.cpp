#include "screens/haberes/mes_abierto.h"

#include "engine/mes/explicaciones.h"

namespace nomira::pantallas {

bool MesAbierto::abrir(const std::string& empresa, const std::string& nombre,
                       const common::Mes& mes) {
    mp_.reset();
    if (empresa.empty() || nombre.empty()) return false;
    // Cada lectura trae las filas, las variables y los conceptos como están
    // ahora: otra PC pudo cambiarlos.
    ctx_ = {};
    mp_ = engine::leerMesDeLaPersona(base_, empresa, nombre, mes, ctx_, dialogo_);
    conLaTabla();
    return mp_.has_value();
}

void MesAbierto::conLaTabla() {
    if (!mp_ || tabla_ == engine::TablaLiquidacion::Habydesc) return;
    mp_->tabla = tabla_;
    engine::refrescarDesglose(*mp_, ctx_);
}

MesAbierto::Vista MesAbierto::consultar() {
    // Las filas como están ahora: una generación u otra PC pudo cambiarlas.
    if (auto nuevo =
            engine::leerMesDeLaPersona(base_, mp_->empresa, mp_->nombre, mp_->mes, ctx_, dialogo_))
        mp_ = std::move(nuevo);
    conLaTabla();
    Vista v;
    v.filas = engine::filasParaGrillas(base_, mp_->empresa, mp_->nombre, mp_->mes);
    v.cifras = engine::cifrasDelMes(mp_->desglose, v.filas);
    return v;
}

std::optional<engine::RenglonBuscado> MesAbierto::buscar(long codigo) {
    return engine::buscarRenglon(*mp_, ctx_, codigo, dialogo_);
}

std::optional<engine::CalculoRenglon> MesAbierto::calcular(const master::Concepto& concepto,
                                                           const std::string& textoCant) {
    return engine::calcularRenglon(*mp_, ctx_, concepto, textoCant, dialogo_);
}

std::optional<std::string> MesAbierto::guardar(const engine::CalculoRenglon& calculo,
                                               const std::string& textoCant,
                                               const std::string& textoTotal) {
    return engine::guardarRenglon(base_, *mp_, ctx_, calculo, textoCant, textoTotal, dialogo_);
}

std::optional<std::string> MesAbierto::eliminar(const master::Concepto& concepto) {
    return engine::eliminarRenglon(base_, *mp_, ctx_, concepto, dialogo_);
}

std::string MesAbierto::explicacion(long codigo) {
    return engine::leerExplicacion(base_, tabla_, mp_->empresa, mp_->nombre, mp_->mes, codigo);
}

}  // namespace nomira::pantallas
