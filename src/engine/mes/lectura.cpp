#include "engine/mes/lectura.h"

#include <algorithm>

#include "common/numeros.h"
#include "common/texto.h"
#include "master/registro.h"

namespace nomira::engine {
inline namespace mes {

namespace {

constexpr std::array<TablaLiquidacion, kCantTablas> kTablas = {
    TablaLiquidacion::Habydesc, TablaLiquidacion::Aguinaldos, TablaLiquidacion::Egresos,
    TablaLiquidacion::Salvacacional};

// Las columnas que lee cada tabla, después de nombre y fecha.
const char* columnasDe(TablaLiquidacion t) {
    switch (t) {
        case TablaLiquidacion::Aguinaldos:
            return "concepto, total, tipo, mes, aclab";
        case TablaLiquidacion::Salvacacional:
            return "codigo, concepto, unidad, cant, total, desdelic, hastalic";
        default:
            return "codigo, concepto, tipo, unidad, permanente, gravado, aguinaldo, cant, total, "
                   "lic, ipd";
    }
}

// La fila desde la posición 2 (0 y 1 son nombre y fecha), según la tabla.
FilaMes filaDe(TablaLiquidacion t, const store::FilaAlPaso& f) {
    FilaMes m;
    const auto total = [&](std::size_t i) { return common::Dinero::desdeDouble(f.real(i)); };
    switch (t) {
        case TablaLiquidacion::Aguinaldos:
            m.concepto = f.texto(2);
            m.total = total(3);
            m.tipo = f.texto(4);
            m.mes = f.texto(5);
            m.aclab = f.texto(6);
            break;
        case TablaLiquidacion::Salvacacional:
            m.codigo = static_cast<long>(f.entero(2));
            m.concepto = f.texto(3);
            m.unidad = f.texto(4);
            m.cant = f.real(5);
            m.total = total(6);
            m.desdelic = f.texto(7);
            m.hastalic = f.texto(8);
            break;
        default:
            m.codigo = static_cast<long>(f.entero(2));
            m.concepto = f.texto(3);
            m.tipo = f.texto(4);
            m.unidad = f.texto(5);
            m.permanente = f.texto(6);
            m.gravado = f.texto(7);
            m.aguinaldo = f.texto(8);
            m.cant = f.real(9);
            m.total = total(10);
            m.lic = f.texto(11);
            m.ipd = f.texto(12);
    }
    return m;
}

std::string sinBlancos(const std::string& s) {
    const auto a = s.find_first_not_of(' ');
    return a == std::string::npos ? "" : s.substr(a, s.find_last_not_of(' ') - a + 1);
}

common::Mes mesDe(const std::string& fecha) {
    const auto f = common::Fecha::desdeTexto(fecha);
    return f ? common::Mes::de(*f) : common::Mes{};
}

// Lo que sigue a "WHERE" para la empresa, un tramo de fechas y quizás una persona.
std::string donde(const std::optional<std::string>& nombre) {
    return " WHERE empresa = ? AND fecha >= ? AND fecha <= ?" +
           std::string(nombre ? " AND nombre = ?" : "");
}

std::vector<store::Valor> parametros(const std::string& empresa, const common::Mes& desde,
                                     const common::Mes& hasta,
                                     const std::optional<std::string>& nombre) {
    std::vector<store::Valor> p = {empresa, desde.primerDia().iso(), hasta.primerDia().iso()};
    if (nombre) p.emplace_back(*nombre);
    return p;
}

// En cada persona y mes, las filas en el orden en que se dieron de alta.
std::string ordenDeAlta(store::Motor m) {
    return m == store::Motor::Sqlite ? " ORDER BY nombre, fecha, rowid"
                                     : " ORDER BY nombre, fecha, ctid";
}

void leerFilas(store::Conexion& base, const std::string& empresa, const MesesALeer& meses,
               const std::optional<std::string>& nombre, Lectura& l) {
    std::map<std::string, LibroPersona*> libros;
    for (auto& p : l.personas) libros[p.ficha->nombre] = &p.libro;
    for (const auto t : kTablas) {
        const auto& [desde, hasta] = meses.tramos[static_cast<std::size_t>(t)];
        for (auto& p : l.personas) {
            p.libro.leidos(t, desde, hasta);
            p.libro.explicacionesLeidas(meses.escrito);
        }
        const std::string sql = "SELECT nombre, fecha, " + std::string(columnasDe(t)) + " FROM " +
                                nombreTabla(t) + donde(nombre) + ordenDeAlta(base.motor());
        base.recorrer(sql, parametros(empresa, desde, hasta, nombre),
                      [&](const store::FilaAlPaso& f) {
                          const auto it = libros.find(f.texto(0));
                          if (it != libros.end())
                              it->second->agregarLeida(t, mesDe(f.texto(1)), filaDe(t, f));
                      });
    }
    // Las explicaciones del mes que la corrida escribe, fila por fila.
    base.recorrer("SELECT nombre, tabla, codigo, texto FROM explicaciones" + donde(nombre),
                  parametros(empresa, meses.escrito, meses.escrito, nombre),
                  [&](const store::FilaAlPaso& f) {
                      const auto it = libros.find(f.texto(0));
                      if (it == libros.end()) return;
                      for (const auto t : kTablas)
                          if (f.texto(1) == nombreTabla(t))
                              it->second->explicacionLeida(
                                  t, meses.escrito, static_cast<long>(f.entero(2)), f.texto(3));
                  });
}

}  // namespace

std::vector<FilaMes> filasDeLaPersona(store::Conexion& base, const std::string& empresa,
                                      const std::string& nombre, const common::Mes& mes,
                                      TablaLiquidacion tabla) {
    MesesALeer meses;
    meses.escrito = mes;
    for (auto& t : meses.tramos) t = {mes, mes};
    auto lectura = leerCorrida(base, empresa, mes, meses, nombre, false);
    const auto* p = lectura.persona(nombre);
    if (!p) return {};
    return p->libro.filas(tabla, mes);
}

MesesALeer mesesDelMes(const common::Mes& mes) {
    MesesALeer m;
    m.escrito = mes;
    for (auto& t : m.tramos) t = {mes, mes};
    auto& habydesc = m.tramos[static_cast<std::size_t>(TablaLiquidacion::Habydesc)];
    habydesc.first = mes.anterior();
    if (mes.mes == 12)
        for (auto& t : m.tramos) t = {common::Mes{mes.anio, 1}, mes};
    return m;
}

MesesALeer mesesDelRenglon(const common::Mes& mes) {
    MesesALeer m;
    m.escrito = mes;
    const common::Mes eneroAnterior{mes.anio - 1, 1}, enero{mes.anio, 1}, diciembre{mes.anio, 12};
    for (auto& t : m.tramos) t = {enero, diciembre};
    m.tramos[static_cast<std::size_t>(TablaLiquidacion::Habydesc)].first = eneroAnterior;
    return m;
}

PersonaDelMes* Lectura::persona(const std::string& nombre) {
    for (auto& p : personas)
        if (p.ficha->nombre == nombre) return &p;
    return nullptr;
}

std::vector<master::PersonaCompartida> personasPorCantbfc(store::Conexion& base,
                                                          const std::string& empresa) {
    std::vector<std::pair<std::string, master::PersonaCompartida>> leidas;
    master::LectorRegistros<master::Persona> lector(master::camposPersona());
    base.recorrer("SELECT * FROM personal WHERE empresa = ? ORDER BY nombre", {empresa},
                  [&](const store::FilaAlPaso& f) {
                      auto p = std::make_shared<master::Persona>();
                      lector.leer(f, *p);
                      // Por cantbfc como el texto que es ("50" antes que "6"), con
                      // los vacíos primero igual en los dos motores.
                      leidas.emplace_back(sinBlancos(p->cantbfc), std::move(p));
                  });
    std::stable_sort(leidas.begin(), leidas.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<master::PersonaCompartida> personas;
    personas.reserve(leidas.size());
    for (auto& [cantbfc, p] : leidas) personas.push_back(std::move(p));
    return personas;
}

Lectura leerCorrida(store::Conexion& base, const std::string& empresa, const common::Mes& mes,
                    const MesesALeer& meses, const std::optional<std::string>& nombre,
                    bool conHoras) {
    Lectura l{mes, leerMaestros(base, empresa, mes, conHoras), {}};
    std::optional<std::string> filtro = nombre;
    if (nombre) {
        auto p = master::leerPersona(base, empresa, *nombre);
        if (!p) return l;
        // El ficto se compara con los sueldos de toda la empresa.
        if (common::textoANumero(p->cantbfc) != 0)
            filtro.reset();
        else
            l.personas.push_back({std::make_shared<const master::Persona>(std::move(*p)),
                                  LibroPersona(empresa, *nombre)});
    }
    if (!filtro)
        for (auto& p : personasPorCantbfc(base, empresa))
            l.personas.push_back({p, LibroPersona(empresa, p->nombre)});
    leerFilas(base, empresa, meses, filtro, l);
    return l;
}

}  // namespace mes
}  // namespace nomira::engine
