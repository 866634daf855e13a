// La ventana principal y las pantallas del marco, manejadas con el teclado.
#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "frame/arranque.h"
#include "frame/ingreso.h"
#include "frame/usuarios.h"
#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/ventana_principal.h"

using namespace nomira;

namespace {

class Ventana : public ::testing::Test {
protected:
    void SetUp() override {
        ventana::registrarPantallasDelMarco();
        sesion.base = frame::crearBaseNueva(tmp.archivo("n.db"), "ADMIN", "clave");
        frame::agregarUsuario(*sesion.base, "OPERADOR", "op", "3");
        sesion.dialogo = &dialogo;
        principal = std::make_unique<ventana::VentanaPrincipal>(sesion);
    }

    template <class T = QWidget>
    T* hijo(const char* nombre) { return principal->findChild<T*>(nombre); }

    // Entra por el menú tecleando usuario y password, con Enter en cada campo.
    void ingresar(const char* usuario, const char* password) {
        principal->ejecutar("Entraralprograma");
        auto* ingreso = hijo("Form14");
        ASSERT_NE(ingreso, nullptr);
        QTest::keyClicks(ingreso->findChild<QLineEdit*>("usuario"), usuario);
        QTest::keyClick(ingreso->findChild<QLineEdit*>("usuario"), Qt::Key_Return);
        QTest::keyClicks(ingreso->findChild<QLineEdit*>("password"), password);
        QTest::keyClick(ingreso->findChild<QLineEdit*>("password"), Qt::Key_Return);
    }

    void permitir(int check, bool si) {
        auto c = master::leerConfiguracion(*sesion.base);
        c.checks[check - 1] = si ? "1" : "0";
        master::guardarConfiguracion(*sesion.base, c);
    }

    pruebas::CarpetaTemporal tmp;
    pruebas::DialogoGuion dialogo;
    frame::Sesion sesion;
    std::unique_ptr<ventana::VentanaPrincipal> principal;
};

}  // namespace

TEST_F(Ventana, ElMenuTieneCadaEntradaDeLaTabla) {
    EXPECT_EQ(principal->objectName(), "Form1");
    EXPECT_EQ(principal->windowTitle(), "Nomira");
    for (const auto& e : frame::arbolMenu()) {
        if (e.accion == frame::Accion::Submenu) {
            ASSERT_NE(principal->menu(e.nombre), nullptr) << e.nombre;
            EXPECT_EQ(principal->menu(e.nombre)->title().toStdString(), e.titulo);
            continue;
        }
        auto* a = principal->accion(e.nombre);
        ASSERT_NE(a, nullptr) << e.nombre;
        EXPECT_EQ(a->text().toStdString(), e.titulo);
        // Sólo se habilita lo que ya tiene su pantalla.
        const bool hay = e.accion != frame::Accion::Pantalla || ventana::registroPantallas().count(e.pantalla);
        EXPECT_EQ(a->isEnabled(), hay) << e.nombre;
    }
    EXPECT_TRUE(principal->accion("FBasicasConfiguracion")->isEnabled());
    EXPECT_FALSE(principal->accion("FBasicasEmpresas")->isEnabled());
}

TEST_F(Ventana, LosMenusSeAbrenRecienDespuesDeIngresar) {
    EXPECT_FALSE(principal->menu("Configuracion")->menuAction()->isEnabled());
    EXPECT_FALSE(principal->menu("Utilidades")->menuAction()->isEnabled());
    EXPECT_TRUE(principal->menu("Entrar")->menuAction()->isEnabled());
    // Un atajo tampoco abre nada antes de ingresar.
    principal->ejecutar("FBasicasConfiguracion");
    EXPECT_EQ(hijo("Form13"), nullptr);

    ingresar("admin", "CLAVE");
    EXPECT_EQ(dialogo.mensajes.back().titulo, "Mensaje de advertencia");
    EXPECT_EQ(dialogo.ultimoMensaje(), "Usuario y Password correctos.");
    EXPECT_EQ(sesion.categoria, 1);
    EXPECT_TRUE(principal->menu("Configuracion")->menuAction()->isEnabled());
    principal->ejecutar("FBasicasConfiguracion");
    EXPECT_NE(hijo("Form13"), nullptr);
}

TEST_F(Ventana, ElIngresoAvisaLoQueFaltaYPermiteReintentar) {
    principal->ejecutar("Entraralprograma");
    auto* ingreso = hijo("Form14");
    auto* usuario = ingreso->findChild<QLineEdit*>("usuario");
    auto* password = ingreso->findChild<QLineEdit*>("password");
    QTest::keyClick(usuario, Qt::Key_Return);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar el campo USUARIO.");
    QTest::keyClicks(usuario, "ADMIN");
    QTest::keyClick(password, Qt::Key_Return);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar los campos USUARIO y PASSWORD.");
    QTest::keyClicks(password, "mala");
    QTest::keyClick(password, Qt::Key_Return);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Usuario y Password INCORRECTOS.");
    EXPECT_EQ(sesion.categoria, 0);
    EXPECT_TRUE(ingreso->isVisible());
    password->clear();
    QTest::keyClicks(password, "clave");
    QTest::keyClick(password, Qt::Key_Return);
    EXPECT_EQ(sesion.categoria, 1);
}

TEST_F(Ventana, SinPermisoElClicNoHaceNada) {
    ingresar("OPERADOR", "OP");
    ASSERT_EQ(sesion.categoria, 3);
    const auto avisos = dialogo.mensajes.size();
    permitir(13, false);  // categoría 3, Configuracion
    principal->ejecutar("FBasicasConfiguracion");
    EXPECT_EQ(hijo("Form13"), nullptr);
    EXPECT_EQ(dialogo.mensajes.size(), avisos);  // ni un mensaje
    // El permiso se lee en cada clic: abrirlo desde otra PC alcanza.
    permitir(13, true);
    principal->ejecutar("FBasicasConfiguracion");
    EXPECT_NE(hijo("Form13"), nullptr);
}

TEST_F(Ventana, ConfiguracionGuardaLaFilaTrasConfirmar) {
    ingresar("ADMIN", "CLAVE");
    auto* config = principal->abrirPantalla("Form13");
    auto* check10 = config->findChild<QCheckBox*>("check10");
    auto* usu3 = config->findChild<QLineEdit*>("usu3");
    ASSERT_TRUE(check10 && usu3);
    check10->setChecked(true);
    QTest::keyClicks(usu3, "NUEVO");
    QTest::keyClicks(config->findChild<QLineEdit*>("pas3"), "nueva");
    config->findChild<QComboBox*>("cat3")->setCurrentText("2");

    dialogo.respuestas = {false};
    QTest::mouseClick(config->findChild<QPushButton*>("Modificar"), Qt::LeftButton);
    EXPECT_EQ(dialogo.preguntas.back(), "Modificar configuracion|¿Desea continuar?");
    EXPECT_EQ(master::leerConfiguracion(*sesion.base).checks[9], "0");

    QTest::mouseClick(config->findChild<QPushButton*>("Modificar"), Qt::LeftButton);
    const auto c = master::leerConfiguracion(*sesion.base);
    EXPECT_EQ(c.checks[9], "1");
    EXPECT_EQ(frame::verificarIngreso(c, "nuevo", "NUEVA"), 2);
    // El administrador, que no se tocó, conserva su password.
    EXPECT_EQ(frame::verificarIngreso(c, "ADMIN", "clave"), 1);
}

TEST_F(Ventana, ConfiguracionRechazaUnUsuarioQueNoPodriaEntrar) {
    ingresar("ADMIN", "CLAVE");
    auto* config = principal->abrirPantalla("Form13");
    auto* usu3 = config->findChild<QLineEdit*>("usu3");
    auto* pas3 = config->findChild<QLineEdit*>("pas3");
    ASSERT_TRUE(usu3 && pas3);
    config->findChild<QComboBox*>("cat3")->setCurrentText("2");
    auto modificar = [&](const char* usuario, const char* password) {
        usu3->clear();
        pas3->clear();
        QTest::keyClicks(usu3, usuario);
        QTest::keyClicks(pas3, password);
        QTest::mouseClick(config->findChild<QPushButton*>("Modificar"), Qt::LeftButton);
        return master::leerConfiguracion(*sesion.base).usuarios[2].usu;
    };

    EXPECT_EQ(modificar("Nuevo", "nueva"), "");
    EXPECT_EQ(dialogo.ultimoMensaje(), frame::kUsuarioMezclado);
    EXPECT_EQ(modificar("NUEVO", "Nueva"), "");
    EXPECT_EQ(dialogo.ultimoMensaje(), frame::kPasswordMezclado);
    EXPECT_EQ(modificar("nuevo", "nueva"), "nuevo");
    EXPECT_EQ(frame::verificarIngreso(master::leerConfiguracion(*sesion.base), "NUEVO", "NUEVA"),
              2);
}

TEST_F(Ventana, EscPreguntaAntesDeSalir) {
    principal->show();
    dialogo.respuestas = {false};
    QTest::keyClick(principal.get(), Qt::Key_Escape);
    EXPECT_EQ(dialogo.preguntas.back(), "Salir del programa|¿Desea salir del programa?");
    EXPECT_TRUE(principal->isVisible());
    QTest::keyClick(principal.get(), Qt::Key_Escape);
    EXPECT_FALSE(principal->isVisible());
}
