// El dígito verificador de la cédula y los días de antigüedad.
#include <gtest/gtest.h>

#include "common/antiguedad.h"
#include "common/cedula.h"
#include "common/fechas.h"

using namespace nomira::common;

TEST(Cedula, DigitoVerificador) {
    // Ocho cifras correctas; con siete se antepone el cero y así vuelve al campo.
    EXPECT_EQ(DigitoVerificador("12345672").resultado, ResultadoCedula::Correcta);
    const auto siete = DigitoVerificador("9876549");
    EXPECT_EQ(siete.resultado, ResultadoCedula::Correcta);
    EXPECT_EQ(siete.documento, "09876549");
    // Resto 0: el dígito es 0, no 10.
    EXPECT_EQ(DigitoVerificador("00005000").resultado, ResultadoCedula::Correcta);
    EXPECT_EQ(DigitoVerificador("00005001").resultado, ResultadoCedula::Invalida);
    // Un dígito equivocado.
    EXPECT_EQ(DigitoVerificador("12345673").resultado, ResultadoCedula::Invalida);
    EXPECT_EQ(DigitoVerificador("4567891").resultado, ResultadoCedula::Invalida);
    // Puntos, barras y guiones se rechazan antes de medir el largo.
    for (const char* doc : {"1.234.567-2", "1234567/2", "1234567-2"})
        EXPECT_EQ(DigitoVerificador(doc).resultado, ResultadoCedula::ConSeparadores) << doc;
    for (const char* doc : {"123456", "123456789", ""})
        EXPECT_EQ(DigitoVerificador(doc).resultado, ResultadoCedula::LargoInvalido) << doc;
    EXPECT_EQ(mensajeCedula(ResultadoCedula::Invalida), "La cédula es INVALIDA.");
    EXPECT_EQ(mensajeCedula(ResultadoCedula::ConSeparadores),
              "El campo Documento debe ingresarse sin puntos ni barras ni guiones (incluír el "
              "dígito que va "
              "después del guión).");
}

TEST(Antiguedad, CantidadDias2CuentaAmbosExtremosConLosBisiestos) {
    // Contra el calendario: los días entre las dos fechas más uno, también al
    // cruzar febreros de años bisiestos y el paso de 99 a 00.
    const std::pair<Fecha, Fecha> casos[] = {
        {{2023, 3, 1}, {2024, 3, 1}},    {{2024, 2, 29}, {2025, 2, 28}},
        {{2019, 12, 31}, {2026, 1, 15}}, {{1999, 6, 15}, {2001, 6, 15}},
        {{2026, 3, 10}, {2026, 3, 10}},  {{2020, 1, 31}, {2020, 3, 1}}};
    for (const auto& [a, b] : casos)
        EXPECT_EQ(CantidadDias2(a.dia, a.mes, a.anio % 100, b.dia, b.mes, b.anio % 100),
                  diasEntre(a, b) + 1)
            << a.ddmmyy() << " " << b.ddmmyy();
    // Un año justo sin bisiesto son 366 días contados así: un año y un día.
    EXPECT_EQ(antiguedadEntre("01/01/23", "01/01/24").anios, 1);
    EXPECT_EQ(antiguedadEntre("03/01/23", "01/01/24").anios, 0);
    // Con un 29 de febrero de por medio, 730 días ya son dos años de 365.
    EXPECT_EQ(antiguedadEntre("02/03/23", "28/02/25").anios, 2);
    EXPECT_EQ(antiguedadEntre("03/03/23", "28/02/25").anios, 1);
}

TEST(Antiguedad, LasReferenciasEntreCorchetesCambianElComienzo) {
    EXPECT_EQ(inicioDeAntiguedad("01/06/20", "Reingreso [01/03/10] ver legajo"), "01/03/10");
    EXPECT_EQ(
        antiguedadEntre(inicioDeAntiguedad("01/06/20", "Reingreso [01/03/10]"), "15/03/26").anios,
        16);
    EXPECT_EQ(antiguedadEntre(inicioDeAntiguedad("01/06/20", ""), "15/03/26").anios, 5);
    // Sólo con los dos corchetes; sin fecha válida adentro se lee lo que haya.
    EXPECT_EQ(inicioDeAntiguedad("01/06/20", "falta cerrar [01/03/10"), "01/06/20");
    EXPECT_EQ(inicioDeAntiguedad("01/06/20", "[sin fecha]"), "sin fecha");
    EXPECT_EQ(antiguedadEntre("sin fecha", "15/03/26").anios, 0);
}
