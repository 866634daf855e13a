#include "engine/mes/empresa_mes.h"

#include "engine/mes/escritura.h"

namespace nomira::engine {

ResultadoEmpresa recorrerEmpresa(store::Conexion& base, std::shared_ptr<Lectura> lectura,
                                 const PorPersona& porPersona, const ProgresoEmpresa& progreso,
                                 const CancelarEmpresa& cancelar) {
    ResultadoEmpresa r;
    auto& personas = lectura->personas;
    for (std::size_t i = 0; i < personas.size(); ++i) {
        if (cancelar && cancelar()) {
            r.cancelado = true;
            break;
        }
        auto& p = personas[i];
        if (progreso) progreso(i + 1, personas.size(), p.ficha->nombre);
        const bool activa = activaEnElMes(*p.ficha, lectura->mes);
        try {
            auto hecho = porPersona(lectura, p, activa);
            escribirLibro(base, p.libro);
            if (activa)
                r.personas.push_back(std::move(hecho));
            else
                r.inactivas.push_back(p.ficha->nombre);
        } catch (...) {
            r.fallo = std::current_exception();
            r.personaFallida = p.ficha->nombre;
            break;
        }
    }
    return r;
}

}  // namespace nomira::engine
