// Variables fechadas y franjas del IRPF: filas repetidas, listas por pantalla,
// borrado por nombre y fecha.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "master/franjas.h"
#include "master/variables.h"

namespace nomira::master {
namespace {

using common::Fecha;

class Variables : public store::prueba::BasePrueba {};
NOMIRA_PARA_CADA_MOTOR(Variables);

TEST_P(Variables, MismoNombreYFechaDaDosFilasYElBorradoLasQuitaAmbas) {
    agregarVariable(c(), "BPC", {2026, 1, 1}, 6864);
    agregarVariable(c(), "BPC", {2026, 1, 1}, 6900.12346);
    agregarVariable(c(), "BPC", {2025, 1, 1}, 6576);
    agregarVariable(c(), "EXCLUSIONIRPF", {2020, 1, 1}, 1);
    agregarVariable(c(), "TOPEAFAP", {2026, 1, 1}, 250000);
    agregarVariable(c(), "UR", {2026, 1, 1}, 1800);

    const auto bpc = listarVariable(c(), "BPC");
    ASSERT_EQ(bpc.size(), 3u);
    EXPECT_EQ(bpc[0].fecha, "01/01/25");
    EXPECT_EQ(bpc[1].fecha, "01/01/26");
    EXPECT_DOUBLE_EQ(bpc[2].valor, 6900.1235);  // como moneda, a cuatro decimales
    // OTROS no muestra las que tienen pantalla propia, salvo EXCLUSIONIRPF.
    const auto otras = listarOtrasVariables(c());
    ASSERT_EQ(otras.size(), 2u);
    EXPECT_EQ(otras[0].nombre, "EXCLUSIONIRPF");
    EXPECT_EQ(otras[1].nombre, "TOPEAFAP");
    EXPECT_EQ(listarTodasLasVariables(c()).size(), 6u);

    EXPECT_TRUE(buscarVariable(c(), "BPC", {2026, 1, 1}));
    EXPECT_FALSE(buscarVariable(c(), "BPC", {2026, 1, 2}));
    EXPECT_EQ(eliminarVariable(c(), "BPC", {2026, 1, 1}), 2);
    LectorVariables lector(c());
    EXPECT_DOUBLE_EQ(lector.valor("BPC"), 6576);
}

TEST_P(Variables, LasFranjasSeReemplazanPorNumeroYSeListanEnOrden) {
    agregarFranja(c(), {2001, 0, 7, 0});
    agregarFranja(c(), {1, 0, 7, 0});
    agregarFranja(c(), {2, 7, 10, 10});
    reemplazarFranja(c(), {2, 7, 15, 10.5});
    const auto lista = listarFranjas(c());
    ASSERT_EQ(lista.size(), 3u);
    EXPECT_EQ(lista[0].franja, 1);
    EXPECT_EQ(lista[2].franja, 2001);
    EXPECT_DOUBLE_EQ(buscarFranja(c(), 2)->max, 15);
    EXPECT_DOUBLE_EQ(buscarFranja(c(), 2)->tasa, 10.5);
    EXPECT_EQ(eliminarFranja(c(), 2001), 1);
    EXPECT_FALSE(buscarFranja(c(), 2001));
}

}  // namespace
}  // namespace nomira::master
