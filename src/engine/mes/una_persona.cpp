#include "engine/mes/una_persona.h"

#include "engine/mes/escritura.h"

namespace nomira::engine {
inline namespace mes {

ResultadoPersona liquidarUnaPersona(store::Conexion& base, const std::string& empresa,
                                    const std::string& nombre, const common::Mes& mes,
                                    const MesesALeer& meses, const char* faltanCampos,
                                    common::Dialogo& dialogo, const PasoPersona& paso) {
    ResultadoPersona r;
    r.empresa = empresa;
    r.nombre = nombre;
    r.mes = mes;
    const auto avisar = [&](const std::string& aviso) {
        r.aviso = aviso;
        dialogo.avisar(common::TipoAviso::Advertencia, aviso);
        return r;
    };
    if (empresa.empty() || nombre.empty()) return avisar(faltanCampos);
    store::Transaccion t(base);
    bloquearMes(base, empresa, nombre, mes);
    ContextoFormula ctx;
    auto mp = leerMesDeLaPersona(base, empresa, nombre, mes, ctx, dialogo, meses);
    if (!mp) {
        r.aviso = "sin empresa o persona";
        return r;
    }
    if (const auto m = sueldoNoNumerico(*mp->persona)) return avisar(*m);
    r = paso(*mp, ctx);
    if (r.detenido) return r;
    escribirLibro(base, mp->libro());
    t.confirmar();
    return r;
}

}  // namespace mes
}  // namespace nomira::engine
