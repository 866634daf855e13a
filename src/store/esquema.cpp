#include "store/esquema.h"

#include <sstream>

namespace nomira::store {

namespace {

// Cada tabla se escribe como su lista de columnas separadas por blancos; un
// sufijo dice el tipo cuando no es texto: ":e" entero, ":r" real, ":d" dinero,
// ":f" fecha. Las columnas que empiezan con "fecha" son fechas sin sufijo.
// Los "números como texto" (sueldo, cesp2, nroord2...) quedan en texto: se
// comparan entre comillas y pueden venir vacíos de una casilla.
struct Definicion {
    const char* nombre;
    const char* columnas;
};

constexpr Definicion kDefiniciones[] = {
    {"personal",
     "empresa nombre nrofun:e direccion telefono otrotelefono fechanac lugarnac nacionalidad sexo "
     "estcivil tipodedoc paisdeldoc documento credencial socmedica observaciones fechaing sector "
     "categoria sueldo tiposueldo htrab fechaeg motivoeg antiguedad horario tiporemmtss "
     "tiporembps imprecibo segurosalud vinculofun cantbfc exon cesp nrosuc referencias fechaing2 "
     "sector2 categoria2 sueldo2 fechaeg2 motivoeg2 antiguedad2 horario2 tiporemmtss2 "
     "tiporembps2 segurosalud2 vinculofun2 exon2 cesp2 fechaing3 sector3 categoria3 sueldo3 "
     "fechaeg3 motivoeg3 antiguedad3 horario3 tiporemmtss3 tiporembps3 segurosalud3 vinculofun3 "
     "exon3 cesp3 depto localidad impaclab fechasuevig nroord:e fechacatvig nroord2 cat2 "
     "fechacatvig2 nroord3 cat3 fechacatvig3 sue2 sue3 fechasuevig2 fechasuevig3 tipodedoccon "
     "paisdeldoccon documentocon nombrecon fechanaccon nacionalidadcon sexocon fechadesdecon "
     "fechaprescon tipodedocben paisdeldocben documentoben nombreben fechanacben nacionalidadben "
     "sexoben causaben relacionfilialben regimenben porcentajeben montoben fechadesdeben "
     "fechapresben tipodedocben2 paisdeldocben2 documentoben2 nombreben2 fechanacben2 "
     "nacionalidadben2 sexoben2 causaben2 relacionfilialben2 regimenben2 porcentajeben2 "
     "montoben2 fechadesdeben2 fechapresben2 tipodedocben3 paisdeldocben3 documentoben3 "
     "nombreben3 fechanacben3 nacionalidadben3 sexoben3 causaben3 relacionfilialben3 "
     "regimenben3 porcentajeben3 montoben3 fechadesdeben3 fechapresben3 codigoded categoriaded "
     "montoded fechadesdeded fechapresded codigoded2 categoriaded2 montoded2 fechadesdeded2 "
     "fechapresded2 codigoded3 categoriaded3 montoded3 fechadesdeded3 fechapresded3"},
    {"empresas",
     "empresa nroemp:e direccion telefono fax mail depto localidad codpostal actividad ruc bps bse "
     "mtss fechainsc fechainiact tipocontrib tipoaport grupoact subgrupoact grupoconsal perscont "
     "direccionsuc2 deptosuc2 locsuc2 direccionsuc3 deptosuc3 locsuc3 exon persrep seccional "
     "centralplanilla fechainiact2 fechafinact2 estado2 fechainiact3 fechafinact3 estado3 "
     "subgrupoconsal"},
    // Las cuatro columnas sin uso conservan las posiciones 0, 1, 53 y 54.
    {"configuracion",
     "reservado1 reservado2 impresorarecibos impresorainformes impresoracomanda usu1 pas1 cat1 "
     "usu2 pas2 cat2 usu3 pas3 cat3 usu4 pas4 cat4 usu5 pas5 cat5 usu6 pas6 cat6 usu7 pas7 cat7 "
     "usu8 pas8 cat8 usu9 pas9 cat9 usu10 pas10 cat10 check1 check2 check3 check4 check5 check6 "
     "check7 check8 check9 check10 check11 check12 check13 check14 check15 check16 check17 "
     "check18 reservado3 reservado4 tiporec tipoinf tipocom tamrec taminf tamcom contitulos "
     "cantpers tipodepapel concopiativo cortehoja cantlineasarr cantespizq desdenrofun "
     "hastanrofun nroempges"},
    {"conceptos",
     "codigo:e concepto especificode formula tipo unidad permanente gravado aguinaldo lic ipd"},
    {"concpermxpers", "empresa nombre codigo:e concepto tipo"},
    {"habydesc",
     "empresa nombre fecha codigo:e concepto tipo unidad permanente gravado aguinaldo cant:r "
     "total:d lic ipd"},
    {"egresos",
     "empresa nombre fecha codigo:e concepto tipo unidad permanente gravado aguinaldo cant:r "
     "total:d lic ipd"},
    // aclab es texto "1", "2" o "3", y queda Null en las filas que no lo escriben.
    {"aguinaldos", "empresa nombre fecha mes concepto total:d tipo aclab"},
    {"salvacacional",
     "empresa nombre fecha codigo:e concepto unidad cant:r total:d desdelic:f hastalic:f"},
    {"definiciondevariables", "nombre fecha valor:r"},
    {"franjasirp", "franja:e min:r max:r tasa:r"},
    {"histsueldosmin", "nombre nombre2 nombre3 nombre4 fechaini fechafin sueldo:d"},
    {"histplanillatrabajo", "empresa nrodoc ord causal fechagen horagen fechapres"},
    {"montosapagar", "empresa fecha montoapagar:d"},
    {"obras",
     "empresa nroobra formarealizacion actprincipal empresatitular direccion telefono bps ruc"},
    {"tipocontrib", "nombre"},
    {"tipocontrib2", "nombre"},
    {"tipoaport", "nombre"},
    {"grupoact", "nombre"},
    {"subgrupoact", "nombre nombre2"},
    {"depto", "nombre"},
    {"local", "nombre nombre2 nombre3"},
    {"localmtss", "nombre nombre2"},
    {"paises", "nombre"},
    {"tiporemmtss", "nombre"},
    {"tiporembps", "nombre"},
    {"segurosalud", "nombre"},
    {"vinculofuncional", "nombre"},
    {"socmedica", "nombre"},
    {"motivodeegreso", "nombre"},
    {"sectores", "nombre nombre2 nombre3"},
    {"categorias", "nombre nombre2 nombre3 nombre4"},
    {"causpresplantrab", "nombre"},
    {"grupoconsal", "nombre"},
    {"subgrupoconsal", "nombre nombre2"},
    {"actividadprincipal", "nombre"},
    {"codigodeducciones", "nombre"},
    {"categoriadeducciones", "nombre nombre2"},
    {"deptocaja", "nombre"},
};

Columna columna(const std::string& palabra) {
    auto dos = palabra.find(':');
    std::string nombre = palabra.substr(0, dos);
    TipoColumna tipo = nombre.starts_with("fecha") ? TipoColumna::Fecha : TipoColumna::Texto;
    if (dos != std::string::npos) {
        switch (palabra[dos + 1]) {
            case 'e':
                tipo = TipoColumna::Entero;
                break;
            case 'r':
                tipo = TipoColumna::Real;
                break;
            case 'd':
                tipo = TipoColumna::Dinero;
                break;
            case 'f':
                tipo = TipoColumna::Fecha;
                break;
        }
    }
    return {std::move(nombre), tipo};
}

constexpr Definicion kAuxiliares[] = {
    // Cómo se llegó a cada fila liquidada: una por fila, con la tabla
    // ("habydesc", "egresos", "salvacacional") y el código de la fila; se
    // escribe y se borra con ella.
    {"explicaciones", "empresa nombre fecha tabla codigo:e texto"},
};

template <std::size_t N>
std::vector<Tabla> construir(const Definicion (&definiciones)[N]) {
    std::vector<Tabla> tablas;
    for (const auto& d : definiciones) {
        Tabla t{d.nombre, {}};
        std::istringstream palabras(d.columnas);
        for (std::string p; palabras >> p;) t.columnas.push_back(columna(p));
        tablas.push_back(std::move(t));
    }
    return tablas;
}

}  // namespace

int Tabla::posicion(std::string_view nombre) const {
    for (std::size_t i = 0; i < columnas.size(); ++i)
        if (columnas[i].nombre == nombre) return static_cast<int>(i);
    return -1;
}

const std::vector<Tabla>& esquema() {
    static const std::vector<Tabla> tablas = construir(kDefiniciones);
    return tablas;
}

const std::vector<Tabla>& tablasAuxiliares() {
    static const std::vector<Tabla> tablas = construir(kAuxiliares);
    return tablas;
}

const Tabla& tabla(std::string_view nombre) {
    for (const auto& t : esquema())
        if (t.nombre == nombre) return t;
    throw ErrorBase(kErrorUso, "No existe la tabla " + std::string(nombre));
}

std::string tipoSql(TipoColumna tipo, Motor motor) {
    bool pg = motor == Motor::Postgres;
    switch (tipo) {
        case TipoColumna::Entero:
            return pg ? "integer" : "INTEGER";
        case TipoColumna::Real:
            return pg ? "double precision" : "REAL";
        case TipoColumna::Dinero:
            return pg ? "numeric(19,4)" : "REAL";
        case TipoColumna::Fecha:
            return pg ? "date" : "TEXT";
        case TipoColumna::Texto:
            break;
    }
    return pg ? "text" : "TEXT";
}

std::string ddl(const Tabla& t, Motor motor) {
    std::string sql = "CREATE TABLE IF NOT EXISTS " + t.nombre + " (";
    for (std::size_t i = 0; i < t.columnas.size(); ++i) {
        if (i) sql += ", ";
        sql += t.columnas[i].nombre + " " + tipoSql(t.columnas[i].tipo, motor);
    }
    return sql + ")";
}

}  // namespace nomira::store
