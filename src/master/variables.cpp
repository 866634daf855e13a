#include "master/variables.h"

#include "common/dinero.h"
#include "common/formato.h"

namespace nomira::master {

std::optional<double> LectorVariables::buscar(std::string_view nombre) const {
    if (auto it = leidas_.find(nombre); it != leidas_.end()) return it->second;
    if (!base_) return std::nullopt;
    // Las filas sin fecha van al final en los dos motores.
    const auto r = base_->consulta(
        "SELECT valor FROM definiciondevariables WHERE nombre = ? "
        "ORDER BY fecha IS NULL, fecha DESC LIMIT 1",
        {std::string(nombre)});
    std::optional<double> v;
    if (!r.vacio()) v = r.primera().real("valor");
    leidas_.emplace(std::string(nombre), v);
    return v;
}

LectorVariables LectorVariables::todas(store::Conexion& base) {
    LectorVariables l;
    // De cada nombre, la primera fila en el mismo orden que una por una.
    base.recorrer(
        "SELECT nombre, valor FROM definiciondevariables ORDER BY nombre, fecha IS NULL, fecha "
        "DESC",
        {}, [&](const store::FilaAlPaso& f) { l.leidas_.try_emplace(f.texto(0), f.real(1)); });
    return l;
}

}  // namespace nomira::master

namespace nomira::master {

namespace {

std::vector<FilaVariable> filas(const store::Resultado& r) {
    std::vector<FilaVariable> lista;
    for (const auto& f : r.filas) {
        const auto fecha = common::Fecha::desdeTexto(f.texto("fecha"));
        lista.push_back({f.texto("nombre"), fecha ? fecha->ddmmyy() : "", f.real("valor")});
    }
    return lista;
}

}  // namespace

void agregarVariable(store::Conexion& base, const std::string& nombre, const common::Fecha& fecha,
                     double valor) {
    // El valor se guarda como moneda: cuatro decimales.
    base.ejecuta("INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES (?, ?, ?)",
                 {nombre, fecha.iso(), common::Dinero::desdeDouble(valor).aDouble()});
}

std::optional<double> buscarVariable(store::Conexion& base, const std::string& nombre,
                                     const common::Fecha& fecha) {
    const auto r = base.consulta(
        "SELECT valor FROM definiciondevariables WHERE nombre = ? AND fecha = ?",
        {nombre, fecha.iso()});
    if (r.vacio()) return std::nullopt;
    return r.primera().real("valor");
}

std::int64_t eliminarVariable(store::Conexion& base, const std::string& nombre,
                              const common::Fecha& fecha) {
    return base.ejecuta("DELETE FROM definiciondevariables WHERE nombre = ? AND fecha = ?",
                        {nombre, fecha.iso()});
}

std::vector<FilaVariable> listarVariable(store::Conexion& base, const std::string& nombre) {
    return filas(base.consulta(
        "SELECT nombre, fecha, valor FROM definiciondevariables WHERE nombre = ? ORDER BY fecha",
        {nombre}));
}

std::vector<FilaVariable> listarOtrasVariables(store::Conexion& base) {
    return filas(base.consulta(
        "SELECT nombre, fecha, valor FROM definiciondevariables WHERE nombre NOT IN "
        "('BPC', 'BFC', 'SALMIN', 'CUOTAMUTUALIC', 'CUOTAMUTUALCO', 'UR') ORDER BY nombre, fecha"));
}

std::vector<FilaVariable> listarTodasLasVariables(store::Conexion& base) {
    return filas(base.consulta(
        "SELECT nombre, fecha, valor FROM definiciondevariables ORDER BY nombre, fecha"));
}

std::vector<std::string> lineasListaVariables(const std::vector<FilaVariable>& filas) {
    // Cada columna del ancho de su encabezado; el valor alineado a la derecha.
    std::vector<std::string> lineas = {"", "Definición de Variables", "",
                                       "              Nombre    Fecha      Valor"};
    for (const auto& f : filas)
        lineas.push_back(common::alinearIzquierda(common::cortar(f.nombre, 20), 20) + " " +
                         common::alinearIzquierda(f.fecha, 8) + " " +
                         common::alinearDerecha(common::formatear(f.valor, "##,##0.00"), 10));
    return lineas;
}

}  // namespace nomira::master
