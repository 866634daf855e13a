// Toda pantalla registrada se abre sobre una base nueva y lleva su número de formulario.
#include <gtest/gtest.h>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "frame/arranque.h"
#include "frame/ventana/registro_pantallas.h"
#include "screens/registro.h"

using namespace nomira;

TEST(Pantallas, CadaPantallaRegistradaAbreConSuNombre) {
    pruebas::CarpetaTemporal tmp;
    pruebas::DialogoGuion dialogo;
    frame::Sesion sesion;
    sesion.dialogo = &dialogo;
    sesion.base = frame::crearBaseNueva(tmp.archivo("n.db"));
    sesion.categoria = 1;
    pantallas::registrarTodas();
    for (const auto& [formulario, fabrica] : ventana::registroPantallas()) {
        std::unique_ptr<QWidget> w(fabrica(sesion, nullptr));
        ASSERT_NE(w, nullptr) << formulario;
        EXPECT_EQ(w->objectName().toStdString(), formulario);
        EXPECT_FALSE(w->windowTitle().isEmpty()) << formulario;
    }
    // Abrir una pantalla sobre una base vacía no muestra errores.
    EXPECT_TRUE(dialogo.mensajes.empty()) << dialogo.ultimoMensaje();
}
