// Los haberes y los descuentos de marzo de 2026 de una empresa de 1000 personas
// como las de un estudio: mensuales en su mayoría, jornaleros y por hora con el
// archivo de horas del reloj, dos socios con bases fictas (SUELDO FICTO), algunos
// con licencia o faltas en el archivo y otros con hijos a cargo. La misma empresa
// se mide sin historia y con los doce meses anteriores ya liquidados uno tras
// otro, alternando las dos en cada vuelta: "cociente" es con historia sobre sin.
//
// Con NOMIRA_BANCO_PG corre sobre ese servidor y, si tiene pg_stat_statements,
// cuenta las sentencias de cada corrida por persona y muestra en stderr las
// llamadas de cada sentencia de la última vuelta.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "apoyo/dialogo_guion.h"
#include "common/empaquetados.h"
#include "comun.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/haberes.h"
#include "engine/mes/horas.h"
#include "master/datos_iniciales.h"
#include "master/empresas.h"
#include "master/personal.h"
#include "store/crear.h"

namespace {

using namespace nomira;
namespace fs = std::filesystem;

constexpr int kPersonas = 1000;
constexpr int kMesesDeHistoria = 12;
const std::string kEmpresa = "ACME REAL S.A.";
const common::Mes kMesMedido{2026, 3};

// Qué es cada persona por su número: las dos primeras son los socios; una de
// cada diez, jornalera; una de cada veinte, por hora; el resto, mensual.
enum class Clase { Socio, Mensual, Jornalero, PorHora };
Clase claseDe(int p) {
    if (p < 2) return Clase::Socio;
    if (p % 10 == 3) return Clase::Jornalero;
    if (p % 20 == 7) return Clase::PorHora;
    return Clase::Mensual;
}

master::Persona personaDe(int p) {
    const auto n = std::to_string(p + 1);
    master::Persona x;
    x.empresa = kEmpresa;
    x.nombre = "PERSONA " + n + ", DE PRUEBA";
    x.nrofun = x.nroord = n;
    x.direccion = "Calle Inventada " + n;
    x.fechanac = "19" + std::to_string(60 + p % 40) + "-05-10";
    x.nacionalidad = "U";
    x.sexo = p % 2 ? "F" : "M";
    x.estcivil = "Soltero";
    x.tipodedoc = "DO";
    x.documento = std::to_string(10000000 + p);
    x.socmedica = common::SocMedica{"Si", "C", "No", "No", "No", ""}.texto();
    // Ingresos escalonados entre 2005 y 2024: antigüedades distintas.
    x.fechaing = std::to_string(2005 + p % 20) + "-0" + std::to_string(1 + p % 9) + "-01";
    x.sector = "Producción";
    x.categoria = "Operario";
    x.htrab = "8";
    x.horario = common::Horario{"Lunes a viernes de 9 a 17", "BROU", "00000" + n}.texto();
    x.imprecibo = "Si";
    x.segurosalud = "Fonasa";
    x.vinculofun = "Dependiente";
    x.exon = "0";
    x.cesp = "44";
    x.depto = x.localidad = "Montevideo";
    x.fechasuevig = "2025-01-01";
    x.fechacatvig = x.fechaing;
    switch (claseDe(p)) {
        case Clase::Socio:
            x.categoria = "Socio";
            x.vinculofun = "Socio con actividad";
            x.sueldo = "0";
            x.tiposueldo = "S";
            x.cantbfc = "2";
            x.exon = "9";
            break;
        case Clase::Jornalero:
            x.sueldo = std::to_string(1200 + p % 7 * 150);
            x.tiposueldo = "J";
            break;
        case Clase::PorHora:
            x.sueldo = std::to_string(200 + p % 9 * 20);
            x.tiposueldo = "H";
            break;
        case Clase::Mensual:
            // De 20.000 a 119.900: de exentos de IRPF a varias franjas.
            x.sueldo = std::to_string(20000 + p * 100);
            x.tiposueldo = "S";
            break;
    }
    x.tiporemmtss = x.tiporembps = x.tiposueldo == "S"   ? "Mensual"
                                   : x.tiposueldo == "J" ? "Jornalero"
                                                         : "Por hora";
    // Uno de cada quince con un hijo menor a cargo: deducciones del IRPF.
    if (p % 15 == 4) {
        x.tipodedocben = "DO";
        x.documentoben = std::to_string(50000000 + p);
        x.nombreben = "HIJO " + n + ", DE PRUEBA";
        x.fechanacben = "2016-03-01";
        x.nacionalidadben = "U";
        x.causaben = "01-Menor de Edad";
        x.relacionfilialben = "03-Hijo/Hija Natural Rec.Leg.";
        x.porcentajeben = "02-100%";
        x.fechadesdeben = "2024-01-01";
    }
    return x;
}

// Las líneas del reloj de un mes: jornales y horas que cambian un poco de mes a
// mes, una licencia de diez días para dos de cada cincuenta (un mensual y un
// jornalero) y dos faltas para uno de cada cuarenta mensuales.
std::vector<std::string> lineasDelReloj(const common::Mes& mes) {
    std::vector<std::string> v;
    for (int p = 0; p < kPersonas; ++p) {
        const auto n = std::to_string(p + 1) + "|";
        const int vaiven = (p + mes.mes) % 5;
        if (claseDe(p) == Clase::Jornalero) v.push_back(n + "10|" + std::to_string(18 + vaiven));
        if (claseDe(p) == Clase::PorHora) v.push_back(n + "15|" + std::to_string(150 + 4 * vaiven));
        // La licencia pasa de mes en mes a otras personas de la misma clase.
        const int turno = (p + 10 * mes.mes) % 50;
        if (turno == 11 || turno == 13) v.push_back(n + "30|10");
        if (claseDe(p) == Clase::Mensual && (p + mes.mes) % 40 == 21) v.push_back(n + "21|2");
    }
    return v;
}

// La carpeta del reloj, la que indica horas.txt bajo NOMIRA_RAIZ, con el
// archivo de cada mes de la historia y el del mes medido.
void escribirReloj(const fs::path& raiz) {
    const auto config = raiz / "Software" / "Nomira";
    fs::create_directories(config);
    fs::create_directories(raiz / "reloj");
    const std::string prefijo = (raiz / "reloj" / "horas").string();
    std::ofstream(config / "horas.txt") << prefijo << "\r\n";
    for (int i = kMesesDeHistoria; i >= 0; --i) {
        common::Mes mes = kMesMedido;
        for (int k = 0; k < i; ++k) mes = mes.anterior();
        std::ofstream f(engine::rutaArchivoHoras(prefijo, mes, "1"), std::ios::binary);
        for (const auto& l : lineasDelReloj(mes)) f << l << "\r\n";
    }
}

std::unique_ptr<store::Conexion> empresaReal(const fs::path& archivo) {
    auto base = banco::baseVacia(archivo);
    store::crearBase(*base);
    store::Transaccion t(*base);
    master::cargarDatosIniciales(*base, NOMIRA_DATOS, kMesMedido.primerDia());
    master::Empresa e;
    e.empresa = kEmpresa;
    e.nroemp = "1";
    e.depto = e.localidad = "Montevideo";
    e.fechainsc = e.fechainiact = "2005-01-01";
    e.tipoaport = "Industria y Comercio";
    e.centralplanilla = "Si";
    master::agregarEmpresa(*base, e);
    for (int p = 0; p < kPersonas; ++p) master::agregarPersona(*base, personaDe(p));
    t.confirmar();
    return base;
}

// Las sentencias que llegaron al servidor desde la última puesta a cero, sin
// las del propio conteo; vacío si el servidor no tiene pg_stat_statements. Los
// INSERT de varias filas se juntan en uno: cada cantidad de filas es otro texto.
struct Llamadas {
    std::int64_t veces = 0, filas = 0;
    double ms = 0;  // tiempo del servidor
};
using Sentencias = std::map<std::string, Llamadas>;
bool ponerEnCero(store::Conexion& base) {
    if (base.motor() != store::Motor::Postgres) return false;
    try {
        base.consulta("SELECT public.pg_stat_statements_reset() IS NULL AS r");
        return true;
    } catch (const std::exception&) {
        return false;
    }
}
Sentencias sentenciasDesdeCero(store::Conexion& base) {
    Sentencias s;
    const auto r = base.consulta(
        "SELECT query, calls, rows, total_exec_time FROM public.pg_stat_statements WHERE dbid = "
        "(SELECT oid FROM pg_database WHERE datname = current_database()) AND query NOT LIKE "
        "'%pg_stat_statements%'");
    for (const auto& f : r.filas) {
        auto q = f.texto("query");
        if (const auto v = q.find(" VALUES ("); v != std::string::npos)
            q = q.substr(0, q.find(')', v) + 1) + ", ...";
        s[q].veces += f.entero("calls");
        s[q].filas += f.entero("rows");
        s[q].ms += f.real("total_exec_time");
    }
    return s;
}
double porPersona(const Sentencias& s) {
    std::int64_t n = 0;
    for (const auto& [_, l] : s) n += l.veces;
    return static_cast<double>(n) / kPersonas;
}
void mostrar(const std::string& titulo, const Sentencias& s) {
    std::vector<std::pair<Llamadas, std::string>> v;
    for (const auto& [q, l] : s) v.emplace_back(l, q);
    std::sort(v.begin(), v.end(), [](auto& a, auto& b) { return a.first.veces > b.first.veces; });
    std::cerr << "\n"
              << titulo << ": " << porPersona(s) << " sentencias por persona\n"
              << "  veces\tfilas\tms servidor\tsentencia\n";
    for (const auto& [l, q] : v)
        std::cerr << "  " << l.veces << '\t' << l.filas << '\t' << static_cast<long>(l.ms) << "\t\t"
                  << q << '\n';
}

struct Corrida {
    engine::ResultadoEmpresa haberes, descuentos;
    double segHaberes = 0, segDescuentos = 0;
    double cpu = 0;  // segundos de CPU del proceso en las dos: el resto es esperar al disco
    Sentencias sentHaberes, sentDescuentos;  // vacías sin pg_stat_statements
};

// Un mes entero de la empresa, como lo corre el liquidador: haberes con el
// archivo de horas y después los descuentos.
Corrida liquidar(store::Conexion& base, const common::Mes& mes) {
    pruebas::DialogoGuion dialogo;
    Corrida c;
    const bool contar = ponerEnCero(base);
    const auto cpu = std::clock();
    auto a = std::chrono::steady_clock::now();
    c.haberes =
        engine::haberesDeLaEmpresa(base, kEmpresa, mes, dialogo, engine::conArchivoDeHoras());
    c.segHaberes = banco::segundosDesde(a);
    if (contar) {
        c.sentHaberes = sentenciasDesdeCero(base);
        ponerEnCero(base);
    }
    a = std::chrono::steady_clock::now();
    c.descuentos = engine::descuentosDeLaEmpresa(base, kEmpresa, mes, dialogo);
    c.segDescuentos = banco::segundosDesde(a);
    c.cpu = static_cast<double>(std::clock() - cpu) / CLOCKS_PER_SEC;
    if (contar) c.sentDescuentos = sentenciasDesdeCero(base);
    if (c.haberes.fallo || c.descuentos.fallo || c.haberes.personas.size() != kPersonas ||
        c.descuentos.personas.size() != kPersonas)
        throw std::runtime_error("corrida incompleta en " + mes.texto());
    return c;
}

std::int64_t filasDelMes(store::Conexion& base, const common::Mes& mes) {
    return base
        .consulta("SELECT COUNT(*) AS n FROM habydesc WHERE empresa = ? AND fecha = ?",
                  {kEmpresa, mes.primerDia().iso()})
        .primera()
        .entero("n");
}

// Deja el mes medido como antes de liquidarlo, para la vuelta siguiente.
void borrarMesMedido(store::Conexion& base) {
    const std::vector<store::Valor> clave = {kEmpresa, kMesMedido.primerDia().iso()};
    store::Transaccion t(base);
    for (const char* tabla : {"habydesc", "explicaciones", "salvacacional"})
        base.ejecuta(std::string("DELETE FROM ") + tabla + " WHERE empresa = ? AND fecha = ?",
                     clave);
    t.confirmar();
}

struct Empresas {
    fs::path dir;
    std::unique_ptr<store::Conexion> sinHistoria, conHistoria;
};

// Las dos bases se arman una sola vez para todas las vueltas: la historia son
// doce meses liquidados uno tras otro.
Empresas& empresas() {
    static Empresas e = [] {
        Empresas x;
        x.dir = fs::temp_directory_path() / "nomira-banco-empresa-real";
        fs::remove_all(x.dir);
        fs::create_directories(x.dir);
        setenv("NOMIRA_RAIZ", x.dir.c_str(), 1);
        escribirReloj(x.dir);
        x.sinHistoria = empresaReal(x.dir / "sin_historia.db");
        x.conHistoria = empresaReal(x.dir / "con_historia.db");
        common::Mes mes = kMesMedido;
        for (int i = 0; i < kMesesDeHistoria; ++i) mes = mes.anterior();
        for (; mes < kMesMedido; mes = mes.siguiente()) liquidar(*x.conHistoria, mes);
        return x;
    }();
    return e;
}

void BM_EmpresaReal(benchmark::State& state) {
    static int vuelta = 0;
    Empresas* armadas = nullptr;
    try {
        armadas = &empresas();
    } catch (const std::exception& ex) {
        state.SkipWithError(ex.what());
        return;
    }
    auto& e = *armadas;
    std::map<bool, Corrida> m;
    std::map<bool, std::int64_t> filas;
    for (auto _ : state) {
        // Se alterna cuál va primero: la máquina cambia de velocidad.
        for (bool con : {vuelta % 2 == 0, vuelta % 2 != 0}) {
            auto& base = con ? *e.conHistoria : *e.sinHistoria;
            state.PauseTiming();
            borrarMesMedido(base);
            state.ResumeTiming();
            try {
                m[con] = liquidar(base, kMesMedido);
            } catch (const std::exception& ex) {
                state.SkipWithError(ex.what());
                return;
            }
            filas[con] = filasDelMes(base, kMesMedido);
        }
        ++vuelta;
    }
    const auto& sin = m[false];
    const auto& con = m[true];
    state.counters["haberes_sin_s"] = sin.segHaberes;
    state.counters["descuentos_sin_s"] = sin.segDescuentos;
    state.counters["haberes_con_s"] = con.segHaberes;
    state.counters["descuentos_con_s"] = con.segDescuentos;
    state.counters["cpu_sin_s"] = sin.cpu;
    state.counters["cpu_con_s"] = con.cpu;
    state.counters["cociente_haberes"] = con.segHaberes / sin.segHaberes;
    state.counters["cociente_descuentos"] = con.segDescuentos / sin.segDescuentos;
    state.counters["cociente"] =
        (con.segHaberes + con.segDescuentos) / (sin.segHaberes + sin.segDescuentos);
    state.counters["filas_sin"] = static_cast<double>(filas[false]);
    state.counters["filas_con"] = static_cast<double>(filas[true]);
    if (!con.sentHaberes.empty()) {
        state.counters["sentencias_hab_por_persona"] = porPersona(con.sentHaberes);
        state.counters["sentencias_des_por_persona"] = porPersona(con.sentDescuentos);
        if (vuelta == banco::vueltas()) {
            mostrar("Haberes con historia", con.sentHaberes);
            mostrar("Descuentos con historia", con.sentDescuentos);
        }
    }
}
BENCHMARK(BM_EmpresaReal)
    ->Iterations(1)
    ->Repetitions(banco::vueltas())
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
