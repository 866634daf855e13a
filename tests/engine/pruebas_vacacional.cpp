// El salario vacacional tecleado por código: el único haber posible, los
// descuentos libres, la fórmula con los valores de esta pantalla, IRP e IRPF
// sobre el vacacional con su texto, las cifras de abajo, la baja con su
// pregunta, y lo que la liquidación del mes ve de estas filas.
#include <gtest/gtest.h>

#include "common/numeros.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/renglon.h"
#include "engine/vacacional/desglose_vacacional.h"
#include "engine/vacacional/renglon_vacacional.h"
#include "pruebas_descuentos_escenario.h"

namespace nomira::engine {
namespace {

using common::Dinero;

class Vacacional : public pruebas::EscenarioMes {
  protected:
    void SetUp() override {
        EscenarioMes::SetUp();
        if (IsSkipped()) return;
        concepto(606, "SALARIO VACACIONAL", "G", "[SUELDO]/30*[CANT]", "Hab", "I", "No", "No",
                 "Si");
        concepto(636, "SALARIO VACACIONAL 2DA ACT", "G", "[SUELDO]/30*[CANT]/2", "Hab", "I", "No",
                 "No", "Si");
        concepto(704, "IRP", "G", "", "Des", "I", "No", "", "");
    }

    // Buscar, Enter en la cantidad y Enter en el total, como en la pantalla.
    // Devuelve el mensaje que lo impidió, o "" si se guardó.
    std::string teclear(const std::string& nombre, long codigo, const std::string& cant,
                        std::optional<std::string> total = std::nullopt,
                        const std::string& desde = "", const std::string& hasta = "") {
        auto r =
            buscarVacacional(*base, {"ACME", nombre, marzo, std::to_string(codigo)}, ctx, dialogo);
        if (!r.buscado) return dialogo.ultimoMensaje();
        ultimo = calcularVacacional(*r.buscado, ctx, cant, dialogo);
        const CasillasVacacional c{common::numeroATexto(ultimo.cant),
                                   total.value_or(common::numeroATexto(ultimo.total.aDouble())),
                                   desde, hasta};
        return guardarVacacional(*base, *r.buscado, ctx, c, dialogo).value_or("");
    }

    // La fila del código en salvacacional: "texto|cant|total|desde|hasta", o "nada".
    std::string fila(long codigo) {
        const auto r = base->consulta(
            "SELECT concepto, cant, total, desdelic, hastalic FROM salvacacional WHERE codigo = ?",
            {std::int64_t{codigo}});
        EXPECT_LE(r.filas.size(), 1u) << "código " << codigo;
        if (r.vacio()) return "nada";
        const auto& f = r.primera();
        return f.texto("concepto") + "|" + common::numeroATexto(f.real("cant")) + "|" +
               common::numeroATexto(f.real("total")) + "|" + f.texto("desdelic") + "|" +
               f.texto("hastalic");
    }

    std::string explicacion(long codigo) {
        const auto r = base->consulta(
            "SELECT texto FROM explicaciones WHERE tabla = 'salvacacional' AND codigo = ?",
            {std::int64_t{codigo}});
        return r.vacio() ? "nada" : r.primera().texto("texto");
    }

    DesgloseVacacional desglose(const std::string& nombre) {
        auto mp = mesDe(nombre, marzo);
        return desgloseVacacional(*mp, ctx, dialogo);
    }

    void filaVacacional(const std::string& nombre, long codigo, const std::string& concepto,
                        double total) {
        ejecutar(
            "INSERT INTO salvacacional (empresa, nombre, fecha, codigo, concepto, unidad, cant, "
            "total) VALUES ('ACME', ?, ?, ?, ?, 'I', 1, ?)",
            {nombre, marzo.primerDia().iso(), std::int64_t{codigo}, concepto, total});
    }

    CalculoVacacional ultimo;
};
NOMIRA_PARA_CADA_MOTOR(Vacacional);

TEST_P(Vacacional, ElUnicoHaberEsElSalarioVacacionalYLosDescuentosVanLibres) {
    persona("PEREZ, JUAN", {{"sueldo", "30000"}, {"tiposueldo", "S"}});
    // Un SUELDO del mes que la pantalla no mira: LIQUIDONETO y MONTOGRAV son
    // los del vacacional.
    EscenarioMes::fila("PEREZ, JUAN", marzo, 1, "SUELDO", "Hab", 1, 30000);

    // 30000 / 30 x 10 = 10000, con su período.
    ASSERT_EQ(teclear("PEREZ, JUAN", 606, "10", std::nullopt, "01/03/26", "10/03/26"), "");
    EXPECT_EQ(fila(606), "SALARIO VACACIONAL|10|10000|2026-03-01|2026-03-10");
    EXPECT_EQ(explicacion(606),
              "Fórmula [SUELDO]/30*[CANT] = 30000/30*10 con cantidad 10: 10,000.00.");
    // La segunda actividad con la cantidad vacía: 1 día, 30000 / 30 / 2 = 500.
    ASSERT_EQ(teclear("PEREZ, JUAN", 636, ""), "");
    EXPECT_EQ(fila(636), "SALARIO VACACIONAL 2DA ACT|1|500||");

    // Otro haber no entra, calculado o tecleado.
    EXPECT_EQ(teclear("PEREZ, JUAN", 30, "2"), kUnicoHaberVacacional);
    EXPECT_EQ(teclear("PEREZ, JUAN", 20, "5", "1000"), kUnicoHaberVacacional);
    EXPECT_EQ(fila(30), "nada");
    EXPECT_EQ(fila(20), "nada");

    // Un descuento sí, sobre el líquido del vacacional: 10500 x 1% = 105.
    ASSERT_EQ(teclear("PEREZ, JUAN", 520, ""), "");
    EXPECT_EQ(fila(520), "CUOTA SINDICAL|1|105||");
    // Un total tecleado reemplaza al calculado y lo dice. El cálculo de nuevo
    // mira el líquido de la pantalla, que ya resta los 105 de esta misma fila:
    // 10395 x 1% = 103.95.
    ASSERT_EQ(teclear("PEREZ, JUAN", 520, "", "250.5"), "");
    EXPECT_EQ(fila(520), "CUOTA SINDICAL|1|250.5||");
    EXPECT_EQ(explicacion(520),
              "Fórmula [LIQUIDONETO]*1/100 = 10395*1/100 con cantidad 1: 103.95. Total tecleado: "
              "250.50.");

    // Modificar reemplaza la fila; el período vacío se va, uno que no es fecha
    // no deja nada escrito.
    ASSERT_EQ(teclear("PEREZ, JUAN", 606, "12"), "");
    EXPECT_EQ(fila(606), "SALARIO VACACIONAL|12|12000||");
    EXPECT_EQ(teclear("PEREZ, JUAN", 606, "3", std::nullopt, "31/02/26", ""),
              "El campo Desde debe tener una fecha que exista, con el formato dd/mm/aa: "
              "\"31/02/26\" no lo es.");
    EXPECT_EQ(teclear("PEREZ, JUAN", 606, "3", ""), kFaltaTotal);
    EXPECT_EQ(fila(606), "SALARIO VACACIONAL|12|12000||");
}

TEST_P(Vacacional, BuscarControlaEnOrdenYCargaLaFila) {
    persona("GOMEZ, ANA", {{"sueldo", ""}, {"tiposueldo", "J"}, {"htrab", "8"}});
    const auto buscar = [&](ClaveVacacional c) { return buscarVacacional(*base, c, ctx, dialogo); };
    EXPECT_FALSE(buscar({"ACME", "GOMEZ, ANA", std::nullopt, "606"}).buscado);
    EXPECT_EQ(dialogo.ultimoMensaje(), kFaltanCamposVacacional);
    EXPECT_FALSE(buscar({"NADIE", "GOMEZ, ANA", marzo, "606"}).buscado);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.");
    EXPECT_FALSE(buscar({"ACME", "NADIE", marzo, "606"}).buscado);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "El Nombre del Personal no existe en esta Empresa, deberá 1ero ingresarlo en la "
              "ventana Personal.");
    const auto sinCodigo = buscar({"ACME", "GOMEZ, ANA", marzo, "999"});
    EXPECT_FALSE(sinCodigo.buscado);
    EXPECT_TRUE(sinCodigo.limpiarCasillas);
    EXPECT_EQ(dialogo.ultimoMensaje(), master::kCodigoInexistente);

    // Un sueldo vacío es 0: la fórmula da 0 sin ningún aviso.
    dialogo.mensajes.clear();
    ASSERT_EQ(teclear("GOMEZ, ANA", 606, "10"), "");
    EXPECT_TRUE(dialogo.mensajes.empty()) << dialogo.ultimoMensaje();
    EXPECT_EQ(fila(606), "SALARIO VACACIONAL|10|0||");

    // Con la fila guardada, Buscar la trae para Modificar.
    ASSERT_EQ(teclear("GOMEZ, ANA", 606, "10", "1234.5", "02/03/26", "11/03/26"), "");
    auto r = buscar({"ACME", "GOMEZ, ANA", marzo, "606"});
    ASSERT_TRUE(r.buscado);
    EXPECT_TRUE(r.buscado->existe);
    EXPECT_EQ(r.buscado->textoCant, "10");
    EXPECT_EQ(r.buscado->textoTotal, "1234.5");
    EXPECT_EQ(r.buscado->desdelic, "02/03/26");
    EXPECT_EQ(r.buscado->hastalic, "11/03/26");
    EXPECT_EQ(r.buscado->persona.sueldo, 0);
    EXPECT_EQ(r.buscado->persona.tiposueldo, "J");
    EXPECT_EQ(r.buscado->persona.htrab, 8);
    EXPECT_FALSE(buscar({"ACME", "GOMEZ, ANA", marzo, "636"}).buscado->existe);
}

TEST_P(Vacacional, IrpEIrpfSobreElVacacionalConSuTexto) {
    // Un hijo: BPC x 20 / 12 = 6864 x 20 / 12 = 11440 de deducción.
    persona("RUIZ, LUIS", {{"sueldo", "300000"}, {"tiposueldo", "S"}, {"causaben", "01-Hijo"}});
    // Un aporte del mes en habydesc: aquí no se deduce.
    EscenarioMes::fila("RUIZ, LUIS", marzo, 501, "MONTEPIO 15%", "Des", 1, 1000);
    // 300000 / 30 x 12 = 120000.
    ASSERT_EQ(teclear("RUIZ, LUIS", 606, "12"), "");

    // Escala sobre 120000 (BPC 6864): 48048 al 0%, 20592 al 10% = 2059.20,
    // 34320 al 15% = 5148, y los 17040 que quedan al 24% = 4089.60; bruto
    // 11296.80. El crédito mira el vacacional, 120000, que pasa 15 BPC
    // (102960): 8% de 11440 = 915.20. IRPF 11296.80 - 915.20 = 10381.60. El
    // texto lleva la base: 4 blancos, "120,000.00" en 10 y 6 blancos.
    ASSERT_EQ(teclear("RUIZ, LUIS", 510, ""), "");
    EXPECT_EQ(fila(510), "IRPF    120,000.00      |1|10381.6||");
    ASSERT_TRUE(ultimo.irpf);
    EXPECT_EQ(ultimo.irpf->irpfbruto, Dinero::desdeDouble(11296.8));
    EXPECT_EQ(ultimo.irpf->credito, Dinero::desdeDouble(915.2));

    // IRP: 120000 / 6864 = 17.5 BPC, franja 4 (24%); la anterior termina en
    // 15 BPC con neto 102960 x 0.85 = 87516; 120000 x 0.76 = 91200 lo pasa:
    // 120000 x 24% = 28800.
    ASSERT_EQ(teclear("RUIZ, LUIS", 704, ""), "");
    EXPECT_EQ(fila(704), "IRP  120,000 -   28,800|1|28800||");

    // Sin vacacional no hay impuesto y el nombre queda como está.
    persona("SOSA, EVA", {{"sueldo", "30000"}});
    ASSERT_EQ(teclear("SOSA, EVA", 510, ""), "");
    const auto r = base->consulta(
        "SELECT concepto, total FROM salvacacional WHERE nombre = 'SOSA, EVA' AND codigo = 510");
    EXPECT_EQ(r.primera().texto("concepto"), "IRPF");
    EXPECT_EQ(r.primera().real("total"), 0);
}

TEST_P(Vacacional, DesgloseConLosCodigosDelIrpfYElLiquidoSinNegativos) {
    persona("RUIZ, LUIS", {{"sueldo", "30000"}, {"causaben", "01-Hijo"}});
    EscenarioMes::fila("RUIZ, LUIS", marzo, 501, "MONTEPIO 15%", "Des", 1, 1000);
    // Sin filas, todo en cero.
    auto d = desglose("RUIZ, LUIS");
    EXPECT_EQ(d.haberes, Dinero());
    EXPECT_EQ(d.deducciones, Dinero());
    EXPECT_EQ(d.liquido, Dinero());

    filaVacacional("RUIZ, LUIS", 606, "SALARIO VACACIONAL", 10000);
    filaVacacional("RUIZ, LUIS", 636, "SALARIO VACACIONAL 2DA ACT", 4000);
    // Un haber vacacional con otro código: suma al haber, no a la base del IRPF.
    filaVacacional("RUIZ, LUIS", 607, "SALARIO VACACIONAL", 1000);
    // La tercera actividad no es haber aquí: descuenta.
    filaVacacional("RUIZ, LUIS", 666, "SALARIO VACACIONAL 3RA ACT", 500);
    filaVacacional("RUIZ, LUIS", 510, "IRPF", 300);
    filaVacacional("RUIZ, LUIS", 712, "RET. JUD. S/VAC", 2000);
    d = desglose("RUIZ, LUIS");
    EXPECT_EQ(d.haberes, Dinero::desdeDouble(15000));    // 10000 + 4000 + 1000
    EXPECT_EQ(d.montoirpf, Dinero::desdeDouble(14000));  // 606 y 636
    EXPECT_EQ(d.descuentos, Dinero::desdeDouble(2800));  // 500 + 300 + 2000
    EXPECT_EQ(d.irpf, Dinero::desdeDouble(300));
    // La deducción del hijo, 11440, sin el MONTEPIO del mes de habydesc.
    EXPECT_EQ(d.deducciones, Dinero::desdeDouble(11440));
    EXPECT_EQ(d.liquido, Dinero::desdeDouble(12200));  // 15000 - 2800

    // Una segunda fila de IRPF suma otra vez las deducciones; los descuentos
    // pasan a los haberes y el líquido queda en 0.
    filaVacacional("RUIZ, LUIS", 511, "IRPF 2", 20000);
    d = desglose("RUIZ, LUIS");
    EXPECT_EQ(d.deducciones, Dinero::desdeDouble(22880));
    EXPECT_EQ(d.descuentos, Dinero::desdeDouble(22800));
    EXPECT_EQ(d.liquido, Dinero());
}

TEST_P(Vacacional, EliminarPreguntaYSeLlevaLaExplicacion) {
    persona("PEREZ, JUAN", {{"sueldo", "30000"}});
    ASSERT_EQ(teclear("PEREZ, JUAN", 606, "10"), "");
    ASSERT_EQ(teclear("PEREZ, JUAN", 520, ""), "");
    auto r = buscarVacacional(*base, {"ACME", "PEREZ, JUAN", marzo, "606"}, ctx, dialogo);
    ASSERT_TRUE(r.buscado);

    dialogo.respuestas = {false};
    EXPECT_EQ(eliminarVacacional(*base, *r.buscado, ctx, dialogo), "");
    EXPECT_EQ(dialogo.preguntas.back(), "Eliminar Haber|¿Desea continuar?");
    EXPECT_EQ(fila(606), "SALARIO VACACIONAL|10|10000||");

    dialogo.respuestas = {true};
    EXPECT_EQ(eliminarVacacional(*base, *r.buscado, ctx, dialogo), std::nullopt);
    EXPECT_EQ(fila(606), "nada");
    EXPECT_EQ(explicacion(606), "nada");
    EXPECT_FALSE(r.buscado->existe);
    // La otra fila sigue con su explicación.
    EXPECT_EQ(fila(520), "CUOTA SINDICAL|1|100||");
    EXPECT_NE(explicacion(520), "nada");
}

TEST_P(Vacacional, LaLiquidacionDelMesVeLasFilasDelVacacional) {
    persona("PEREZ, JUAN", {{"sueldo", "70000"}, {"tiposueldo", "S"}});
    EscenarioMes::fila("PEREZ, JUAN", marzo, 1, "SUELDO", "Hab", 1, 70000);
    const auto irpfDelMes = [&] {
        auto mp = mesDe("PEREZ, JUAN", marzo);
        return std::make_pair(mp->desglose.montoirpf, calcularImpuesto(*mp, ctx, "IRPF", dialogo));
    };
    // Sin vacacional: 70000 pasa 10 BPC (68640), más 6% = 74200. Escala:
    // 20592 al 10% = 2059.20 y 5560 al 15% = 834: 2893.20.
    auto [monto, irpf] = irpfDelMes();
    EXPECT_EQ(monto, Dinero::desdeDouble(74200));
    EXPECT_EQ(irpf.total, Dinero::desdeDouble(2893.2));

    // 70000 / 30 x 8 = 18666.67 de vacacional y un IRPF tecleado de 500 en él.
    ASSERT_EQ(teclear("PEREZ, JUAN", 606, "8"), "");
    ASSERT_EQ(teclear("PEREZ, JUAN", 510, "", "500"), "");
    // M.Irpf: 18666.6667 + 70000 + 4200 = 92866.6667. Escala: 2059.20 +
    // 24226.6667 x 15% = 3634 → 5693.20; menos los 500 del vacacional.
    std::tie(monto, irpf) = irpfDelMes();
    EXPECT_EQ(monto, Dinero::desdeDouble(92866.6667));
    EXPECT_EQ(irpf.total, Dinero::desdeDouble(5193.2));
    EXPECT_EQ(irpf.concepto, "IRPF   5,693-       0-SV");
}

}  // namespace
}  // namespace nomira::engine
