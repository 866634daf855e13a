#include <cmath>
#include <iomanip>
#include <limits>

#include <gtest/gtest.h>

#include <random>

#include "common/decimal.h"
#include "common/dinero.h"
#include "common/fallo.h"

namespace nomira::common {
namespace {

std::int64_t dz(double x) {
    return Dinero::desdeDouble(x).diezmilesimos();
}

int numeroDeFallo(auto&& accion) {
    try {
        accion();
    } catch (const Fallo& f) {
        return f.numero();
    }
    return 0;
}

// El redondeo hecho todo sobre la forma decimal de 15 cifras, sin atajos.
std::int64_t dzDecimal(double x) {
    const Decimal d = descomponerPorTexto(x);
    const auto v = std::stoll(escalarRedondeando(d, 4, Redondeo::MitadAlPar));
    return d.negativo ? -v : v;
}

TEST(Dinero, LosAtajosBinariosCoincidenConLaFormaDecimal) {
    std::mt19937_64 azar(20261122);
    std::uniform_int_distribution<std::int64_t> cifras(-99999999999999, 99999999999999);
    std::uniform_int_distribution<int> escala(0, 12);
    for (int i = 0; i < 200000; ++i) {
        // Números de hasta 14 cifras con 0 a 12 decimales, cerca y lejos de la
        // mitad del cuarto decimal, y cada uno corrido medio diezmilésimo.
        const double x = static_cast<double>(cifras(azar)) / std::pow(10.0, escala(azar));
        for (const double v : {x, x + 0.00005, x - 0.00005, x / 3, x * 1e-6}) {
            if (std::fabs(v) >= 9e14) continue;
            ASSERT_EQ(dz(v), dzDecimal(v)) << std::setprecision(17) << v;
            const auto rapida = descomponer(v), lenta = descomponerPorTexto(v);
            ASSERT_EQ(rapida.cifras, lenta.cifras) << std::setprecision(17) << v;
            ASSERT_EQ(rapida.enteras, lenta.enteras) << std::setprecision(17) << v;
            ASSERT_EQ(rapida.negativo, lenta.negativo) << std::setprecision(17) << v;
        }
    }
}

TEST(Dinero, RedondeaAlParEnElCuartoDecimalSobreLaFormaDecimal) {
    // 1.00005 y 1.00015 no son exactos en binario (uno queda por encima y otro
    // por debajo de la mitad): se redondea lo que el número muestra.
    EXPECT_EQ(dz(1.00005), 10000);
    EXPECT_EQ(dz(1.00015), 10002);
    EXPECT_EQ(dz(1.00025), 10002);
    EXPECT_EQ(dz(1.00035), 10004);
    EXPECT_EQ(dz(-1.00005), -10000);
    EXPECT_EQ(dz(-1.00015), -10002);
    EXPECT_EQ(dz(0.00005), 0);
    EXPECT_EQ(dz(0.00015), 2);
    // Pasada la mitad, aunque sea por poco, sube.
    EXPECT_EQ(dz(2.00005000001), 20001);
    EXPECT_EQ(dz(1.00004999), 10000);
    EXPECT_EQ(dz(12345.6789), 123456789);
    EXPECT_EQ(dz(0.1 + 0.2), 3000);
    EXPECT_EQ(dz(0), 0);
    EXPECT_EQ(dz(922337203685477.0), 9223372036854770000);
}

TEST(Dinero, FueraDeRangoDesborda) {
    EXPECT_EQ(numeroDeFallo([] { dz(1e15); }), 6);
    EXPECT_EQ(numeroDeFallo([] { dz(-1e15); }), 6);
    EXPECT_EQ(numeroDeFallo([] { dz(std::nan("")); }), 6);
    const Dinero maximo = Dinero::desdeDiezmilesimos(std::numeric_limits<std::int64_t>::max());
    const Dinero uno = Dinero::desdeDiezmilesimos(1);
    EXPECT_EQ(numeroDeFallo([&] { (void)(maximo + uno); }), 6);
    EXPECT_EQ(numeroDeFallo([&] { (void)(-maximo - uno - uno); }), 6);
    try {
        dz(1e300);
        FAIL();
    } catch (const Fallo& f) {
        EXPECT_EQ(f.descripcion(), "Desbordamiento");
    }
}

TEST(Dinero, SumasExactasYComparaciones) {
    Dinero suma;
    for (int i = 0; i < 10; ++i) suma += Dinero::desdeDouble(0.1);
    EXPECT_EQ(suma, Dinero::desdeDouble(1));
    suma -= Dinero::desdeDouble(0.3);
    EXPECT_EQ(suma.diezmilesimos(), 7000);
    EXPECT_EQ((-suma).diezmilesimos(), -7000);
    EXPECT_EQ((suma - Dinero::desdeDouble(1)).aDouble(), -0.3);
    EXPECT_LT(Dinero::desdeDouble(-1), Dinero::desdeDouble(0.0001));
    EXPECT_GT(Dinero::desdeDouble(2), Dinero::desdeDouble(1.9999));
    EXPECT_EQ(Dinero::desdeDiezmilesimos(12345).aDouble(), 1.2345);
}

TEST(Dinero, ProductoVuelveRedondeadoAlPar) {
    const Dinero cien = Dinero::desdeDouble(100);
    EXPECT_EQ((cien * 0.15).diezmilesimos(), 150000);
    EXPECT_EQ((Dinero::desdeDouble(10) * (1.0 / 3)).diezmilesimos(), 33333);
    EXPECT_EQ((Dinero::desdeDiezmilesimos(3) * 0.5).diezmilesimos(), 2);
    EXPECT_EQ((Dinero::desdeDiezmilesimos(5) * 0.5).diezmilesimos(), 2);
    EXPECT_EQ((0.5 * Dinero::desdeDiezmilesimos(-3)).diezmilesimos(), -2);
}

TEST(Dinero, TextoSinCerosDeMas) {
    EXPECT_EQ(Dinero::desdeDouble(1234.5).texto(), "1234.5");
    EXPECT_EQ(Dinero::desdeDouble(-0.25).texto(), "-0.25");
    EXPECT_EQ(Dinero().texto(), "0");
    EXPECT_EQ(Dinero::desdeDouble(5).texto(), "5");
    EXPECT_EQ(Dinero::desdeDiezmilesimos(1).texto(), "0.0001");
    EXPECT_EQ(Dinero::desdeDiezmilesimos(-10).texto(), "-0.001");
    // Más de 15 cifras: el texto sale del entero, sin perder ninguna.
    EXPECT_EQ(Dinero::desdeDiezmilesimos(1234567890123456).texto(), "123456789012.3456");
    EXPECT_EQ(Dinero::desdeDiezmilesimos(std::numeric_limits<std::int64_t>::min()).texto(),
              "-922337203685477.5808");
}

TEST(EnteroAgencia, MitadAlParYDesborde) {
    EXPECT_EQ(enteroAgencia(2.5), 2);
    EXPECT_EQ(enteroAgencia(3.5), 4);
    EXPECT_EQ(enteroAgencia(-2.5), -2);
    EXPECT_EQ(enteroAgencia(-3.5), -4);
    EXPECT_EQ(enteroAgencia(0.5), 0);
    EXPECT_EQ(enteroAgencia(1.5), 2);
    EXPECT_EQ(enteroAgencia(2.4999), 2);
    EXPECT_EQ(enteroAgencia(2.5001), 3);
    EXPECT_EQ(enteroAgencia(12345.67), 12346);
    EXPECT_EQ(enteroAgencia(2147483647.4), 2147483647);
    EXPECT_EQ(enteroAgencia(-2147483648.5), -2147483648);
    EXPECT_EQ(numeroDeFallo([] { enteroAgencia(2147483647.5); }), 6);
    EXPECT_EQ(numeroDeFallo([] { enteroAgencia(-2147483649.0); }), 6);
    EXPECT_EQ(numeroDeFallo([] { enteroAgencia(std::nan("")); }), 6);
}

TEST(RedondearPar, MitadAlParEnCualquierDecimal) {
    EXPECT_EQ(redondearPar(2.5, 0), 2);
    EXPECT_EQ(redondearPar(3.5, 0), 4);
    EXPECT_EQ(redondearPar(-2.5, 0), -2);
    EXPECT_EQ(redondearPar(0.125, 2), 0.12);
    EXPECT_EQ(redondearPar(0.135, 2), 0.14);
    // En binario 1.015 queda por debajo de la mitad; en su forma decimal es la mitad.
    EXPECT_EQ(redondearPar(1.015, 2), 1.02);
    EXPECT_EQ(redondearPar(1.005, 2), 1.0);
    EXPECT_EQ(redondearPar(1234.5678, 2), 1234.57);
    EXPECT_EQ(redondearPar(-0.004, 2), 0.0);
    EXPECT_FALSE(std::signbit(redondearPar(-0.004, 2)));
    EXPECT_EQ(redondearPar(99.95, 1), 100.0);
    EXPECT_EQ(redondearPar(7, 3), 7.0);
    EXPECT_EQ(numeroDeFallo([] { redondearPar(1.5, -1); }), 5);
}

}  // namespace
}  // namespace nomira::common
