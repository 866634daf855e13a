// El aguinaldo de junio de una empresa de 1000 personas con seis meses de
// historia cada una (SUELDO y dos primas por mes: 18.000 filas de habydesc),
// haberes y descuentos, sobre SQLite en una carpeta temporal (o PostgreSQL con
// NOMIRA_BANCO_PG); y, para comparar, el INSERT de las mismas filas de
// aguinaldos en una sola transacción ("veces" es el cociente).
#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <string>

#include "apoyo/dialogo_guion.h"
#include "comun.h"
#include "engine/aguinaldo/aguinaldo.h"
#include "store/conexion.h"

namespace {

using namespace nomira;
using banco::segundosDesde;
using banco::vueltas;

constexpr int kPersonas = 1000;

std::unique_ptr<store::Conexion> empresaConHistoria(const std::filesystem::path& archivo) {
    auto base = banco::baseConAcme(archivo, {2026, 6, 15});
    store::Transaccion t(*base);
    for (int p = 0; p < kPersonas; ++p) {
        const std::string nombre = "PERSONA " + std::to_string(p);
        const double sueldo = 20000 + p * 100;
        base->ejecuta(
            "INSERT INTO personal (empresa, nombre, sueldo, tiposueldo, fechaing) VALUES "
            "('ACME', ?, ?, 'S', '2020-01-01')",
            {nombre, std::to_string(sueldo)});
        // De diciembre a mayo.
        for (common::Mes m{2025, 12}; m <= common::Mes{2026, 5}; m = m.siguiente()) {
            const auto fecha = m.primerDia().iso();
            base->ejecuta(
                "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, gravado, "
                "aguinaldo, cant, total, ipd) VALUES ('ACME', ?, ?, 1, 'SUELDO', 'Hab', 'Si', "
                "'Si', 1, ?, 'Si'), ('ACME', ?, ?, 100, 'PRIMA 1', 'Hab', 'Si', 'Si', 1, ?, "
                "'Si'), ('ACME', ?, ?, 101, 'PRIMA 2', 'Hab', 'Si', 'No', 1, ?, 'Si')",
                {nombre, fecha, sueldo, nombre, fecha, sueldo / 20, nombre, fecha, sueldo / 20});
        }
    }
    t.confirmar();
    return base;
}

double insertarFilas(store::Conexion& base, const engine::ResultadoEmpresa& corrida) {
    const auto a = std::chrono::steady_clock::now();
    store::Transaccion t(base);
    for (const auto& p : corrida.personas)
        for (const auto& f : p.filas)
            base.ejecuta(
                "INSERT INTO aguinaldos (empresa, nombre, fecha, mes, concepto, total, tipo, "
                "aclab) VALUES ('ACME', ?, '2026-06-01', ?, ?, ?, ?, ?)",
                {p.nombre, f.fila.mes, f.fila.concepto, f.fila.total.aDouble(), f.fila.tipo,
                 store::textoONulo(f.fila.aclab)});
    t.confirmar();
    return segundosDesde(a);
}

void BM_AguinaldoDeLaEmpresa(benchmark::State& state) {
    const auto dir = std::filesystem::temp_directory_path() / "nomira-banco-aguinaldo";
    std::filesystem::create_directories(dir);
    pruebas::DialogoGuion dialogo;
    double segAguinaldo = 0, segInsert = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto base = empresaConHistoria(dir / "aguinaldo.db");
        state.ResumeTiming();
        const auto a = std::chrono::steady_clock::now();
        const auto r = engine::aguinaldoDeLaEmpresa(*base, "ACME", {2026, 6}, 1, dialogo);
        segAguinaldo = segundosDesde(a);
        if (r.fallo || r.personas.size() != kPersonas) state.SkipWithError("corrida incompleta");
        state.PauseTiming();
        segInsert = insertarFilas(*empresaConHistoria(dir / "insert.db"), r);
        state.counters["filas"] = static_cast<double>(
            base->consulta("SELECT COUNT(*) AS n FROM aguinaldos").primera().entero("n"));
        state.ResumeTiming();
    }
    state.counters["aguinaldo_s"] = segAguinaldo;
    state.counters["inserts_s"] = segInsert;
    state.counters["ms_por_persona"] = segAguinaldo * 1000 / kPersonas;
    state.counters["veces"] = segInsert > 0 ? segAguinaldo / segInsert : 0;
    std::filesystem::remove_all(dir);
}
BENCHMARK(BM_AguinaldoDeLaEmpresa)
    ->Iterations(1)
    ->Repetitions(vueltas())
    ->ReportAggregatesOnly(true)
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
