// Dos PC liquidan a la vez personas distintas de una misma empresa: lo que queda en la
// base es lo mismo que dejan las dos corridas una después de la otra.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "apoyo/base_prueba.h"
#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "common/fechas.h"
#include "master/datos_iniciales.h"

namespace nomira {
namespace {

const std::filesystem::path kDatos = std::filesystem::path(__FILE__).parent_path() / "../../data";

class DosProcesos : public store::prueba::BasePrueba {
protected:
    // Una tanda de personas liquidada por un proceso nomira-cli por persona, en orden.
    std::string tanda(int desde, int hasta) const {
        std::string orden;
        for (int i = desde; i <= hasta; ++i)
            orden += pruebas::rutaCli() + " --base " + pruebas::citado(destino_) +
                     " haberes --empresa ACME --nombre 'PEREZ, ANA" + std::to_string(i) +
                     "' --mes 02/26 >/dev/null || echo FALLO " + std::to_string(i) + "; ";
        return orden;
    }
    std::vector<std::string> filas() {
        std::vector<std::string> v;
        for (const auto& f : c().consulta("SELECT nombre, codigo, concepto, cant, total FROM habydesc").filas)
            v.push_back(f.texto("nombre") + "|" + f.texto("codigo") + "|" + f.texto("concepto") + "|" +
                        f.texto("cant") + "|" + f.texto("total"));
        std::sort(v.begin(), v.end());
        return v;
    }
};

TEST_P(DosProcesos, PersonasDistintasALaVezDejanLoMismoQueUnaTrasOtra) {
    pruebas::CarpetaTemporal tmp;  // sin horas.txt ni base.txt del usuario
    master::cargarDatosIniciales(c(), kDatos, common::Fecha{2026, 3, 15});
    c().ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('ACME', 1)");
    for (int i = 1; i <= 6; ++i)
        c().ejecuta(
            "INSERT INTO personal (empresa, nombre, nrofun, sueldo, tiposueldo, fechaing, htrab, impaclab) "
            "VALUES ('ACME', ?, ?, ?, 'S', '2020-01-01', '8', '1')",
            {"PEREZ, ANA" + std::to_string(i), std::int64_t{i}, std::to_string(20000 + 1000 * i)});

    // A la vez: un proceso con las personas 1 a 3 y otro con las 4 a 6.
    auto r = pruebas::ejecutar("(" + tanda(1, 3) + ") & (" + tanda(4, 6) + ") & wait");
    EXPECT_EQ(r.texto.find("FALLO"), std::string::npos) << r.texto;
    const auto aLaVez = filas();
    ASSERT_GE(aLaVez.size(), 6u);  // al menos el SUELDO de cada una

    c().ejecuta("DELETE FROM habydesc");
    r = pruebas::ejecutar(tanda(1, 6));
    EXPECT_EQ(r.texto.find("FALLO"), std::string::npos) << r.texto;
    EXPECT_EQ(filas(), aLaVez);
}

NOMIRA_PARA_CADA_MOTOR(DosProcesos);

}  // namespace
}  // namespace nomira
