// Obras: sólo para la Construcción, el alta desde la lista, el número
// repetido y la búsqueda de una empresa que no existe.
#include <QTest>

#include "apoyo_pantallas.h"
#include "master/catalogos.h"
#include "master/empresas.h"
#include "master/obras.h"
#include "screens/obras/ficha_obra.h"
#include "screens/obras/pantalla_obras.h"

using namespace nomira;

namespace {

class Obras : public pruebas::PantallaAbierta {
  protected:
    void SetUp() override {
        PantallaAbierta::SetUp();
        master::agregarACatalogo(*sesion.base, "tipoaport", {"01-Industria y Comercio"});
        master::agregarACatalogo(*sesion.base, "tipoaport", {"04-Construcción"});
        for (const auto& [nombre, aporte] :
             {std::pair{"OBRADOR", "Construcción"}, {"TIENDA", "Industria y Comercio"}}) {
            master::Empresa e;
            e.empresa = nombre;
            e.tipoaport = aporte;
            master::agregarEmpresa(*sesion.base, e);
        }
        p = static_cast<pantallas::PantallaObras*>(abrir("Form291"));
    }
    pantallas::PantallaObras* p = nullptr;
};

TEST_F(Obras, AltaSoloParaConstruccion) {
    QTest::keyClick(p->empresa(), Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar el campo Empresa.");
    p->empresa()->setCurrentText("TIENDA");
    QTest::keyClick(p->empresa(), Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Las obras se cargan solamente para el rubro Construcción.");
    EXPECT_EQ(p->ficha(), nullptr);

    p->empresa()->setCurrentText("OBRADOR");
    QTest::keyClick(p->empresa(), Qt::Key_F5);
    auto* f = p->ficha();
    ASSERT_NE(f, nullptr);
    QApplication::setActiveWindow(f);
    EXPECT_EQ(f->windowTitle(), "Agregar Obra");
    EXPECT_FALSE(f->boton("Modificar")->isEnabled());
    f->campo("nroobra")->setText("15");
    f->campo("empresatitular")->setText("TITULAR SA");
    QTest::keyClick(f->campo("nroobra"), Qt::Key_F5);
    EXPECT_EQ(dialogo.preguntas.back(), "Agregar Obra|¿Desea continuar?");
    const auto o = master::leerObra(*sesion.base, "OBRADOR", "15");
    ASSERT_TRUE(o);
    EXPECT_EQ(o->formarealizacion, "0");  // sin opción marcada
    EXPECT_EQ(o->empresatitular, "TITULAR SA");
    EXPECT_EQ(p->nroObra()->currentText(), "15");
    EXPECT_EQ(p->grilla()->filas(), 1);
}

TEST_F(Obras, ModificarRepetidosYBuscar) {
    master::agregarObra(*sesion.base, {"OBRADOR", "9", "1", "", "", "", "", "", ""});
    p->empresa()->setCurrentText("OBRADOR");
    p->modificar();
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe seleccionar el campo NroObra.");
    p->nroObra()->setCurrentText("9");
    p->modificar();
    auto* f = p->ficha();
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->windowTitle(), "Modificar Obra");
    EXPECT_TRUE(f->formas()->button(1)->isChecked());
    f->formas()->button(3)->setChecked(true);
    f->modificar();
    EXPECT_EQ(master::leerObra(*sesion.base, "OBRADOR", "9")->formarealizacion, "3");

    master::agregarObra(*sesion.base, {"OBRADOR", "9", "2", "", "", "", "", "", ""});
    p->cargarNroObra();
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "El NroObra 9 está ingresado 2 veces, deberá cambiar uno de los 2 ya que el NroObra "
              "debe ser único.");

    p->empresa()->setCurrentText("NADIE");
    p->buscar();
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.");
    p->nroObra()->setCurrentText("");
    p->buscar();
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar los campos Empresa y NroObra.");
}

}  // namespace
