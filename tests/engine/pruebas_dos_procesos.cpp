// Varias PC liquidan a la vez la misma empresa, la misma persona o personas
// distintas: lo que queda en la base, filas y explicaciones, es lo mismo que
// dejan las mismas corridas una después de la otra, ronda tras ronda.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "apoyo/base_prueba.h"
#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "common/fechas.h"
#include "master/datos_iniciales.h"

namespace nomira {
namespace {

const std::filesystem::path kDatos = std::filesystem::path(__FILE__).parent_path() / "../../data";
constexpr int kPersonas = 6;

// NOMIRA_RONDAS cambia cuántas veces se repite cada caso (20 si no se dice).
int rondas() {
    const char* r = std::getenv("NOMIRA_RONDAS");
    return r && *r ? std::atoi(r) : 20;
}

class VariosProcesos : public store::prueba::BasePrueba {
  protected:
    void SetUp() override {
        BasePrueba::SetUp();
        if (IsSkipped()) return;
        master::cargarDatosIniciales(c(), kDatos, common::Fecha{2026, 3, 15});
        c().ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('ACME', 1)");
        for (int i = 1; i <= kPersonas; ++i)
            c().ejecuta(
                "INSERT INTO personal (empresa, nombre, nrofun, sueldo, tiposueldo, fechaing, "
                "htrab, impaclab) VALUES ('ACME', ?, ?, ?, 'S', '2020-01-01', '8', '1')",
                {persona(i), std::int64_t{i}, std::to_string(20000 + 7000 * i)});
    }

    static std::string persona(int i) { return "PEREZ, ANA" + std::to_string(i); }

    // Haberes y después descuentos de la empresa (nombre vacío) o de una persona.
    std::string liquidar(const std::string& nombre) const {
        std::string orden;
        for (const char* o : {"haberes", "descuentos"})
            orden += pruebas::rutaCli() + " --base " + pruebas::citado(destino_) + " " + o +
                     " --empresa ACME" + (nombre.empty() ? "" : " --nombre " + pruebas::citado(nombre)) +
                     " --mes 02/26 >/dev/null 2>&1 || echo FALLO " + o + " " + nombre + "; ";
        return orden;
    }

    // Cada proceso hace su lista de corridas en orden; los procesos van a la vez.
    void aLaVez(const std::vector<std::string>& procesos) {
        std::string orden;
        for (const auto& p : procesos) orden += "(" + p + ") & ";
        const auto r = pruebas::ejecutar(orden + "wait");
        EXPECT_EQ(r.texto.find("FALLO"), std::string::npos) << r.texto;
    }

    std::vector<std::string> filas() {
        std::vector<std::string> v;
        for (const auto& f :
             c().consulta("SELECT h.nombre, h.codigo, h.concepto, h.tipo, h.cant, h.total, "
                          "x.texto FROM habydesc h LEFT JOIN explicaciones x ON x.empresa = "
                          "h.empresa AND x.nombre = h.nombre AND x.fecha = h.fecha AND x.tabla = "
                          "'habydesc' AND x.codigo = h.codigo")
                 .filas) {
            std::string s;
            for (std::size_t i = 0; i < f.tamano(); ++i) s += f.texto(i) + "|";
            v.push_back(s);
        }
        std::sort(v.begin(), v.end());
        return v;
    }

    // Lo que dejan los procesos de cada ronda, a la vez, contra lo que dejan uno
    // tras otro (sobre la base vacía cada vez).
    void comparar(const std::vector<std::string>& procesos) {
        c().ejecuta("DELETE FROM habydesc");
        c().ejecuta("DELETE FROM explicaciones");
        std::string seguidos;
        for (const auto& p : procesos) seguidos += p;
        const auto r = pruebas::ejecutar(seguidos);
        ASSERT_EQ(r.texto.find("FALLO"), std::string::npos) << r.texto;
        const auto esperadas = filas();
        ASSERT_GE(esperadas.size(), 4u);
        for (int ronda = 0; ronda < rondas(); ++ronda) {
            c().ejecuta("DELETE FROM habydesc");
            c().ejecuta("DELETE FROM explicaciones");
            aLaVez(procesos);
            ASSERT_EQ(filas(), esperadas) << "ronda " << ronda;
        }
    }

    pruebas::CarpetaTemporal tmp{"15/03/2026"};  // sin horas.txt ni base.txt del usuario
};
NOMIRA_PARA_CADA_MOTOR(VariosProcesos);

TEST_P(VariosProcesos, LaMismaEmpresa) {
    for (const int n : {2, 4}) {
        SCOPED_TRACE(std::to_string(n) + " procesos");
        comparar(std::vector<std::string>(static_cast<std::size_t>(n), liquidar("")));
    }
}

TEST_P(VariosProcesos, LaMismaPersona) {
    for (const int n : {2, 4}) {
        SCOPED_TRACE(std::to_string(n) + " procesos");
        comparar(std::vector<std::string>(static_cast<std::size_t>(n), liquidar(persona(3))));
    }
}

TEST_P(VariosProcesos, PersonasDistintas) {
    for (const int n : {2, 3}) {
        SCOPED_TRACE(std::to_string(n) + " procesos");
        std::vector<std::string> procesos(static_cast<std::size_t>(n));
        for (int i = 1; i <= kPersonas; ++i)
            procesos[static_cast<std::size_t>(i % n)] += liquidar(persona(i));
        comparar(procesos);
    }
}

}  // namespace
}  // namespace nomira
