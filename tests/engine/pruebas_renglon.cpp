// Filas tecleadas: dos licencias con sus preguntas y el período, SUELDO de un
// mensual con licencia, las horas que llevan las jornadas del mes, los
// controles de descuentos y egresos, y la baja con lo que arrastra.
#include <gtest/gtest.h>

#include "common/numeros.h"
#include "engine/mes/renglon.h"
#include "pruebas_descuentos_escenario.h"

namespace nomira::engine {
namespace {

class Renglon : public pruebas::EscenarioMes {
  protected:
    // Enter en el código, en la cantidad y en el total, como en la pantalla.
    // Devuelve el mensaje que lo impidió, "cortado" si una respuesta No cortó el
    // cálculo, o "" si se guardó.
    std::string teclear(const std::string& nombre, long codigo, const std::string& cant,
                        std::optional<std::string> totalTecleado = std::nullopt) {
        auto mp = mesDe(nombre, marzo);
        if (!mp) return "sin persona";
        const auto b = buscarRenglon(*mp, ctx, codigo, dialogo);
        if (!b) return dialogo.ultimoMensaje();
        const auto c = calcularRenglon(*mp, ctx, b->concepto, cant, dialogo);
        if (!c) return "cortado";
        ultimo = *c;
        const auto m = guardarRenglon(
            *base, *mp, ctx, *c, common::numeroATexto(c->cant),
            totalTecleado.value_or(common::numeroATexto(c->total.aDouble())), dialogo);
        return m.value_or("");
    }
    std::string eliminar(const std::string& nombre, long codigo) {
        auto mp = mesDe(nombre, marzo);
        const auto c = master::leerConcepto(*base, codigo);
        return eliminarRenglon(*base, *mp, ctx, *c, dialogo).value_or("borrada");
    }
    CalculoRenglon ultimo;
};
NOMIRA_PARA_CADA_MOTOR(Renglon);

TEST_P(Renglon, DosLicenciasDeUnMensual) {
    persona("PEREZ, JUAN", {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
    fila("PEREZ, JUAN", marzo, 1, "SUELDO", "Hab", 1, 30000);
    concepto(606, "SALARIO VACACIONAL", "G", "", "Hab", "I", "No", "No", "No");
    concepto(636, "SALARIO VACACIONAL 2DA ACT", "G", "", "Hab", "I", "No", "No", "No");
    // El salario vacacional de cada licencia, en salvacacional: código, días,
    // neto y período.
    const auto vacacional = [&](long codigo) {
        const auto r = base->consulta(
            "SELECT cant, total, desdelic, hastalic FROM salvacacional WHERE codigo = ?",
            {std::int64_t{codigo}});
        return r.vacio() ? std::string("nada")
                         : common::numeroATexto(r.primera().real("cant")) + " " +
                               common::numeroATexto(r.primera().real("total")) + " " +
                               r.primera().texto("desdelic") + " " + r.primera().texto("hastalic");
    };
    const std::string periodo =
        "Período de Licencia (largo de fechas + el guión = 17)|Modifique las fechas desde y hasta.";

    // Diez días: sin preguntas, sólo el período (el propuesto, 01/03/26-10/03/26).
    // Jornal 30000 / 30 = 1000; 10 días = 10000; el mes paga 30000 - 10000.
    ASSERT_EQ(teclear("PEREZ, JUAN", 20, "10"), "") << dialogo.ultimoMensaje();
    EXPECT_EQ(dialogo.preguntas, std::vector<std::string>{periodo});
    EXPECT_EQ(ultimo.fechadesdelic, "01/03/26");
    EXPECT_EQ(ultimo.fechahastalic, "10/03/26");
    double cant = 0;
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 20, nullptr, &cant), 10000);
    EXPECT_EQ(cant, 10);
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 1), 20000);
    // Gravado 30000 > 2.5 BPC (17160), sin cónyuge: SNIS 4.5 + MONTEPIO 15 +
    // FRL 0.1 = 19.6%; 10000 x (1 - 0.196) = 8040.
    EXPECT_EQ(vacacional(606), "10 8040 2026-03-01 2026-03-10");

    // Cinco días en la segunda actividad: pregunta por menos de 10; con Sí sigue.
    // El SUELDO se reescribe desde el sueldo de la ficha: 30000 - 5000.
    dialogo.preguntas.clear();
    dialogo.respuestas = {true};
    ASSERT_EQ(teclear("PEREZ, JUAN", 21, "5"), "");
    EXPECT_EQ(dialogo.preguntas,
              (std::vector<std::string>{
                  "La cantidad de días de licencia por período no puede ser menor que 10|"
                  "¿Desea continuar?",
                  periodo}));
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 21), 5000);
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 1), 25000);
    // Gravado 20000 + 10000 de la primera: la misma escala; 5000 x 0.804 = 4020.
    EXPECT_EQ(vacacional(636), "5 4020 2026-03-01 2026-03-10");
    EXPECT_EQ(vacacional(606), "10 8040 2026-03-01 2026-03-10");

    // Con No no se calcula ni se guarda nada más.
    dialogo.respuestas = {false};
    EXPECT_EQ(teclear("PEREZ, JUAN", 21, "3"), "cortado");
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 21), 5000);
    // Cero días: el aviso y cantidad y total en 0.
    auto mp = mesDe("PEREZ, JUAN", marzo);
    const auto lic = master::leerConcepto(*base, 20);
    const auto cero = calcularRenglon(*mp, ctx, *lic, "0", dialogo);
    ASSERT_TRUE(cero);
    EXPECT_EQ(cero->total, common::Dinero());
    EXPECT_EQ(dialogo.ultimoMensaje(), "La cantidad de días de licencia no puede ser cero.");

    // La baja de LICENCIA pregunta, se lleva el salvacacional y devuelve el sueldo.
    ejecutar(
        "INSERT INTO salvacacional (empresa, nombre, fecha, codigo, concepto, total) VALUES "
        "('ACME', 'PEREZ, JUAN', ?, 606, 'SALARIO VACACIONAL', 1)",
        {marzo.primerDia().iso()});
    dialogo.respuestas = {false, true};
    EXPECT_EQ(eliminar("PEREZ, JUAN", 20), "");
    EXPECT_TRUE(total("PEREZ, JUAN", marzo, 20));
    EXPECT_EQ(eliminar("PEREZ, JUAN", 20), "borrada");
    EXPECT_EQ(dialogo.preguntas.back(), "Eliminar Concepto|¿Desea continuar?");
    EXPECT_FALSE(total("PEREZ, JUAN", marzo, 20));
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 1), 30000);
    EXPECT_TRUE(base->consulta("SELECT * FROM salvacacional").vacio());
}

TEST_P(Renglon, HorasLlevanLasJornadasDelMes) {
    persona("LOPEZ, EVA", {{"sueldo", "100"}, {"tiposueldo", "H"}, {"htrab", "8"}});
    ASSERT_EQ(teclear("LOPEZ, EVA", 10, "80"), "");
    double cant = 0;
    EXPECT_EQ(total("LOPEZ, EVA", marzo, 10), 8000);  // 100 x 80
    EXPECT_EQ(total("LOPEZ, EVA", marzo, 12, nullptr, &cant), 0);
    EXPECT_EQ(cant, 10);  // 80 / 8
    ASSERT_EQ(teclear("LOPEZ, EVA", 11, "16"), "");
    EXPECT_EQ(total("LOPEZ, EVA", marzo, 11), 1920);  // 100 x 16 x 1.2
    total("LOPEZ, EVA", marzo, 12, nullptr, &cant);
    EXPECT_EQ(cant, 12);  // (80 + 16) / 8
    // Modificar las comunes recalcula con las nocturnas: (40 + 16) / 8.
    ASSERT_EQ(teclear("LOPEZ, EVA", 10, "40"), "");
    total("LOPEZ, EVA", marzo, 12, nullptr, &cant);
    EXPECT_EQ(cant, 7);
    // El código de las jornadas propone ese mismo número.
    auto mp = mesDe("LOPEZ, EVA", marzo);
    EXPECT_EQ(buscarRenglon(*mp, ctx, 12, dialogo)->textoCant, "7");
    // Un total tecleado reemplaza al calculado.
    ASSERT_EQ(teclear("LOPEZ, EVA", 30, "2", "999.5"), "");
    EXPECT_EQ(total("LOPEZ, EVA", marzo, 30), 999.5);
}

TEST_P(Renglon, ControlesDeDescuentosYEgresos) {
    persona("PEREZ, JUAN", {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"sexocon", "MNo"}});
    persona("GOMEZ, ANA", {{"sueldo", "30000"}, {"tiposueldo", "S"}});
    fila("PEREZ, JUAN", marzo, 1, "SUELDO", "Hab", 1, 30000);
    fila("PEREZ, JUAN", marzo, 30, "PREMIO", "Hab", 1, 100);

    // Un descuento tecleado: la fórmula con el texto del porcentaje; 30000 pasa
    // 2.5 BPC, sin cónyuge ni hijos: 4.5%.
    ASSERT_EQ(teclear("PEREZ, JUAN", 502, ""), "");
    std::string texto;
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 502, &texto), 1354.5);  // (30000 + 100) x 4.5%
    EXPECT_EQ(texto, "SNIS 4.5%");

    // Con descuentos, los haberes no se agregan, modifican ni borran.
    EXPECT_EQ(teclear("PEREZ, JUAN", 10, "5"),
              "Ya hay Descuentos ingresados, para Agregar un Haber deberá eliminar todos los "
              "Descuentos o usar el botón Reliq. por retro.");
    EXPECT_FALSE(total("PEREZ, JUAN", marzo, 10));
    EXPECT_EQ(teclear("PEREZ, JUAN", 30, "3"), mensajeHayDescuentos("Modificar"));
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 30), 100);
    EXPECT_EQ(eliminar("PEREZ, JUAN", 30), mensajeHayDescuentos("Eliminar"));
    EXPECT_TRUE(total("PEREZ, JUAN", marzo, 30));
    // Los descuentos sí.
    EXPECT_EQ(teclear("PEREZ, JUAN", 500, "", "250"), "");
    EXPECT_EQ(total("PEREZ, JUAN", marzo, 500), 250);

    // Con egresos en el mes nada se escribe; sin total tampoco.
    ejecutar(
        "INSERT INTO egresos (empresa, nombre, fecha, codigo, concepto, tipo, total) VALUES "
        "('ACME', 'GOMEZ, ANA', ?, 1, 'SUELDO', 'Hab', 100)",
        {marzo.primerDia().iso()});
    EXPECT_EQ(teclear("GOMEZ, ANA", 30, "1"),
              "El funcionario ya tiene liquidado conceptos en Egresos.");
    EXPECT_EQ(teclear("PEREZ, JUAN", 500, "", ""), "Debe completar el campo Total.");
    EXPECT_EQ(cuantas("nombre = 'GOMEZ, ANA'"), 0);
    EXPECT_EQ(teclear("PEREZ, JUAN", 999, ""),
              "El Código no existe, deberá 1ero ingresarlo en la ventana Conceptos y Fórmulas.");
}

}  // namespace
}  // namespace nomira::engine
