// Pantallas de variables fechadas, franjas y sueldos mínimos, con el teclado:
// Enter de campo en campo, F5 agrega, F2 busca, F7 elimina.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <functional>

#include "master/franjas.h"
#include "master/sueldos_minimos.h"
#include "master/variables.h"
#include "pantallas/apoyo_pantallas.h"

using namespace nomira;

namespace {

class PantallasVariables : public pruebas::PantallaAbierta {
  protected:
    template <class T = QLineEdit>
    T* campo(const char* nombre) {
        auto* c = pantalla->findChild<T*>(nombre);
        EXPECT_NE(c, nullptr) << nombre;
        return c;
    }
    void escribir(QWidget* c, const QString& texto) {
        c->setFocus();
        QTest::keyClicks(c, texto);
        QTest::keyClick(c, Qt::Key_Return);
    }
    void tecla(Qt::Key k) { QTest::keyClick(QApplication::focusWidget(), k); }
    // Grupo, subgrupo y sector de comercio con sus categorías.
    void catalogoDeTiendas(std::initializer_list<const char*> categorias) {
        auto& b = *sesion.base;
        b.ejecuta("INSERT INTO grupoconsal (nombre) VALUES ('10-Comercio')");
        b.ejecuta(
            "INSERT INTO subgrupoconsal (nombre, nombre2) VALUES ('10-Comercio', '01-General')");
        b.ejecuta(
            "INSERT INTO sectores (nombre, nombre2, nombre3) VALUES "
            "('10-Comercio', '01-General', '1-Tiendas')");
        for (const char* c : categorias)
            b.ejecuta(
                "INSERT INTO categorias (nombre, nombre2, nombre3, nombre4) VALUES "
                "('10-Comercio', '01-General', '1-Tiendas', ?)",
                {std::string(c)});
    }
    int grillaFilas() {
        return pantalla->findChild<QAbstractItemView*>("grilla")->model()->rowCount();
    }
};

TEST_F(PantallasVariables, OtrosAgregaDosVecesLaMismaFechaBuscaYElimina) {
    abrir("Form400");
    const int antes = grillaFilas();
    // Enter con el nombre vacío se detiene con su mensaje.
    escribir(campo("nombre"), "");
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar el campo Nombre.");
    // Con nombre, la fecha de hoy (NOMIRA_HOY) y el foco en Fecha.
    escribir(campo("nombre"), "TOPEX");
    EXPECT_EQ(campo("fecha")->text(), "15/03/26");
    campo("fecha")->clear();
    escribir(campo("fecha"), "010426");  // las barras las pone el campo
    EXPECT_EQ(campo("fecha")->text(), "01/04/26");
    EXPECT_TRUE(campo("valor")->hasFocus());  // no existe: a Valor, con Agregar
    EXPECT_TRUE(campo<QPushButton>("Agregar")->isEnabled());
    QTest::keyClicks(campo("valor"), "1234.5");
    tecla(Qt::Key_F5);
    EXPECT_EQ(dialogo.preguntas.back(), "Agregar registro|¿Desea continuar?");
    EXPECT_EQ(grillaFilas(), antes + 1);
    EXPECT_TRUE(campo("nombre")->text().isEmpty());

    // El mismo nombre y fecha: Agregar está apagado tras encontrarlo, pero una fila
    // repetida puede llegar por otro camino y la lista las muestra a las dos.
    master::agregarVariable(*sesion.base, "TOPEX", {2026, 4, 1}, 99);
    escribir(campo("nombre"), "TOPEX");
    campo("fecha")->setText("01/04/26");
    tecla(Qt::Key_F2);
    EXPECT_TRUE(campo<QPushButton>("Eliminar")->isEnabled());
    EXPECT_FALSE(campo<QPushButton>("Agregar")->isEnabled());
    EXPECT_EQ(campo("valor")->text(), "1234.5");
    tecla(Qt::Key_F3);
    EXPECT_EQ(grillaFilas(), antes + 2);
    tecla(Qt::Key_F7);
    EXPECT_EQ(dialogo.preguntas.back(), "Eliminar registro|¿Desea continuar?");
    EXPECT_EQ(grillaFilas(), antes);
    EXPECT_TRUE(master::listarVariable(*sesion.base, "TOPEX").empty());

    // Una fecha mal formada no busca.
    escribir(campo("nombre"), "TOPEX");
    campo("fecha")->setText("1/4/26");
    escribir(campo("fecha"), "");
    EXPECT_EQ(dialogo.ultimoMensaje(),
              "Debe completar el campo Nombre y los campos de tipo fecha deben tener el formato: "
              "dd/MM/aa.");
}

TEST_F(PantallasVariables, LaPantallaDeBpcListaSoloBpcYArrancaEnLaFecha) {
    master::agregarVariable(*sesion.base, "UR", {2026, 1, 1}, 1800);
    abrir("Form401");
    EXPECT_EQ(pantalla->windowTitle(), "Definición de Variables (BPC)");
    EXPECT_EQ(campo("nombre")->text(), "BPC");
    const int antes = grillaFilas();
    EXPECT_EQ(antes, static_cast<int>(master::listarVariable(*sesion.base, "BPC").size()));
    campo("fecha")->clear();
    escribir(campo("fecha"), "010127");
    QTest::keyClicks(campo("valor"), "7000");
    QTest::keyClick(campo("valor"), Qt::Key_F5);
    EXPECT_EQ(grillaFilas(), antes + 1);
    EXPECT_EQ(campo("nombre")->text(), "BPC");  // el nombre fijo queda
    master::LectorVariables lector(*sesion.base);
    EXPECT_DOUBLE_EQ(lector.valor("BPC"), 7000);
}

TEST_F(PantallasVariables, FranjasAgregaBuscaYElimina) {
    abrir("Form406");
    escribir(campo("franja"), "");
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar el campo Franja.");
    escribir(campo("franja"), "3001");
    EXPECT_TRUE(campo("min")->hasFocus());
    escribir(campo("min"), "");
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar el campo Min.");
    escribir(campo("min"), "10");
    escribir(campo("max"), "15");
    escribir(campo("tasa"), "20.5");
    tecla(Qt::Key_F5);
    const auto f = master::buscarFranja(*sesion.base, 3001);
    ASSERT_TRUE(f);
    EXPECT_DOUBLE_EQ(f->tasa, 20.5);
    escribir(campo("franja"), "3001");
    EXPECT_EQ(campo("max")->text(), "15");
    tecla(Qt::Key_F7);
    EXPECT_FALSE(master::buscarFranja(*sesion.base, 3001));
    // Una franja al revés no se agrega: lo dice la misma regla que la CLI.
    escribir(campo("franja"), "3002");
    escribir(campo("min"), "20");
    escribir(campo("max"), "10");
    escribir(campo("tasa"), "5");
    tecla(Qt::Key_F5);
    EXPECT_EQ(dialogo.ultimoMensaje(), "Min no puede ser mayor que Max.");
    EXPECT_FALSE(master::buscarFranja(*sesion.base, 3002));
}

TEST_F(PantallasVariables, SueldosMinimosEncadenaLosCombosYAgrega) {
    auto& b = *sesion.base;
    catalogoDeTiendas({"02-Vendedor"});
    abrir("Form407");
    auto* grupo = campo<QComboBox>("grupo");
    escribir(grupo, "");
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar el campo Grupo Con. Salarios.");
    grupo->setCurrentText("10-Comercio");
    escribir(grupo, "");
    auto* subgrupo = campo<QComboBox>("subgrupo");
    EXPECT_EQ(subgrupo->count(), 2);  // la línea vacía y 01-General
    subgrupo->setCurrentIndex(1);
    escribir(subgrupo, "");
    campo<QComboBox>("sector")->setCurrentIndex(1);
    escribir(campo<QComboBox>("sector"), "");
    auto* categoria = campo<QComboBox>("categoria");
    ASSERT_EQ(categoria->count(), 2);
    categoria->setCurrentIndex(1);
    escribir(categoria, "");
    escribir(campo("fechaini"), "010126");
    escribir(campo("fechafin"), "300626");
    EXPECT_TRUE(campo("sueldo")->hasFocus());
    QTest::keyClicks(campo("sueldo"), "25000");
    tecla(Qt::Key_F5);
    const auto m = master::ultimoSueldoMinimo(b, {"Comercio", "General", "Tiendas", "Vendedor"});
    ASSERT_TRUE(m);
    EXPECT_DOUBLE_EQ(m->sueldo, 25000);
    EXPECT_EQ(grillaFilas(), 1);

    // Actualizar Sueldos abre Form408 con el sector elegido; 2 y 3 dan 5.06.
    campo<QPushButton>("Porcaum")->click();
    auto* aumentos = pantalla->findChild<QWidget*>("Form408");
    ASSERT_NE(aumentos, nullptr);
    auto* recuperacion = aumentos->findChild<QLineEdit*>("recuperacion");
    QApplication::setActiveWindow(aumentos);
    escribir(recuperacion, "2");
    escribir(aumentos->findChild<QLineEdit*>("inflacion"), "3");
    EXPECT_EQ(aumentos->findChild<QLineEdit*>("porcentaje")->text(), "5.06");
    aumentos->findChild<QPushButton*>("AumentarSueldosCategorias")->click();
    EXPECT_EQ(dialogo.ultimoMensaje(), "Aumento de Sueldos Mínimos x Categorías finalizado.");
    EXPECT_EQ(dialogo.mensajes.back().titulo, "Mensaje de confirmación");
    EXPECT_DOUBLE_EQ(master::ultimoSueldoMinimo(b, m->categoria)->sueldo, 26265);
    aumentos->findChild<QPushButton*>("Eliminar")->click();
    EXPECT_DOUBLE_EQ(master::ultimoSueldoMinimo(b, m->categoria)->sueldo, 25000);
    aumentos->findChild<QPushButton*>("AumentarSueldosEmpresa")->click();
    EXPECT_EQ(dialogo.ultimoMensaje(), "Debe completar los campos Porcentaje, Empresa y FSueVig.");
}

// Un clic en la segunda fila lleva sus claves a los campos (y deja de valer lo
// hallado antes); Enter o doble clic la busca y trae su valor.
TEST_F(PantallasVariables, ElClicEnUnaFilaLlenaLasClavesYAbrirlaLaBusca) {
    using master::agregarSueldoMinimo;
    struct Caso {
        const char* formulario;
        std::function<void()> preparar;  // los datos y, si hace falta, la lista
        std::vector<std::pair<const char*, QString>> claves;
        const char* valor;  // el campo que trae la búsqueda
        QString esperado;
    };
    const master::CategoriaLaboral tiendas{"Comercio", "General", "Tiendas", ""};
    auto categoria = [&](const char* c) {
        auto r = tiendas;
        r.categoria = c;
        return r;
    };
    const std::vector<Caso> casos = {
        {"Form400",
         [&] {
             master::agregarVariable(*sesion.base, "AAB", {2026, 6, 1}, 20);
             master::agregarVariable(*sesion.base, "AAA", {2026, 1, 1}, 10);
         },
         {{"nombre", "AAB"}, {"fecha", "01/06/26"}},
         "valor",
         "20"},
        {"Form401",
         [&] {
             sesion.base->ejecuta("DELETE FROM definiciondevariables WHERE nombre = 'BPC'");
             master::agregarVariable(*sesion.base, "BPC", {2025, 1, 1}, 6576);
             master::agregarVariable(*sesion.base, "BPC", {2026, 1, 1}, 6864);
         },
         {{"nombre", "BPC"}, {"fecha", "01/01/26"}},
         "valor",
         "6864"},
        {"Form406",
         [&] {
             sesion.base->ejecuta("DELETE FROM franjasirp");
             master::agregarFranja(*sesion.base, {11, 0, 7, 0});
             master::agregarFranja(*sesion.base, {12, 7, 10, 10});
         },
         {{"franja", "12"}},
         "max",
         "10"},
        {"Form407",
         [&] {
             catalogoDeTiendas({"01-Cajero", "02-Vendedor"});
             agregarSueldoMinimo(*sesion.base,
                                 {categoria("Vendedor"), {2026, 7, 1}, {2026, 12, 31}, 27000});
             agregarSueldoMinimo(*sesion.base,
                                 {categoria("Cajero"), {2026, 1, 1}, {2026, 6, 30}, 24000});
             agregarSueldoMinimo(*sesion.base,
                                 {categoria("Vendedor"), {2026, 1, 1}, {2026, 6, 30}, 25000});
         },
         // La categoría en la lista del combo, con su código.
         {{"categoria", "02-Vendedor"}, {"fechaini", "01/01/26"}, {"fechafin", "30/06/26"}},
         "sueldo",
         "25000"},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.formulario);
        // Cada pantalla sobre una base nueva.
        pantalla.reset();
        sesion.base = frame::crearBaseNueva(tmp.archivo(std::string(caso.formulario) + ".db"));
        caso.preparar();
        abrir(caso.formulario);
        if (std::string(caso.formulario) == "Form407") {
            // La lista es la del sector: se elige tecleando hasta él.
            for (const char* combo : {"grupo", "subgrupo", "sector"}) {
                campo<QComboBox>(combo)->setCurrentIndex(1);
                escribir(campo<QComboBox>(combo), "");
            }
        }
        auto* grilla = campo<QTableView>("grilla");
        ASSERT_GE(grilla->model()->rowCount(), 2);
        // Lo hallado antes no debe quedar a la vista al elegir otra fila.
        campo(caso.valor)->setText("999");
        campo<QPushButton>("Eliminar")->setEnabled(true);

        const auto celda = grilla->visualRect(grilla->model()->index(1, 1)).center();
        QTest::mouseClick(grilla->viewport(), Qt::LeftButton, {}, celda);
        for (const auto& [nombre, texto] : caso.claves) {
            auto* combo = pantalla->findChild<QComboBox*>(nombre);
            EXPECT_EQ(combo ? combo->currentText() : campo(nombre)->text(), texto) << nombre;
        }
        EXPECT_TRUE(campo(caso.valor)->text().isEmpty());
        EXPECT_FALSE(campo<QPushButton>("Eliminar")->isEnabled());

        QTest::keyClick(grilla, Qt::Key_Return);
        EXPECT_EQ(campo(caso.valor)->text(), caso.esperado);
        EXPECT_TRUE(campo<QPushButton>("Eliminar")->isEnabled());
        campo(caso.valor)->clear();
        QTest::mouseDClick(grilla->viewport(), Qt::LeftButton, {}, celda);
        EXPECT_EQ(campo(caso.valor)->text(), caso.esperado);
    }
}

}  // namespace
