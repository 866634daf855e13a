#include "master/estudio_demo.h"

#include <fstream>

#include "common/antiguedad.h"
#include "common/empaquetados.h"
#include "common/fallo.h"
#include "common/fechas.h"
#include "master/catalogos.h"
#include "master/conceptos.h"
#include "master/empresas.h"
#include "master/obras.h"
#include "master/personal.h"

namespace nomira::master {

namespace {

const std::string kFabrica = "FÁBRICA DE EJEMPLO S.A.";
const std::string kConstructora = "CONSTRUCTORA MODELO S.R.L.";
const std::string kComercio = "COMERCIO DE PRUEBA LTDA.";

Empresa empresa(const std::string& nombre, const std::string& nroemp, const std::string& aporte,
                const std::string& actividad) {
    Empresa e;
    e.empresa = nombre;
    e.nroemp = nroemp;
    e.direccion = "Avenida Imaginaria " + nroemp + "00";
    e.telefono = "2900 000" + nroemp;
    e.mail = "contacto" + nroemp + "@ejemplo.invalid";
    e.depto = "Montevideo";
    e.localidad = "Montevideo";
    e.codpostal = "11000";
    e.actividad = actividad;
    e.ruc = "21000000" + nroemp + "001";
    e.bps = "900000" + nroemp;
    e.mtss = "800000" + nroemp;
    e.fechainsc = "2010-03-01";
    e.fechainiact = "2010-04-01";
    e.tipoaport = aporte;
    e.perscont = "OFICINA DE PRUEBA";
    e.centralplanilla = "Si";
    return e;
}

// Lo que comparten todas las fichas; cada persona agrega lo suyo.
Persona persona(const std::string& empresa, const std::string& nombre, int nro,
                const std::string& documento, const std::string& fechanac, const std::string& sexo,
                const std::string& fechaing, const std::string& tiposueldo,
                const std::string& sueldo) {
    const std::string n = std::to_string(nro);
    Persona p;
    p.empresa = empresa;
    p.nombre = nombre;
    p.nrofun = n;
    p.nroord = n;
    p.direccion = "Calle Inventada " + std::to_string(1000 + nro * 11);
    p.telefono = "099 000 0" + (nro < 10 ? "0" + n : n);
    p.fechanac = fechanac;
    p.lugarnac = "Uruguay";
    p.nacionalidad = "U";
    p.sexo = sexo;
    p.estcivil = "Soltero";
    p.tipodedoc = "DO";
    p.paisdeldoc = "Uruguay";
    p.documento = documento;
    p.credencial = "ZZZ " + std::to_string(1000 + nro);
    p.socmedica = common::SocMedica{"Si", "C", "No", "No", "No", ""}.texto();
    p.fechaing = fechaing;
    p.sector = "Administración";
    p.categoria = "Administrativo";
    p.sueldo = sueldo;
    p.tiposueldo = tiposueldo;
    p.htrab = "8";
    p.horario = common::Horario{"Lunes a viernes de 9 a 17", "BROU", "00000000" + n}.texto();
    p.tiporemmtss = tiposueldo == "S" ? "Mensual" : tiposueldo == "J" ? "Jornalero" : "Por hora";
    p.tiporembps = p.tiporemmtss;
    p.imprecibo = "Si";
    p.segurosalud = "Fonasa";
    p.vinculofun = "Dependiente";
    p.exon = "0";
    p.cesp = "44";
    p.nrosuc = "1";
    p.depto = "Montevideo";
    p.localidad = "Montevideo";
    p.impaclab = "1";
    p.fechasuevig = "2026-01-01";
    p.fechacatvig = fechaing;
    return p;
}

void jornalero(Persona& p, const std::string& categoria) {
    p.sector = "Obra";
    p.categoria = categoria;
    p.cesp = "44";
    p.horario = common::Horario{"Lunes a viernes de 7 a 16", "BROU", "0000000" + p.nrofun}.texto();
}

// Una columna de la ficha por su nombre: los tres beneficiarios sólo difieren
// en el número del final.
void poner(Persona& p, const std::string& columna, const std::string& valor) {
    for (const auto& c : camposPersona())
        if (columna == c.columna) {
            p.*c.miembro = valor;
            return;
        }
    throw common::Fallo(5, "La ficha no tiene la columna " + columna);
}

// Un hijo menor a cargo en el lugar 1, 2 o 3 de Datos Beneficiarios.
void hijo(Persona& p, int lugar, const std::string& nombre, const std::string& documento,
          const std::string& fechanac, const std::string& sexo, const std::string& porcentaje) {
    const std::string n = lugar == 1 ? "" : std::to_string(lugar);
    for (const auto& [columna, valor] : std::initializer_list<std::pair<const char*, std::string>>{
             {"tipodedocben", "DO"},
             {"paisdeldocben", "Uruguay"},
             {"documentoben", documento},
             {"nombreben", nombre},
             {"fechanacben", fechanac},
             {"nacionalidadben", "U"},
             {"sexoben", sexo},
             {"causaben", "01-Menor de Edad"},
             {"relacionfilialben", "03-Hijo/Hija Natural Rec.Leg."},
             {"regimenben", "01-Privada"},
             {"porcentajeben", porcentaje},
             {"fechadesdeben", "2024-01-01"},
             {"fechapresben", "2024-01-01"}})
        poner(p, columna + n, valor);
}

std::vector<Persona> personalDemo() {
    std::vector<Persona> v;

    // Sueldo alto, casado, cónyuge que ingresa al SNS y dos hijos: SNIS al 8 %
    // y las deducciones del IRPF por hijos al 100 %.
    auto perez = persona(kFabrica, "PÉREZ DE PRUEBA, JUAN", 1, "11111111", "1982-04-12", "M",
                         "2012-02-01", "S", "95000");
    perez.estcivil = "Casado";
    perez.categoria = "Jefe de planta";
    perez.tipodedoccon = "DO";
    perez.paisdeldoccon = "Uruguay";
    perez.documentocon = "12345672";
    perez.nombrecon = "GARCÍA DE PRUEBA, LAURA";
    perez.fechanaccon = "1984-09-03";
    perez.nacionalidadcon = "U";
    perez.sexocon = common::SexoCon{"F", "Si"}.texto();
    perez.fechadesdecon = "2024-01-01";
    perez.fechaprescon = "2024-01-01";
    hijo(perez, 1, "PÉREZ GARCÍA DE PRUEBA, SOFÍA", "23456783", "2015-05-10", "F", "02-100%");
    hijo(perez, 2, "PÉREZ GARCÍA DE PRUEBA, TOMÁS", "34567894", "2018-11-22", "M", "02-100%");
    v.push_back(perez);

    // Debajo de 2,5 BPC: SNIS al 3 %.
    v.push_back(persona(kFabrica, "GÓMEZ FICTICIA, ANA MARÍA", 2, "22222222", "1999-07-30", "F",
                        "2023-03-01", "S", "16500"));

    // Con una segunda actividad en la misma empresa y su propio número de orden.
    auto rodriguez = persona(kFabrica, "RODRÍGUEZ INVENTADO, CARLOS", 3, "33333333", "1977-01-15",
                             "M", "2008-06-01", "S", "45000");
    rodriguez.fechaing2 = "2021-08-01";
    rodriguez.sector2 = "Ventas";
    rodriguez.categoria2 = "Vendedor";
    rodriguez.sueldo2 = "18000";
    rodriguez.horario2 = "Sábados de 9 a 13";
    rodriguez.tiporemmtss2 = "Mensual";
    rodriguez.tiporembps2 = "Mensual";
    rodriguez.segurosalud2 = "Fonasa";
    rodriguez.vinculofun2 = "Dependiente";
    rodriguez.exon2 = "0";
    rodriguez.cesp2 = "13";
    v.push_back(rodriguez);

    // Por hora: las horas llegan del archivo del reloj.
    auto fernandez = persona(kFabrica, "FERNÁNDEZ EJEMPLAR, LUCÍA", 4, "44444444", "1995-10-05",
                             "F", "2019-09-01", "H", "260");
    fernandez.sector = "Producción";
    fernandez.categoria = "Operaria";
    v.push_back(fernandez);

    // Egresó el año pasado: el mes ya no la liquida.
    auto martinez = persona(kFabrica, "MARTÍNEZ SIMULADO, PEDRO", 5, "55555555", "1988-02-18", "M",
                            "2019-03-01", "S", "38000");
    martinez.fechaeg = "2025-06-30";
    martinez.motivoeg = "Renuncia";
    martinez.antiguedad =
        std::to_string(common::antiguedadEntre(common::Fecha{2019, 3, 1}.ddmmyy(),
                                               common::Fecha{2025, 6, 30}.ddmmyy())
                           .anios);
    v.push_back(martinez);

    // Socio que aporta sobre bases fictas: genera SUELDO FICTO y no SUELDO.
    auto socio = persona(kFabrica, "SOCIO DE MUESTRA, ROBERTO", 6, "66666666", "1970-12-01", "M",
                         "2010-04-01", "S", "0");
    socio.categoria = "Socio";
    socio.vinculofun = "Socio con actividad";
    socio.cantbfc = "2";
    socio.exon = "9";
    v.push_back(socio);

    // La constructora: dos jornaleros y un capataz mensual.
    auto lopez = persona(kConstructora, "LÓPEZ DE ENSAYO, MARIO", 1, "77777777", "1985-05-25", "M",
                         "2020-02-03", "J", "2100");
    jornalero(lopez, "Oficial albañil");
    v.push_back(lopez);
    auto silva = persona(kConstructora, "SILVA IMAGINARIA, JORGE", 2, "88888888", "2000-08-14", "M",
                         "2024-05-06", "J", "1750");
    jornalero(silva, "Peón");
    v.push_back(silva);
    auto benitez = persona(kConstructora, "BENÍTEZ SUPUESTO, RAÚL", 3, "99999999", "1975-03-09",
                           "M", "2015-01-05", "S", "58000");
    jornalero(benitez, "Capataz");
    benitez.tiporemmtss = benitez.tiporembps = "Mensual";
    v.push_back(benitez);

    // El comercio: una hija al 50 %, un jornalero y un sueldo sobre 10 BPC.
    auto castro = persona(kComercio, "CASTRO INVENTADA, VALERIA", 1, "45678905", "1990-06-21", "F",
                          "2017-10-02", "S", "32000");
    castro.sector = "Ventas";
    castro.categoria = "Vendedora";
    hijo(castro, 1, "CASTRO DE PRUEBA, EMMA", "56789016", "2016-02-29", "F", "01-50%");
    v.push_back(castro);
    auto suarez = persona(kComercio, "SUÁREZ DE PRUEBA, DIEGO", 2, "67890127", "1997-12-12", "M",
                          "2022-11-01", "J", "1200");
    suarez.sector = "Depósito";
    suarez.categoria = "Peón de depósito";
    v.push_back(suarez);
    auto alvarez = persona(kComercio, "ÁLVAREZ EJEMPLO, MARTA", 3, "12121212", "1980-04-04", "F",
                           "2011-07-01", "S", "72000");
    alvarez.categoria = "Encargada";
    v.push_back(alvarez);
    return v;
}

Obra obraDemo() {
    Obra o;
    o.empresa = kConstructora;
    o.nroobra = "1001";
    o.formarealizacion = "2";
    o.actprincipal = "Edificio de viviendas";
    o.empresatitular = "PROPIETARIA FICTICIA S.A.";
    o.direccion = "Calle del Ensayo 500";
    o.telefono = "2900 0099";
    o.bps = "9000099";
    o.ruc = "210000099001";
    return o;
}

}  // namespace

const std::vector<std::string>& empresasDemo() {
    static const std::vector<std::string> e = {kFabrica, kConstructora, kComercio};
    return e;
}

const std::vector<HorasDemo>& horasDemo() {
    // JORNALES (10) de los jornaleros y HORAS (15) de la que cobra por hora.
    static const std::vector<HorasDemo> h = {
        {kFabrica, "1", {"4|15|176"}},
        {kConstructora, "2", {"1|10|22", "2|10|20"}},
        {kComercio, "3", {"2|10|24"}},
    };
    return h;
}

void crearEstudioDemo(store::Conexion& base) {
    store::Transaccion t(base);
    if (codigoEnCatalogo(base, "tipoaport", "Construcción").empty())
        agregarACatalogo(base, "tipoaport", {"04-Construcción"});
    agregarEmpresa(
        base, empresa(kFabrica, "1", "Industria y Comercio", "Fabricación de muebles de prueba"));
    agregarEmpresa(base, empresa(kConstructora, "2", "Construcción", "Construcción de edificios"));
    agregarEmpresa(
        base, empresa(kComercio, "3", "Industria y Comercio", "Venta al por menor de ejemplo"));
    agregarObra(base, obraDemo());
    for (const auto& p : personalDemo()) agregarPersona(base, p);
    // La segunda actividad no es permanente para todos: lo es para quien la tiene.
    if (auto m = agregarConceptoPersona(base, kFabrica, "RODRÍGUEZ INVENTADO, CARLOS", 2))
        throw common::Fallo(5, *m);
    t.confirmar();
}

std::vector<std::filesystem::path> escribirHorasDemo(
    const std::function<std::filesystem::path(const std::string& nroemp)>& rutaDe) {
    std::vector<std::filesystem::path> escritas;
    for (const auto& h : horasDemo()) {
        const auto ruta = rutaDe(h.nroemp);
        if (std::filesystem::exists(ruta)) continue;
        if (ruta.has_parent_path()) std::filesystem::create_directories(ruta.parent_path());
        std::ofstream f(ruta, std::ios::binary);
        for (const auto& l : h.lineas) f << l << "\r\n";
        if (!f) throw common::Fallo(75, "No se pudo escribir " + ruta.string());
        escritas.push_back(ruta);
    }
    return escritas;
}

}  // namespace nomira::master
