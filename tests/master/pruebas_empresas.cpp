// Empresas: número propuesto, alta y modificación de las 39 columnas, la baja
// en cascada, la lista de la pantalla y lo impreso.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "apoyo/base_prueba.h"
#include "apoyo/carpeta_temporal.h"
#include "master/archivo_texto.h"
#include "master/empresas.h"
#include "master/informe_empresas.h"

namespace nomira::master {
namespace {

class Empresas : public store::prueba::BasePrueba {
  protected:
    std::int64_t filas(const std::string& tabla, const std::string& empresa) {
        return c()
            .consulta("SELECT COUNT(*) AS n FROM " + tabla + " WHERE empresa = ?", {empresa})
            .primera()
            .entero("n");
    }
    Empresa empresa(const std::string& nombre, const std::string& nro) {
        Empresa e;
        e.empresa = nombre;
        e.nroemp = nro;
        return e;
    }
};
NOMIRA_PARA_CADA_MOTOR(Empresas);

TEST_P(Empresas, NumeroAltaYModificacion) {
    EXPECT_EQ(proximoNroEmp(c()), 1);  // la primera empresa
    Empresa e = empresa("D'ANGELO S.A.", "7");
    e.fechainsc = "31/01/26";
    e.fechafinact3 = "15/12/99";
    e.centralplanilla = "Si";
    e.subgrupoconsal = "Frigoríficos";
    agregarEmpresa(c(), e);
    agregarEmpresa(c(), empresa("SIN NUMERO", "x12"));  // no es número: Null
    EXPECT_EQ(proximoNroEmp(c()), 8);

    auto leida = leerEmpresa(c(), "D'ANGELO S.A.");
    ASSERT_TRUE(leida);
    EXPECT_EQ(leida->fechainsc, "2026-01-31");
    EXPECT_EQ(fechaDeEmpresa(leida->fechafinact3), "15/12/99");
    EXPECT_EQ(leida->subgrupoconsal, "Frigoríficos");
    EXPECT_EQ(leerEmpresa(c(), "SIN NUMERO")->nroemp, "");

    // La fecha leída vuelve a guardarse igual; el nombre no cambia.
    leida->direccion = "Rambla 1";
    leida->fechainsc = fechaDeEmpresa(leida->fechainsc);
    leida->fechafinact3 = "";
    leida->nroemp = "70";
    modificarEmpresa(c(), *leida);
    const auto otra = leerEmpresa(c(), "D'ANGELO S.A.");
    EXPECT_EQ(otra->direccion, "Rambla 1");
    EXPECT_EQ(otra->fechainsc, "2026-01-31");
    EXPECT_EQ(otra->fechafinact3, "");
    EXPECT_EQ(otra->centralplanilla, "Si");
    EXPECT_EQ(proximoNroEmp(c()), 71);
    EXPECT_EQ(leerEmpresa(c(), "SIN NUMERO")->direccion, "");
}

TEST_P(Empresas, LaBajaBorraLasNueveTablasYDejaLasObras) {
    agregarEmpresa(c(), empresa("ACME", "1"));
    agregarEmpresa(c(), empresa("OTRA", "2"));
    for (const std::string n : {"ACME", "OTRA"}) {
        for (const char* t : tablasDeLaEmpresa())
            if (std::string(t) != "empresas")
                c().ejecuta("INSERT INTO " + std::string(t) + " (empresa) VALUES (?)", {n});
        c().ejecuta("INSERT INTO obras (empresa, nroobra) VALUES (?, '10')", {n});
    }
    eliminarEmpresa(c(), "ACME");
    for (const char* t : tablasDeLaEmpresa()) {
        EXPECT_EQ(filas(t, "ACME"), 0) << t;
        EXPECT_EQ(filas(t, "OTRA"), 1) << t;
    }
    EXPECT_EQ(filas("obras", "ACME"), 1);
    EXPECT_EQ(tablasDeLaEmpresa().size(), 9u);
}

TEST_P(Empresas, UnaBajaQueFallaNoDejaNadaAMedias) {
    agregarEmpresa(c(), empresa("ACME", "1"));
    c().ejecuta("INSERT INTO personal (empresa, nombre) VALUES ('ACME', 'PEREZ, ANA')");
    // Sin la tabla del último paso, el borrado falla después de los primeros.
    c().ejecuta("DROP TABLE montosapagar");
    EXPECT_THROW(eliminarEmpresa(c(), "ACME"), std::exception);
    EXPECT_EQ(filas("empresas", "ACME"), 1);
    EXPECT_EQ(filas("personal", "ACME"), 1);
}

TEST_P(Empresas, ListaOrdenadaYFiltradaConSuImpresion) {
    Empresa a = empresa("ALFA", "1"), b = empresa("BETA", "2"), g = empresa("GAMA", "3");
    a.direccion = "Rivera 3", b.direccion = "Colonia 9", g.direccion = "rambla 5";
    a.fechainsc = "01/02/03";
    for (const auto& e : {a, b, g}) agregarEmpresa(c(), e);
    const auto nombres = [](const std::vector<Empresa>& v) {
        std::vector<std::string> n;
        for (const auto& e : v) n.push_back(e.empresa);
        return n;
    };
    using V = std::vector<std::string>;
    EXPECT_EQ(nombres(consultarEmpresas(c())), (V{"ALFA", "BETA", "GAMA"}));
    EXPECT_EQ(nombres(consultarEmpresas(c(), OrdenEmpresas::Bps)).size(), 3u);
    // "Buscar por" busca al principio de la columna de la clave, sin mayúsculas.
    EXPECT_EQ(nombres(consultarEmpresas(c(), OrdenEmpresas::Direccion, "R")), (V{"GAMA", "ALFA"}));
    EXPECT_EQ(nombres(consultarEmpresas(c(), OrdenEmpresas::Direccion, "9")), V{});
    EXPECT_EQ(nombresDeEmpresas(c()), (V{"ALFA", "BETA", "GAMA"}));

    const auto filasGrilla = filasGrillaEmpresas(consultarEmpresas(c()));
    ASSERT_EQ(filasGrilla.size(), 3u);
    EXPECT_EQ(filasGrilla[1][0], "2");
    EXPECT_EQ(filasGrilla[0][15], "01/02/03");  // FechaInsc como en pantalla
    EXPECT_EQ(filasGrilla[0].size(), encabezadosGrillaEmpresas().size());

    const auto listado = lineasListadoEmpresas(consultarEmpresas(c()));
    EXPECT_EQ(listado[0], "EMPRESAS");
    EXPECT_EQ(listado[2].substr(0, 7), "Empresa");
    EXPECT_EQ(listado[3].substr(40, 8), "Rivera 3");

    const auto ficha = lineasFichaEmpresa(*leerEmpresa(c(), "ALFA"));
    EXPECT_EQ(ficha[0], "INFORMACION DE LA EMPRESA");
    EXPECT_EQ(ficha.size(), 24u);
    EXPECT_EQ(ficha[2], "        Empresa: ALFA");
    EXPECT_EQ(ficha[16], "      FechaInsc: 01/02/03");
}

TEST(ArchivoTexto, SeGuardaSeLlevaYSeBorra) {
    pruebas::CarpetaTemporal tmp;
    const auto origen = std::filesystem::path(tmp.archivo("Software/empresas.txt"));
    guardarLineas(origen, {"uno", "dos"});
    std::filesystem::create_directories(tmp.archivo("usb"));
    const auto copia = llevarACarpeta(origen, tmp.archivo("usb"));
    EXPECT_FALSE(std::filesystem::exists(origen));
    std::ifstream f(copia, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(f), {}), "uno\r\ndos\r\n");
    guardarLineas(origen, {"x"});
    EXPECT_THROW(llevarACarpeta(origen, tmp.archivo("no/existe")), common::Fallo);
}

}  // namespace
}  // namespace nomira::master
