// Form70 y Form76 con el teclado y Generar: la traza del motor en la caja, con
// las opciones del IPD, y los avisos de los campos que faltan.
#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QRadioButton>

#include "engine/egreso/incidencias_licencia.h"
#include "engine/egreso/ipd.h"
#include "pantallas/apoyo_pantallas.h"

using namespace nomira;

namespace {

class PantallaIncidencias : public pruebas::EmpresaAcme {
  protected:
    void SetUp() override {
        EmpresaAcme::SetUp();
        // Despedida con 5.01 años y sin filas: el mes es el sueldo solo.
        sql("INSERT INTO personal (empresa, nombre, sueldo, tiposueldo, fechaing, fechaeg, "
            "motivoeg, antiguedad) VALUES ('ACME', 'PEREZ, JUAN', '30000', 'S', '2011-07-01', "
            "'2026-03-15', 'Despido', '5.01')");
    }
    void elegir(const char* fecha) {
        teclear("Combo1", "ACME");
        teclear("Combo2", "PEREZ, JUAN");
        teclear("Text1", fecha);
    }
    std::string caja() { return w<QPlainTextEdit>("Text")->toPlainText().toStdString(); }
};

TEST_F(PantallaIncidencias, IpdConLicenciaTecleadaYSinIncidencias) {
    abrir("Form70");
    pulsar("Generar");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kFaltanCamposIpd);

    elegir("150326");
    teclear("Text2", "1000,5");
    w<QRadioButton>("Option5")->setChecked(true);
    dialogo.mensajes.clear();
    pulsar("Generar");
    EXPECT_TRUE(dialogo.mensajes.empty()) << dialogo.ultimoMensaje();
    // 30000 + 1000.50 de licencia = 31000.50; seis sueldos: 186003.
    const auto texto = caja();
    EXPECT_NE(texto.find("+ Licencia: 1,000.50 + SalVacacional: 0.00 = MontoIpd: 31,000.50\n"),
              std::string::npos)
        << texto;
    EXPECT_NE(texto.find("\nCantIpd: 6\nTotalIpd: 186,003.00"), std::string::npos) << texto;
    EXPECT_EQ(texto.find('\r'), std::string::npos);

    // Otra fecha: el aviso, y la caja queda vacía.
    teclear("Text1", "140326");
    pulsar("Generar");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kFechaIpdDistinta);
    EXPECT_TRUE(caja().empty());
}

TEST_F(PantallaIncidencias, LicenciaDeLosDiasPendientes) {
    abrir("Form76");
    pulsar("Generar");
    EXPECT_EQ(dialogo.ultimoMensaje(), engine::kFaltanCamposLicencia);

    // Ingresó en 2011: 20 + 3 días extras; el día vale 30000 / 30 = 1000.
    elegir("151125");
    dialogo.mensajes.clear();
    pulsar("Generar");
    EXPECT_TRUE(dialogo.mensajes.empty()) << dialogo.ultimoMensaje();
    EXPECT_EQ(caja(),
              "El año de ingreso < año anterior\n"
              "20 días generados año ant. + 3 días extras por antig. - 0 faltas = 23\n"
              "Licencia: (jornal 1,000.00) x 23 días = 23,000.00\n");
}

}  // namespace
