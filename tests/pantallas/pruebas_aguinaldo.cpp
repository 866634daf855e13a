// Form43 con el teclado y sus botones: el aguinaldo de junio de una persona
// (haberes por mes, descuentos y cifras), la segunda actividad, la corrida de
// la empresa y los campos que faltan.
#include <gtest/gtest.h>

#include <QRadioButton>

#include "engine/aguinaldo/aguinaldo.h"
#include "pantallas/apoyo_pantallas.h"

using namespace nomira;

namespace {

class PantallaAguinaldo : public pruebas::EmpresaAcme {
  protected:
    void SetUp() override {
        EmpresaAcme::SetUp();
        // Seis meses de 30000 que generan aguinaldo: 180000 / 12 = 15000.
        persona("PEREZ, JUAN", "1", "30000", "2020-01-01");
        for (const char* fecha :
             {"2025-12-01", "2026-01-01", "2026-02-01", "2026-03-01", "2026-04-01", "2026-05-01"})
            sql("INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, gravado, "
                "aguinaldo, cant, total, ipd) VALUES ('ACME', 'PEREZ, JUAN', ?, 1, 'SUELDO', "
                "'Hab', 'Si', 'Si', 1, 30000, 'Si')",
                {std::string(fecha)});
        abrir("Form43");
    }
    void abrirJunio() {
        teclear("empresa", "ACME");
        teclear("mes", "0626");
        teclear("nombre", "PEREZ, JUAN");
    }
};

TEST_F(PantallaAguinaldo, JunioDeUnaPersonaConSusDescuentosYLaSegundaActividad) {
    abrirJunio();
    pulsar("HabPerm");
    EXPECT_EQ(columna("haberes", 0),
              (std::vector<std::string>{"12", "01", "02", "03", "04", "05"}));
    EXPECT_EQ(columna("haberes", 3)[0], "30,000.00");
    EXPECT_EQ(texto("sumademeses"), "180,000.00");
    EXPECT_EQ(texto("aguinaldo"), "15,000.00");

    // MONTEPIO 15% 2250, SNIS 3% 450, FRL 0.1% 15, IRPF 0: 2715; líquido 12285.
    pulsar("DescPerm");
    EXPECT_EQ(columna("descuentos", 0).size(), 4u);
    EXPECT_EQ(texto("totaldes"), "2,715.00");
    EXPECT_EQ(texto("liquidoacobrar"), "12,285.00");

    // La segunda actividad: seis meses en 0 y los descuentos se van.
    w<QRadioButton>("Option2")->setChecked(true);
    pulsar("HabPerm");
    EXPECT_EQ(columna("haberes", 0).size(), 12u);
    EXPECT_TRUE(columna("descuentos", 0).empty());
    EXPECT_EQ(texto("aguinaldo"), "15,000.00");

    // Toda la empresa, con la actividad elegida (la segunda).
    dialogo.mensajes.clear();
    pulsar("ActAguinxEmpresa");
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Actualización finalizada.\n1 persona liquidada del mes 06/26.");
    EXPECT_EQ(texto("totaldes"), "2,715.00");
}

TEST_F(PantallaAguinaldo, SinPersonaNiEmpresaLoDice) {
    pulsar("HabPerm");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kFaltanCamposHaberesAguinaldo);
    pulsar("DescPerm");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kFaltanCamposDescuentosAguinaldo);
    pulsar("ActAguinxEmpresa");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kFaltaEmpresa);
    EXPECT_EQ(sesion.base->consulta("SELECT COUNT(*) AS n FROM aguinaldos").primera().entero("n"),
              0);
}

}  // namespace
