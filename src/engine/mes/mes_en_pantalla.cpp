#include "engine/mes/mes_en_pantalla.h"

#include <algorithm>

#include "common/numeros.h"
#include "engine/mes/empresa_mes.h"
#include "engine/mes/mes_persona.h"

namespace nomira::engine {
inline namespace mes {

std::vector<FilaGuardada> filasParaGrillas(store::Conexion& base, const std::string& empresa,
                                           const std::string& nombre, const common::Mes& mes) {
    std::vector<FilaGuardada> filas;
    for (const auto& f :
         base.consulta("SELECT codigo, concepto, tipo, unidad, cant, total FROM habydesc WHERE "
                       "empresa = ? AND nombre = ? AND fecha = ? ORDER BY codigo",
                       {empresa, nombre, mes.primerDia().iso()})
             .filas)
        filas.push_back({static_cast<long>(f.entero("codigo")), f.texto("concepto"),
                         f.texto("tipo"), f.texto("unidad"), f.real("cant"),
                         common::Dinero::desdeDouble(f.real("total"))});
    return filas;
}

CifrasMes cifrasDelMes(const BaseMes& desglose, const std::vector<FilaGuardada>& filas) {
    CifrasMes c;
    c.totalhab = desglose.totalhab;
    for (const auto& f : filas)
        if (f.tipo == "Des") c.totaldes += f.total;
    c.liquidoneto = desglose.liquido.liquidoneto;
    c.aCobrar = std::max(common::Dinero{}, c.totalhab - c.totaldes);
    c.montoirpf = desglose.montoirpf;
    c.montodedu = desglose.montonominal;
    return c;
}

namespace {

// La persona con las fechas de otra actividad en el lugar de las de la primera.
master::Persona conFechas(master::Persona p, const std::string& ing, const std::string& eg) {
    p.fechaing = ing;
    p.fechaeg = eg;
    return p;
}

long numero(const std::string& nrofun) {
    return static_cast<long>(common::textoANumero(nrofun));
}

}  // namespace

bool activaEnAlgunaActividad(const master::Persona& p, const common::Mes& mes) {
    if (activaEnElMes(p, mes)) return true;
    if (!p.fechaing2.empty() && activaEnElMes(conFechas(p, p.fechaing2, p.fechaeg2), mes))
        return true;
    return !p.fechaing3.empty() && activaEnElMes(conFechas(p, p.fechaing3, p.fechaeg3), mes);
}

bool activaEnSuActividad(const master::Persona& p, const common::Mes& mes) {
    if (p.impaclab == "2") return activaEnElMes(conFechas(p, p.fechaing2, p.fechaeg2), mes);
    if (p.impaclab == "3") return activaEnElMes(conFechas(p, p.fechaing3, p.fechaeg3), mes);
    return activaEnElMes(p, mes);
}

std::vector<std::string> nombresDelMes(store::Conexion& base, const std::string& empresa,
                                       const common::Mes& mes) {
    std::vector<std::string> nombres;
    for (const auto& p : personasPorCantbfc(base, empresa))
        if (activaEnAlgunaActividad(*p, mes)) nombres.push_back(p->nombre);
    std::sort(nombres.begin(), nombres.end());
    return nombres;
}

std::optional<master::Persona> personaPorNrofun(store::Conexion& base, const std::string& empresa,
                                                const std::string& nrofun) {
    if (nrofun.empty()) return std::nullopt;
    for (const auto& p : personasPorCantbfc(base, empresa))
        if (!p->nrofun.empty() && numero(p->nrofun) == numero(nrofun)) return *p;
    return std::nullopt;
}

std::optional<master::Persona> personaVecina(store::Conexion& base, const std::string& empresa,
                                             const std::string& nrofun, const common::Mes& mes,
                                             int paso) {
    const long desde = numero(nrofun);
    master::PersonaCompartida elegida;
    for (const auto& p : personasPorCantbfc(base, empresa)) {
        if (p->nrofun.empty() || !activaEnSuActividad(*p, mes)) continue;
        const long n = numero(p->nrofun);
        if (paso > 0 ? n <= desde : n >= desde) continue;
        if (!elegida || (paso > 0 ? n < numero(elegida->nrofun) : n > numero(elegida->nrofun)))
            elegida = p;
    }
    if (!elegida) return std::nullopt;
    return *elegida;
}

}  // namespace mes
}  // namespace nomira::engine
