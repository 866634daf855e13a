#include "engine/mes/licencia_lector.h"

#include "common/fechas.h"
#include "common/texto.h"
#include "master/personal.h"

namespace nomira::engine {
inline namespace mes {

namespace {

// Las filas de salvacacional del año, por fecha: las de un mismo mes son un
// período; a lo sumo cuatro.
std::vector<double> periodosGozados(const LibroPersona& libro, int anio) {
    std::vector<double> periodos;
    for (int m = 1; m <= 12; ++m) {
        bool nuevo = true;
        for (const auto& f : libro.filas(TablaLiquidacion::Salvacacional, common::Mes{anio, m})) {
            if (!esLicenciaGozada(common::mayusculas(f.concepto))) continue;
            if (nuevo) {
                if (periodos.size() == 4) return periodos;  // un quinto período queda afuera
                periodos.push_back(0);
                nuevo = false;
            }
            periodos.back() += f.cant;
        }
    }
    if (!periodos.empty()) return periodos;
    // Sin goce en el año: lo no gozado que dejó un egreso ocupa el primero.
    double noGozado = 0;
    bool hay = false;
    for (const auto& f :
         libro.filas(TablaLiquidacion::Egresos, common::Mes{anio, 1}, common::Mes{anio, 12})) {
        if (!esLicenciaNoGozadaEgreso(common::mayusculas(f.concepto))) continue;
        noGozado += f.cant;
        hay = true;
    }
    if (hay) periodos.push_back(noGozado);
    return periodos;
}

}  // namespace

std::optional<DiasLicencia> CalculoDiasaGozar(const master::Persona& persona,
                                              const LibroPersona& libro, int anio,
                                              common::Dialogo& dialogo, PantallaLicencia pantalla) {
    const auto& nombre = persona.nombre;
    const auto actividad = actividadDeLicencia(persona);
    if (!correspondeLicencia(actividad, anio)) {
        dialogo.avisar(common::TipoAviso::Informacion, "Mensaje de información",
                       "A " + nombre + " no le corresponde LICENCIA ya que ingresó en el año " +
                           std::to_string(common::anioPivote50(actividad.ingreso.yy)) +
                           " siendo mayor al año anterior " + std::to_string(anio - 1) +
                           " o ya egresó de la empresa.");
        return std::nullopt;
    }

    EntradaDiasLicencia e;
    e.tiposueldo = persona.tiposueldo;
    e.ingreso = actividad.ingreso;
    e.anio = anio;
    for (const auto& f : libro.filas(TablaLiquidacion::Habydesc, common::Mes{anio - 1, 1},
                                     common::Mes{anio - 1, 12})) {
        const std::string c = common::mayusculas(f.concepto);
        if (esAusencia(c)) e.ausencias += f.cant;
        if (esDiaTrabajado(c, e.tiposueldo)) e.diasTrabajados += f.cant;
    }
    e.periodosGozados = periodosGozados(libro, anio);

    auto r = calcularDiasLicencia(e);
    if (r.gozadosDeMas && pantalla == PantallaLicencia::Form42)
        dialogo.avisar(common::TipoAviso::Informacion,
                       "La cantdiasgenerados de " + nombre + " es menor que la cantdiasgozados.");
    return r;
}

}  // namespace mes
}  // namespace nomira::engine
