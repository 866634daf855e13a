// Las filas del mes que la corrida de una empresa ya leyó se llevan al día al
// escribir en lugar de releerse: tienen que quedar iguales a lo que la base
// devolvería leyéndolas de nuevo.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "engine/mes/filas_mes.h"
#include "store/crear.h"
#include "store/recordada.h"

namespace nomira::engine {
namespace {

using FilasRecordadas = store::prueba::BasePrueba;
NOMIRA_PARA_CADA_MOTOR(FilasRecordadas);

std::string comoTexto(const std::vector<FilaMes>& filas) {
    std::string s;
    for (const auto& f : filas)
        s += std::to_string(f.codigo) + " " + f.concepto + " " + f.tipo + " " + f.gravado + " " +
             f.ipd + " " + f.total.texto() + " x " + std::to_string(f.cant) + "\n";
    return s;
}

FilaGenerada fila(long codigo, const std::string& concepto, const std::string& tipo, double total) {
    FilaGenerada f;
    f.codigo = codigo;
    f.concepto = concepto;
    f.tipo = tipo;
    f.gravado = tipo == "Hab" ? "Si" : "";
    f.cant = 1;
    f.total = common::Dinero::desdeDouble(total);
    return f;
}

TEST_P(FilasRecordadas, QuedanComoLasDeLaBase) {
    const common::Mes mes{2026, 3};
    const auto leer = [&](store::Conexion& c) {
        return comoTexto(leerFilasDelMes(c, TablaLiquidacion::Habydesc, "ACME", "PEREZ", mes));
    };
    store::ConexionRecordada r(c());
    const auto escribir = [&](const FilaGenerada& f) {
        escribirFila(r, TablaLiquidacion::Habydesc, "ACME", "PEREZ", mes, f);
        EXPECT_EQ(leer(r), leer(c())) << "después de " << f.codigo << " " << f.concepto;
    };
    // Otra persona y otro mes no se mezclan.
    escribirFila(c(), TablaLiquidacion::Habydesc, "ACME", "GOMEZ", mes,
                 fila(1, "SUELDO", "Hab", 5));
    escribirFila(c(), TablaLiquidacion::Habydesc, "ACME", "PEREZ", {2026, 2},
                 fila(1, "SUELDO", "Hab", 7));

    EXPECT_EQ(leer(r), "");
    escribir(fila(50, "ANTIGUEDAD", "Hab", 120.5));
    escribir(fila(1, "SUELDO", "Hab", 30000));            // antes, por código
    escribir(fila(701, "MONTEPIO 15%", "Des", 4518.08));  // después
    escribir(fila(20, "LICENCIA", "Hab", 10000.1234));
    escribir(fila(1, "SUELDO", "Hab", 20000));  // cambia el que ya estaba
    escribir(fila(702, "SNIS 4.5%", "Des", 1355.42));
    // Borrar los descuentos del mes también las lleva al día.
    EXPECT_EQ(borrarTipoDelMes(r, TablaLiquidacion::Habydesc, "ACME", "PEREZ", mes, "Des"), 2);
    EXPECT_EQ(leer(r), leer(c()));
    EXPECT_EQ(leer(r).find("MONTEPIO"), std::string::npos);
    EXPECT_EQ(r.leidas(), 1u);  // sólo la primera, vacía: cada escritura la llevó al día
    // Una escritura que no es de escribirFila obliga a releer.
    r.ejecuta("DELETE FROM habydesc WHERE codigo = 20");
    EXPECT_EQ(leer(r), leer(c()));
    EXPECT_EQ(leer(r).find("LICENCIA"), std::string::npos);
}

// Las que alguien tiene en la mano no cambian al escribir: la escritura
// trabaja sobre una copia; las que nadie tiene se llevan al día en su lugar.
TEST_P(FilasRecordadas, LasQueAlguienTieneNoCambianAlEscribir) {
    const common::Mes mes{2026, 3};
    store::ConexionRecordada r(c());
    const auto escribir = [&](const FilaGenerada& f) {
        escribirFila(r, TablaLiquidacion::Habydesc, "ACME", "PEREZ", mes, f);
    };
    escribir(fila(1, "SUELDO", "Hab", 100));
    const auto tenidas = leerFilasDelMes(r, TablaLiquidacion::Habydesc, "ACME", "PEREZ", mes);
    const auto antes = comoTexto(tenidas);
    escribir(fila(1, "SUELDO", "Hab", 200));
    escribir(fila(2, "PRIMA", "Hab", 5));
    EXPECT_EQ(comoTexto(tenidas), antes);
    EXPECT_EQ(tenidas.size(), 1u);
    escribir(fila(3, "OTRA", "Hab", 7));
    EXPECT_EQ(comoTexto(leerFilasDelMes(r, TablaLiquidacion::Habydesc, "ACME", "PEREZ", mes)),
              comoTexto(leerFilasDelMes(c(), TablaLiquidacion::Habydesc, "ACME", "PEREZ", mes)));
    EXPECT_EQ(r.leidas(), 1u);
}

}  // namespace
}  // namespace nomira::engine
