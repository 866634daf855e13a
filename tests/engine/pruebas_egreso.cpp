// La liquidación por egreso: los días del último mes, el aguinaldo hasta el
// egreso, la licencia no gozada de los dos años con su salario vacacional sobre
// el neto, las guardas con sus mensajes y una segunda pasada que deja lo
// tecleado.
#include <gtest/gtest.h>

#include <map>

#include "engine/calculos/egreso.h"
#include "engine/egreso/liquidacion_egreso.h"
#include "engine/mes/renglon.h"
#include "pruebas_descuentos_escenario.h"

namespace nomira::engine {
namespace {

using common::Fecha;

TEST(CuentasEgreso, DiasDelUltimoMesYLicenciaDelAnio) {
    EXPECT_EQ(diasDelUltimoMes(Fecha{2026, 3, 31}, Fecha{2020, 1, 1}), 30);
    EXPECT_EQ(diasDelUltimoMes(Fecha{2026, 3, 15}, std::nullopt), 15);
    EXPECT_EQ(diasDelUltimoMes(Fecha{2026, 2, 28}, std::nullopt), 30);  // último de febrero
    EXPECT_EQ(diasDelUltimoMes(Fecha{2024, 2, 28}, std::nullopt), 28);  // bisiesto: no es el último
    EXPECT_EQ(diasDelUltimoMes(Fecha{2024, 2, 29}, std::nullopt), 30);
    EXPECT_EQ(diasDelUltimoMes(Fecha{2026, 3, 20}, Fecha{2026, 3, 11}), 10);  // del 11 al 20

    EntradaLicenciaEgreso e;
    e.tiposueldo = "S";
    e.ingreso = Fecha{2015, 5, 1};
    e.egreso = Fecha{2026, 10, 31};
    e.diasextras = 2;
    e.faltas = 1;
    // 9 x 30 + 30 = 300 días: 300 x 20 / 360 = 16.6667, + 2 - 1.
    EXPECT_NEAR(licenciaDelAnioDelEgreso(e).dias, 17.666667, 1e-6);
    // Ingresó en el año: los días corridos desde el ingreso (CantidadDias2 del
    // 01/07 al 31/10: 0 + 31 + 31 + 30 + 31 = 123).
    e.ingreso = Fecha{2026, 7, 1};
    e.diasextras = 0;
    e.faltas = 0;
    EXPECT_NEAR(licenciaDelAnioDelEgreso(e).dias, 123.0 * 20 / 360, 1e-9);
    // Un jornalero: 150 días / 300 x 20 = 10, + 1.
    e.tiposueldo = "J";
    e.diasTrabajados = 150;
    e.diasextras = 1;
    EXPECT_EQ(licenciaDelAnioDelEgreso(e).dias, 11);
}

class Egreso : public pruebas::EscenarioMes {
  protected:
    void SetUp() override {
        EscenarioMes::SetUp();
        if (IsSkipped()) return;
        ejecutar("UPDATE conceptos SET aguinaldo = 'Si' WHERE codigo = 1");
        concepto(71, "LICENCIA NO GOZ AÑO ANTERIOR", "G", "0", "Hab", "I", "No", "Si", "Si");
        concepto(72, "LICENCIA NO GOZ AÑO ACTUAL", "G", "0", "Hab", "I", "No", "Si", "Si");
        concepto(600, "AGUINALDO", "G", "0", "Hab", "I", "No", "Si", "Si");
        concepto(606, "SALARIO VACACIONAL", "G", "0", "Hab", "I", "No", "No", "Si");
        concepto(70, "IPD", "G", "0", "Hab", "I", "No", "No", "No");
        // Ingresó en 2020 y egresa el 31/03/26: 5,83 años al 31/12/25, un día extra.
        persona("PEREZ, JUAN", {{"sueldo", "30000"},
                                {"tiposueldo", "S"},
                                {"fechaing", "2020-03-01"},
                                {"fechaeg", "2026-03-31"},
                                {"motivoeg", "Despido"},
                                {"antiguedad", "6.08"}});
        for (const auto& m : {common::Mes{2025, 12}, common::Mes{2026, 1}, common::Mes{2026, 2}})
            ejecutar(
                "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, gravado, "
                "aguinaldo, cant, total, lic, ipd) VALUES ('ACME', 'PEREZ, JUAN', ?, 1, 'SUELDO', "
                "'Hab', 'Si', 'Si', 1, 30000, 'No', 'Si')",
                {m.primerDia().iso()});
    }

    std::map<std::string, double> egresos() {
        std::map<std::string, double> m;
        for (const auto& f :
             base->consulta("SELECT concepto, total FROM egresos WHERE nombre = 'PEREZ, JUAN' AND "
                            "fecha = '2026-03-01'")
                 .filas)
            m[f.texto("concepto")] = f.real("total");
        return m;
    }
    ResultadoPersona pasada(bool descuentos = false) {
        return egresoDeUnaPersona(*base, "ACME", "PEREZ, JUAN", marzo, {1}, descuentos, dialogo);
    }
};
NOMIRA_PARA_CADA_MOTOR(Egreso);

TEST_P(Egreso, UnDespidoConSusDiasAguinaldoYLicencia) {
    ASSERT_TRUE(pasada().hecho) << dialogo.ultimoMensaje();
    const auto e = egresos();
    // El 31 cuenta 30: 30000 / 30 x 30.
    EXPECT_EQ(e.at("SUELDO"), 30000);
    // Diciembre a febrero 90000 más marzo 30000: 120000 / 12.
    EXPECT_EQ(e.at("AGUINALDO"), 10000);
    // 2025: 20 + 1 extra = 21 días de 1000 (30000 / 30, sin incidencias).
    EXPECT_EQ(e.at("LICENCIA NO GOZ AÑO ANTERIOR"), 21000);
    // 2026: 90 días (tres meses de 30) x 20 / 360 = 5, + 1 extra = 6 días.
    EXPECT_EQ(e.at("LICENCIA NO GOZ AÑO ACTUAL"), 6000);
    // Sobre el neto: gravado sin el aguinaldo 57000 pasa 2,5 BPC, SNIS 4,5%;
    // 27000 x (1 - (4,5 + 15 + 0,1) / 100) = 21708.
    EXPECT_EQ(e.at("SALARIO VACACIONAL"), 21708);
    // El despido con 6,08 años: CantIpd 6. Año móvil de 12 meses: incidencias
    // (SUELDO lleva ipd) 90000 / 12 = 7500; sueldo 30000; aguinaldo
    // 90000 / 12 / 12 = 625; sin antigüedad ni alimentación: 38125 x 6.
    EXPECT_EQ(e.at("IPD"), 228750);
    EXPECT_EQ(e.size(), 6u);
}

TEST_P(Egreso, SinDespidoNoHayIpdYSinIncidenciasElMontoEsMenor) {
    ejecutar("UPDATE personal SET motivoeg = 'Renuncia'");
    ASSERT_TRUE(pasada().hecho);
    EXPECT_FALSE(egresos().count("IPD"));
    // Vuelve a ser despido, sin incidencias: (30000 + 625) x 6; la pasada
    // anterior no deja su fila de IPD repetida.
    ejecutar("UPDATE personal SET motivoeg = 'Despido'");
    ASSERT_TRUE(
        egresoDeUnaPersona(*base, "ACME", "PEREZ, JUAN", marzo, {1, false}, false, dialogo).hecho);
    EXPECT_EQ(egresos().at("IPD"), 183750);
}

TEST_P(Egreso, MalaConductaPierdeElAguinaldoYGuardaLaLicencia) {
    ejecutar("UPDATE personal SET motivoeg = 'Cese por mala conducta'");
    ASSERT_TRUE(pasada().hecho);
    const auto e = egresos();
    EXPECT_FALSE(e.count("AGUINALDO"));
    EXPECT_EQ(e.at("LICENCIA NO GOZ AÑO ANTERIOR"), 21000);
    EXPECT_EQ(e.at("SALARIO VACACIONAL"), 21708);
}

TEST_P(Egreso, LasGuardasNoEscribenNada) {
    ejecutar("UPDATE personal SET antiguedad = ''");
    EXPECT_FALSE(pasada().hecho);
    EXPECT_EQ(dialogo.ultimoMensaje(), kFaltanDatosEgreso);

    ejecutar("UPDATE personal SET antiguedad = '6.08', fechaeg = '2026-04-02'");
    EXPECT_FALSE(pasada().hecho);
    EXPECT_EQ(dialogo.ultimoMensaje(), kMesDistintoDelEgreso);

    ejecutar("UPDATE personal SET fechaeg = '2026-03-31'");
    fila("PEREZ, JUAN", marzo, 30, "PREMIO", "Hab", 1, 100);
    EXPECT_FALSE(pasada().hecho);
    EXPECT_EQ(dialogo.ultimoMensaje(), kConHaberesDelMes);
    EXPECT_TRUE(egresos().empty());
}

TEST_P(Egreso, OtraPasadaReemplazaLoSuyoYDejaLoTecleado) {
    ASSERT_TRUE(pasada().hecho);
    ejecutar(
        "INSERT INTO egresos (empresa, nombre, fecha, codigo, concepto, tipo, gravado, cant, "
        "total) VALUES ('ACME', 'PEREZ, JUAN', '2026-03-01', 30, 'PREMIO', 'Hab', 'Si', 1, 500)");
    ejecutar("UPDATE personal SET sueldo = '33000'");
    ASSERT_TRUE(pasada(true).hecho);
    const auto e = egresos();
    EXPECT_EQ(e.at("PREMIO"), 500);
    EXPECT_EQ(e.at("SUELDO"), 33000);
    // Con descuentos: MONTEPIO 15% de los haberes gravados del egreso (no el
    // vacacional ni el IPD, que no lo son).
    const double gravado = base->consulta(
                                   "SELECT SUM(total) AS s FROM egresos WHERE tipo = "
                                   "'Hab' AND gravado = 'Si'")
                               .primera()
                               .real("s");
    EXPECT_EQ(gravado, e.at("SUELDO") + e.at("AGUINALDO") + e.at("LICENCIA NO GOZ AÑO ANTERIOR") +
                           e.at("LICENCIA NO GOZ AÑO ACTUAL") + e.at("PREMIO"));
    EXPECT_DOUBLE_EQ(e.at("MONTEPIO 15%"), gravado * 15 / 100);
}

// Un egreso en diciembre cierra el IRPF del año con los egresos.
TEST_P(Egreso, EnDiciembreElIrpfEsElCierreDelAnioConLosEgresos) {
    persona("DICIEMBRE, DORA", {{"sueldo", "60000"},
                                {"tiposueldo", "S"},
                                {"fechaing", "2020-03-01"},
                                {"fechaeg", "2026-12-31"},
                                {"motivoeg", "Renuncia"},
                                {"antiguedad", "6.83"}});
    for (int m = 1; m <= 11; ++m)
        ejecutar(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, gravado, "
            "aguinaldo, cant, total, lic, ipd) VALUES ('ACME', 'DICIEMBRE, DORA', ?, 1, 'SUELDO', "
            "'Hab', 'Si', 'Si', 1, 60000, 'No', 'Si')",
            {common::Mes{2026, m}.primerDia().iso()});
    const common::Mes diciembre{2026, 12};
    ASSERT_TRUE(
        egresoDeUnaPersona(*base, "ACME", "DICIEMBRE, DORA", diciembre, {1}, true, dialogo).hecho)
        << dialogo.ultimoMensaje();
    std::map<std::string, double> e;
    for (const auto& f : base->consulta("SELECT concepto, total FROM egresos WHERE nombre = "
                                        "'DICIEMBRE, DORA'")
                             .filas)
        e[f.texto("concepto").substr(0, 4)] += f.real("total");
    // Haberes: sueldo 60000; aguinaldo del semestre que empieza en diciembre,
    // 60000 / 12 = 5000; licencia 21 + 21 días de 2000 = 84000; vacacional
    // 84000 x (1 - 19,6%) = 67536. Gravado para los aportes (sin el vacacional):
    // 149000: MONTEPIO 22350, SNIS 4,5% 6705, FRL 149, en total 29204.
    EXPECT_EQ(e.at("MONT"), 22350);
    // El año: 11 x 60000 en habydesc + 216536 del egreso = 876536. Escala anual
    // (BPC 6864 x 12): 576576 al 0%, 247104 al 10% = 24710,40, 52856 al 15% =
    // 7928,40: 32638,80. Crédito 14% de los aportes 29204 = 4088,56 (876536 no
    // pasa 15 BPC x 12). 32638,80 - 4088,56 = 28550,24, sin nada retenido antes.
    EXPECT_EQ(e.at("IRPF"), 28550.24);
}

// Un por hora teclea sus horas en el egreso: van a egresos con sus jornadas, y
// la pasada las deja y avisa que se teclean a mano.
TEST_P(Egreso, LasFilasTecleadasDeUnPorHoraVanAEgresos) {
    persona("HORA, HUGO", {{"sueldo", "100"},
                           {"tiposueldo", "H"},
                           {"htrab", "8"},
                           {"fechaing", "2020-03-01"},
                           {"fechaeg", "2026-03-31"},
                           {"motivoeg", "Renuncia"},
                           {"antiguedad", "6.08"}});
    auto mp = mesDe("HORA, HUGO", marzo);
    ASSERT_TRUE(mp);
    mp->tabla = TablaLiquidacion::Egresos;
    refrescarDesglose(*mp, ctx);
    const auto b = buscarRenglon(*mp, ctx, 10, dialogo);
    ASSERT_TRUE(b);
    const auto c = calcularRenglon(*mp, ctx, b->concepto, "100", dialogo);
    ASSERT_TRUE(c);
    EXPECT_EQ(c->total.aDouble(), 10000);  // 100 horas de 100
    ASSERT_FALSE(guardarRenglon(*base, *mp, ctx, *c, "100", "10000", dialogo));
    const auto horas = [&](const char* tabla, long codigo) {
        const auto r = base->consulta(std::string("SELECT cant, total FROM ") + tabla +
                                          " WHERE nombre = 'HORA, HUGO' AND codigo = ?",
                                      {std::int64_t{codigo}});
        return r.vacio() ? -1.0 : r.primera().real("cant");
    };
    EXPECT_EQ(horas("egresos", 10), 100);
    EXPECT_EQ(horas("egresos", 12), 12.5);  // jornadas: 100 / 8
    EXPECT_EQ(horas("habydesc", 10), -1);

    ASSERT_TRUE(egresoDeUnaPersona(*base, "ACME", "HORA, HUGO", marzo, {1}, false, dialogo).hecho);
    EXPECT_NE(std::find_if(dialogo.mensajes.begin(), dialogo.mensajes.end(),
                           [](const auto& m) { return m.texto == kHorasManual; }),
              dialogo.mensajes.end());
    EXPECT_EQ(horas("egresos", 10), 100);
    EXPECT_EQ(horas("egresos", 12), 12.5);
}

}  // namespace
}  // namespace nomira::engine
