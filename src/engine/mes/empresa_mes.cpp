#include "engine/mes/empresa_mes.h"

#include <optional>

#include "engine/mes/escritura.h"

namespace nomira::engine {
inline namespace mes {

ResultadoEmpresa recorrerEmpresa(store::Conexion& base, std::shared_ptr<Lectura> lectura,
                                 const PorPersona& porPersona, const ProgresoEmpresa& progreso,
                                 const CancelarEmpresa& cancelar) {
    ResultadoEmpresa r;
    auto& personas = lectura->personas;
    // La tanda abierta: cada persona va en su punto de guardado dentro de ella.
    std::optional<store::Transaccion> tanda;
    std::size_t enLaTanda = 0;
    std::vector<ResultadoPersona> porConfirmar;
    const auto confirmar = [&] {
        if (tanda) tanda->confirmar();
        tanda.reset();
        enLaTanda = 0;
        for (auto& p : porConfirmar) r.personas.push_back(std::move(p));
        porConfirmar.clear();
    };
    try {
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
                if (!tanda && !p.libro.cambiados().empty()) tanda.emplace(base);
                escribirLibro(base, p.libro);
                if (activa)
                    porConfirmar.push_back(std::move(hecho));
                else
                    r.inactivas.push_back(p.ficha->nombre);
            } catch (...) {
                r.fallo = std::current_exception();
                r.personaFallida = p.ficha->nombre;
                break;
            }
            if (tanda && ++enLaTanda == kPersonasPorTanda) confirmar();
        }
        confirmar();
    } catch (...) {
        // La tanda no se pudo confirmar (se cortó la conexión): lo de esa tanda
        // no quedó, lo confirmado antes sí.
        if (!r.fallo) r.fallo = std::current_exception();
        porConfirmar.clear();
    }
    return r;
}

}  // namespace mes
}  // namespace nomira::engine
