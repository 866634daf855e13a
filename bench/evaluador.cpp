// Costo de evaluar fórmulas ya sin corchetes: el texto cambia con cada persona,
// así que lo que cuenta es analizar y calcular de una vez.
#include <benchmark/benchmark.h>

#include "engine/formulas/evaluador.h"

namespace {

using nomira::engine::evaluarExpresion;
using nomira::engine::Expresion;

constexpr const char* porcentaje = "(1234.56*4.5)/100";
constexpr const char* larga = "Round((25000/30*12.5+1500)*15/100,2)";

void evaluarDeUnaVez(benchmark::State& estado, const char* texto) {
    for (auto _ : estado) benchmark::DoNotOptimize(evaluarExpresion(texto));
}

void analizarYEvaluar(benchmark::State& estado, const char* texto) {
    for (auto _ : estado) benchmark::DoNotOptimize(Expresion::analizar(texto).evaluar());
}

void evaluarAnalizada(benchmark::State& estado, const char* texto) {
    const Expresion e = Expresion::analizar(texto);
    for (auto _ : estado) benchmark::DoNotOptimize(e.evaluar());
}

BENCHMARK_CAPTURE(evaluarDeUnaVez, porcentaje, porcentaje);
BENCHMARK_CAPTURE(evaluarDeUnaVez, larga, larga);
BENCHMARK_CAPTURE(analizarYEvaluar, porcentaje, porcentaje);
BENCHMARK_CAPTURE(analizarYEvaluar, larga, larga);
BENCHMARK_CAPTURE(evaluarAnalizada, porcentaje, porcentaje);
BENCHMARK_CAPTURE(evaluarAnalizada, larga, larga);

}  // namespace

BENCHMARK_MAIN();
