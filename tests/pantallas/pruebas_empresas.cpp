// Empresas desde una base vacía: la ficha con su número, los combos
// encadenados, las fechas, el alta, la baja y la copia de la lista.
#include <QTest>
#include <filesystem>

#include "apoyo_pantallas.h"
#include "master/catalogos.h"
#include "master/empresas.h"
#include "screens/empresas/ficha_empresa.h"
#include "screens/empresas/pantalla_empresas.h"

using namespace nomira;

namespace {

class Empresas : public pruebas::PantallaAbierta {
  protected:
    pantallas::PantallaEmpresas* empresas() {
        return static_cast<pantallas::PantallaEmpresas*>(abrir("Form2"));
    }
    pantallas::FichaEmpresa* activar(pantallas::FichaEmpresa* f) {
        if (f) QApplication::setActiveWindow(f);
        return f;
    }
    QComboBox* combo(pantallas::FichaEmpresa* f, const char* c) {
        return qobject_cast<QComboBox*>(f->campo(c));
    }
    QLineEdit* texto(pantallas::FichaEmpresa* f, const char* c) {
        return qobject_cast<QLineEdit*>(f->campo(c));
    }
};

TEST_F(Empresas, AltaDesdeUnaBaseVaciaConLosCombosEncadenados) {
    auto& base = *sesion.base;
    master::agregarACatalogo(base, "depto", {"10-Montevideo"});
    master::agregarACatalogo(base, "depto", {"03-Canelones"});
    master::agregarACatalogo(base, "local", {"10-Montevideo", "02-Centro", "11100"});
    master::agregarACatalogo(base, "local", {"03-Canelones", "05-Pando", "91000"});
    master::agregarACatalogo(base, "grupoconsal", {"01-Industria"});
    master::agregarACatalogo(base, "subgrupoconsal", {"01-Industria", "03-Frigoríficos"});

    auto* p = empresas();
    QTest::keyClick(p->empresa(), Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar el campo Empresa.");
    QTest::keyClicks(p->empresa(), "ACME");
    QTest::keyClick(p->empresa(), Qt::Key_F5);
    auto* f = activar(p->ficha());
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(texto(f, "empresa")->text(), "ACME");
    EXPECT_EQ(texto(f, "nroemp")->text(), "1");
    EXPECT_FALSE(f->boton("Modificar")->isEnabled());

    // Departamento y Enter: las localidades de ese departamento, sin código.
    combo(f, "depto")->setFocus();
    QTest::keyClicks(combo(f, "depto")->lineEdit(), "Montevideo");
    QTest::keyClick(combo(f, "depto")->lineEdit(), Qt::Key_Return);
    auto* localidad = combo(f, "localidad");
    EXPECT_TRUE(localidad->hasFocus());
    EXPECT_NE(localidad->findText("Centro"), -1);
    EXPECT_EQ(localidad->findText("Pando"), -1);
    QTest::keyClicks(localidad->lineEdit(), "Centro");
    QTest::keyClick(localidad->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(texto(f, "codpostal")->text(), "11100");
    // Una localidad que no está deja el código como se escribió.
    texto(f, "codpostal")->setText("99999");
    localidad->setCurrentText("Sayago");
    localidad->setFocus();
    QTest::keyClick(localidad->lineEdit(), Qt::Key_Return);
    EXPECT_EQ(texto(f, "codpostal")->text(), "99999");

    combo(f, "grupoconsal")->setCurrentText("Industria");
    combo(f, "grupoconsal")->setFocus();
    QTest::keyClick(combo(f, "grupoconsal")->lineEdit(), Qt::Key_Return);
    EXPECT_NE(combo(f, "subgrupoconsal")->findText("Frigoríficos"), -1);
    combo(f, "subgrupoconsal")->setCurrentText("Frigoríficos");

    // Una fecha mal escrita detiene el alta.
    texto(f, "fechainsc")->setText("1/2/2026");
    texto(f, "fechainsc")->setFocus();
    QTest::keyClick(texto(f, "fechainsc"), Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Los campos de tipo fecha deben tener el formato: dd/mm/aa.");
    EXPECT_FALSE(master::leerEmpresa(base, "ACME"));
    texto(f, "fechainsc")->setText("01/02/26");
    QTest::keyClick(texto(f, "fechainsc"), Qt::Key_F5);
    EXPECT_EQ(dialogo.preguntas.back(), "Agregar Empresa|¿Desea continuar?");
    const auto e = master::leerEmpresa(base, "ACME");
    ASSERT_TRUE(e);
    EXPECT_EQ(e->nroemp, "1");
    EXPECT_EQ(e->depto, "Montevideo");
    EXPECT_EQ(e->localidad, "Sayago");
    EXPECT_EQ(e->subgrupoconsal, "Frigoríficos");
    EXPECT_EQ(e->fechainsc, "2026-02-01");
    EXPECT_EQ(e->centralplanilla, "Si");
    // La lista de la pantalla ya la muestra, y la segunda empresa recibe el 2.
    EXPECT_EQ(p->grilla()->filas(), 1);
    p->empresa()->setCurrentText("OTRA");
    p->agregar();
    EXPECT_EQ(texto(p->ficha(), "nroemp")->text(), "2");
}

TEST_F(Empresas, BajaDesdeLaListaYCopiaDelArchivo) {
    auto& base = *sesion.base;
    master::Empresa e;
    e.empresa = "ACME";
    e.direccion = "Rambla 1";
    master::agregarEmpresa(base, e);
    base.ejecuta("INSERT INTO habydesc (empresa, nombre) VALUES ('ACME', 'PEREZ, ANA')");
    base.ejecuta("INSERT INTO obras (empresa, nroobra) VALUES ('ACME', '7')");

    auto* p = empresas();
    p->empresa()->setCurrentText("NADIE");
    p->eliminar();
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe seleccionar el campo Empresa.");

    // La copia va a la carpeta elegida y no queda en Software.
    std::filesystem::create_directories(tmp.archivo("llevar"));
    p->cambiarElegirCarpeta([&] { return QString::fromStdString(tmp.archivo("llevar")); });
    p->copiar();
    EXPECT_TRUE(std::filesystem::exists(tmp.archivo("llevar/empresas.txt")));
    EXPECT_FALSE(std::filesystem::exists(tmp.archivo("Software/empresas.txt")));

    p->empresa()->setCurrentText("ACME");
    QTest::keyClick(p->empresa(), Qt::Key_F7);
    auto* f = activar(p->ficha());
    ASSERT_NE(f, nullptr);
    EXPECT_TRUE(f->boton("Eliminar")->isEnabled());
    EXPECT_FALSE(f->boton("Agregar")->isEnabled());
    EXPECT_TRUE(texto(f, "empresa")->isReadOnly());
    dialogo.respuestas = {false};
    QTest::keyClick(texto(f, "direccion"), Qt::Key_F7);
    EXPECT_TRUE(master::leerEmpresa(base, "ACME"));
    QTest::keyClick(texto(f, "direccion"), Qt::Key_F7);
    EXPECT_EQ(dialogo.preguntas.back(), "Eliminar Empresa|¿Desea continuar?");
    EXPECT_FALSE(master::leerEmpresa(base, "ACME"));
    EXPECT_TRUE(base.consulta("SELECT * FROM habydesc").vacio());
    EXPECT_FALSE(base.consulta("SELECT * FROM obras").vacio());
    EXPECT_EQ(p->grilla()->filas(), 0);
}

}  // namespace
