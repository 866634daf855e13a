#pragma once
// Una sesión sobre una base nueva con todas las pantallas registradas, para
// las pruebas que recorren el registro entero.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "frame/arranque.h"
#include "frame/sesion.h"
#include "frame/ventana/registro_pantallas.h"
#include "screens/registro.h"

namespace nomira::pruebas {

class ConTodasLasPantallas : public ::testing::Test {
  protected:
    void SetUp() override {
        sesion.dialogo = &dialogo;
        sesion.base = frame::crearBaseNueva(tmp.archivo("n.db"));
        sesion.categoria = 1;
        anterior = ventana::registroPantallas();
        pantallas::registrarTodas();
    }
    // Las demás pruebas de esta carpeta cuentan con el registro del marco solo.
    void TearDown() override { ventana::registroPantallas() = anterior; }
    std::map<std::string, ventana::FabricaPantalla> anterior;
    CarpetaTemporal tmp;
    DialogoGuion dialogo;
    frame::Sesion sesion;
};

}  // namespace nomira::pruebas
