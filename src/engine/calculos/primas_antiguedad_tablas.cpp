#include "engine/calculos/primas_antiguedad_tablas.h"

#include <array>
#include <cmath>

#include "common/fallo.h"

namespace nomira::engine {
inline namespace calculos {

namespace {

constexpr double X = kSinTope;
using T = TramoAntiguedad;

// Un año más cada año, desde 3 (3%) hasta 9-10 (9%); desde 10, 10%.
constexpr T kTresADiez[] = {{3, 10, 3, 1}, {10, X, 10, 0}};
// 2 x Int(anios) sin mínimo.
constexpr T kDosPorAnio[] = {{0, X, 0, 2}};

constexpr T k1[] = {{5, 20, 5, 1}, {20, X, 20, 0}};
constexpr T k2[] = {{3, 19, 2, 2}, {19, 20, 34, 0}, {20, X, 36, 0}};
constexpr T k3[] = {{3, 5, 1, 0}, {5, 7, 2, 0}, {7, 8, 2, 0}, {8, X, 4, 0}};
constexpr T k5[] = {{5, 14, 1, 1}, {14, X, 10, 0}};
constexpr T k7[] = {{1, 2, 1, 0},     {2, 3, 2, 0},    {3, 4, 3, 0}, {4, 5, 4, 0},
                    {5, 6, 5, 0},     {6, 7, 6.5, 0},  {7, 8, 8, 0}, {8, 9, 9.5, 0},
                    {9, 10, 12.5, 0}, {10, X, 12.5, 0}};
constexpr T k10[] = {{3, 4, 3.75, 0}, {4, 5, 5, 0},  {5, 6, 6.25, 0},   {6, 7, 7.5, 0},
                     {7, 8, 8.75, 0}, {8, 9, 10, 0}, {9, 10, 11.25, 0}, {10, X, 12.5, 0}};
constexpr T k11[] = {{1, 2, 1.25, 0},    {2, 3, 2.5, 0},     {3, 4, 3.75, 0},    {4, 5, 5, 0},
                     {5, 6, 7.25, 0},    {6, 7, 9.5, 0},     {7, 8, 11.75, 0},   {8, 9, 14, 0},
                     {9, 10, 16.25, 0},  {10, 11, 18.75, 0}, {11, 12, 21.25, 0}, {12, 13, 23.75, 0},
                     {13, 14, 26.25, 0}, {14, X, 28.75, 0}};
constexpr T k14[] = {{2, 15, 2, 1}, {15, X, 15, 0}};
constexpr T k15[] = {{1, 15, 1, 1}, {15, X, 15, 0}};
constexpr T k16[] = {{0, X, 0, 0.17}};
constexpr T k17[] = {{5, 8, 2, 0},       {8, 12, 4.04, 0},   {12, 16, 6.12, 0}, {16, 20, 8.24, 0},
                     {20, 24, 10.41, 0}, {24, 28, 12.62, 0}, {28, X, 14.87, 0}};
constexpr T k18[] = {
    {1, 5, 1, 1}, {5, 10, 10, 1}, {10, 24, 20, 1}, {24, 25, 34, 0}, {25, X, 40, 0}};
constexpr T k20[] = {{1, 19, 2, 2}, {19, 20, 38, 0}, {20, X, 40, 0}};
constexpr T k21[] = {{2, 8, 3, 0}, {8, 12, 4, 0}, {12, 18, 5, 0}, {18, X, 6, 0}};
constexpr T k22[] = {{1, 29, 1, 1}, {29, X, 30, 0}};
constexpr T k23[] = {{1, 9, 2, 1}, {9, X, 10, 0}};
constexpr T k24[] = {{1, 12, 1, 1}, {12, X, 12, 0}};
constexpr T k25[] = {{1, 40, 1, 1}, {40, X, 40, 0}};
constexpr T k26[] = {{1, 10, 0.5, 0.5}, {10, X, 5, 0}};
constexpr T k28[] = {{2, 11, 0.5, 0.5}, {11, X, 5, 0}};

constexpr int kDesdeJulio2018[] = {1, 7, 18};

using B = BaseAntiguedad;
const std::array<MiembroAntiguedad, 28> kMiembros = {{
    {1, B::Sueldo, nullptr, nullptr, k1},
    {2, B::SueldoMinimo, "Fábrica de dulce", "Categoría IV", k2},
    {3, B::Sueldo, nullptr, nullptr, k3},
    {4, B::BPC, nullptr, nullptr, kDosPorAnio},
    {5, B::Sueldo, nullptr, nullptr, k5},
    {6, B::SueldoMinimo, nullptr, "Cadete", kTresADiez},
    {7, B::SueldoMinimo, nullptr, nullptr, k7},
    {8, B::Sueldo, nullptr, nullptr, kTresADiez},
    {9, B::SALMIN, nullptr, nullptr, kTresADiez},
    {10, B::SueldoMinimo, nullptr, "Cadete", k10},
    {11, B::Sueldo, nullptr, nullptr, k11},
    {12, B::Sueldo, nullptr, nullptr, kTresADiez},
    {13, B::Sueldo, nullptr, nullptr, kTresADiez},
    {14, B::Sueldo, nullptr, nullptr, k14},
    {15, B::Sueldo, nullptr, nullptr, k15},
    {16, B::Sueldo, nullptr, nullptr, k16, true},
    {17, B::Sueldo, nullptr, nullptr, k17},
    {18, B::Sueldo, nullptr, nullptr, k18},
    {19, B::Sueldo, nullptr, nullptr, kDosPorAnio},
    {20, B::SALMIN, nullptr, nullptr, k20},
    {21, B::Sueldo, nullptr, nullptr, k21},
    {22, B::Sueldo, nullptr, nullptr, k22},
    {23, B::Sueldo, nullptr, nullptr, k23},
    {24, B::Sueldo, nullptr, nullptr, k24},
    {25, B::SALMIN, nullptr, nullptr, k25},
    {26, B::SueldoMinimo, nullptr, nullptr, k26, false, kDesdeJulio2018},
    {27, B::SueldoMinimo, nullptr, "Auxiliar 3", kTresADiez},
    {28, B::Sueldo, nullptr, nullptr, k28},
}};

// Grupo, subgrupo (-1: cualquiera de los no nombrados antes) y miembro, en el
// orden en que se prueban.
struct Convenio {
    int grupo, subgrupo, miembro;
};
constexpr int kCualquiera = -1;
constexpr Convenio kConvenios[] = {
    {1, 7, 2},
    {1, 12, 3},
    {1, kCualquiera, 1},
    {2, 1, 4},
    {5, 2, 5},
    {10, 1, 6},
    {10, 4, 7},
    {10, 5, 8},
    {10, 12, 9},
    {10, 17, 10},
    {11, kCualquiera, 11},
    {12, 3, 13},
    {12, 6, 14},
    {12, kCualquiera, 12},
    {13, 7, 15},
    {13, 10, 16},
    {13, 71, 17},
    {15, kCualquiera, 18},
    {16, 1, 19},
    {16, 2, 19},
    {16, 4, 20},
    {18, 4, 21},
    {19, 3, 22},
    {19, 7, 23},
    {19, 8, 24},
    {19, 15, 25},
    {19, 17, 26},
    {20, kCualquiera, 27},
    {21, kCualquiera, 28},
};

}  // namespace

const MiembroAntiguedad& miembroAntiguedad(int numero) {
    if (numero < 1 || numero > static_cast<int>(kMiembros.size()))
        throw common::Fallo(9, "Subíndice fuera del intervalo");
    return kMiembros[static_cast<std::size_t>(numero - 1)];
}

std::optional<int> miembroPorConsejo(int grupo, int subgrupo) {
    // Los subgrupos nombrados de un grupo van antes que su "cualquiera": el
    // primero que coincide es el único.
    for (const auto& c : kConvenios)
        if (c.grupo == grupo && (c.subgrupo == kCualquiera || c.subgrupo == subgrupo))
            return c.miembro;
    return std::nullopt;
}

double porcentajeAntiguedad(const MiembroAntiguedad& m, double anios) {
    for (const auto& t : m.tramos)
        if (t.desde <= anios && anios < t.hasta)
            return t.pct + t.paso * (std::floor(anios) - t.desde);
    return 0;
}

}  // namespace calculos
}  // namespace nomira::engine
