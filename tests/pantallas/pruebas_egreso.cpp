// Form45 con el teclado y sus botones: la pasada del egreso de una persona y
// sus descuentos llegan a las grillas y a las cifras; sin persona, el mensaje.
#include <gtest/gtest.h>

#include "engine/aguinaldo/aguinaldo.h"
#include "pantallas/apoyo_pantallas.h"

using namespace nomira;

namespace {

class PantallaEgreso : public pruebas::EmpresaAcme {
  protected:
    void SetUp() override {
        EmpresaAcme::SetUp();
        persona("PEREZ, JUAN", "1", "30000", "2020-03-01", "2026-03-31");
        sql("UPDATE personal SET motivoeg = 'Despido', antiguedad = '6.08'");
        abrir("Form45");
    }
};

TEST_F(PantallaEgreso, LaPasadaYSusDescuentosLleganALaPantalla) {
    teclear("empresa", "ACME");
    teclear("mes", "0326");
    teclear("nombre", "PEREZ, JUAN");
    pulsar("HabPerm");
    EXPECT_EQ(columna("haberes", 1),
              (std::vector<std::string>{"SUELDO", "IPD", "LICENCIA NO GOZ AÑO ANTERIOR",
                                        "LICENCIA NO GOZ AÑO ACTUAL", "AGUINALDO",
                                        "SALARIO VACACIONAL"}));
    // Sueldo 30000; aguinaldo 30000 / 12 = 2500; licencia 21 + 6 días de 1000;
    // vacacional 27000 x (1 - 19,6%) = 21708; el despido con 6,08 años, sin
    // historia en el año móvil: 6 x 30000 = 180000. Suma 261208.
    EXPECT_EQ(texto("totalhab"), "261,208.00");
    EXPECT_TRUE(columna("descuentos", 1).empty());
    // La fila en mano lee egresos: el código 1 trae el SUELDO de la pasada.
    teclear("codigo", "1");
    EXPECT_EQ(texto("concepto"), "SUELDO");
    EXPECT_EQ(texto("cant"), "30");

    pulsar("DescPerm");
    EXPECT_FALSE(columna("descuentos", 1).empty());
    EXPECT_EQ(columna("descuentos", 1).front(), "MONTEPIO 15%");
    EXPECT_FALSE(texto("totaldes").isEmpty());
}

TEST_F(PantallaEgreso, SinPersonaLoDice) {
    pulsar("HabPerm");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kFaltanCamposHaberesAguinaldo);
    pulsar("DescPerm");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kFaltanCamposDescuentosAguinaldo);
}

}  // namespace
