#include "engine/mes/liquidacion_empresa.h"

#include "common/fallo.h"
#include "engine/mes/descuentos.h"

namespace nomira::engine {
inline namespace mes {

namespace {

template <typename Accion>
ResultadoEmpresa correr(const char* procedimiento, const Accion& accion) {
    try {
        auto r = accion();
        if (r.fallo) std::rethrow_exception(r.fallo);
        return r;
    } catch (const common::Fallo& f) {
        throw common::Fallo(f.numero(), common::textoErrorInesperado(f, procedimiento, "Form42"));
    }
}

}  // namespace

TotalesEmpresa liquidarMesDeEmpresa(store::Conexion& base, const std::string& empresa,
                                    const common::Mes& mes, common::Dialogo& dialogo,
                                    const OpcionesHaberes& opciones) {
    correr("ActHamPermxEmpresa_Click",
           [&] { return haberesDeLaEmpresa(base, empresa, mes, dialogo, opciones); });
    const auto d = correr("ActDesPermxEmpresa_Click",
                          [&] { return descuentosDeLaEmpresa(base, empresa, mes, dialogo); });
    TotalesEmpresa t;
    for (const auto& p : d.personas) t.personas += p.hecho;
    for (const auto& f :
         base.consulta("SELECT tipo, total FROM habydesc WHERE empresa = ? AND fecha = ?",
                       {empresa, mes.primerDia().iso()})
             .filas) {
        const auto total = common::Dinero::desdeDouble(f.real("total"));
        if (f.texto("tipo") == "Hab")
            t.haberes += total;
        else
            t.descuentos += total;
    }
    return t;
}

}  // namespace mes
}  // namespace nomira::engine
