// Las pantallas sobre el estudio de demostración: las listas llegan llenas y la
// ficha de una persona muestra lo que el estudio cargó.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "frame/arranque.h"
#include "master/estudio_demo.h"
#include "screens/personal/pantalla_personal.h"

using namespace nomira;

namespace {

TEST(PantallasEstudioDemo, LaFichaDeUnaPersonaLlegaConSusListasYSusDatos) {
    pruebas::CarpetaTemporal tmp{"15/11/2026"};
    pruebas::DialogoGuion dialogo;
    frame::Sesion sesion;
    sesion.base = frame::crearBaseNueva(tmp.archivo("n.db"));
    sesion.dialogo = &dialogo;
    sesion.categoria = 1;
    master::crearEstudioDemo(*sesion.base);

    pantallas::PantallaPersonal personal(sesion);
    auto* empresas = personal.findChild<QComboBox*>("empresa");
    ASSERT_NE(empresas, nullptr);
    for (const auto& e : master::empresasDemo())
        EXPECT_NE(empresas->findText(QString::fromStdString(e)), -1) << e;
    empresas->setCurrentText("FÁBRICA DE EJEMPLO S.A.");
    auto* nombres = personal.findChild<QComboBox*>("nombre");
    ASSERT_NE(nombres, nullptr);
    EXPECT_NE(nombres->findText("RODRÍGUEZ INVENTADO, CARLOS"), -1);
    nombres->setCurrentText("RODRÍGUEZ INVENTADO, CARLOS");
    personal.buscar();

    auto* ficha = personal.ficha();
    ASSERT_NE(ficha, nullptr);
    auto texto = [&](const char* nombre) {
        auto* e = ficha->findChild<QLineEdit*>(nombre);
        return e ? e->text().toStdString() : "sin " + std::string(nombre);
    };
    EXPECT_EQ(texto("nrofun"), "3");
    EXPECT_EQ(texto("sueldo"), "45000");
    EXPECT_EQ(texto("sueldo2"), "18000");
    // Departamento: la lista del catálogo entregado, con el de la persona elegido.
    auto* depto = ficha->findChild<QComboBox*>("depto");
    ASSERT_NE(depto, nullptr);
    EXPECT_GE(depto->count(), 19);
    EXPECT_EQ(depto->currentText(), "Montevideo");
    EXPECT_TRUE(dialogo.mensajes.empty()) << dialogo.ultimoMensaje();
}

}  // namespace
