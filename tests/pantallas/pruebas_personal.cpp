// Las pantallas de personal manejadas con el teclado: alta de una persona desde la
// pantalla de la empresa, las teclas Enter de la ficha y la grilla que la encuentra.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "common/empaquetados.h"
#include "frame/arranque.h"
#include "master/empresas.h"
#include "master/personal.h"
#include "screens/personal/pantalla_personal.h"

using namespace nomira;

namespace {

class PantallasPersonal : public ::testing::Test {
  protected:
    void SetUp() override {
        sesion.base = frame::crearBaseNueva(tmp.archivo("n.db"));
        sesion.dialogo = &dialogo;
        sesion.categoria = 1;
        master::Empresa e;
        e.empresa = "ACME";
        e.grupoconsal = "Comercio";
        e.subgrupoconsal = "General";
        master::insertarRegistro(*sesion.base, "empresas", e, master::camposEmpresa());
        for (auto [tabla, valor] : {std::pair{"segurosalud", "01-Con hijos"},
                                    {"vinculofuncional", "1-Dependiente"},
                                    {"tiporembps", "1-Mensual"}})
            sesion.base->ejecuta(std::string("INSERT INTO ") + tabla + " (nombre) VALUES (?)",
                                 {std::string(valor)});
        sesion.base->ejecuta(
            "INSERT INTO sectores (nombre, nombre2, nombre3) VALUES (?, ?, ?)",
            {std::string("10-Comercio"), std::string("01-General"), std::string("2-Ventas")});
        sesion.base->ejecuta(
            "INSERT INTO categorias (nombre, nombre2, nombre3, nombre4) VALUES (?, ?, ?, ?)",
            {std::string("10-Comercio"), std::string("01-General"), std::string("2-Ventas"),
             std::string("5-Vendedor")});
    }

    template <class T = QLineEdit>
    T* campo(QWidget* w, const char* nombre) {
        auto* c = w->findChild<T*>(nombre);
        EXPECT_NE(c, nullptr) << nombre;
        return c;
    }
    // Escribe en el campo y da Enter, como el usuario.
    void escribir(QWidget* w, const char* nombre, const char* texto) {
        QWidget* c = w->findChild<QWidget*>(nombre);
        ASSERT_NE(c, nullptr) << nombre;
        if (auto* combo = qobject_cast<QComboBox*>(c)) c = combo->lineEdit();
        c->setFocus();
        QTest::keyClicks(c, texto);
        QTest::keyClick(c, Qt::Key_Return);
    }

    pruebas::CarpetaTemporal tmp{"15/03/2026"};
    pruebas::DialogoGuion dialogo;
    frame::Sesion sesion;
};

}  // namespace

TEST_F(PantallasPersonal, AltaConElTecladoYLaGrillaLaEncuentra) {
    pantallas::PantallaPersonal personal(sesion);
    personal.show();
    QApplication::setActiveWindow(&personal);
    // Agregar sin empresa se niega.
    QTest::keyClick(&personal, Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar el campo Empresa.");
    campo<QComboBox>(&personal, "empresa")->setCurrentText("ACME");
    campo<QComboBox>(&personal, "nombre")->setCurrentText("PEREZ, ANA");
    QTest::keyClick(&personal, Qt::Key_F2);  // Buscar: no está, abre la ficha para agregarla
    auto* ficha = personal.ficha();
    ASSERT_NE(ficha, nullptr);
    QApplication::setActiveWindow(ficha);
    EXPECT_EQ(campo(ficha, "nombre")->text(), "PEREZ, ANA");
    EXPECT_EQ(campo(ficha, "nrofun")->text(), "1");
    EXPECT_TRUE(campo<QPushButton>(ficha, "Agregar")->isEnabled());
    EXPECT_FALSE(campo<QPushButton>(ficha, "Modificar")->isEnabled());

    escribir(ficha, "direccion", "Rivera 1234");
    escribir(ficha, "fechanac", "010190");
    EXPECT_EQ(campo(ficha, "fechanac")->text(), "01/01/90");
    escribir(ficha, "lugarnac", "URUGUAY");
    escribir(ficha, "tipodedoc", "DO");
    escribir(ficha, "paisdeldoc", "URUGUAY");
    // La cédula de siete cifras vuelve con su cero y el foco pasa a la credencial.
    escribir(ficha, "documento", "9876549");
    EXPECT_EQ(campo(ficha, "documento")->text(), "09876549");
    EXPECT_EQ(dialogo.ultimoMensaje(), "La cédula es CORRECTA.");
    EXPECT_EQ(dialogo.mensajes.back().tipo, common::TipoAviso::Informacion);
    EXPECT_TRUE(campo(ficha, "credencial")->hasFocus());
    escribir(ficha, "nrosuc", "1");

    ficha->findChild<QTabWidget*>("paginas")->setCurrentIndex(1);
    escribir(ficha, "fechaing", "010324");
    escribir(ficha, "sector", "Ventas");
    // La categoría se elige entre las del sector, según el grupo de la empresa.
    EXPECT_EQ(campo<QComboBox>(ficha, "categoria")->findText("Vendedor"), 1);
    escribir(ficha, "categoria", "Vendedor");
    escribir(ficha, "sueldo", "30000");
    EXPECT_EQ(campo(ficha, "fechasuevig")->text(), "01/02/26");  // el primer día del mes anterior
    ficha->findChild<QRadioButton*>("S")->click();
    EXPECT_EQ(campo(ficha, "htrab")->text(), "8");
    escribir(ficha, "tiporembps", "Mensual");
    escribir(ficha, "segurosalud", "Con hijos");
    escribir(ficha, "vinculofun", "Dependiente");
    escribir(ficha, "cantbfc", "0");
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "El campo C.BFC no puede ser cero (o tiene la cant. de bases fictas o queda vacío).");
    EXPECT_EQ(campo(ficha, "cantbfc")->text(), "");
    escribir(ficha, "cantbfc", "2");
    EXPECT_EQ(campo(ficha, "exon")->text(), "9");
    // Falta H.Sem.: la lista de obligatorios lo dice y no se guarda.
    QTest::keyClick(ficha, Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar los siguientes campos obligatorios: H.Sem.");
    EXPECT_FALSE(master::leerPersona(*sesion.base, "ACME", "PEREZ, ANA"));
    escribir(ficha, "cesp", "44");
    // Una fecha de egreso calcula la antigüedad desde el ingreso.
    escribir(ficha, "fechaeg", "150326");
    EXPECT_EQ(campo(ficha, "antiguedad")->text(), "2");
    campo<QLineEdit>(ficha, "fechaeg")->clear();
    campo<QLineEdit>(ficha, "antiguedad")->clear();

    // Lo que no es número ni fecha no se guarda: el aviso nombra el campo, la ficha
    // muestra su página y el foco queda en él.
    campo(ficha, "sueldo")->setText("abc");
    QTest::keyClick(ficha, Qt::Key_F5);
    EXPECT_TRUE(dialogo.ultimoMensaje().starts_with("El campo Sueldo debe tener un número"))
        << dialogo.ultimoMensaje();
    EXPECT_TRUE(campo(ficha, "sueldo")->hasFocus());
    EXPECT_FALSE(master::leerPersona(*sesion.base, "ACME", "PEREZ, ANA"));
    campo(ficha, "sueldo")->setText("30000,50");
    ficha->findChild<QTabWidget*>("paginas")->setCurrentIndex(0);
    campo(ficha, "fechanac")->setText("32/13/10");
    QTest::keyClick(ficha, Qt::Key_F5);
    EXPECT_TRUE(dialogo.ultimoMensaje().starts_with("El campo Fecha Nac. debe tener una fecha"))
        << dialogo.ultimoMensaje();
    EXPECT_EQ(ficha->findChild<QTabWidget*>("paginas")->currentIndex(), 0);
    EXPECT_FALSE(master::leerPersona(*sesion.base, "ACME", "PEREZ, ANA"));
    campo(ficha, "fechanac")->setText("01/01/90");
    campo(ficha, "cantbfc")->clear();
    escribir(ficha, "cantbfc", "1,5");

    dialogo.mensajes.clear();
    QTest::keyClick(ficha, Qt::Key_F5);
    ASSERT_FALSE(dialogo.preguntas.empty());
    EXPECT_EQ(dialogo.preguntas.back(), "Agregar Personal|¿Desea continuar?");
    const auto p = master::leerPersona(*sesion.base, "ACME", "PEREZ, ANA");
    ASSERT_TRUE(p);
    EXPECT_EQ(p->documento, "09876549");
    EXPECT_EQ(p->fechaing, "2024-03-01");
    EXPECT_EQ(p->categoria, "Vendedor");
    EXPECT_EQ(p->horario.size(), 50u);
    // La coma decimal llega a la base como punto.
    EXPECT_EQ(p->sueldo, "30000.50");
    EXPECT_EQ(p->cantbfc, "1.5");
    // Sin tocarlos, N.Fam., L.19321 y Multi Emp. quedan en No.
    const auto sm = common::SocMedica::leer(p->socmedica);
    EXPECT_EQ(sm.nfam, "No");
    EXPECT_EQ(sm.l19321, "No");
    EXPECT_EQ(sm.multiemp, "No");
    // Seguro 01 sin hijos: la advertencia después de guardar.
    ASSERT_EQ(dialogo.mensajes.size(), 1u);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Deberá completar los campos en Datos Beneficiarios con al menos 1 hijo ya que el "
              "código de Seguro "
              "de salud es 1.");
    // La ficha vuelve vacía con el número siguiente.
    EXPECT_EQ(campo(ficha, "nombre")->text(), "");
    EXPECT_EQ(campo(ficha, "nrofun")->text(), "2");

    // La ficha es modal: la lista responde cuando se cierra.
    QApplication::setActiveWindow(&personal);
    QTest::keyClick(&personal, Qt::Key_F3);
    EXPECT_EQ(personal.findChild<QTableView*>("grilla")->model()->rowCount(), 0);
    QApplication::setActiveWindow(ficha);
    QTest::keyClick(ficha, Qt::Key_Escape);  // Esc cierra la ficha
    EXPECT_FALSE(ficha->isVisible());
    QApplication::setActiveWindow(&personal);
    QTest::keyClick(&personal, Qt::Key_F3);
    auto* grilla = personal.findChild<QTableView*>("grilla");
    ASSERT_EQ(grilla->model()->rowCount(), 1);
    EXPECT_EQ(grilla->model()->index(0, 1).data().toString(), "PEREZ, ANA");
    EXPECT_EQ(grilla->model()->index(0, 4).data().toString(), "01/03/24");
    // El nombre quedó en la lista de nombres de la empresa.
    EXPECT_GE(campo<QComboBox>(&personal, "nombre")->findText("PEREZ, ANA"), 0);
}

TEST_F(PantallasPersonal, BuscarUnaPersonaGuardadaYEliminarla) {
    master::Persona p;
    p.empresa = "ACME";
    p.nombre = "GOMEZ, LUIS";
    p.nrofun = p.nroord = "3";
    master::agregarPersona(*sesion.base, p);
    sesion.base->ejecuta("INSERT INTO habydesc (empresa, nombre) VALUES ('ACME', 'GOMEZ, LUIS')");
    pantallas::PantallaPersonal personal(sesion);
    personal.show();
    campo<QComboBox>(&personal, "empresa")->setCurrentText("OTRA");
    campo<QComboBox>(&personal, "nombre")->setCurrentText("GOMEZ, LUIS");
    personal.buscar();
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.");
    campo<QComboBox>(&personal, "empresa")->setCurrentText("ACME");
    campo<QComboBox>(&personal, "nombre")->setCurrentText("GOMEZ, LUIS");
    personal.buscar();
    auto* ficha = personal.ficha();
    ASSERT_NE(ficha, nullptr);
    EXPECT_EQ(campo(ficha, "nrofun")->text(), "3");
    EXPECT_FALSE(campo<QPushButton>(ficha, "Agregar")->isEnabled());
    EXPECT_TRUE(campo(ficha, "nombre")->isReadOnly());
    dialogo.respuestas = {false};
    ficha->eliminar();
    EXPECT_TRUE(master::leerPersona(*sesion.base, "ACME", "GOMEZ, LUIS"));
    ficha->eliminar();
    EXPECT_EQ(dialogo.preguntas.back(), "Eliminar Personal|¿Desea continuar?");
    EXPECT_FALSE(master::leerPersona(*sesion.base, "ACME", "GOMEZ, LUIS"));
    EXPECT_EQ(sesion.base->consulta("SELECT * FROM habydesc").filas.size(), 0u);
    EXPECT_EQ(campo<QComboBox>(&personal, "nombre")->findText("GOMEZ, LUIS"), -1);
}
