// Las piezas comunes de las pantallas: fechas con barra automática, Enter que avanza o
// se detiene, el combo de catálogo con "*", y la impresión a PDF.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <fstream>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "frame/arranque.h"
#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/combo_catalogo.h"
#include "frame/ventana/impresion.h"
#include "frame/ventana/pantalla.h"
#include "frame/ventana/registro_pantallas.h"

using namespace nomira;

namespace {

// Una pantalla mínima con tres campos, el del medio una fecha que se valida al dar Enter.
class PantallaDePrueba : public ventana::Pantalla {
  public:
    explicit PantallaDePrueba(frame::Sesion& s) : Pantalla(s, "Form99", "Prueba") {
        auto* capa = new QVBoxLayout(lienzo());
        for (auto* w : {primero, static_cast<QLineEdit*>(fecha), ultimo}) capa->addWidget(w);
        alPulsarEnter(fecha, [this] {
            if (fecha->formatoValido()) return true;
            advertir(ventana::kFormatoFecha);
            return false;
        });
    }
    QLineEdit* primero = new QLineEdit;
    ventana::CampoFecha* fecha = new ventana::CampoFecha;
    QLineEdit* ultimo = new QLineEdit;
};

}  // namespace

TEST(Kit, EnterAvanzaYLaFechaMalFormadaDetiene) {
    pruebas::CarpetaTemporal tmp;
    pruebas::DialogoGuion dialogo;
    frame::Sesion sesion;
    sesion.dialogo = &dialogo;
    PantallaDePrueba p(sesion);
    p.show();
    QApplication::setActiveWindow(&p);
    p.primero->setFocus();
    QTest::keyClick(p.primero, Qt::Key_Return);
    EXPECT_TRUE(p.fecha->hasFocus());

    QTest::keyClicks(p.fecha, "310126");  // las barras las pone el campo
    EXPECT_EQ(p.fecha->text(), "31/01/26");
    QTest::keyClick(p.fecha, Qt::Key_Return);
    EXPECT_TRUE(p.ultimo->hasFocus());

    p.fecha->setText("3/1/2026");
    p.fecha->setFocus();
    QTest::keyClick(p.fecha, Qt::Key_Return);
    EXPECT_TRUE(p.fecha->hasFocus());
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Los campos de tipo fecha deben tener el formato: dd/mm/aa.");
    EXPECT_EQ(dialogo.mensajes.back().titulo, "Mensaje de advertencia");
}

TEST(Kit, AsteriscoAbreElCatalogoYAlCerrarloRecarga) {
    pruebas::CarpetaTemporal tmp;
    frame::Sesion sesion;
    std::vector<std::string> paises = {"URUGUAY"};
    QWidget* abierta = nullptr;
    ventana::registroPantallas()["Form32"] = [&](frame::Sesion&, QWidget* padre) {
        abierta = new QWidget(padre, Qt::Window);
        return abierta;
    };
    ventana::ComboCatalogo combo(sesion, "Form32", [&] { return paises; });
    EXPECT_EQ(combo.count(), 2);  // la línea vacía y URUGUAY
    combo.setCurrentText("ARG");
    QTest::keyClick(&combo, Qt::Key_Asterisk);
    ASSERT_NE(abierta, nullptr);
    paises.push_back("ARGENTINA");  // lo que el usuario agregó en el catálogo
    abierta->close();
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.currentText(), "ARG");  // lo escrito se conserva
    ventana::registroPantallas().erase("Form32");
}

TEST(Kit, ElInformeSaleEnPdfConUnaPaginaPorCadaTanda) {
    pruebas::CarpetaTemporal tmp;
    std::vector<std::string> lineas;
    for (int i = 0; i < 150; ++i) lineas.push_back("Línea " + std::to_string(i));
    const auto ruta = tmp.ruta() / "informe.pdf";
    ventana::escribirPdf(lineas, {"", "Courier New", 10}, ruta);
    std::ifstream f(ruta, std::ios::binary);
    const std::string pdf((std::istreambuf_iterator<char>(f)), {});
    ASSERT_TRUE(pdf.starts_with("%PDF"));
    // 150 líneas de 10 puntos no caben en una hoja: el árbol de páginas cuenta más de una.
    const auto cuenta = pdf.find("/Count ");
    ASSERT_NE(cuenta, std::string::npos);
    EXPECT_GE(std::stoi(pdf.substr(cuenta + 7)), 2);
    EXPECT_LE(std::stoi(pdf.substr(cuenta + 7)), 4);
}
