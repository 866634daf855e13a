// Los campos de número y de fecha que comparten todas las pantallas: la coma decimal
// del liquidador, lo que no es número, la barra de la fecha tecleada a mano y las
// fechas que no existen; y, recorriendo el registro de pantallas, que cada campo de
// número o de fecha de cada una se revise antes de guardar nombrando el campo.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "ventana/apoyo_registradas.h"
#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "frame/arranque.h"
#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/campo_numero.h"
#include "frame/ventana/pantalla.h"
#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/revision_campos.h"
#include "screens/registro.h"

using namespace nomira;
using ventana::ClaseNumero;
using ventana::numeroTecleado;

TEST(CampoNumero, LaComaDelLiquidadorEsLaDecimalYLoQueNoEsNumeroNoPasa) {
    EXPECT_EQ(numeroTecleado("1,5"), "1.5");
    EXPECT_EQ(numeroTecleado(" 25000,50 "), "25000.50");
    EXPECT_EQ(numeroTecleado("-3,25"), "-3.25");
    EXPECT_EQ(numeroTecleado("1.5"), "1.5");
    EXPECT_EQ(numeroTecleado(",5"), "0.5");
    // Lo que muestran las grillas ("##,##0.00") se lee igual.
    EXPECT_EQ(numeroTecleado("1,234.56"), "1234.56");
    EXPECT_EQ(numeroTecleado("1,234,567"), "1234567");
    EXPECT_EQ(numeroTecleado(""), "");
    for (const char* malo : {"abc", "12a", "1,2,3", "1.234,5", "1..5", "-", ",", "1 000", "1e5"})
        EXPECT_FALSE(numeroTecleado(malo).has_value()) << malo;
    EXPECT_EQ(numeroTecleado("12", ClaseNumero::Entero), "12");
    EXPECT_EQ(numeroTecleado("12.00", ClaseNumero::Entero), "12");
    EXPECT_FALSE(numeroTecleado("1,5", ClaseNumero::Entero).has_value());

    ventana::CampoNumero campo;
    QTest::keyClicks(&campo, "1,5");
    EXPECT_EQ(campo.valor(), "1.5");
    campo.ponerImporte(1234.5);
    EXPECT_EQ(campo.text(), "1,234.50");
    EXPECT_EQ(campo.valor(), "1234.50");
}

TEST(CampoFecha, LaBarraTecleadaNoSeDuplicaYLaFechaDebeExistir) {
    ventana::CampoFecha fecha;
    QTest::keyClicks(&fecha, "15/03/90");
    EXPECT_EQ(fecha.text(), "15/03/90");
    fecha.clear();
    QTest::keyClicks(&fecha, "150390");
    EXPECT_EQ(fecha.text(), "15/03/90");
    fecha.clear();
    QTest::keyClicks(&fecha, "15/0390");  // una barra sí y otra no
    EXPECT_EQ(fecha.text(), "15/03/90");
    EXPECT_TRUE(fecha.esValida());
    for (const char* mala : {"32/13/10", "31/02/26", "00/01/26", "ab/cd/ef"}) {
        fecha.setText(mala);
        EXPECT_FALSE(fecha.esValida()) << mala;
    }
    fecha.setText("29/02/24");
    EXPECT_TRUE(fecha.esValida());
    fecha.clear();
    EXPECT_TRUE(fecha.esValida());  // vacía: la fecha es optativa

    ventana::CampoFecha mes(nullptr, ventana::FormaFecha::Mes);
    QTest::keyClicks(&mes, "02/26");
    EXPECT_EQ(mes.text(), "02/26");
    EXPECT_TRUE(mes.esValida());
    mes.setText("13/26");
    EXPECT_FALSE(mes.esValida());
}

class CamposDeLasPantallas : public pruebas::ConTodasLasPantallas {};

// Cada número y cada fecha de cada pantalla registrada: "abc" y una fecha imposible no
// pasan la revisión de antes de guardar, el aviso nombra el campo y el foco vuelve a él;
// "1,5" pasa como 1.5.
TEST_F(CamposDeLasPantallas, CadaNumeroYCadaFechaSeRevisanAntesDeGuardar) {
    int numeros = 0, fechas = 0;
    for (const auto& [formulario, fabrica] : ventana::registroPantallas()) {
        std::unique_ptr<QWidget> w(fabrica(sesion, nullptr));
        auto* pantalla = qobject_cast<ventana::Pantalla*>(w.get());
        if (!pantalla) continue;
        pantalla->show();
        QApplication::setActiveWindow(pantalla);
        for (auto* campo : pantalla->findChildren<ventana::CampoNumero*>()) {
            if (campo->isReadOnly() || !campo->isEnabled()) continue;
            ++numeros;
            const auto rotulo = ventana::rotuloDe(campo).toStdString();
            EXPECT_FALSE(rotulo.empty()) << formulario;
            campo->setText("abc");
            dialogo.mensajes.clear();
            EXPECT_FALSE(pantalla->camposValidos()) << formulario << " " << rotulo;
            ASSERT_FALSE(dialogo.mensajes.empty()) << formulario << " " << rotulo;
            EXPECT_NE(dialogo.ultimoMensaje().find("El campo " + rotulo), std::string::npos)
                << dialogo.ultimoMensaje();
            EXPECT_EQ(QApplication::focusWidget(), campo) << formulario << " " << rotulo;
            campo->setText("1,5");
            if (campo->clase() == ClaseNumero::Decimal)
                EXPECT_EQ(campo->valor(), "1.5") << formulario << " " << rotulo;
            else
                EXPECT_FALSE(campo->esValido()) << formulario << " " << rotulo;
            campo->clear();
        }
        for (auto* campo : pantalla->findChildren<ventana::CampoFecha*>()) {
            if (campo->isReadOnly() || !campo->isEnabled()) continue;
            ++fechas;
            const auto anterior = campo->text();
            campo->setText(campo->forma() == ventana::FormaFecha::Mes ? "13/26" : "32/13/10");
            dialogo.mensajes.clear();
            EXPECT_FALSE(pantalla->camposValidos())
                << formulario << " " << campo->objectName().toStdString();
            EXPECT_NE(
                dialogo.ultimoMensaje().find("El campo " + ventana::rotuloDe(campo).toStdString()),
                std::string::npos)
                << dialogo.ultimoMensaje();
            EXPECT_EQ(QApplication::focusWidget(), campo) << formulario;
            campo->setText(anterior);
        }
        EXPECT_TRUE(pantalla->camposValidos()) << formulario << ": " << dialogo.ultimoMensaje();
    }
    // Las pantallas de hoy: sueldos, cantidades, tasas, fechas de la ficha...
    EXPECT_GE(numeros, 20);
    EXPECT_GE(fechas, 30);
}
