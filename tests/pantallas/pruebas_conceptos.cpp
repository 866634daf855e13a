// Conceptos y Fórmulas con el teclado: F5, F6 y F7 abren la ficha del código con
// el botón de esa operación; los permanentes por persona con sus mensajes.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <fstream>

#include "frame/carpeta.h"
#include "master/conceptos.h"
#include "pantallas/apoyo_pantallas.h"

using namespace nomira;

namespace {

class PantallasConceptos : public pruebas::PantallaAbierta {
  protected:
    // La ficha Form41 abierta desde Form4 con la tecla.
    QWidget* ficha(Qt::Key k) {
        auto* codigo = pantalla->findChild<QLineEdit*>("codigo");
        QApplication::setActiveWindow(pantalla.get());
        codigo->setFocus();
        QTest::keyClick(codigo, k);
        auto* f = pantalla->findChild<QWidget*>("Form41");
        if (f) QApplication::setActiveWindow(f);
        return f;
    }
    static void elegir(QWidget* f, const char* marco, const char* opcion) {
        for (auto* r : f->findChild<QWidget*>(marco)->findChildren<QRadioButton*>())
            if (r->text() == opcion) r->click();
    }
    static void cerrada() {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(PantallasConceptos, AgregarModificarYEliminarDesdeLasTeclasDeForm4) {
    auto& b = *sesion.base;
    abrir("Form4");
    ficha(Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar el campo Código.");
    pantalla->findChild<QLineEdit*>("codigo")->setText("900");

    auto* f = ficha(Qt::Key_F5);
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(f->windowTitle(), "Agregar Concepto y Fórmula");
    EXPECT_FALSE(f->findChild<QPushButton*>("Modificar")->isEnabled());
    QTest::keyClicks(f->findChild<QLineEdit*>("concepto"), "RETENCION");
    QTest::keyClicks(f->findChild<QLineEdit*>("formula"), "[SUELDO]*0.1");
    elegir(f, "tipo", "Desc.");  // con Específico "Sueldo"
    QTest::keyClick(f->findChild<QLineEdit*>("concepto"), Qt::Key_F5);
    EXPECT_EQ(dialogo.preguntas.back(), "Agregar Concepto|¿Desea continuar?");
    EXPECT_EQ(
        dialogo.ultimoMensaje(),
        "Si el Tipo es un Desc. entonces en Específico de debe seleccionar la opción General.");
    EXPECT_FALSE(master::leerConcepto(b, 900));
    elegir(f, "especificode", "General");
    QTest::keyClick(f->findChild<QLineEdit*>("concepto"), Qt::Key_F5);
    cerrada();
    const auto agregado = master::leerConcepto(b, 900);
    ASSERT_TRUE(agregado);
    EXPECT_EQ(agregado->tipo, "Des");
    EXPECT_EQ(agregado->gravado, "");
    EXPECT_EQ(pantalla->findChild<QWidget*>("Form41"), nullptr);

    // Modificar: la ficha trae el concepto y el cambio llega a lo liquidado.
    b.ejecuta(
        "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, total) VALUES "
        "('E', 'P, A', '2026-01-01', 900, 'RETENCION', 'Des', 10)");
    f = ficha(Qt::Key_F6);
    ASSERT_NE(f, nullptr);
    auto* nombre = f->findChild<QLineEdit*>("concepto");
    EXPECT_EQ(nombre->text(), "RETENCION");
    nombre->setText("RETENCION JUDICIAL");
    QTest::keyClick(nombre, Qt::Key_F6);
    cerrada();
    EXPECT_EQ(b.consulta("SELECT concepto FROM habydesc WHERE codigo = 900").primera().texto(0),
              "RETENCION JUDICIAL");

    // Buscar por texto muestra sólo lo hallado.
    auto* buscar = pantalla->findChild<QLineEdit*>("buscarPor");
    QTest::keyClicks(buscar, "judicial");
    QTest::keyClick(buscar, Qt::Key_Return);
    EXPECT_EQ(pantalla->findChild<QAbstractItemView*>("grilla")->model()->rowCount(), 1);

    f = ficha(Qt::Key_F7);
    ASSERT_NE(f, nullptr);
    dialogo.respuestas = {false};
    QTest::keyClick(f->findChild<QLineEdit*>("concepto"), Qt::Key_F7);
    EXPECT_TRUE(master::leerConcepto(b, 900));
    QTest::keyClick(f->findChild<QLineEdit*>("concepto"), Qt::Key_F7);
    cerrada();
    EXPECT_FALSE(master::leerConcepto(b, 900));
}

TEST_F(PantallasConceptos, CopiarGuardaLaListaEnConceptosTxt) {
    abrir("Form4");
    QTest::keyClick(pantalla->findChild<QLineEdit*>("codigo"), Qt::Key_F9);
    std::ifstream archivo(frame::rutaSoftware("conceptos.txt"));
    std::string linea;
    for (int i = 0; i < 2; ++i) std::getline(archivo, linea);
    EXPECT_EQ(linea, std::string(35, ' ') + "LISTA DE CONCEPTOS\r");
}

TEST_F(PantallasConceptos, PermanentesPorPersonaConSusMensajes) {
    auto& b = *sesion.base;
    b.ejecuta("INSERT INTO empresas (empresa) VALUES ('ACME')");
    b.ejecuta("INSERT INTO personal (empresa, nombre) VALUES ('ACME', 'PEREZ, ANA')");
    master::agregarConcepto(b,
                            {"901", "PRIMA", "G", "100", "Hab", "I", "No", "Si", "Si", "Si", "Si"});
    abrir("Form40");
    auto* empresa = pantalla->findChild<QComboBox*>("empresa");
    auto* nombre = pantalla->findChild<QComboBox*>("nombre");
    auto* codigo = pantalla->findChild<QLineEdit*>("codigo");
    QTest::keyClick(codigo, Qt::Key_Return);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Debe completar los campos Empresa, Nombre del Personal y Código.");
    empresa->setCurrentText("ACME");
    empresa->setFocus();
    QTest::keyClick(empresa, Qt::Key_Return);
    EXPECT_EQ(nombre->count(), 2);
    nombre->setCurrentText("PEREZ, ANA");
    codigo->setText("999");
    QTest::keyClick(codigo, Qt::Key_Return);
    EXPECT_EQ(dialogo.ultimoMensaje(), master::kCodigoInexistente);
    codigo->setText("1");  // SUELDO ya es permanente para todos
    QTest::keyClick(codigo, Qt::Key_Return);
    QTest::keyClick(codigo, Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(), master::kYaEsPermanente);
    codigo->setText("901");
    QTest::keyClick(codigo, Qt::Key_Return);
    QTest::keyClick(codigo, Qt::Key_F5);
    EXPECT_TRUE(master::existeConceptoPersona(b, "ACME", "PEREZ, ANA", 901));
    codigo->setText("901");
    QTest::keyClick(codigo, Qt::Key_Return);
    QTest::keyClick(codigo, Qt::Key_F7);
    EXPECT_EQ(dialogo.preguntas.back(), "Eliminar registro|¿Desea continuar?");
    EXPECT_FALSE(master::existeConceptoPersona(b, "ACME", "PEREZ, ANA", 901));
    empresa->setCurrentText("OTRA");
    codigo->setText("901");
    QTest::keyClick(codigo, Qt::Key_Return);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.");
}

}  // namespace

// La ficha no guarda una fórmula que nunca podrá evaluarse: dice el mensaje del
// evaluador y el carácter, y deja el cursor ahí. Un concepto nuevo nace no permanente.
TEST_F(PantallasConceptos, LaFichaRechazaLaFormulaQueNoSeEvaluaYNaceNoPermanente) {
    abrir("Form4");
    pantalla->findChild<QLineEdit*>("codigo")->setText("901");
    auto* f = ficha(Qt::Key_F5);
    ASSERT_NE(f, nullptr);
    auto* formula = f->findChild<QLineEdit*>("formula");
    QTest::keyClicks(f->findChild<QLineEdit*>("concepto"), "PRIMA");
    elegir(f, "especificode", "General");
    const std::pair<const char*, const char*> malas[] = {
        {"[SUELDO]*(2", "en el carácter 10."},
        {"[SUELDO*2", "Falta el corchete de cierre ']', en el carácter 1."},
        {"[SUELDO]*2)", "en el carácter 11."},
        {"FOO([SUELDO])", "la función FOO no existe, en el carácter 1."}};
    for (const auto& [texto, final] : malas) {
        formula->setText(texto);
        dialogo.preguntas.clear();
        QTest::keyClick(formula, Qt::Key_F5);
        EXPECT_TRUE(dialogo.preguntas.empty()) << texto;  // ni llega a preguntar
        const auto m = dialogo.ultimoMensaje();
        EXPECT_TRUE(m.starts_with("La fórmula no se puede evaluar: ")) << m;
        EXPECT_TRUE(m.ends_with(final)) << texto << " -> " << m;
        EXPECT_FALSE(master::leerConcepto(*sesion.base, 901)) << texto;
    }
    formula->setText("[SUELDO]*(2");
    QTest::keyClick(formula, Qt::Key_F5);
    EXPECT_NE(dialogo.ultimoMensaje().find("1006"), std::string::npos) << dialogo.ultimoMensaje();
    EXPECT_EQ(formula->cursorPosition(), 9);

    formula->setText("Round([SUELDO]*(2+[CANT]), 2)");
    QTest::keyClick(formula, Qt::Key_F5);
    cerrada();
    const auto c = master::leerConcepto(*sesion.base, 901);
    ASSERT_TRUE(c);
    EXPECT_EQ(c->permanente, "No");
}
