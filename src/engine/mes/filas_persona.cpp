#include "engine/mes/filas_persona.h"

#include "common/fallo.h"
#include "common/numeros.h"
#include "engine/mes/mes_persona.h"

namespace nomira::engine {

namespace {

std::optional<FilaGuardada> primera(const store::Resultado& r) {
    if (r.vacio()) return std::nullopt;
    const auto& f = r.primera();
    return FilaGuardada{static_cast<long>(f.entero("codigo")),
                        f.texto("concepto"),
                        f.texto("tipo"),
                        f.texto("unidad"),
                        f.real("cant"),
                        common::Dinero::desdeDouble(f.real("total"))};
}

constexpr const char* kSelect =
    "SELECT codigo, concepto, tipo, unidad, cant, total FROM habydesc WHERE empresa = ? AND "
    "nombre = ? AND fecha = ? AND ";

}  // namespace

std::optional<FilaGuardada> filaPorCodigo(store::Conexion& base, const std::string& empresa,
                                          const std::string& nombre, const common::Mes& mes,
                                          long codigo) {
    return primera(
        base.consulta(std::string(kSelect) + "codigo = ? ORDER BY codigo LIMIT 1",
                      {empresa, nombre, mes.primerDia().iso(), static_cast<std::int64_t>(codigo)}));
}

std::optional<FilaGuardada> filaPorConcepto(store::Conexion& base, const std::string& empresa,
                                            const std::string& nombre, const common::Mes& mes,
                                            const std::string& concepto) {
    return primera(base.consulta(std::string(kSelect) + "concepto = ? ORDER BY codigo LIMIT 1",
                                 {empresa, nombre, mes.primerDia().iso(), concepto}));
}

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

std::optional<FilaGenerada> actualizarJornadas(store::Conexion& base, const std::string& empresa,
                                               const std::string& nombre, const common::Mes& mes,
                                               const std::string& concepto, double cant,
                                               double htrab) {
    if (esConceptoHoras(concepto)) {
        const std::string otra = concepto == "HORAS" ? "HORAS NOCTURNAS" : "HORAS";
        if (const auto f = filaPorConcepto(base, empresa, nombre, mes, otra)) cant += f->cant;
    }
    const auto jornadas = conceptoPorNombre(base, "JORNADAS EN EL MES");
    if (!jornadas) return std::nullopt;
    if (htrab == 0) throw common::Fallo(11, "División por cero");
    auto fila = filaDeConcepto(*jornadas, jornadas->tipo);
    fila.cant = cant / htrab;
    escribirFila(base, TablaLiquidacion::Habydesc, empresa, nombre, mes, fila);
    return fila;
}

}  // namespace nomira::engine
