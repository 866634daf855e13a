#include "screens/haberes/mes_abierto.h"

#include "engine/explicaciones.h"

namespace nomira::pantallas {

bool MesAbierto::abrir(const std::string& empresa, const std::string& nombre,
                       const common::Mes& mes) {
    mp_.reset();
    if (empresa.empty() || nombre.empty()) return false;
    // Un lector nuevo en cada lectura: otra PC pudo cambiar las variables.
    variables_ = std::make_unique<master::LectorVariables>(base_);
    ctx_ = {};
    mp_ = engine::BuscarVerif(base_, *variables_, empresa, nombre, mes, ctx_, dialogo_);
    return mp_.has_value();
}

MesAbierto::Vista MesAbierto::consultar() {
    engine::refrescarDesglose(base_, *mp_, ctx_);
    Vista v;
    v.filas = engine::filasParaGrillas(base_, mp_->empresa, mp_->nombre, mp_->mes);
    v.cifras = engine::cifrasDelMes(mp_->desglose, v.filas);
    return v;
}

std::optional<engine::RenglonBuscado> MesAbierto::buscar(long codigo) {
    return engine::buscarRenglon(base_, *mp_, ctx_, codigo, dialogo_);
}

std::optional<engine::CalculoRenglon> MesAbierto::calcular(const master::Concepto& concepto,
                                                           const std::string& textoCant) {
    return engine::calcularRenglon(base_, *mp_, ctx_, concepto, textoCant, dialogo_);
}

std::optional<std::string> MesAbierto::guardar(const engine::CalculoRenglon& calculo,
                                               const std::string& textoCant,
                                               const std::string& textoTotal) {
    return engine::guardarRenglon(base_, *mp_, ctx_, calculo, textoCant, textoTotal, dialogo_);
}

std::optional<std::string> MesAbierto::eliminar(const master::Concepto& concepto) {
    return engine::eliminarRenglon(base_, *mp_, concepto, dialogo_);
}

std::string MesAbierto::explicacion(long codigo) {
    return engine::leerExplicacion(base_, engine::TablaLiquidacion::Habydesc, mp_->empresa,
                                   mp_->nombre, mp_->mes, codigo);
}

}  // namespace nomira::pantallas
