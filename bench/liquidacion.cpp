// Los haberes y los descuentos de una empresa de 1000 personas con 15 haberes
// permanentes (SUELDO, ANTIGUEDAD y 13 primas) y los descuentos de siempre
// (MONTEPIO, SNIS, FRL, IRPF), sobre SQLite en una carpeta temporal; y, para
// comparar, el INSERT de las mismas filas en una sola transacción ("veces" es
// el cociente) y en una transacción por persona y corrida, como confirma la
// liquidación.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "apoyo/dialogo_guion.h"
#include "comun.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/haberes.h"
#include "store/conexion.h"

namespace {

using namespace nomira;
using banco::segundosDesde;
using banco::vueltas;

constexpr int kPersonas = 1000;
constexpr int kPrimas = 13;

// Una base con los datos con que nace (conceptos estándar, BPC, franjas) y la
// empresa generada.
std::unique_ptr<store::Conexion> empresaGenerada(const std::filesystem::path& archivo) {
    auto base = banco::baseConAcme(archivo, {2026, 3, 1});
    store::Transaccion t(*base);
    for (int i = 0; i < kPrimas; ++i)
        base->ejecuta(
            "INSERT INTO conceptos (codigo, concepto, especificode, formula, tipo, unidad, "
            "permanente, gravado, aguinaldo, lic, ipd) VALUES (?, ?, 'G', ?, 'Hab', 'I', 'Si', "
            "'Si', 'Si', 'No', 'Si')",
            {std::int64_t{100 + i}, "PRIMA " + std::to_string(i),
             "[SUELDO]*" + std::to_string(i + 1) + "/100+[BPC]/30"});
    // Sueldos de 20.000 a 119.900: de exentos de IRPF a varias franjas.
    for (int p = 0; p < kPersonas; ++p)
        base->ejecuta(
            "INSERT INTO personal (empresa, nombre, sueldo, tiposueldo, fechaing) VALUES "
            "('ACME', ?, ?, 'S', '2020-01-01')",
            {"PERSONA " + std::to_string(p), std::to_string(20000 + p * 100)});
    t.confirmar();
    return base;
}

// Inserta las filas de las corridas: en una sola transacción o en una por
// persona y corrida. Devuelve los segundos.
double insertarFilas(store::Conexion& base,
                     std::initializer_list<const engine::ResultadoEmpresa*> corridas,
                     bool porPersona) {
    const auto a = std::chrono::steady_clock::now();
    std::optional<store::Transaccion> todo;
    if (!porPersona) todo.emplace(base);
    for (const auto* corrida : corridas)
        for (const auto& p : corrida->personas) {
            std::optional<store::Transaccion> persona;
            if (porPersona) persona.emplace(base);
            for (const auto& f : p.filas)
                base.ejecuta(
                    "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, unidad, "
                    "permanente, gravado, aguinaldo, cant, total, lic, ipd) VALUES ('ACME', ?, "
                    "'2026-02-01', ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                    {p.nombre, std::int64_t{f.fila.codigo}, f.fila.concepto, f.fila.tipo,
                     f.fila.unidad, f.fila.permanente, f.fila.gravado, f.fila.aguinaldo,
                     f.fila.cant, f.fila.total.aDouble(), f.fila.lic, f.fila.ipd});
            if (persona) persona->confirmar();
        }
    if (todo) todo->confirmar();
    return segundosDesde(a);
}

void BM_LiquidacionDeLaEmpresa(benchmark::State& state) {
    const auto dir = std::filesystem::temp_directory_path() / "nomira-banco-liquidacion";
    std::filesystem::create_directories(dir);
    pruebas::DialogoGuion dialogo;
    const common::Mes mes{2026, 2};
    double segHaberes = 0, segDescuentos = 0, segInsert = 0, segPorPersona = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto base = empresaGenerada(dir / "liquidacion.db");
        state.ResumeTiming();
        auto a = std::chrono::steady_clock::now();
        const auto hab = engine::haberesDeLaEmpresa(*base, "ACME", mes, dialogo);
        segHaberes = segundosDesde(a);
        a = std::chrono::steady_clock::now();
        const auto des = engine::descuentosDeLaEmpresa(*base, "ACME", mes, dialogo);
        segDescuentos = segundosDesde(a);
        if (hab.fallo || des.fallo || hab.personas.size() != kPersonas ||
            des.personas.size() != kPersonas)
            state.SkipWithError("corrida incompleta");

        // Las mismas filas en otra base: de una vez, y con una transacción por
        // persona y corrida como confirma la liquidación.
        state.PauseTiming();
        segInsert = insertarFilas(*empresaGenerada(dir / "insert.db"), {&hab, &des}, false);
        segPorPersona = insertarFilas(*empresaGenerada(dir / "insert2.db"), {&hab, &des}, true);
        state.counters["filas"] = static_cast<double>(
            base->consulta("SELECT COUNT(*) AS n FROM habydesc").primera().entero("n"));
        state.ResumeTiming();
    }
    state.counters["haberes_s"] = segHaberes;
    state.counters["descuentos_s"] = segDescuentos;
    state.counters["inserts_s"] = segInsert;
    state.counters["inserts_por_persona_s"] = segPorPersona;
    state.counters["veces"] = segInsert > 0 ? (segHaberes + segDescuentos) / segInsert : 0;
    std::filesystem::remove_all(dir);
}
BENCHMARK(BM_LiquidacionDeLaEmpresa)
    ->Iterations(1)
    ->Repetitions(vueltas())
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
