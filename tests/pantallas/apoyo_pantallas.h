#pragma once
// Una base nueva con sus datos iniciales, todas las pantallas registradas y una de
// ellas abierta y activa, para manejarla con el teclado.
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "frame/arranque.h"
#include "frame/ventana/registro_pantallas.h"
#include "screens/registro.h"

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

    CarpetaTemporal tmp;
    DialogoGuion dialogo;
    frame::Sesion sesion;
    std::unique_ptr<QWidget> pantalla;
};

}  // namespace nomira::pruebas
