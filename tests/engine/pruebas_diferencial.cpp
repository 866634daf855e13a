// La corrida de una empresa da lo mismo que liquidar a sus personas una por una
// (haberes de todas y después descuentos de todas, en el orden de la corrida),
// fila por fila y explicación por explicación, en los dos motores: la lectura de
// una vez y la de cada persona no pueden ver meses distintos.
#include <gtest/gtest.h>

#include <sstream>

#include "engine/apoyo_estudio_demo.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/haberes.h"
#include "engine/mes/lectura.h"

namespace nomira::engine {
namespace {

class Diferencial : public pruebas::BaseEstudioDemo {
  protected:
    void SetUp() override {
        BaseEstudioDemo::SetUp();
        if (IsSkipped()) return;
        horasDelReloj();
    }

    // Todo lo liquidado del mes, fila por fila, con su explicación, en un orden fijo.
    std::string delMes() {
        std::ostringstream s;
        for (const auto& f :
             c().consulta(
                    "SELECT h.empresa, h.nombre, h.codigo, h.concepto, h.tipo, h.cant, h.total, "
                    "x.texto FROM habydesc h LEFT JOIN explicaciones x ON x.empresa = h.empresa "
                    "AND x.nombre = h.nombre AND x.fecha = h.fecha AND x.tabla = 'habydesc' AND "
                    "x.codigo = h.codigo WHERE h.fecha = ? ORDER BY h.empresa, h.nombre, "
                    "h.codigo",
                    {kMes.primerDia().iso()})
                 .filas) {
            for (std::size_t i = 0; i < f.tamano(); ++i) s << f.texto(i) << " | ";
            s << '\n';
        }
        return s.str();
    }

    void borrarMes() {
        for (const char* t : {"habydesc", "explicaciones"})
            c().ejecuta(std::string("DELETE FROM ") + t + " WHERE fecha = ?",
                        {kMes.primerDia().iso()});
    }

};
NOMIRA_PARA_CADA_MOTOR(Diferencial);

TEST_P(Diferencial, LaEmpresaEnteraDaLoMismoQuePersonaPorPersona) {
    for (const auto& e : master::empresasDemo()) {
        ASSERT_FALSE(haberesDeLaEmpresa(c(), e, kMes, dialogo, conArchivoDeHoras()).fallo);
        ASSERT_FALSE(descuentosDeLaEmpresa(c(), e, kMes, dialogo).fallo);
    }
    const auto deLaEmpresa = delMes();
    ASSERT_NE(deLaEmpresa.find("SUELDO FICTO"), std::string::npos);

    borrarMes();
    for (const auto& e : master::empresasDemo()) {
        std::vector<std::string> activas;
        for (const auto& p : personasPorCantbfc(c(), e))
            if (activaEnElMes(*p, kMes)) activas.push_back(p->nombre);
        for (const auto& n : activas)
            ASSERT_TRUE(generarHaberesPermanentes(c(), e, n, kMes, dialogo, conArchivoDeHoras())
                            .hecho)
                << n;
        for (const auto& n : activas) descuentosDeUnaPersona(c(), e, n, kMes, dialogo);
    }
    EXPECT_EQ(delMes(), deLaEmpresa);
}

}  // namespace
}  // namespace nomira::engine
