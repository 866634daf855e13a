// La sustitución de los corchetes y el paso de la cantidad, sobre una base real.
#include <gtest/gtest.h>

#include "engine/apoyo_formula.h"

namespace nomira::engine {
namespace {

using common::Dinero;

class Formula : public pruebas::BaseFormula {};
NOMIRA_PARA_CADA_MOTOR(Formula);

TEST_P(Formula, CorchetesDesparejosHacenDeTodoElTextoUnToken) {
    EXPECT_EQ(total("]x["), 0);
    ASSERT_EQ(dialogo.mensajes.size(), 1u);
    EXPECT_EQ(dialogo.mensajes[0].tipo, common::TipoAviso::Error);
    EXPECT_EQ(dialogo.mensajes[0].titulo, "Mensaje de advertencia");
    EXPECT_EQ(dialogo.mensajes[0].texto, "Error en la fórmula, falta algún corchete.");

    // El token es lo que queda entre el primer y el último carácter: "x", que
    // se busca como variable tal como se escribió.
    variable("x", "2026-01-01", 7);
    nuevaCorrida();
    EXPECT_EQ(total("]x["), 7);
    // Todo el texto se reemplaza, también lo que rodea a los corchetes.
    EXPECT_EQ(total("5+]x[*2"), 0);
    EXPECT_EQ(dialogo.mensajes.size(), 3u);

    // Un "[" sin "]" no es un token: va al evaluador, que falla, y total queda.
    c.total = 123;
    c.formula = "[SUELDO+1";
    EXPECT_THROW(CalculoFormula(c, dialogo), common::Fallo);
    EXPECT_EQ(c.total, 123);
    EXPECT_EQ(dialogo.mensajes.size(), 3u);
}

TEST_P(Formula, TokensPropiosEnCualquierCaja) {
    c.sueldo = 15000.5;
    c.textoCant = "3";
    EXPECT_DOUBLE_EQ(total("[SUELDO]/30*[CANT]"), 15000.5 / 30 * 3);
    EXPECT_DOUBLE_EQ(total("[sueldo]/30*[Cant]"), 15000.5 / 30 * 3);
    EXPECT_EQ(c.cant, 3);

    // Un propio le gana a la variable del mismo nombre...
    variable("SUELDO", "2026-01-01", 999);
    variable("MONTOGRAV", "2026-01-01", 55);
    nuevaCorrida();
    EXPECT_DOUBLE_EQ(total("[SUELDO]"), 15000.5);
    // ...pero sólo en la pantalla que lo conoce: Form76 no tiene MONTOGRAV.
    c.montograv = Dinero::desdeDouble(1000);
    EXPECT_EQ(total("[MONTOGRAV]"), 1000);
    EXPECT_EQ(total("[MONTOGRAV]", opcionesForm76()), 55);

    c.montogravag = Dinero::desdeDouble(100.25);
    c.montosv = Dinero::desdeDouble(0.5);
    c.totalhab = Dinero::desdeDouble(2000);
    c.liquidonetograv = Dinero::desdeDouble(3);
    c.liquidoneto = Dinero::desdeDouble(4);
    c.montogravalim = Dinero::desdeDouble(5);
    c.sueldo2 = 6;
    c.sueldo3 = 7;
    c.htrab = 8;
    c.cantbfc = 9;
    EXPECT_DOUBLE_EQ(
        total("[MONTOGRAVAG]+[MONTOSV]+[TOTALHAB]+[LIQUIDONETOGRAV]+[LIQUIDONETO]*10+"
              "[MONTOGRAVALIM]*100+[SUELDO2]*1000+[SUELDO3]*1E4+[HTRAB]*1E5+[CANTBFC]*1E6"),
        100.25 + 0.5 + 2000 + 3 + 40 + 500 + 6000 + 7e4 + 8e5 + 9e6);
}

TEST_P(Formula, LasVariablesValenPorSuFilaMasNueva) {
    variable("SALMIN", "2025-07-01", 23000);
    variable("SALMIN", "2026-01-01", 24500);
    variable("SALMIN", "2024-01-01", 21000);
    variable("SALMIN", "", 1);  // una fila sin fecha no es la más nueva
    variable("UR", "2026-01-01", 1800.5);
    // Un mes pasado también lee la última.
    c.periodo = common::Mes{2025, 8};
    EXPECT_EQ(total("[SALMIN]"), 24500);
    EXPECT_EQ(total("[SALMIN]*2+[UR]"), 24500 * 2 + 1800.5);
    // El nombre se busca como se escribió; sin filas vale 0.
    EXPECT_EQ(total("[salmin]+[TOPEAFAP]"), 0);
}

TEST_P(Formula, UnaCorridaLeeCadaVariableUnaVez) {
    variable("UR", "2025-01-01", 1700);
    EXPECT_EQ(total("[UR]"), 1700);
    variable("UR", "2026-01-01", 1800);
    EXPECT_EQ(total("[UR]"), 1700);
    nuevaCorrida();
    EXPECT_EQ(total("[UR]"), 1800);
}

TEST_P(Formula, LaCantidad) {
    // Fórmula vacía: total 0 y cantidad 1, o la tecleada.
    EXPECT_EQ(total(""), 0);
    EXPECT_EQ(c.cant, 1);
    c.textoCant = "2.5";
    EXPECT_EQ(total(""), 0);
    EXPECT_EQ(c.cant, 2.5);
    // Con un importe del archivo de horas, ése es el total.
    c.importearchivo = Dinero::desdeDouble(1234.5678);
    EXPECT_EQ(total(""), 1234.5678);
    // Un "0" tecleado es 0; sólo la casilla vacía toma el valor por defecto.
    c.textoCant = "0";
    total("[CANT]*10");
    EXPECT_EQ(c.cant, 0);
    EXPECT_EQ(c.total, 0);
    c.textoCant = "";
    c.cantarchivo = 7;
    EXPECT_EQ(total("[CANT]*10"), 70);
    // Form44 no usa la cantidad del archivo.
    EXPECT_EQ(total("[CANT]*10", opcionesForm44()), 10);
    // CalculoFormula2 no toca la cantidad.
    c.cant = 42;
    c.textoCant = "3";
    c.formula = "[CANT]";
    CalculoFormula2(c, dialogo);
    EXPECT_EQ(c.cant, 42);
    EXPECT_EQ(c.total, 42);
}

TEST_P(Formula, PfocerSaleDelOtroTelefono) {
    persona("PEREZ, JUAN", {{"otrotelefono", "1.25"}});
    variable("PFOCER", "2026-01-01", 0.7);
    c.sueldo = 1000;
    EXPECT_EQ(total("[SUELDO]*[PFOCER]/100"), 12.5);
    EXPECT_EQ(c.pfocer, Dinero::desdeDouble(1.25));
    // CalculoFormula2 no conoce PFOCER: lee la variable y deja pfocer como estaba.
    c.formula = "[PFOCER]";
    CalculoFormula2(c, dialogo);
    EXPECT_EQ(c.total, 0.7);
    EXPECT_EQ(c.pfocer, Dinero::desdeDouble(1.25));
    // Sin la fila de la persona, 0.
    c.nombre = "OTRO, NADIE";
    EXPECT_EQ(total("[PFOCER]"), 0);
}

TEST_P(Formula, UnFalloDejaElTotalAnterior) {
    c.total = 99;
    c.sueldo = 5;
    c.formula = "[SUELDO]/0";
    try {
        CalculoFormula(c, dialogo);
        FAIL() << "debía fallar";
    } catch (const common::Fallo& f) {
        EXPECT_EQ(f.numero(), 11);
        EXPECT_EQ(common::textoErrorInesperado(f, "CalculoFormula", "Form42"),
                  "Error inesperado 11 en CalculoFormula del Form42 \nDivisión por cero");
    }
    EXPECT_EQ(c.total, 99);
    // El paso de la cantidad ya se hizo.
    EXPECT_EQ(c.cant, 1);
}

}  // namespace
}  // namespace nomira::engine
