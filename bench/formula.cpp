// Una fórmula evaluada muchas veces en una corrida: después de la primera, las
// variables fechadas y la fila de la persona salen de lo ya leído y la base no
// se consulta. "consultas/eval" lo cuenta; con corrida nueva por evaluación se
// ve lo que cuesta sin eso.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <random>

#include "apoyo/dialogo_guion.h"
#include "engine/formulas/formula.h"
#include "master/variables.h"
#include "store/conexion.h"
#include "store/crear.h"

namespace {

using namespace nomira;

// Cuenta las consultas que pasan hacia la base.
class ConexionContada : public store::Conexion {
  public:
    explicit ConexionContada(std::unique_ptr<store::Conexion> c) : c_(std::move(c)) {}
    store::Motor motor() const override { return c_->motor(); }
    const std::string& destino() const override { return c_->destino(); }
    store::Resultado consulta(std::string_view sql, const std::vector<store::Valor>& p) override {
        ++consultas;
        return c_->consulta(sql, p);
    }
    std::int64_t ejecuta(std::string_view sql, const std::vector<store::Valor>& p) override {
        return c_->ejecuta(sql, p);
    }
    void comenzar() override { c_->comenzar(); }
    void confirmar() override { c_->confirmar(); }
    void deshacer() override { c_->deshacer(); }

    std::int64_t consultas = 0;

  private:
    std::unique_ptr<store::Conexion> c_;
};

// Una base SQLite en una carpeta temporal, con BPC, SALMIN y UR en dos fechas
// cada una y una persona con cónyuge y un hijo.
struct BaseDePrueba {
    std::filesystem::path carpeta;
    std::unique_ptr<ConexionContada> base;

    BaseDePrueba() {
        carpeta = std::filesystem::temp_directory_path() /
                  ("nomira-banco-" + std::to_string(std::random_device{}()));
        std::filesystem::create_directories(carpeta);
        base = std::make_unique<ConexionContada>(store::abrir((carpeta / "b.db").string()));
        store::Conexion& c = *base;
        store::crearBase(c);
        c.ejecuta(
            "INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES "
            "('BPC', '2025-01-01', 6576), ('BPC', '2026-01-01', 6864), "
            "('SALMIN', '2025-01-01', 23604), ('SALMIN', '2026-01-01', 24572), "
            "('UR', '2025-01-01', 1780.5), ('UR', '2026-01-01', 1850.25)");
        c.ejecuta(
            "INSERT INTO personal (empresa, nombre, sueldo, sexocon, causaben, fechanacben) "
            "VALUES ('ACME', 'PEREZ, JUAN', '45000', 'MSi', '01-Hijo', '2015-06-01')");
    }
    ~BaseDePrueba() {
        base.reset();
        std::error_code ec;
        std::filesystem::remove_all(carpeta, ec);
    }
};

engine::ContextoFormula contexto(master::LectorVariables& variables, const char* formula) {
    engine::ContextoFormula c;
    c.variables = &variables;
    c.empresa = "ACME";
    c.nombre = "PEREZ, JUAN";
    c.periodo = common::Mes{2026, 2};
    c.montograv = common::Dinero::desdeDouble(45000);
    c.formula = formula;
    return c;
}

// Un lector para toda la corrida: la primera evaluación lee, las demás no.
void enUnaCorrida(benchmark::State& estado, const char* formula) {
    BaseDePrueba b;
    pruebas::DialogoGuion dialogo;
    master::LectorVariables variables(*b.base);
    auto c = contexto(variables, formula);
    b.base->consultas = 0;
    engine::CalculoFormula(c, dialogo);
    const auto primera = b.base->consultas;
    b.base->consultas = 0;
    for (auto _ : estado) {
        engine::CalculoFormula(c, dialogo);
        benchmark::DoNotOptimize(c.total);
    }
    estado.counters["consultas 1ra"] = static_cast<double>(primera);
    estado.counters["consultas/eval"] =
        static_cast<double>(b.base->consultas) / static_cast<double>(estado.iterations());
    if (b.base->consultas != 0) estado.SkipWithError("la corrida volvió a consultar la base");
}

// Un lector y un contexto nuevos por evaluación: lo que cuesta leer cada vez.
void corridaNuevaCadaVez(benchmark::State& estado, const char* formula) {
    BaseDePrueba b;
    pruebas::DialogoGuion dialogo;
    b.base->consultas = 0;
    for (auto _ : estado) {
        master::LectorVariables variables(*b.base);
        auto c = contexto(variables, formula);
        engine::CalculoFormula(c, dialogo);
        benchmark::DoNotOptimize(c.total);
    }
    estado.counters["consultas/eval"] =
        static_cast<double>(b.base->consultas) / static_cast<double>(estado.iterations());
}

constexpr const char* snis = "([MONTOGRAV]*[PSNIS])/100";
constexpr const char* variablesFechadas = "[SALMIN]*[BPC]/[UR]";

BENCHMARK_CAPTURE(enUnaCorrida, snis, snis);
BENCHMARK_CAPTURE(enUnaCorrida, variables, variablesFechadas);
BENCHMARK_CAPTURE(corridaNuevaCadaVez, snis, snis);
BENCHMARK_CAPTURE(corridaNuevaCadaVez, variables, variablesFechadas);

}  // namespace

BENCHMARK_MAIN();
