// Los haberes permanentes de una empresa de 1000 personas con 15 conceptos
// cada una, sobre SQLite en una carpeta temporal; y, para comparar, el INSERT
// de las mismas filas en una sola transacción. "veces" es el cociente.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "common/dialogo.h"
#include "engine/haberes.h"
#include "store/conexion.h"
#include "store/crear.h"

namespace {

using namespace nomira;

class DialogoMudo : public common::Dialogo {
  public:
    bool confirmar(const std::string&, const std::string&, bool) override { return true; }
    std::optional<std::string> pedirTexto(const std::string&, const std::string&,
                                          const std::string& inicial) override {
        return inicial;
    }
    void avisar(common::TipoAviso, const std::string&, const std::string&) override {}
};

constexpr int kPersonas = 1000;
constexpr int kConceptos = 15;

// Con NOMIRA_BANCO_PG (una cadena de conexión) la empresa va a un esquema propio de ese
// servidor, que se borra y se vuelve a crear; si no, a un archivo SQLite temporal.
std::unique_ptr<store::Conexion> baseVacia(const std::filesystem::path& archivo) {
    const char* pg = std::getenv("NOMIRA_BANCO_PG");
    if (!pg || !*pg) {
        std::filesystem::remove(archivo);
        return store::abrir(archivo.string());
    }
    auto base = store::abrir(pg);
    const auto esquema = "banco_" + archivo.stem().string();
    base->ejecuta("DROP SCHEMA IF EXISTS " + esquema + " CASCADE");
    base->ejecuta("CREATE SCHEMA " + esquema);
    base->ejecuta("SET search_path TO " + esquema);
    return base;
}

std::unique_ptr<store::Conexion> empresaGenerada(const std::filesystem::path& archivo) {
    auto base = baseVacia(archivo);
    store::crearBase(*base);
    store::Transaccion t(*base);
    base->ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('ACME', 1)");
    base->ejecuta(
        "INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES "
        "('BPC', '2026-01-01', 6864)");
    for (int i = 0; i < kConceptos; ++i)
        base->ejecuta(
            "INSERT INTO conceptos (codigo, concepto, especificode, formula, tipo, unidad, "
            "permanente, gravado, aguinaldo, lic, ipd) VALUES (?, ?, 'G', ?, 'Hab', 'I', 'Si', "
            "'Si', 'Si', 'No', 'Si')",
            {std::int64_t{100 + i}, "PRIMA " + std::to_string(i),
             "[SUELDO]*" + std::to_string(i + 1) + "/100+[BPC]/30"});
    for (int p = 0; p < kPersonas; ++p)
        base->ejecuta(
            "INSERT INTO personal (empresa, nombre, sueldo, tiposueldo, fechaing) VALUES "
            "('ACME', ?, ?, 'S', '2020-01-01')",
            {"PERSONA " + std::to_string(p), std::to_string(20000 + p)});
    t.confirmar();
    return base;
}

void BM_HaberesDeLaEmpresa(benchmark::State& state) {
    const auto dir = std::filesystem::temp_directory_path() / "nomira-banco-liquidacion";
    std::filesystem::create_directories(dir);
    DialogoMudo dialogo;
    double segHaberes = 0, segInsert = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto base = empresaGenerada(dir / "haberes.db");
        state.ResumeTiming();
        const auto a = std::chrono::steady_clock::now();
        const auto r = engine::ActHamPermxEmpresa(*base, "ACME", {2026, 2}, dialogo);
        segHaberes = std::chrono::duration<double>(std::chrono::steady_clock::now() - a).count();
        if (r.fallo || r.personas.size() != kPersonas) state.SkipWithError("corrida incompleta");

        // Las mismas filas, insertadas de una vez en otra base.
        state.PauseTiming();
        auto otra = empresaGenerada(dir / "insert.db");
        const auto b = std::chrono::steady_clock::now();
        {
            store::Transaccion t(*otra);
            for (const auto& p : r.personas)
                for (const auto& f : p.filas)
                    otra->ejecuta(
                        "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, "
                        "unidad, permanente, gravado, aguinaldo, cant, total, lic, ipd) VALUES "
                        "('ACME', ?, '2026-02-01', ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                        {p.nombre, std::int64_t{f.fila.codigo}, f.fila.concepto, f.fila.tipo,
                         f.fila.unidad, f.fila.permanente, f.fila.gravado, f.fila.aguinaldo,
                         f.fila.cant, f.fila.total.aDouble(), f.fila.lic, f.fila.ipd});
            t.confirmar();
        }
        segInsert = std::chrono::duration<double>(std::chrono::steady_clock::now() - b).count();
        state.ResumeTiming();
    }
    state.counters["haberes_s"] = segHaberes;
    state.counters["inserts_s"] = segInsert;
    state.counters["veces"] = segInsert > 0 ? segHaberes / segInsert : 0;
    std::filesystem::remove_all(dir);
}
BENCHMARK(BM_HaberesDeLaEmpresa)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
