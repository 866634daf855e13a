// Form44 con el teclado: el único haber posible, la fila del salario
// vacacional con su período hasta la grilla y las cifras, traerla de la grilla
// para modificarla o eliminarla, un descuento libre y una fecha que no existe.
#include <gtest/gtest.h>

#include "engine/mes/renglon.h"
#include "engine/vacacional/renglon_vacacional.h"
#include "master/conceptos.h"
#include "pantallas/apoyo_pantallas.h"

using namespace nomira;

namespace {

// Hoy es el 15/03/2026 (CarpetaTemporal): el mes anterior es 02/26.
class PantallaVacacional : public pruebas::EmpresaAcme {
  protected:
    void SetUp() override {
        EmpresaAcme::SetUp();
        // Veinte días de un sueldo de 30000 son 20000.
        sql("UPDATE conceptos SET formula = '[SUELDO]/30*[CANT]' WHERE codigo = 606");
        persona("PEREZ, JUAN", "1", "30000", "2020-01-01");
        abrir("Form44");
        teclear("empresa", "ACME");
        teclear("mes", "0226");
        teclear("nombre", "PEREZ, JUAN");
    }

    // Escribe sin Enter (el período de la licencia).
    void escribir(const char* nombre, const QString& t) {
        w(nombre)->setFocus();
        w(nombre)->selectAll();
        QTest::keyClicks(w(nombre), t);
    }
    void enterEn(const char* nombre) {
        w(nombre)->setFocus();
        QTest::keyClick(w(nombre), Qt::Key_Return);
    }

    long filas(const std::string& donde = "1 = 1") {
        return static_cast<long>(
            sesion.base->consulta("SELECT COUNT(*) AS n FROM salvacacional WHERE " + donde)
                .primera()
                .entero("n"));
    }
};

TEST_F(PantallaVacacional, SoloElSalarioVacacionalEntraComoHaberYLlegaALaGrillaConSuPeriodo) {
    EXPECT_TRUE(w("codigo")->hasFocus());
    EXPECT_EQ(w("liquido")->text(), "0.00");  // sin filas, ceros

    // TRANSPORTE es un haber: se busca y se calcula, pero no se guarda.
    teclear("codigo", "58");
    EXPECT_EQ(texto("concepto"), "TRANSPORTE");
    teclear("cant", "1");
    teclear("total", "500");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kUnicoHaberVacacional);
    EXPECT_EQ(filas(), 0);

    teclear("codigo", "606");
    EXPECT_EQ(texto("concepto"), "SALARIO VACACIONAL");
    EXPECT_TRUE(w<QPushButton>("Agregar")->isEnabled());
    EXPECT_FALSE(w<QPushButton>("Eliminar")->isEnabled());
    EXPECT_TRUE(w("cant")->hasFocus());
    teclear("cant", "20");
    EXPECT_EQ(texto("total"), "20,000.00");
    EXPECT_TRUE(w("total")->hasFocus());
    EXPECT_EQ(w("total")->cursorPosition(), texto("total").size());
    escribir("desdelic", "010226");
    escribir("hastalic", "200226");
    enterEn("total");

    EXPECT_EQ(filas("codigo = 606 AND total = 20000 AND desdelic = '2026-02-01' AND "
                    "hastalic = '2026-02-20'"),
              1);
    EXPECT_EQ(columna("haberes", 1), (std::vector<std::string>{"SALARIO VACACIONAL"}));
    EXPECT_EQ(columna("haberes", 4), (std::vector<std::string>{"01/02/26"}));
    EXPECT_TRUE(columna("descuentos", 1).empty());
    EXPECT_EQ(texto("totalhab"), "20,000.00");
    EXPECT_EQ(texto("montoirpf"), "20,000.00");
    EXPECT_EQ(texto("liquido"), "20,000.00");
    // La fila en mano queda vacía, sin Agregar, y se sigue por el código.
    EXPECT_TRUE(texto("codigo").isEmpty());
    EXPECT_TRUE(w("codigo")->hasFocus());
    EXPECT_FALSE(w<QPushButton>("Agregar")->isEnabled());
}

TEST_F(PantallaVacacional, LaFilaDeLaGrillaSeModificaYSeEliminaConSuPregunta) {
    teclear("codigo", "606");
    teclear("cant", "20");
    enterEn("total");
    ASSERT_EQ(filas(), 1);

    elegirFila("haberes", 0);
    EXPECT_EQ(texto("codigo"), "606");
    EXPECT_EQ(texto("cant"), "20");
    EXPECT_TRUE(w<QPushButton>("Modificar")->isEnabled());
    EXPECT_FALSE(w<QPushButton>("Agregar")->isEnabled());
    // Otro total tecleado sobre la fila guardada: Enter la modifica.
    teclear("total", "18000");
    EXPECT_EQ(filas("codigo = 606 AND total = 18000"), 1);
    EXPECT_EQ(texto("totalhab"), "18,000.00");

    elegirFila("haberes", 0);
    dialogo.respuestas = {false};
    tecla(Qt::Key_F7);
    EXPECT_EQ(dialogo.preguntas.back(), "Eliminar Haber|¿Desea continuar?");
    EXPECT_EQ(filas(), 1);
    tecla(Qt::Key_F7);  // sin guion: Sí
    EXPECT_EQ(filas(), 0);
    EXPECT_TRUE(columna("haberes", 1).empty());
    EXPECT_EQ(texto("totalhab"), "0.00");
}

TEST_F(PantallaVacacional, LosDescuentosVanLibresYUnaFechaQueNoExisteNoSeGuarda) {
    teclear("codigo", "606");
    teclear("cant", "20");
    enterEn("total");

    // Un descuento cualquiera, con su total tecleado, resta del líquido.
    teclear("codigo", "704");
    EXPECT_EQ(texto("concepto"), "IRP");
    escribir("desdelic", "320226");
    escribir("total", "1500");
    enterEn("total");
    EXPECT_EQ(filas("codigo = 704"), 0);
    EXPECT_TRUE(w("desdelic")->hasFocus());  // el campo que revisar

    w("desdelic")->clear();
    enterEn("total");
    EXPECT_EQ(filas("codigo = 704 AND total = 1500"), 1);
    EXPECT_EQ(columna("descuentos", 1), (std::vector<std::string>{"IRP"}));
    EXPECT_EQ(texto("totaldes"), "1,500.00");
    EXPECT_EQ(texto("liquido"), "18,500.00");
}

TEST_F(PantallaVacacional, SinPersonaElCodigoNoSeBusca) {
    w<QComboBox>("nombre")->setCurrentText("");
    teclear("codigo", "606");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kFaltanCamposVacacional);
    EXPECT_TRUE(texto("concepto").isEmpty());
    // Un código que no existe vacía la fila.
    teclear("nombre", "PEREZ, JUAN");
    teclear("codigo", "9999");
    EXPECT_EQ(dialogo.ultimoMensaje(), master::kCodigoInexistente);
    EXPECT_TRUE(texto("codigo").isEmpty());
}

}  // namespace
