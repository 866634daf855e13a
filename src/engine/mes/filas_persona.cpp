#include "engine/mes/filas_persona.h"

#include "common/fallo.h"
#include "common/numeros.h"
#include "engine/mes/mes_persona.h"

namespace nomira::engine {
inline namespace mes {

std::optional<master::Concepto> conceptoPorNombre(store::Conexion& base,
                                                  const std::string& concepto) {
    const auto r = base.consulta(
        "SELECT codigo FROM conceptos WHERE concepto = ? ORDER BY codigo LIMIT 1", {concepto});
    if (r.vacio()) return std::nullopt;
    return master::leerConcepto(base, static_cast<long>(r.primera().entero("codigo")));
}

bool esConceptoHoras(const std::string& concepto) {
    return concepto == "HORAS" || concepto == "HORAS NOCTURNAS";
}

std::optional<FilaGenerada> actualizarJornadas(LibroPersona& libro, const Maestros& maestros,
                                               const common::Mes& mes, const std::string& concepto,
                                               double cant, double htrab, TablaLiquidacion tabla) {
    if (esConceptoHoras(concepto)) {
        const std::string otra = concepto == "HORAS" ? "HORAS NOCTURNAS" : "HORAS";
        if (const auto* f = libro.porConcepto(tabla, mes, otra)) cant += f->cant;
    }
    const auto* jornadas = maestros.conceptos.porNombre("JORNADAS EN EL MES");
    if (!jornadas) return std::nullopt;
    if (htrab == 0) throw common::Fallo(11, "División por cero");
    auto fila = filaDeConcepto(*jornadas, jornadas->tipo);
    fila.cant = cant / htrab;
    libro.escribir(tabla, mes, fila);
    return fila;
}

}  // namespace mes
}  // namespace nomira::engine
