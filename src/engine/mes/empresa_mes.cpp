#include "engine/mes/empresa_mes.h"

#include <algorithm>
#include <chrono>
#include <optional>

#include "common/numeros.h"
#include "master/registro.h"
#include "store/recordada.h"

namespace nomira::engine {

std::vector<master::PersonaCompartida> personasPorCantbfc(store::Conexion& base,
                                                          const std::string& empresa) {
    std::vector<std::pair<double, master::PersonaCompartida>> leidas;
    // Fila por fila: de cada una queda sólo la persona.
    master::LectorRegistros<master::Persona> lector(master::camposPersona());
    base.recorrer("SELECT * FROM personal WHERE empresa = ? ORDER BY nombre", {empresa},
                  [&](const store::FilaAlPaso& f) {
                      auto p = std::make_shared<master::Persona>();
                      lector.leer(f, *p);
                      // cantbfc es texto en la tabla: se ordena por su valor, así un
                      // vacío o un Null cuenta 0 igual en los dos motores.
                      leidas.emplace_back(common::textoANumero(p->cantbfc), std::move(p));
                  });
    std::stable_sort(leidas.begin(), leidas.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<master::PersonaCompartida> personas;
    personas.reserve(leidas.size());
    for (auto& [cantbfc, p] : leidas) personas.push_back(std::move(p));
    return personas;
}

LecturasDeLaCorrida::LecturasDeLaCorrida(store::Conexion& base, master::LectorVariables& variables,
                                         std::string empresa, const common::Mes& mes)
    : variables_(variables),
      empresa_(std::move(empresa)),
      mes_(mes),
      leida_(leerEmpresaDelMes(base, empresa_)) {}

std::optional<MesPersona> LecturasDeLaCorrida::buscarVerif(store::Conexion& base,
                                                           const master::PersonaCompartida& persona,
                                                           ContextoFormula& ctx,
                                                           common::Dialogo& dialogo) {
    ctx.horasDeLaCorrida = &horas_;
    ctx.personaLeida = ContextoFormula::PersonaLeida{empresa_, persona->nombre, persona};
    return BuscarVerif(base, variables_, empresa_, persona->nombre, mes_, ctx, dialogo,
                       leida_ ? &*leida_ : nullptr);
}

ResultadoEmpresa recorrerEmpresa(store::Conexion& base, const std::string& empresa,
                                 const common::Mes& mes, const PorPersona& porPersona,
                                 const ProgresoEmpresa& progreso, const CancelarEmpresa& cancelar) {
    ResultadoEmpresa r;
    store::ConexionRecordada recordada(base);
    const auto personas = personasPorCantbfc(recordada, empresa);
    // La tanda abierta y desde cuándo; se confirma antes de salir por donde sea.
    std::optional<store::Transaccion> tanda;
    auto abierta = std::chrono::steady_clock::now();
    for (std::size_t i = 0; i < personas.size(); ++i) {
        if (cancelar && cancelar()) {
            r.cancelado = true;
            break;
        }
        const auto& p = personas[i];
        if (progreso) progreso(i + 1, personas.size(), p->nombre);
        if (!activaEnElMes(*p, mes)) {
            r.inactivas.push_back(p->nombre);
            continue;
        }
        if (!tanda) {
            tanda.emplace(recordada);
            abierta = std::chrono::steady_clock::now();
        }
        try {
            store::Transaccion t(recordada);  // la persona, dentro de la tanda
            auto hecho = porPersona(recordada, p);
            t.confirmar();
            r.personas.push_back(std::move(hecho));
            recordada.olvidarSinUso();
        } catch (...) {
            r.fallo = std::current_exception();
            r.personaFallida = p->nombre;
            break;
        }
        if (std::chrono::steady_clock::now() - abierta >= kTanda) {
            tanda->confirmar();
            tanda.reset();
        }
    }
    if (tanda) tanda->confirmar();
    return r;
}

}  // namespace nomira::engine
