#include "master/personal.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "common/numeros.h"

namespace nomira::master {

namespace {

using Rango = std::pair<int, int>;  // posiciones desde y hasta, inclusive

Campos<Persona> tramos(std::initializer_list<Rango> rangos) {
    const auto& todos = camposPersona();
    Campos<Persona> c;
    for (const auto& [desde, hasta] : rangos)
        for (int i = desde; i <= hasta; ++i) c.push_back(todos.at(i));
    return c;
}

void actualizarGrupo(store::Conexion& base, const Persona& p, const Campos<Persona>& grupo) {
    const auto columnas = columnasDe(grupo);
    auto valores = valoresParaColumnas("personal", columnas, textosDe(p, grupo));
    valores.emplace_back(p.empresa);
    valores.emplace_back(p.nombre);
    base.ejecuta(sqlActualizar("personal", columnas, {"empresa", "nombre"}), valores);
}

Campos<Persona> sinCategoria(const Campos<Persona>& grupo) {
    Campos<Persona> c;
    for (const auto& campo : grupo)
        if (!esColumnaDeCategoria(campo.columna)) c.push_back(campo);
    return c;
}

}  // namespace

const Campos<Persona>& camposPersona() {
    using P = Persona;
    static const Campos<Persona> c = {
        {"empresa", &P::empresa},
        {"nombre", &P::nombre},
        {"nrofun", &P::nrofun},
        {"direccion", &P::direccion},
        {"telefono", &P::telefono},
        {"otrotelefono", &P::otrotelefono},
        {"fechanac", &P::fechanac},
        {"lugarnac", &P::lugarnac},
        {"nacionalidad", &P::nacionalidad},
        {"sexo", &P::sexo},
        {"estcivil", &P::estcivil},
        {"tipodedoc", &P::tipodedoc},
        {"paisdeldoc", &P::paisdeldoc},
        {"documento", &P::documento},
        {"credencial", &P::credencial},
        {"socmedica", &P::socmedica},
        {"observaciones", &P::observaciones},
        {"fechaing", &P::fechaing},
        {"sector", &P::sector},
        {"categoria", &P::categoria},
        {"sueldo", &P::sueldo},
        {"tiposueldo", &P::tiposueldo},
        {"htrab", &P::htrab},
        {"fechaeg", &P::fechaeg},
        {"motivoeg", &P::motivoeg},
        {"antiguedad", &P::antiguedad},
        {"horario", &P::horario},
        {"tiporemmtss", &P::tiporemmtss},
        {"tiporembps", &P::tiporembps},
        {"imprecibo", &P::imprecibo},
        {"segurosalud", &P::segurosalud},
        {"vinculofun", &P::vinculofun},
        {"cantbfc", &P::cantbfc},
        {"exon", &P::exon},
        {"cesp", &P::cesp},
        {"nrosuc", &P::nrosuc},
        {"referencias", &P::referencias},
        {"fechaing2", &P::fechaing2},
        {"sector2", &P::sector2},
        {"categoria2", &P::categoria2},
        {"sueldo2", &P::sueldo2},
        {"fechaeg2", &P::fechaeg2},
        {"motivoeg2", &P::motivoeg2},
        {"antiguedad2", &P::antiguedad2},
        {"horario2", &P::horario2},
        {"tiporemmtss2", &P::tiporemmtss2},
        {"tiporembps2", &P::tiporembps2},
        {"segurosalud2", &P::segurosalud2},
        {"vinculofun2", &P::vinculofun2},
        {"exon2", &P::exon2},
        {"cesp2", &P::cesp2},
        {"fechaing3", &P::fechaing3},
        {"sector3", &P::sector3},
        {"categoria3", &P::categoria3},
        {"sueldo3", &P::sueldo3},
        {"fechaeg3", &P::fechaeg3},
        {"motivoeg3", &P::motivoeg3},
        {"antiguedad3", &P::antiguedad3},
        {"horario3", &P::horario3},
        {"tiporemmtss3", &P::tiporemmtss3},
        {"tiporembps3", &P::tiporembps3},
        {"segurosalud3", &P::segurosalud3},
        {"vinculofun3", &P::vinculofun3},
        {"exon3", &P::exon3},
        {"cesp3", &P::cesp3},
        {"depto", &P::depto},
        {"localidad", &P::localidad},
        {"impaclab", &P::impaclab},
        {"fechasuevig", &P::fechasuevig},
        {"nroord", &P::nroord},
        {"fechacatvig", &P::fechacatvig},
        {"nroord2", &P::nroord2},
        {"cat2", &P::cat2},
        {"fechacatvig2", &P::fechacatvig2},
        {"nroord3", &P::nroord3},
        {"cat3", &P::cat3},
        {"fechacatvig3", &P::fechacatvig3},
        {"sue2", &P::sue2},
        {"sue3", &P::sue3},
        {"fechasuevig2", &P::fechasuevig2},
        {"fechasuevig3", &P::fechasuevig3},
        {"tipodedoccon", &P::tipodedoccon},
        {"paisdeldoccon", &P::paisdeldoccon},
        {"documentocon", &P::documentocon},
        {"nombrecon", &P::nombrecon},
        {"fechanaccon", &P::fechanaccon},
        {"nacionalidadcon", &P::nacionalidadcon},
        {"sexocon", &P::sexocon},
        {"fechadesdecon", &P::fechadesdecon},
        {"fechaprescon", &P::fechaprescon},
        {"tipodedocben", &P::tipodedocben},
        {"paisdeldocben", &P::paisdeldocben},
        {"documentoben", &P::documentoben},
        {"nombreben", &P::nombreben},
        {"fechanacben", &P::fechanacben},
        {"nacionalidadben", &P::nacionalidadben},
        {"sexoben", &P::sexoben},
        {"causaben", &P::causaben},
        {"relacionfilialben", &P::relacionfilialben},
        {"regimenben", &P::regimenben},
        {"porcentajeben", &P::porcentajeben},
        {"montoben", &P::montoben},
        {"fechadesdeben", &P::fechadesdeben},
        {"fechapresben", &P::fechapresben},
        {"tipodedocben2", &P::tipodedocben2},
        {"paisdeldocben2", &P::paisdeldocben2},
        {"documentoben2", &P::documentoben2},
        {"nombreben2", &P::nombreben2},
        {"fechanacben2", &P::fechanacben2},
        {"nacionalidadben2", &P::nacionalidadben2},
        {"sexoben2", &P::sexoben2},
        {"causaben2", &P::causaben2},
        {"relacionfilialben2", &P::relacionfilialben2},
        {"regimenben2", &P::regimenben2},
        {"porcentajeben2", &P::porcentajeben2},
        {"montoben2", &P::montoben2},
        {"fechadesdeben2", &P::fechadesdeben2},
        {"fechapresben2", &P::fechapresben2},
        {"tipodedocben3", &P::tipodedocben3},
        {"paisdeldocben3", &P::paisdeldocben3},
        {"documentoben3", &P::documentoben3},
        {"nombreben3", &P::nombreben3},
        {"fechanacben3", &P::fechanacben3},
        {"nacionalidadben3", &P::nacionalidadben3},
        {"sexoben3", &P::sexoben3},
        {"causaben3", &P::causaben3},
        {"relacionfilialben3", &P::relacionfilialben3},
        {"regimenben3", &P::regimenben3},
        {"porcentajeben3", &P::porcentajeben3},
        {"montoben3", &P::montoben3},
        {"fechadesdeben3", &P::fechadesdeben3},
        {"fechapresben3", &P::fechapresben3},
        {"codigoded", &P::codigoded},
        {"categoriaded", &P::categoriaded},
        {"montoded", &P::montoded},
        {"fechadesdeded", &P::fechadesdeded},
        {"fechapresded", &P::fechapresded},
        {"codigoded2", &P::codigoded2},
        {"categoriaded2", &P::categoriaded2},
        {"montoded2", &P::montoded2},
        {"fechadesdeded2", &P::fechadesdeded2},
        {"fechapresded2", &P::fechapresded2},
        {"codigoded3", &P::codigoded3},
        {"categoriaded3", &P::categoriaded3},
        {"montoded3", &P::montoded3},
        {"fechadesdeded3", &P::fechadesdeded3},
        {"fechapresded3", &P::fechapresded3},
    };
    return c;
}

std::optional<Persona> leerPersona(store::Conexion& base, const std::string& empresa,
                                   const std::string& nombre) {
    const auto r =
        base.consulta("SELECT * FROM personal WHERE empresa = ? AND nombre = ?", {empresa, nombre});
    if (r.vacio()) return std::nullopt;
    return leerRegistro(r.primera(), camposPersona());
}

const std::vector<Campos<Persona>>& gruposDePersona() {
    static const std::vector<Campos<Persona>> g = {
        tramos({{2, 36}, {68, 68}, {70, 80}}),
        tramos({{37, 50}}),
        tramos({{51, 67}, {69, 69}}),
        tramos({{81, 131}}),
        tramos({{132, 146}}),
    };
    return g;
}

bool esColumnaDeCategoria(const char* columna) {
    static constexpr std::array<const char*, 15> kColumnas = {
        "categoria",    "sueldo", "fechasuevig",  "nroord",       "fechacatvig",
        "nroord2",      "cat2",   "fechacatvig2", "nroord3",      "cat3",
        "fechacatvig3", "sue2",   "sue3",         "fechasuevig2", "fechasuevig3"};
    return std::any_of(kColumnas.begin(), kColumnas.end(),
                       [&](const char* c) { return std::strcmp(c, columna) == 0; });
}

void agregarPersona(store::Conexion& base, Persona persona) {
    persona.montoded = persona.montoded2 = persona.montoded3 = "";
    store::Transaccion t(base);
    base.ejecuta("INSERT INTO personal (empresa, nombre) VALUES (?, ?)",
                 {persona.empresa, persona.nombre});
    for (const auto& grupo : gruposDePersona()) actualizarGrupo(base, persona, grupo);
    t.confirmar();
}

void actualizarPersona(store::Conexion& base, Persona persona) {
    persona.montoded = persona.montoded2 = persona.montoded3 = "";
    for (const auto& grupo : gruposDePersona()) actualizarGrupo(base, persona, sinCategoria(grupo));
}

void eliminarPersona(store::Conexion& base, const std::string& empresa, const std::string& nombre) {
    store::Transaccion t(base);
    for (const char* tabla :
         {"personal", "habydesc", "aguinaldos", "salvacacional", "egresos", "concpermxpers"})
        base.ejecuta(std::string("DELETE FROM ") + tabla + " WHERE empresa = ? AND nombre = ?",
                     {empresa, nombre});
    t.confirmar();
}

std::int64_t siguienteNroord(store::Conexion& base, const std::string& empresa) {
    const auto r =
        base.consulta("SELECT MAX(nroord) AS n FROM personal WHERE empresa = ?", {empresa});
    return r.primera().entero("n") + 1;
}

std::string proponerNrofun(store::Conexion& base, const std::string& empresa) {
    const auto r =
        base.consulta("SELECT MAX(nrofun) AS n FROM personal WHERE empresa = ?", {empresa});
    return std::to_string(r.primera().entero("n") + 1);
}

std::string proponerNroord(store::Conexion& base, const std::string& empresa) {
    auto propuesto = siguienteNroord(base, empresa);
    // cesp2 es texto: el mayor se busca por su valor, no por su orden alfabético.
    double mayor = 0;
    bool hay = false;
    for (const auto& f : base.consulta("SELECT cesp2 FROM personal WHERE empresa = ? AND cesp2 IS "
                                       "NOT NULL AND cesp2 <> ''",
                                       {empresa})
                             .filas) {
        const double v = common::textoANumero(f.texto("cesp2"));
        if (!hay || v > mayor) mayor = v;
        hay = true;
    }
    if (hay && mayor == static_cast<double>(propuesto)) ++propuesto;
    return std::to_string(propuesto);
}

std::int64_t contarHabydescPosteriores(store::Conexion& base, const std::string& empresa,
                                       const std::string& nombre, const common::Fecha& desde) {
    return base
        .consulta(
            "SELECT COUNT(*) AS n FROM habydesc WHERE empresa = ? AND nombre = ? AND fecha > ?",
            {empresa, nombre, desde.iso()})
        .primera()
        .entero("n");
}

void eliminarHabydescPosteriores(store::Conexion& base, const std::string& empresa,
                                 const std::string& nombre, const common::Fecha& desde) {
    base.ejecuta("DELETE FROM habydesc WHERE empresa = ? AND nombre = ? AND fecha > ?",
                 {empresa, nombre, desde.iso()});
}

}  // namespace nomira::master
