// Lo que toda pantalla hereda: el título de un cuadro también dentro del cuadro y en
// negrita, No por defecto en lo que borra; cada pantalla del registro cabe en un
// escritorio de 1366x768 con su barra de tareas y, si el escritorio es más chico, se
// recorre con barras; F1 abre la página de ayuda de la pantalla.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QTimer>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "frame/arranque.h"
#include "frame/ventana/dialogo_qt.h"
#include "frame/ventana/pantalla.h"
#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/ventana_ayuda.h"
#include "screens/registro.h"
#include "ventana/apoyo_registradas.h"

using namespace nomira;

namespace {

// Cómo se veía un cuadro modal cuando se lo respondió con Enter.
struct CuadroVisto {
    QString texto, titulo;
    QString botonPorDefecto;
};

}  // namespace

TEST(DialogoQt, ElTituloVaEnNegritaDentroYLoQueBorraRespondeNoConEnter) {
    ventana::DialogoQt dialogo(nullptr);
    const std::string largo = "La fecha corresponde a la liquidación de SETIEMBRE/26";
    auto visto = std::make_shared<CuadroVisto>();
    auto mirar = [visto] {
        QTimer::singleShot(0, [visto] {
            auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(caja, nullptr);
            visto->texto = caja->text();
            visto->titulo = caja->windowTitle();
            visto->botonPorDefecto = caja->defaultButton() ? caja->defaultButton()->text() : "";
            QTest::keyClick(caja, Qt::Key_Return);
        });
    };
    mirar();
    EXPECT_TRUE(dialogo.confirmar(largo, "¿Desea continuar?", true));
    EXPECT_EQ(visto->titulo.toStdString(), largo);
    EXPECT_TRUE(visto->texto.contains("<b>" + QString::fromStdString(largo) + "</b>"))
        << visto->texto.toStdString();
    EXPECT_TRUE(visto->texto.indexOf("<b>") < visto->texto.indexOf("¿Desea continuar?"));

    // Borrar con Enter no borra: el botón por defecto es No aunque se pida Sí.
    mirar();
    EXPECT_FALSE(dialogo.confirmar("Eliminar Concepto", "¿Desea continuar?", true));
    mirar();
    EXPECT_FALSE(dialogo.confirmar("Reemplazar archivo", "Ya existe el archivo x.pdf.", true));
    mirar();
    EXPECT_FALSE(dialogo.confirmar("Modificar Personal", "¿Desea continuar?", false));

    // Los avisos también llevan el título adentro; un "<" del texto se ve como tal.
    mirar();
    dialogo.avisar(common::TipoAviso::Advertencia, "Modificar Empresa", "Sueldo < 0");
    EXPECT_TRUE(visto->texto.contains("<b>Modificar Empresa</b>"));
    EXPECT_TRUE(visto->texto.contains("Sueldo &lt; 0"));
}

class PantallasRegistradas : public pruebas::ConTodasLasPantallas {};

TEST_F(PantallasRegistradas, CadaUnaCabeEnElEscritorioYSeRecorreSiNoCabe) {
    // 1366x768 menos la barra de tareas (40) y el título de la ventana (30).
    const QSize escritorio(1366 - 16, 768 - 40 - 30);
    const QRect disponible = QApplication::primaryScreen()->availableGeometry();
    for (const auto& [formulario, fabrica] : ventana::registroPantallas()) {
        std::unique_ptr<QWidget> w(fabrica(sesion, nullptr));
        auto* pantalla = qobject_cast<ventana::Pantalla*>(w.get());
        const QSize deseado = pantalla ? pantalla->tamanoDeseado() : w->sizeHint();
        EXPECT_LE(deseado.width(), escritorio.width()) << formulario;
        EXPECT_LE(deseado.height(), escritorio.height()) << formulario;
        if (!pantalla) continue;
        // Mostrada en el escritorio que haya (el de las pruebas es chico): no lo pasa y
        // lo que no entra queda dentro del área con barras.
        pantalla->show();
        EXPECT_LE(pantalla->width(), disponible.width()) << formulario;
        EXPECT_LE(pantalla->height(), disponible.height()) << formulario;
        EXPECT_GE(pantalla->y(), disponible.top()) << formulario;
        auto* area = pantalla->findChild<QScrollArea*>("area");
        ASSERT_NE(area, nullptr) << formulario;
        EXPECT_EQ(area->widget()->objectName(), "lienzo") << formulario;
        EXPECT_FALSE(area->widget()->findChildren<QWidget*>().isEmpty()) << formulario;
        // Se puede teclear enseguida: el foco está en un campo de adentro.
        ASSERT_NE(pantalla->focusWidget(), nullptr) << formulario;
        EXPECT_TRUE(area->widget()->isAncestorOf(pantalla->focusWidget())) << formulario;
    }
}

TEST_F(PantallasRegistradas, F1AbreLaPaginaDeLaPantalla) {
    for (const char* formulario :
         {"Form42", "Form43", "Form44", "Form31", "Form21", "Form41", "Form14"}) {
        std::unique_ptr<QWidget> w(ventana::registroPantallas().at(formulario)(sesion, nullptr));
        w->show();
        QApplication::setActiveWindow(w.get());
        QTest::keyClick(w.get(), Qt::Key_F1);
        auto* ayuda = w->findChild<ventana::VentanaAyuda*>("Ayuda");
        ASSERT_NE(ayuda, nullptr) << formulario;
        const auto pagina = ayuda->source().fileName().toStdString();
        EXPECT_EQ(pagina, QString(formulario).toLower().toStdString() + ".html");
        // La página dice sus teclas.
        EXPECT_TRUE(ayuda->toPlainText().contains("Tecla")) << formulario;
        EXPECT_TRUE(ayuda->toPlainText().contains("F1")) << formulario;
    }
    // Una pantalla sin página propia abre el índice.
    std::unique_ptr<QWidget> w(ventana::registroPantallas().at("Form406")(sesion, nullptr));
    w->show();
    QApplication::setActiveWindow(w.get());
    QTest::keyClick(w.get(), Qt::Key_F1);
    auto* ayuda = w->findChild<ventana::VentanaAyuda*>("Ayuda");
    ASSERT_NE(ayuda, nullptr);
    EXPECT_EQ(ayuda->source().fileName(), "index.html");
}
