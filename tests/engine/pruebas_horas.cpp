// Los archivos de horas: las líneas que se leen y las que se saltan, la suma a
// los haberes que ya había con las jornadas del mes, y los descuentos que se
// reemplazan con el SNIS del aguinaldo de junio.
#include <gtest/gtest.h>

#include <fstream>

#include "engine/mes/haberes.h"
#include "engine/mes/escritura.h"
#include "engine/mes/horas.h"
#include "pruebas_descuentos_escenario.h"

namespace nomira::engine {
namespace {

TEST(LineaHoras, CamposYCantidadDeBarras) {
    auto l = leerLineaHoras("12|10|40");
    ASSERT_TRUE(l);
    EXPECT_EQ(l->nrofun, 12);
    EXPECT_EQ(l->codigo, 10);
    EXPECT_EQ(l->cantidad, 40);
    EXPECT_EQ(l->importe, common::Dinero());
    l = leerLineaHoras(" 12| 31|2.5|250.55");
    ASSERT_TRUE(l);
    EXPECT_EQ(l->cantidad, 2.5);
    EXPECT_EQ(l->importe, common::Dinero::desdeDouble(250.55));
    EXPECT_FALSE(leerLineaHoras("12|10"));
    EXPECT_FALSE(leerLineaHoras("12|10|1|2|3"));
    EXPECT_FALSE(leerLineaHoras(""));
    EXPECT_EQ(rutaArchivoHoras("/h/HS", {2026, 3}, "7").string(), "/h/HS03267.txt");
}

class Horas : public pruebas::EscenarioMes {
  protected:
    void SetUp() override {
        EscenarioMes::SetUp();
        if (IsSkipped()) return;
        persona("LOPEZ, EVA", {{"nrofun", "12"},
                               {"sueldo", "100"},
                               {"tiposueldo", "H"},
                               {"htrab", "8"},
                               {"sexocon", "MNo"}});
        persona("OTRO, LUIS", {{"nrofun", "13"}, {"sueldo", "100"}, {"tiposueldo", "H"}});
        const auto carpeta = tmp.ruta() / "Software" / "Nomira";
        std::filesystem::create_directories(carpeta);
        std::ofstream(carpeta / "horas.txt") << (tmp.ruta() / "HS").string() << "\r\n";
    }
    void archivo(const common::Mes& mes, const std::string& texto) {
        std::ofstream(rutaArchivoHoras((tmp.ruta() / "HS").string(), mes, "7")) << texto;
    }
};
NOMIRA_PARA_CADA_MOTOR(Horas);

TEST_P(Horas, HaberesSeSumanYLasLineasAjenasNoDejanRastro) {
    concepto(31, "EXTRA", "G", "", "Hab", "I", "No", "Si", "Si");
    fila("LOPEZ, EVA", marzo, 10, "HORAS", "Hab", 10, 1000);
    fila("LOPEZ, EVA", marzo, 11, "HORAS NOCTURNAS", "Hab", 6, 720);
    // Sin archivo del mes no pasa nada.
    const auto sinArchivo = mesDe("LOPEZ, EVA", marzo);
    ASSERT_TRUE(sinArchivo);
    EXPECT_TRUE(CalculoCant(ctx, dialogo).filas.empty());

    archivo(marzo,
            "12|10|40\r\n"
            "12|10|5|\r\n"
            "12|10\r\n"        // una barra
            "13|10|99\r\n"     // otro funcionario
            "12|999|1\r\n"     // código que no existe
            "12|502|1\r\n"     // un descuento no entra con los haberes
            "12|1|1|2|3\r\n"   // cuatro barras
            "12|31|2|250.5");  // fórmula vacía: el importe del archivo
    // El archivo se lee con el mes, y lo importado se escribe con la persona.
    auto mp = mesDe("LOPEZ, EVA", marzo);
    ASSERT_TRUE(mp);
    const auto r = CalculoCant(ctx, dialogo);
    escribirLibro(*base, mp->libro());
    double cant = 0;
    // 10 + 40 + 5 horas; 1000 + 100 x 40 + 100 x 5.
    EXPECT_EQ(total("LOPEZ, EVA", marzo, 10, nullptr, &cant), 5500);
    EXPECT_EQ(cant, 55);
    // Jornadas: (55 + 6 nocturnas) / 8.
    EXPECT_EQ(total("LOPEZ, EVA", marzo, 12, nullptr, &cant), 0);
    EXPECT_EQ(cant, 7.625);
    EXPECT_EQ(total("LOPEZ, EVA", marzo, 31, nullptr, &cant), 250.5);
    EXPECT_EQ(cant, 2);
    EXPECT_EQ(cuantas("nombre = 'LOPEZ, EVA'"), 4);
    EXPECT_EQ(cuantas("nombre = 'OTRO, LUIS' OR cant = 99 OR tipo = 'Des'"), 0);
    EXPECT_EQ(r.filas.size(), 5u);  // dos de HORAS con sus jornadas, y EXTRA
}

// Lo que trae el archivo ya cuenta para los permanentes que se generan después:
// PRIMA es el 10% de lo gravado del mes, y el mes sólo tiene lo del archivo.
TEST_P(Horas, LoImportadoCuentaParaLosPermanentesDeLaGeneracion) {
    concepto(31, "EXTRA", "G", "", "Hab", "I", "No", "Si", "Si");
    concepto(40, "PRIMA", "G", "[MONTOGRAV]/10", "Hab", "I", "Si", "No", "Si");
    archivo(marzo, "12|31|2|250.5");
    ASSERT_TRUE(
        generarHaberesPermanentes(*base, "ACME", "LOPEZ, EVA", marzo, dialogo, conArchivoDeHoras())
            .hecho);
    EXPECT_EQ(total("LOPEZ, EVA", marzo, 31), 250.5);
    EXPECT_EQ(total("LOPEZ, EVA", marzo, 40), 25.05);  // 250.50 / 10
}

TEST_P(Horas, DescuentosSeReemplazanConElSNISDelAguinaldo) {
    const common::Mes junio{2026, 6};
    fila("LOPEZ, EVA", junio, 10, "HORAS", "Hab", 200, 20000);
    fila("LOPEZ, EVA", junio, 502, "SNIS 4.5%", "Des", 1, 50);
    ejecutar(
        "INSERT INTO aguinaldos (empresa, nombre, fecha, concepto, total, tipo) VALUES "
        "('ACME', 'LOPEZ, EVA', ?, 'AGUINALDO', 12000, 'Hab'), "
        "('ACME', 'LOPEZ, EVA', ?, 'SNIS 3%', 30, 'Des')",
        {junio.primerDia().iso(), junio.primerDia().iso()});
    archivo(junio, "12|502|1\n12|10|8\n");
    // El único haber del mes: sin complemento. 20000 > 17160, sin cónyuge: 4.5%.
    // El SNIS reemplaza al que había (50) y las horas no entran (es un descuento).
    auto mp = mesDe("LOPEZ, EVA", junio);
    ASSERT_TRUE(mp);
    CalculoCant2(ctx, dialogo);
    escribirLibro(*base, mp->libro());
    EXPECT_EQ(total("LOPEZ, EVA", junio, 502), 900);
    EXPECT_EQ(total("LOPEZ, EVA", junio, 10), 20000);

    // Con un segundo haber: 900 + 12000 / 12 x 4.5% - 30 ya retenido = 915.
    fila("LOPEZ, EVA", junio, 30, "PREMIO", "Hab", 1, 0);
    mp = mesDe("LOPEZ, EVA", junio);
    ASSERT_TRUE(mp);
    CalculoCant2(ctx, dialogo);
    escribirLibro(*base, mp->libro());
    EXPECT_EQ(total("LOPEZ, EVA", junio, 502), 915);
}

// Generar otra vez con el mismo archivo no lo cuenta dos veces: lo que agregó
// la importación anterior se reemplaza y lo tecleado antes queda.
TEST_P(Horas, ImportarOtraVezNoSumaDosVeces) {
    fila("LOPEZ, EVA", marzo, 11, "HORAS NOCTURNAS", "Hab", 6, 720);  // tecleadas
    archivo(marzo, "12|10|40\r\n12|10|5\r\n12|11|4\r\n");
    for (int vez = 1; vez <= 3; ++vez) {
        SCOPED_TRACE(vez);
        ASSERT_TRUE(generarHaberesPermanentes(*base, "ACME", "LOPEZ, EVA", marzo, dialogo,
                                              conArchivoDeHoras())
                        .hecho);
        double cant = 0;
        // HORAS: 40 + 5 del archivo, a 100 cada una.
        EXPECT_EQ(total("LOPEZ, EVA", marzo, 10, nullptr, &cant), 4500);
        EXPECT_EQ(cant, 45);
        // HORAS NOCTURNAS: las 6 tecleadas (720) más 4 del archivo a 120 (480).
        EXPECT_EQ(total("LOPEZ, EVA", marzo, 11, nullptr, &cant), 1200);
        EXPECT_EQ(cant, 10);
        // Jornadas: (45 + 10) / 8.
        EXPECT_EQ(total("LOPEZ, EVA", marzo, 12, nullptr, &cant), 0);
        EXPECT_EQ(cant, 6.875);
    }
}

// Sin archivo del mes, la corrida dice qué archivo buscó, una sola vez.
TEST_P(Horas, SinArchivoLaCorridaLoDiceUnaVez) {
    ASSERT_FALSE(haberesDeLaEmpresa(*base, "ACME", marzo, dialogo, conArchivoDeHoras()).fallo);
    const auto ruta = rutaArchivoHoras((tmp.ruta() / "HS").string(), marzo, "7").string();
    ASSERT_EQ(dialogo.mensajes.size(), 1u);
    EXPECT_EQ(dialogo.ultimoMensaje(), "No se encontró el archivo de horas del mes " + ruta +
                                           ". Los jornaleros y los por hora quedan sin horas.");
    // Con el archivo, nada que avisar.
    archivo(marzo, "12|10|1\n");
    dialogo.mensajes.clear();
    ASSERT_FALSE(haberesDeLaEmpresa(*base, "ACME", marzo, dialogo, conArchivoDeHoras()).fallo);
    EXPECT_TRUE(dialogo.mensajes.empty()) << dialogo.ultimoMensaje();
}

}  // namespace
}  // namespace nomira::engine
