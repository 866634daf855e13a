#pragma once
// Una base nueva con sus datos iniciales, todas las pantallas registradas y una de
// ellas abierta y activa, para manejarla con el teclado: teclear en un campo por
// su objectName, pulsar un botón, leer una columna de una grilla.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "frame/arranque.h"
#include "frame/ventana/registro_pantallas.h"
#include "screens/registro.h"
#include "store/conexion.h"

namespace nomira::pruebas {

class PantallaAbierta : public ::testing::Test {
  protected:
    void SetUp() override {
        sesion.dialogo = &dialogo;
        sesion.base = frame::crearBaseNueva(tmp.archivo("n.db"));
        sesion.categoria = 1;
        pantallas::registrarTodas();
    }
    QWidget* abrir(const std::string& formulario) {
        pantalla.reset(ventana::registroPantallas().at(formulario)(sesion, nullptr));
        pantalla->show();
        QApplication::setActiveWindow(pantalla.get());
        return pantalla.get();
    }

    template <class T = QLineEdit>
    T* w(const char* nombre) {
        auto* x = pantalla->findChild<T*>(nombre);
        EXPECT_NE(x, nullptr) << nombre;
        return x;
    }
    QString texto(const char* nombre) { return w(nombre)->text(); }
    // Teclea en un campo (o en la línea de un combo) y da Enter.
    void teclear(const char* nombre, const QString& t) {
        QWidget* destino = pantalla->findChild<QWidget*>(nombre);
        ASSERT_NE(destino, nullptr) << nombre;
        if (auto* c = qobject_cast<QComboBox*>(destino)) destino = c->lineEdit();
        auto* linea = qobject_cast<QLineEdit*>(destino);
        destino->setFocus();
        linea->selectAll();
        QTest::keyClicks(destino, t);
        QTest::keyClick(destino, Qt::Key_Return);
    }
    void pulsar(const char* nombre) { w<QPushButton>(nombre)->click(); }
    void tecla(Qt::Key k) { QTest::keyClick(QApplication::focusWidget(), k); }

    // La columna de una grilla, fila por fila.
    std::vector<std::string> columna(const char* grilla, int c) {
        auto* g = w<QTableView>(grilla);
        std::vector<std::string> r;
        for (int i = 0; i < g->model()->rowCount(); ++i)
            r.push_back(g->model()->index(i, c).data().toString().toStdString());
        return r;
    }
    void elegirFila(const char* grilla, int fila) {
        auto* g = w<QTableView>(grilla);
        const auto rect = g->visualRect(g->model()->index(fila, 1));
        QTest::mouseClick(g->viewport(), Qt::LeftButton, {}, rect.center());
    }

    CarpetaTemporal tmp;
    DialogoGuion dialogo;
    frame::Sesion sesion;
    std::unique_ptr<QWidget> pantalla;
};

// La empresa ACME, de Industria y Comercio, y su personal mensual.
class EmpresaAcme : public PantallaAbierta {
  protected:
    void SetUp() override {
        PantallaAbierta::SetUp();
        sql("INSERT INTO tipoaport (nombre) VALUES ('01-Industria y Comercio')");
        sql("INSERT INTO empresas (empresa, nroemp, tipoaport) VALUES ('ACME', 7, "
            "'Industria y Comercio')");
    }

    void sql(const std::string& texto, const std::vector<store::Valor>& p = {}) {
        sesion.base->ejecuta(texto, p);
    }
    void persona(const std::string& nombre, const std::string& nrofun, const std::string& sueldo,
                 const std::string& fechaing, const std::string& fechaeg = {},
                 const std::string& observaciones = {}) {
        sql("INSERT INTO personal (empresa, nombre, nrofun, sueldo, tiposueldo, fechaing, fechaeg, "
            "observaciones) VALUES ('ACME', ?, ?, ?, 'S', ?, ?, ?)",
            {nombre, nrofun, sueldo, fechaing, store::textoONulo(fechaeg), observaciones});
    }
};

}  // namespace nomira::pruebas
