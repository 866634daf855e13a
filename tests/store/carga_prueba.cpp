// Leer fila por fila y escribir por tramos: lo que se escribe vuelve igual, en
// los dos motores, y leer no impide usar la conexión mientras tanto.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"

namespace nomira::store::prueba {
namespace {

using Tramos = BasePrueba;

const std::vector<std::string> kColumnas = {"empresa",  "nombre", "fecha", "codigo",
                                            "concepto", "cant",   "total"};

std::vector<Valor> fila(int i) {
    // Textos con lo que el formato de COPY escapa, Null, vacío y números.
    std::string raro = "Tab\tLínea\nVuelta\r\\barra\\N 'comilla' " + std::to_string(i);
    return {std::string("O'HARA"),
            i % 7 == 0 ? Valor{Nulo{}} : Valor{"PERSONA " + std::to_string(i)},
            i % 5 == 0 ? Valor{Nulo{}} : Valor{std::string("2026-02-01")},
            std::int64_t{i},
            i % 3 == 0 ? Valor{std::string("")} : Valor{raro},
            0.1 * i,
            1234567.8901 / (i + 1)};
}

TEST_P(Tramos, LoCargadoVuelveIgualYSePuedeLeerConsultandoAdentro) {
    constexpr int kFilas = 2345;  // más de un tramo en los dos motores, y uno incompleto
    {
        Transaccion t(c());
        auto carga = c().cargar("habydesc", kColumnas);
        for (int i = 0; i < kFilas; ++i) carga->agregar(fila(i));
        carga->terminar();
        t.confirmar();
    }
    int leidas = 0;
    c().recorrer(
        "SELECT empresa, nombre, fecha, codigo, concepto, cant, total FROM habydesc ORDER BY "
        "codigo",
        {}, [&](const FilaAlPaso& f) {
            const int i = static_cast<int>(f.entero(3));
            ASSERT_EQ(i, leidas);
            const auto esperada = fila(i);
            for (std::size_t k : {0u, 1u, 2u, 4u})
                EXPECT_EQ(f.texto(k), textoDe(celdaDe(esperada[k]))) << i << " " << k;
            EXPECT_NEAR(f.real(5), 0.1 * i, 1e-9);
            EXPECT_NEAR(f.real(6), 1234567.8901 / (i + 1), 1e-4);
            // Otra consulta en la misma conexión, en medio del recorrido.
            if (i % 1000 == 999) {
                EXPECT_EQ(c().consulta("SELECT count(*) FROM habydesc").primera().entero(0),
                          kFilas);
            }
            ++leidas;
        });
    EXPECT_EQ(leidas, kFilas);
}

TEST_P(Tramos, UnaCargaSinTerminarNoDejaNada) {
    try {
        Transaccion t(c());
        auto carga = c().cargar("paises", {"nombre"});
        carga->agregar({std::string("858-URUGUAY")});
        carga->agregar({std::string("032-ARGENTINA"), std::string("de más")});
        FAIL() << "una fila con otra cantidad de columnas se rechaza";
    } catch (const ErrorBase& e) {
        EXPECT_EQ(e.numero(), kErrorUso);
    }
    EXPECT_EQ(c().consulta("SELECT count(*) FROM paises").primera().entero(0), 0);
    // La conexión sigue sirviendo.
    c().ejecuta("INSERT INTO paises (nombre) VALUES ('01-URUGUAY')");
    EXPECT_EQ(c().consulta("SELECT count(*) FROM paises").primera().entero(0), 1);
}

NOMIRA_PARA_CADA_MOTOR(Tramos);

}  // namespace
}  // namespace nomira::store::prueba
