#include <gtest/gtest.h>

#include "common/fallo.h"
#include "common/formato.h"
#include "common/numeros.h"

namespace nomira::common {
namespace {

TEST(NumeroATexto, ComoLoEscribenLasFormulas) {
    EXPECT_EQ(numeroATexto(0), "0");
    EXPECT_EQ(numeroATexto(-0.0), "0");
    EXPECT_EQ(numeroATexto(0.5), "0.5");
    EXPECT_EQ(numeroATexto(-0.5), "-0.5");
    EXPECT_EQ(numeroATexto(100), "100");
    EXPECT_EQ(numeroATexto(1234.5), "1234.5");
    EXPECT_EQ(numeroATexto(15000.5), "15000.5");
    EXPECT_EQ(numeroATexto(0.1 + 0.2), "0.3");
    EXPECT_EQ(numeroATexto(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(numeroATexto(-1.0 / 3), "-0.333333333333333");
    EXPECT_EQ(numeroATexto(123456789012345), "123456789012345");
    EXPECT_EQ(numeroATexto(-70000), "-70000");
    EXPECT_EQ(numeroATexto(99999999999.9999), "99999999999.9999");
    EXPECT_EQ(numeroATexto(0.0001), "0.0001");
    EXPECT_EQ(numeroATexto(0.00012), "0.00012");
}

TEST(NumeroATexto, FormaExponencialEnLosExtremos) {
    EXPECT_EQ(numeroATexto(1e15), "1E+15");
    EXPECT_EQ(numeroATexto(1e16), "1E+16");
    EXPECT_EQ(numeroATexto(1234567890123456), "1.23456789012346E+15");
    // Redondeado a 15 cifras llega a 1E+15 y cambia de forma.
    EXPECT_EQ(numeroATexto(999999999999999.9), "1E+15");
    EXPECT_EQ(numeroATexto(1e100), "1E+100");
    EXPECT_EQ(numeroATexto(0.00001), "1E-05");
    EXPECT_EQ(numeroATexto(0.000015), "1.5E-05");
    EXPECT_EQ(numeroATexto(-0.00001), "-1E-05");
    EXPECT_EQ(numeroATexto(2.5e-300), "2.5E-300");
}

TEST(TextoANumero, LecturaTolerante) {
    EXPECT_EQ(textoANumero(""), 0);
    EXPECT_EQ(textoANumero("   "), 0);
    EXPECT_EQ(textoANumero("  12.5 "), 12.5);
    EXPECT_EQ(textoANumero("-3"), -3);
    EXPECT_EQ(textoANumero("+7"), 7);
    EXPECT_EQ(textoANumero(".5"), 0.5);
    EXPECT_EQ(textoANumero("abc"), 0);
    EXPECT_EQ(textoANumero("12abc"), 12);
    EXPECT_EQ(textoANumero("1,5"), 1);
    EXPECT_EQ(textoANumero("1e3"), 1000);
    EXPECT_EQ(textoANumero("2e"), 2);
    EXPECT_EQ(textoANumero("25000"), 25000);
    EXPECT_EQ(textoANumero("1e-400"), 0);
    EXPECT_THROW(textoANumero("1e400"), Fallo);
}

TEST(EsNumerico, SoloDecimalesSimples) {
    for (const char* si : {"12", " 12.5 ", "-0.5", "+3", ".5", "5.", "1e3", "1.5E-05"}) {
        EXPECT_TRUE(esNumerico(si)) << si;
    }
    for (const char* no : {"", " ", "1.2.3", "12a", "1,5", "-", ".", "e5", "1e", "1 2"}) {
        EXPECT_FALSE(esNumerico(no)) << no;
    }
}

TEST(Formatear, ConAgrupacionYDosDecimales) {
    EXPECT_EQ(formatear(1234567.891, "##,##0.00"), "1,234,567.89");
    EXPECT_EQ(formatear(-1234.5, "##,##0.00"), "-1,234.50");
    EXPECT_EQ(formatear(0, "##,##0.00"), "0.00");
    EXPECT_EQ(formatear(0.5, "##,##0.00"), "0.50");
    EXPECT_EQ(formatear(123, "##,##0.00"), "123.00");
    EXPECT_EQ(formatear(999.995, "##,##0.00"), "1,000.00");
    EXPECT_EQ(formatear(1e15, "##,##0.00"), "1,000,000,000,000,000.00");
    EXPECT_EQ(formatear(-0.001, "##,##0.00"), "0.00");
    // La mitad se aleja del cero sobre la forma decimal del número.
    EXPECT_EQ(formatear(1.005, "##,##0.00"), "1.01");
    EXPECT_EQ(formatear(-1.005, "##,##0.00"), "-1.01");
    EXPECT_EQ(formatear(0.125, "#0.00"), "0.13");
    // En el borde de los importes de cuatro decimales y por debajo del centavo.
    EXPECT_EQ(formatear(99999999999.9951, "##,##0.00"), "100,000,000,000.00");
    EXPECT_EQ(formatear(99999999999.9949, "##,##0.00"), "99,999,999,999.99");
    EXPECT_EQ(formatear(-0.005, "##,##0.00"), "-0.01");
    EXPECT_EQ(formatear(0.0049, "##,##0.00"), "0.00");
    EXPECT_EQ(formatear(0.00005, "0.0000"), "0.0001");
}

TEST(Formatear, SinAgrupacion) {
    EXPECT_EQ(formatear(1234567.891, "#0.00"), "1234567.89");
    EXPECT_EQ(formatear(-0.5, "#0.00"), "-0.50");
    EXPECT_EQ(formatear(0, "#0.00"), "0.00");
    EXPECT_EQ(formatear(12345.678, "####0.00"), "12345.68");
    EXPECT_EQ(formatear(1234567.1, "####0.00"), "1234567.10");
    EXPECT_EQ(formatear(0.004, "####0.00"), "0.00");
    EXPECT_EQ(formatear(-7, "#####0.00"), "-7.00");
    EXPECT_EQ(formatear(123456789.999, "#####0.00"), "123456790.00");
}

TEST(Formatear, Enteros) {
    EXPECT_EQ(formatear(2.5, "##,##0"), "3");
    EXPECT_EQ(formatear(-2.5, "##,##0"), "-3");
    EXPECT_EQ(formatear(0, "##,##0"), "0");
    EXPECT_EQ(formatear(0.4, "##,##0"), "0");
    EXPECT_EQ(formatear(1234567, "##,##0"), "1,234,567");
    EXPECT_EQ(formatear(999.5, "##,##0"), "1,000");
    EXPECT_EQ(formatear(-100000, "##,##0"), "-100,000");
    EXPECT_EQ(formatear(5, "00"), "05");
    EXPECT_EQ(formatear(0, "00"), "00");
    EXPECT_EQ(formatear(9.5, "00"), "10");
    EXPECT_EQ(formatear(123, "00"), "123");
    EXPECT_EQ(formatear(-3, "00"), "-03");
    EXPECT_EQ(formatear(12, "0000"), "0012");
    EXPECT_EQ(formatear(12345, "0000"), "12345");
}

TEST(Alinear, CuentaCaracteresNoBytes) {
    EXPECT_EQ(alinearDerecha("ñú", 4), "  ñú");
    EXPECT_EQ(alinearIzquierda("Peña", 6), "Peña  ");
    EXPECT_EQ(alinearDerecha("1,234.50", 10), "  1,234.50");
    EXPECT_EQ(alinearDerecha("demasiado", 3), "demasiado");
    EXPECT_EQ(alinearIzquierda("", 2), "  ");
    EXPECT_EQ(cortar("Peñarol", 3), "Peñ");
    EXPECT_EQ(cortar("Peñarol", 2), "Pe");
    EXPECT_EQ(cortar("ab", 5), "ab");
    EXPECT_EQ(cortar("ñ", 0), "");
}

}  // namespace
}  // namespace nomira::common
