// Cada concepto estándar se evalúa sobre una base con los valores que trae el programa.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "apoyo_formula.h"
#include "master/datos_iniciales.h"

namespace nomira::pruebas {
namespace {

const std::filesystem::path kDatos = std::filesystem::path(__FILE__).parent_path() / "../../data";

class ConceptosEstandar : public BaseFormula {};
NOMIRA_PARA_CADA_MOTOR(ConceptosEstandar);

TEST_P(ConceptosEstandar, CadaFormulaSeEvaluaYLosAportesDanSuPorcentaje) {
    master::cargarDatosIniciales(*base, kDatos, common::Fecha{2026, 3, 15});
    base->ejecuta("INSERT INTO empresas (empresa) VALUES ('ACME')");
    persona("PEREZ, JUAN",
            {{"sueldo", "30000"}, {"tiposueldo", "S"}, {"sueldo2", "9000"}, {"htrab", "8"}});
    c.sueldo = 30000;
    c.sueldo2 = 9000;
    c.htrab = 8;
    c.textoCant = "3";
    c.montograv = common::Dinero::desdeDouble(10000);

    const auto filas =
        base->consulta("SELECT codigo, concepto, formula FROM conceptos ORDER BY codigo");
    ASSERT_GT(filas.filas.size(), 60u);
    for (const auto& f : filas.filas) {
        SCOPED_TRACE(f.texto("concepto"));
        c.total = -12345;
        EXPECT_NO_THROW(total(f.texto("formula")));
        EXPECT_TRUE(std::isfinite(c.total));
        EXPECT_NE(c.total, -12345);
    }
    EXPECT_TRUE(dialogo.mensajes.empty()) << dialogo.ultimoMensaje();

    auto deConcepto = [&](const std::string& nombre) {
        return base->consulta("SELECT formula FROM conceptos WHERE concepto = ?", {nombre})
            .primera()
            .texto("formula");
    };
    EXPECT_DOUBLE_EQ(total(deConcepto("SUELDO")), 30000);
    EXPECT_DOUBLE_EQ(total(deConcepto("JORNALES 2DA ACT")), 27000);
    EXPECT_DOUBLE_EQ(total(deConcepto("DIASNOTRABAJADOS")), -3000);
    EXPECT_DOUBLE_EQ(total(deConcepto("MONTEPIO")), 1500);
    EXPECT_DOUBLE_EQ(total(deConcepto("FRL")), 10);
    // 10000 no pasa de 2,5 BPC (17160 con la BPC de 2026): SNIS al 3 %.
    EXPECT_DOUBLE_EQ(total(deConcepto("SNIS")), 300);
    EXPECT_DOUBLE_EQ(c.psnis, 3);
    c.montograv = common::Dinero::desdeDouble(20000);
    EXPECT_DOUBLE_EQ(total(deConcepto("SNIS")), 900);
}

}  // namespace
}  // namespace nomira::pruebas
