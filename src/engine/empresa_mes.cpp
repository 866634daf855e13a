#include "engine/empresa_mes.h"

#include <algorithm>

#include "common/numeros.h"
#include "master/registro.h"
#include "store/recordada.h"

namespace nomira::engine {

std::vector<master::Persona> personasPorCantbfc(store::Conexion& base, const std::string& empresa) {
    std::vector<master::Persona> leidas;
    for (const auto& f :
         base.consulta("SELECT * FROM personal WHERE empresa = ? ORDER BY nombre", {empresa}).filas)
        leidas.push_back(master::leerRegistro(f, master::camposPersona()));
    // cantbfc es texto en la tabla: se ordena por su valor, así un vacío o un
    // Null cuenta 0 igual en los dos motores. Se ordenan las posiciones y no
    // las fichas, que son grandes.
    std::vector<std::pair<double, std::size_t>> orden;
    for (std::size_t i = 0; i < leidas.size(); ++i)
        orden.emplace_back(common::textoANumero(leidas[i].cantbfc), i);
    std::stable_sort(orden.begin(), orden.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<master::Persona> personas;
    personas.reserve(leidas.size());
    for (const auto& [cantbfc, i] : orden) personas.push_back(std::move(leidas[i]));
    return personas;
}

ResultadoEmpresa recorrerEmpresa(store::Conexion& base, const std::string& empresa,
                                 const common::Mes& mes, const PorPersona& porPersona,
                                 const ProgresoEmpresa& progreso, const CancelarEmpresa& cancelar) {
    ResultadoEmpresa r;
    store::ConexionRecordada recordada(base);
    std::vector<master::PersonaCompartida> personas;
    for (auto& p : personasPorCantbfc(recordada, empresa))
        personas.push_back(std::make_shared<const master::Persona>(std::move(p)));
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
        try {
            store::Transaccion t(recordada);
            auto hecho = porPersona(recordada, p);
            t.confirmar();
            r.personas.push_back(std::move(hecho));
        } catch (...) {
            r.fallo = std::current_exception();
            r.personaFallida = p->nombre;
            break;
        }
    }
    return r;
}

}  // namespace nomira::engine
