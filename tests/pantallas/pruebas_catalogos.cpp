// La pantalla de catálogos con dos configuraciones (una lista plana, una con
// madres encadenadas) y la devolución de lo elegido a quien la abrió.
#include <QComboBox>
#include <QTest>
#include <QVBoxLayout>

#include "apoyo_pantallas.h"
#include "master/catalogos.h"
#include "screens/catalogos/catalogos_del_sistema.h"

using namespace nomira;

namespace {

class Catalogo : public pruebas::PantallaAbierta {
  protected:
    pantallas::PantallaCatalogo* catalogo(const std::string& formulario) {
        return static_cast<pantallas::PantallaCatalogo*>(abrir(formulario));
    }
    std::vector<std::string> valores(const char* tabla) {
        return master::valoresCatalogo(*sesion.base, tabla);
    }
};

TEST_F(Catalogo, ListaPlanaAgregaYEliminaConSusMensajes) {
    auto* p = catalogo("Form23");
    EXPECT_EQ(p->windowTitle(), "Tipo de Aportación");
    auto* combo = p->combo(0, 0);
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar el campo Tipo de Aportación.");
    QTest::keyClicks(combo, "Construccion");
    QTest::keyClick(combo, Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "El campo Tipo de Aportación deberá tener un código seguido de un guión seguido del "
              "texto.");
    EXPECT_EQ(dialogo.mensajes.back().titulo, "Mensaje de advertencia");
    EXPECT_TRUE(valores("tipoaport").empty());

    combo->setCurrentText("04-Construcción - Obra");
    QTest::keyClick(combo, Qt::Key_F5);
    combo->setCurrentText("01-Industria");
    QTest::keyClick(combo, Qt::Key_F5);
    EXPECT_EQ(valores("tipoaport"),
              (std::vector<std::string>{"04-Construcción - Obra", "01-Industria"}));
    EXPECT_EQ(combo->currentText(), "");
    EXPECT_EQ(combo->count(), 2);

    const auto avisos = dialogo.mensajes.size();
    QTest::keyClick(combo, Qt::Key_F7);
    EXPECT_EQ(dialogo.mensajes.size(), avisos + 1);
    combo->setCurrentText("04-Construcción - Obra");
    QTest::keyClick(combo, Qt::Key_F7);
    EXPECT_EQ(valores("tipoaport"), std::vector<std::string>{"01-Industria"});
    EXPECT_EQ(combo->count(), 1);
}

TEST_F(Catalogo, MadresEncadenadasConEnter) {
    master::agregarACatalogo(*sesion.base, "grupoconsal", {"01-Industria"});
    master::agregarACatalogo(*sesion.base, "grupoconsal", {"02-Comercio"});
    master::agregarACatalogo(*sesion.base, "subgrupoconsal", {"01-Industria", "01-Frigoríficos"});
    master::agregarACatalogo(*sesion.base, "subgrupoconsal", {"02-Comercio", "01-Almacenes"});
    master::agregarACatalogo(*sesion.base, "sectores",
                             {"01-Industria", "01-Frigoríficos", "01-Faena"});
    auto* p = catalogo("Form390");
    EXPECT_EQ(p->combo(0, 0)->count(), 2);  // los grupos, al abrir
    EXPECT_EQ(p->combo(0, 1)->count(), 0);

    p->combo(0, 0)->setFocus();
    p->combo(0, 0)->setCurrentText("01-Industria");
    QTest::keyClick(p->combo(0, 0), Qt::Key_Return);
    ASSERT_EQ(p->combo(0, 1)->count(), 1);  // sólo el subgrupo de Industria
    EXPECT_EQ(p->combo(0, 1)->itemText(0), "01-Frigoríficos");
    EXPECT_TRUE(p->combo(0, 1)->hasFocus());
    p->combo(0, 1)->setCurrentText("01-Frigoríficos");
    QTest::keyClick(p->combo(0, 1), Qt::Key_Return);
    EXPECT_EQ(p->combo(0, 2)->itemText(0), "01-Faena");

    // Un guion falta en una madre: el mensaje nombra todos los campos.
    p->combo(0, 2)->setCurrentText("Faena");
    p->combo(0, 3)->setCurrentText("05-Peón");
    p->agregar(0);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Los campos Grupo, SubGrupo Con. Salarios, Sector y Categoría deberán tener "
              "un código seguido de un guión seguido del texto.");
    p->combo(0, 2)->setCurrentText("01-Faena");
    p->agregar(0);
    EXPECT_EQ(master::filasCatalogo(*sesion.base, "categorias"),
              (std::vector<std::vector<std::string>>{
                  {"01-Industria", "01-Frigoríficos", "01-Faena", "05-Peón"}}));

    // Localidades: la segunda lista y la columna libre del código postal.
    master::agregarACatalogo(*sesion.base, "depto", {"10-Montevideo"});
    auto* l = catalogo("Form27");
    l->combo(1, 0)->setCurrentText("10-Montevideo");
    l->combo(1, 1)->setCurrentText("01-Centro");
    l->agregar(1);
    l->combo(0, 0)->setCurrentText("10-Montevideo");
    l->combo(0, 1)->setCurrentText("01-Centro");
    l->libre(0, 2)->setText("11100");
    l->agregar(0);
    EXPECT_EQ(master::filasCatalogo(*sesion.base, "local"),
              (std::vector<std::vector<std::string>>{{"10-Montevideo", "01-Centro", "11100"}}));
    EXPECT_EQ(master::valoresCatalogo(*sesion.base, "localmtss", {{"nombre", "Montevideo"}}),
              std::vector<std::string>{"01-Centro"});
}

TEST_F(Catalogo, DevuelveElTextoAlComboQueLoAbrio) {
    master::agregarACatalogo(*sesion.base, "tipoaport", {"04-Construcción - Obra"});
    QWidget llamadora(nullptr, Qt::Window);
    auto* capa = new QVBoxLayout(&llamadora);
    auto* otro = new QComboBox;
    auto* destino = new QComboBox;
    destino->setEditable(true);
    capa->addWidget(otro);
    capa->addWidget(destino);
    llamadora.show();
    QApplication::setActiveWindow(&llamadora);
    destino->setFocus();

    auto* p = new pantallas::PantallaCatalogo(sesion, *pantallas::configuracionCatalogo("Form23"),
                                              &llamadora);
    p->setAttribute(Qt::WA_DeleteOnClose);
    QString recibido;
    QObject::connect(p, &pantallas::PantallaCatalogo::elegido,
                     [&](const QString& t, int) { recibido = t; });
    p->show();
    QApplication::setActiveWindow(p);
    p->combo(0, 0)->setCurrentIndex(0);
    p->combo(0, 0)->setFocus();
    QTest::keyClick(p->combo(0, 0), Qt::Key_F9);
    // El código queda en el catálogo; al registro va lo posterior al primer guion.
    EXPECT_EQ(destino->currentText(), "Construcción - Obra");
    EXPECT_EQ(recibido, "Construcción - Obra");
    EXPECT_EQ(otro->currentText(), "");
}

}  // namespace
