// El recorrido de una empresa: cada persona entera o nada, lo terminado
// confirmado al volver, el avance, la cancelación y las personas fuera del
// mes, en los dos motores.
#include <gtest/gtest.h>

#include "engine/apoyo_formula.h"
#include "engine/mes/haberes.h"
#include "store/postgres.h"

namespace nomira::engine {
namespace {

class EmpresaMes : public pruebas::BaseFormula {
  protected:
    void SetUp() override {
        BaseFormula::SetUp();
        if (IsSkipped()) return;
        base->ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('ACME', 1)");
        for (const char* n : {"P1", "P2", "P3", "P4"})
            persona(n, {{"sueldo", "1000"}, {"tiposueldo", "S"}, {"fechaing", "2020-01-01"}});
        base->ejecuta(
            "INSERT INTO conceptos (codigo, concepto, especificode, formula, tipo, unidad, "
            "permanente, gravado) VALUES (1, 'SUELDO', 'S', '[SUELDO]', 'Hab', 'I', 'Si', 'Si'), "
            "(2, 'CUOTA', 'G', '[SUELDO]/[HTRAB]', 'Hab', 'I', 'No', 'Si')");
    }
    // Contadas por otra conexión, como las vería otro puesto: sólo lo confirmado.
    long filasDe(const std::string& nombre) {
        return static_cast<long>(
            otra()
                ->consulta("SELECT COUNT(*) FROM habydesc WHERE nombre = ?", {nombre})
                .primera()
                .entero(0));
    }
};
NOMIRA_PARA_CADA_MOTOR(EmpresaMes);

TEST_P(EmpresaMes, UnFalloNoDejaAMediasALaPersonaNiPierdeLasAnteriores) {
    // CUOTA es sólo de P3, y con htrab vacío su fórmula divide por cero después
    // de escrito el SUELDO de P3.
    base->ejecuta(
        "INSERT INTO concpermxpers (empresa, nombre, codigo, concepto, tipo) VALUES "
        "('ACME', 'P3', 2, 'CUOTA', 'Hab')");
    std::vector<std::string> avance;
    const auto r = haberesDeLaEmpresa(
        *base, "ACME", {2026, 2}, dialogo, {},
        [&](std::size_t i, std::size_t n, const std::string& nombre) {
            avance.push_back(std::to_string(i) + "/" + std::to_string(n) + " " + nombre);
        });
    ASSERT_TRUE(r.fallo);
    EXPECT_EQ(r.personaFallida, "P3");
    EXPECT_EQ(r.personas.size(), 2u);
    EXPECT_EQ(avance, (std::vector<std::string>{"1/4 P1", "2/4 P2", "3/4 P3"}));
    EXPECT_EQ(filasDe("P1"), 1);
    EXPECT_EQ(filasDe("P2"), 1);
    EXPECT_EQ(filasDe("P3"), 0);
    EXPECT_EQ(filasDe("P4"), 0);
    EXPECT_THROW(std::rethrow_exception(r.fallo), common::Fallo);
}

TEST_P(EmpresaMes, CancelarEntrePersonasYLasQueNoEstanEnElMes) {
    base->ejecuta("UPDATE personal SET fechaing = '2026-03-01' WHERE nombre = 'P2'");
    base->ejecuta("UPDATE personal SET fechaeg = '2026-01-31' WHERE nombre = 'P3'");
    // Egresar en el mes no lo saca del mes.
    base->ejecuta("UPDATE personal SET fechaeg = '2026-02-10' WHERE nombre = 'P4'");
    base->ejecuta(
        "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, total) VALUES "
        "('ACME', 'P2', '2026-02-01', 9, 'IRPF', 'Des', 1)");
    auto r = haberesDeLaEmpresa(*base, "ACME", {2026, 2}, dialogo);
    EXPECT_FALSE(r.fallo);
    EXPECT_EQ(r.inactivas, (std::vector<std::string>{"P2", "P3"}));
    EXPECT_EQ(filasDe("P1"), 1);
    EXPECT_EQ(filasDe("P2"), 0);  // los descuentos de toda la empresa se van igual
    EXPECT_EQ(filasDe("P4"), 1);

    // Cancelado después de la primera persona: las demás quedan sin tocar.
    int preguntas = 0;
    base->ejecuta("DELETE FROM habydesc");
    const common::Mes marzo{2026, 3};
    r = recorrerEmpresa(
        *base, std::make_shared<Lectura>(leerCorrida(*base, "ACME", marzo, mesesDelMes(marzo))),
        [&](const std::shared_ptr<Lectura>&, PersonaDelMes& p, bool) {
            FilaMes f;
            f.codigo = 1;
            p.libro.escribir(TablaLiquidacion::Habydesc, marzo, f);
            return ResultadoPersona{"ACME", p.ficha->nombre, marzo, true, "", {}};
        },
        {}, [&] { return ++preguntas > 1; });
    EXPECT_TRUE(r.cancelado);
    EXPECT_EQ(r.personas.size(), 1u);
    EXPECT_EQ(filasDe("P1"), 1);
    EXPECT_EQ(filasDe("P2") + filasDe("P3") + filasDe("P4"), 0);
}

// El servidor corta la conexión en medio de la corrida: el liquidador lee el
// aviso de la conexión perdida, no otro error, y no queda nadie a medias.
TEST_P(EmpresaMes, LaConexionCortadaEnMediaCorridaDiceQueSePerdio) {
    if (!esPostgres()) GTEST_SKIP() << "sólo un servidor corta la conexión";
    const auto pid = base->consulta("SELECT pg_backend_pid()").primera().entero(0);
    const auto cortar = [&](std::size_t i, std::size_t, const std::string&) {
        if (i == 3)
            otra()->consulta("SELECT pg_terminate_backend(CAST(? AS integer), 5000)", {pid});
    };
    const auto r = haberesDeLaEmpresa(*base, "ACME", {2026, 2}, dialogo, {}, cortar);
    ASSERT_TRUE(r.fallo);
    try {
        std::rethrow_exception(r.fallo);
    } catch (const common::Fallo& f) {
        EXPECT_TRUE(f.descripcion().starts_with(store::kConexionPerdida)) << f.descripcion();
    }
    // Lo de la tanda sin confirmar no quedó: ni filas sueltas ni personas a medias.
    for (const char* n : {"P1", "P2", "P3", "P4"}) EXPECT_EQ(filasDe(n), 0) << n;
}

}  // namespace
}  // namespace nomira::engine
