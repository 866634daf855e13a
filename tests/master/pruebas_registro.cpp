// Registros por nombre de columna: lo que se escribe en cada tipo de columna y la
// vuelta completa de una empresa por la base.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "master/empresas.h"

using namespace nomira;
using store::Nulo;
using store::TipoColumna;
using store::Valor;

TEST(Registro, CadaTipoDeColumnaRecibeSuValor) {
    EXPECT_EQ(master::valorParaColumna("", TipoColumna::Texto), Valor(std::string()));
    EXPECT_EQ(master::valorParaColumna("", TipoColumna::Entero), Valor(Nulo{}));
    EXPECT_EQ(master::valorParaColumna("12", TipoColumna::Entero), Valor(std::int64_t{12}));
    EXPECT_EQ(master::valorParaColumna("12a", TipoColumna::Entero), Valor(Nulo{}));
    EXPECT_EQ(master::valorParaColumna("1234.5", TipoColumna::Dinero), Valor(1234.5));
    // Las fechas de pantalla (dd/mm/aa) se guardan como fecha; 29 es 2029 y 30 es 1930.
    EXPECT_EQ(master::valorParaColumna("31/01/29", TipoColumna::Fecha), Valor(std::string("2029-01-31")));
    EXPECT_EQ(master::valorParaColumna("31/01/30", TipoColumna::Fecha), Valor(std::string("1930-01-31")));
    EXPECT_EQ(master::valorParaColumna("31/02/26", TipoColumna::Fecha), Valor(Nulo{}));
    EXPECT_EQ(master::valorParaColumna("", TipoColumna::Fecha), Valor(Nulo{}));
}

class RegistroEmpresa : public store::prueba::BasePrueba {};

TEST_P(RegistroEmpresa, UnaEmpresaVaYVuelveConSusTreintaYNueveColumnas) {
    master::Empresa e;
    int i = 0;
    for (const auto& campo : master::camposEmpresa()) e.*campo.miembro = "v" + std::to_string(i++);
    e.empresa = "D'Alessandro Hnos.";
    e.nroemp = "12";
    e.fechainsc = "2024-02-29";
    e.fechainiact = "";
    e.fechainiact2 = e.fechafinact2 = e.fechainiact3 = e.fechafinact3 = "2026-11-30";
    master::insertarRegistro(c(), "empresas", e, master::camposEmpresa());

    const auto leida = master::leerEmpresa(c(), "D'Alessandro Hnos.");
    ASSERT_TRUE(leida);
    for (const auto& campo : master::camposEmpresa())
        EXPECT_EQ((*leida).*campo.miembro, e.*campo.miembro) << campo.columna;
    EXPECT_EQ(master::camposEmpresa().size(), store::tabla("empresas").columnas.size());
    EXPECT_FALSE(master::leerEmpresa(c(), "D'ALESSANDRO HNOS."));
}

NOMIRA_PARA_CADA_MOTOR(RegistroEmpresa);
