// Aumentos: el porcentaje compuesto, los períodos de seis meses de Suma1dia, los
// mínimos de las categorías y los sueldos de una empresa.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "common/formato.h"
#include "master/aumentos.h"

namespace nomira::master {
namespace {

using common::Fecha;

TEST(Aumentos, RecuperacionEInflacionSeComponen) {
    EXPECT_EQ(common::formatear(porcentajeCompuesto(2, 3), "##,##0.00"), "5.06");
    EXPECT_EQ(common::formatear(porcentajeCompuesto(0, 3), "##,##0.00"), "3.00");
    EXPECT_EQ(common::formatear(porcentajeCompuesto(10, 10), "##,##0.00"), "21.00");
}

TEST(Aumentos, Suma1diaDaElSemestreSiguienteParaCadaMesDeFin) {
    struct Caso {
        int mesFin;
        Fecha ini, fin;
    };
    const Caso casos[] = {
        {1, {2025, 2, 1}, {2025, 7, 31}},  {2, {2025, 3, 1}, {2025, 8, 31}},
        {3, {2025, 4, 1}, {2025, 9, 30}},  {4, {2025, 5, 1}, {2025, 10, 31}},
        {5, {2025, 6, 1}, {2025, 11, 30}}, {6, {2025, 7, 1}, {2025, 12, 31}},
        {7, {2025, 8, 1}, {2026, 1, 31}},  {8, {2025, 9, 1}, {2026, 2, 28}},
        {9, {2025, 10, 1}, {2026, 3, 31}}, {10, {2025, 11, 1}, {2026, 4, 30}},
        {11, {2025, 12, 1}, {2026, 5, 31}}, {12, {2026, 1, 1}, {2026, 6, 30}},
    };
    for (const auto& caso : casos) {
        const Fecha fin{2025, caso.mesFin, common::diasDelMes(2025, caso.mesFin)};
        const auto [ini, nuevoFin] = Suma1dia(fin);
        EXPECT_EQ(ini, caso.ini) << caso.mesFin;
        EXPECT_EQ(nuevoFin, caso.fin) << caso.mesFin;
    }
    // Febrero del año siguiente bisiesto tiene 29 días.
    EXPECT_EQ(Suma1dia({2027, 8, 31}).second, (Fecha{2028, 2, 29}));
    // El día del fin viejo no importa: sólo su mes.
    EXPECT_EQ(Suma1dia({2027, 12, 15}).first, (Fecha{2028, 1, 1}));
}

TEST(Aumentos, MensualesEnPesosEnterosJornalesConCentavosYLaBajaVuelve) {
    EXPECT_DOUBLE_EQ(sueldoAumentado(10000, 5.06, "S"), 10506);
    EXPECT_DOUBLE_EQ(sueldoAumentado(500, 5.06, "J"), 525.30);
    EXPECT_DOUBLE_EQ(sueldoAumentado(123.45, 5.06, "H"), 129.70);  // 129.696 a dos decimales
    EXPECT_DOUBLE_EQ(sueldoAumentado(12345, 5.06, "S"), 12970);    // 12969.657
    EXPECT_DOUBLE_EQ(sueldoBajado(10506, 5.06, "S"), 10000);
    EXPECT_DOUBLE_EQ(sueldoBajado(525.30, 5.06, "J"), 500);
    EXPECT_DOUBLE_EQ(sueldoBajado(0, 5.06, "S"), 0);
}

class AumentosBase : public store::prueba::BasePrueba {
  protected:
    void persona(const std::string& nombre, const std::string& sueldo, const std::string& tipo,
                 store::Valor fechaeg, const std::string& categoria = "Oficial",
                 store::Valor fechaing2 = store::Nulo{}, const std::string& sueldo2 = "") {
        c().ejecuta("INSERT INTO personal (empresa, nombre, sueldo, tiposueldo, fechaeg, categoria, "
                    "fechaing2, sueldo2) VALUES ('ACME', ?, ?, ?, ?, ?, ?, ?)",
                    {nombre, sueldo, tipo, fechaeg, categoria, fechaing2, sueldo2});
    }
    store::Fila fila(const std::string& nombre) {
        return c()
            .consulta("SELECT sueldo, sueldo2, fechasuevig FROM personal WHERE nombre = ?", {nombre})
            .primera();
    }
};
NOMIRA_PARA_CADA_MOTOR(AumentosBase);

TEST_P(AumentosBase, LaEmpresaSeAumentaSaltandoAQuienEgresoAntesDeEsteMes) {
    persona("A, MENSUAL", "10000", "S", store::Nulo{});
    persona("B, JORNALERO", "500", "J", store::Nulo{});
    persona("C, SALIO EL MES PASADO", "1000", "S", std::string("2026-02-28"));
    persona("D, SALE ESTE MES", "1000", "S", std::string("2026-03-31"));
    persona("E, DOS ACTIVIDADES", "", "S", std::string("2026-01-15"), "Oficial",
            std::string("2025-05-01"), "2000");
    persona("F, OTRA CATEGORIA", "3000", "S", store::Nulo{}, "Peón");

    const Fecha hoy{2026, 3, 15};
    PedidoAumento p{"ACME", 5.06, {2026, 3, 1}, "Oficial", false};
    EXPECT_EQ(aumentarSueldosEmpresa(c(), p, hoy), 4);
    EXPECT_EQ(fila("A, MENSUAL").texto("sueldo"), "10506");
    EXPECT_EQ(fila("B, JORNALERO").texto("sueldo"), "525.3");
    EXPECT_EQ(fila("C, SALIO EL MES PASADO").texto("sueldo"), "1000");
    EXPECT_TRUE(fila("C, SALIO EL MES PASADO").texto("fechasuevig").empty());
    EXPECT_EQ(fila("D, SALE ESTE MES").texto("sueldo"), "1051");
    // La primera actividad terminó; la segunda sigue y lleva la fecha común.
    EXPECT_EQ(fila("E, DOS ACTIVIDADES").texto("sueldo"), "");
    EXPECT_EQ(fila("E, DOS ACTIVIDADES").texto("sueldo2"), "2101");
    EXPECT_EQ(Fecha::desdeTexto(fila("E, DOS ACTIVIDADES").texto("fechasuevig")), (Fecha{2026, 3, 1}));
    EXPECT_EQ(fila("F, OTRA CATEGORIA").texto("sueldo"), "3000");

    p.bajar = true;
    aumentarSueldosEmpresa(c(), p, hoy);
    EXPECT_EQ(fila("A, MENSUAL").texto("sueldo"), "10000");
    EXPECT_EQ(fila("B, JORNALERO").texto("sueldo"), "500");
    EXPECT_EQ(fila("E, DOS ACTIVIDADES").texto("sueldo2"), "2000");

    // Sin categoría entra toda la empresa, también F.
    p = {"ACME", 10, {2026, 3, 1}, "", false};
    aumentarSueldosEmpresa(c(), p, hoy);
    EXPECT_EQ(fila("F, OTRA CATEGORIA").texto("sueldo"), "3300");
}

TEST_P(AumentosBase, LasCategoriasConHistoriaSuben6MesesYElUltimoAumentoSeDeshace) {
    for (const char* cat : {"01-Oficial", "02-Peón", "03-Sin historia"})
        c().ejecuta("INSERT INTO categorias (nombre, nombre2, nombre3, nombre4) VALUES "
                    "('10-Comercio', '01-General', '1-Tiendas', ?)",
                    {std::string(cat)});
    const CategoriaLaboral oficial{"Comercio", "General", "Tiendas", "Oficial"};
    const CategoriaLaboral peon{"Comercio", "General", "Tiendas", "Peón"};
    agregarSueldoMinimo(c(), {oficial, {2025, 1, 1}, {2025, 6, 30}, 20000});
    agregarSueldoMinimo(c(), {oficial, {2025, 7, 1}, {2025, 12, 31}, 21000});
    agregarSueldoMinimo(c(), {peon, {2025, 3, 1}, {2025, 8, 31}, 18000.5});

    EXPECT_EQ(aumentarSueldosMinimos(c(), "Comercio", "General", "Tiendas", 5.06), 2);
    const auto o = ultimoSueldoMinimo(c(), oficial);
    EXPECT_EQ(o->fechaini, (Fecha{2026, 1, 1}));
    EXPECT_EQ(o->fechafin, (Fecha{2026, 6, 30}));
    EXPECT_DOUBLE_EQ(o->sueldo, 22062.6);
    const auto p = ultimoSueldoMinimo(c(), peon);
    EXPECT_EQ(p->fechaini, (Fecha{2025, 9, 1}));
    EXPECT_EQ(p->fechafin, (Fecha{2026, 2, 28}));
    EXPECT_DOUBLE_EQ(p->sueldo, 18911.33);  // 18911.325 a dos decimales
    EXPECT_FALSE(ultimoSueldoMinimo(c(), {"Comercio", "General", "Tiendas", "Sin historia"}));
    EXPECT_EQ(listarSueldosMinimos(c(), oficial).size(), 5u);

    EXPECT_EQ(eliminarUltimoAumento(c(), "Comercio", "General", "Tiendas"), 2);
    EXPECT_DOUBLE_EQ(ultimoSueldoMinimo(c(), oficial)->sueldo, 21000);
    EXPECT_EQ(ultimoSueldoMinimo(c(), peon)->fechafin, (Fecha{2025, 8, 31}));
}

}  // namespace
}  // namespace nomira::master
