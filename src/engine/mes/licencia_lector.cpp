#include "engine/mes/licencia_lector.h"

#include "common/fechas.h"
#include "common/texto.h"
#include "master/personal.h"

namespace nomira::engine {

namespace {

std::vector<store::Valor> delAnio(const std::string& empresa, const std::string& nombre, int anio) {
    return {empresa, nombre, common::Fecha{anio, 1, 1}.iso(), common::Fecha{anio, 12, 31}.iso()};
}

// Las filas de salvacacional del año, por fecha: las de un mismo mes son un
// período; a lo sumo cuatro.
std::vector<double> periodosGozados(store::Conexion& base, const std::string& empresa,
                                    const std::string& nombre, int anio) {
    std::vector<double> periodos;
    std::string mesActual;
    for (const auto& f : base.consulta("SELECT fecha, concepto, cant FROM salvacacional WHERE "
                                       "empresa = ? AND nombre = ? AND fecha >= ? AND fecha <= ? "
                                       "ORDER BY fecha",
                                       delAnio(empresa, nombre, anio))
                             .filas) {
        if (!esLicenciaGozada(common::mayusculas(f.texto("concepto")))) continue;
        const std::string mes = f.texto("fecha").substr(0, 7);
        if (mes != mesActual) {
            if (periodos.size() == 4) break;  // un quinto período queda afuera
            periodos.push_back(0);
            mesActual = mes;
        }
        periodos.back() += f.real("cant");
    }
    if (!periodos.empty()) return periodos;
    // Sin goce en el año: lo no gozado que dejó un egreso ocupa el primero.
    double noGozado = 0;
    bool hay = false;
    for (const auto& f : base.consulta("SELECT concepto, cant FROM egresos WHERE empresa = ? AND "
                                       "nombre = ? AND fecha >= ? AND fecha <= ?",
                                       delAnio(empresa, nombre, anio))
                             .filas) {
        if (!esLicenciaNoGozadaEgreso(common::mayusculas(f.texto("concepto")))) continue;
        noGozado += f.real("cant");
        hay = true;
    }
    if (hay) periodos.push_back(noGozado);
    return periodos;
}

}  // namespace

std::optional<DiasLicencia> CalculoDiasaGozar(store::Conexion& base, const std::string& empresa,
                                              const std::string& nombre, int anio,
                                              common::Dialogo& dialogo, PantallaLicencia pantalla) {
    const auto persona = master::leerPersona(base, empresa, nombre);
    if (!persona) return std::nullopt;
    const auto actividad = actividadDeLicencia(*persona);
    if (!correspondeLicencia(actividad, anio)) {
        dialogo.avisar(common::TipoAviso::Informacion, "Mensaje de información",
                       "A " + nombre + " no le corresponde LICENCIA ya que ingresó en el año " +
                           std::to_string(common::anioPivote50(actividad.ingreso.yy)) +
                           " siendo mayor al año anterior " + std::to_string(anio - 1) +
                           " o ya egresó de la empresa.");
        return std::nullopt;
    }

    EntradaDiasLicencia e;
    e.tiposueldo = persona->tiposueldo;
    e.ingreso = actividad.ingreso;
    e.anio = anio;
    for (const auto& f : base.consulta("SELECT concepto, cant FROM habydesc WHERE empresa = ? AND "
                                       "nombre = ? AND fecha >= ? AND fecha <= ?",
                                       delAnio(empresa, nombre, anio - 1))
                             .filas) {
        const std::string c = common::mayusculas(f.texto("concepto"));
        if (esAusencia(c)) e.ausencias += f.real("cant");
        if (esDiaTrabajado(c, e.tiposueldo)) e.diasTrabajados += f.real("cant");
    }
    e.periodosGozados = periodosGozados(base, empresa, nombre, anio);

    auto r = calcularDiasLicencia(e);
    if (r.gozadosDeMas && pantalla == PantallaLicencia::Form42)
        dialogo.avisar(common::TipoAviso::Informacion,
                       "La cantdiasgenerados de " + nombre + " es menor que la cantdiasgozados.");
    return r;
}

}  // namespace nomira::engine
