#include <cstdlib>
#include <ctime>
#include <regex>

#include <gtest/gtest.h>

#include "common/fallo.h"
#include "common/fechas.h"
#include "common/reloj.h"

namespace nomira::common {

void PrintTo(const Fecha& f, std::ostream* os) {
    *os << f.iso();
}
void PrintTo(const Mes& m, std::ostream* os) {
    *os << m.anio << "-" << m.mes;
}

namespace {

TEST(AniosDeDosCifras, CadaReglaEnSusBordes) {
    EXPECT_EQ(anioVentana30(29), 2029);
    EXPECT_EQ(anioVentana30(30), 1930);
    EXPECT_EQ(anioVentana30(0), 2000);
    EXPECT_EQ(anioVentana30(99), 1999);
    EXPECT_EQ(anioPivote50(49), 2049);
    EXPECT_EQ(anioPivote50(50), 1950);
    EXPECT_EQ(anioPivote50(30), 2030);
    EXPECT_EQ(anioPivote30(29), 2029);
    EXPECT_EQ(anioPivote30(30), 1930);
    EXPECT_EQ(anioPivote30(49), 1949);
}

TEST(Fecha, DesdeTexto) {
    EXPECT_EQ(Fecha::desdeTexto("15/01/26"), (Fecha{2026, 1, 15}));
    EXPECT_EQ(Fecha::desdeTexto("5/1/26"), (Fecha{2026, 1, 5}));
    EXPECT_EQ(Fecha::desdeTexto("15/01/2026"), (Fecha{2026, 1, 15}));
    EXPECT_EQ(Fecha::desdeTexto("2026-01-15"), (Fecha{2026, 1, 15}));
    EXPECT_EQ(Fecha::desdeTexto("01/01/30"), (Fecha{1930, 1, 1}));
    EXPECT_EQ(Fecha::desdeTexto("31/12/29"), (Fecha{2029, 12, 31}));
    EXPECT_EQ(Fecha::desdeTexto("29/02/24"), (Fecha{2024, 2, 29}));
    EXPECT_EQ(Fecha::desdeTexto("29/02/2000"), (Fecha{2000, 2, 29}));
    for (const char* mal :
         {"", "29/02/25", "29/02/1900", "31/04/25", "15/13/26", "0/1/26", "15-01-26", "15/01/202",
          "1/1/1", "15/01", "2026-1-15", "2026-02-30", "aa/01/26", "15/01/26 "}) {
        EXPECT_FALSE(Fecha::desdeTexto(mal).has_value()) << mal;
    }
}

TEST(Fecha, Textos) {
    const Fecha f{2026, 1, 5};
    EXPECT_EQ(f.iso(), "2026-01-05");
    EXPECT_EQ(f.ddmmyy(), "05/01/26");
    EXPECT_EQ(f.ddmmyyyy(), "05/01/2026");
    EXPECT_EQ((Fecha{2000, 3, 4}).ddmmyy(), "04/03/00");
    EXPECT_EQ((Fecha{1999, 12, 31}).ddmmyy(), "31/12/99");
    EXPECT_EQ(CalculaFecha(f), "05/01/26");
}

TEST(Fecha, LargoDeLosMeses) {
    EXPECT_EQ(diasDelMes(2024, 2), 29);
    EXPECT_EQ(diasDelMes(2025, 2), 28);
    EXPECT_EQ(diasDelMes(1900, 2), 28);
    EXPECT_EQ(diasDelMes(2000, 2), 29);
    EXPECT_EQ(diasDelMes(2025, 4), 30);
    EXPECT_EQ(diasDelMes(2025, 12), 31);
    EXPECT_EQ((Fecha{2024, 2, 10}).ultimoDiaDelMes(), (Fecha{2024, 2, 29}));
    EXPECT_EQ((Fecha{2025, 2, 10}).ultimoDiaDelMes(), (Fecha{2025, 2, 28}));
    EXPECT_EQ((Fecha{2025, 11, 30}).ultimoDiaDelMes(), (Fecha{2025, 11, 30}));
}

TEST(Fecha, DiasVecinosYSumas) {
    EXPECT_EQ((Fecha{2026, 1, 1}).diaAnterior(), (Fecha{2025, 12, 31}));
    EXPECT_EQ((Fecha{2024, 3, 1}).diaAnterior(), (Fecha{2024, 2, 29}));
    EXPECT_EQ((Fecha{2025, 3, 1}).diaAnterior(), (Fecha{2025, 2, 28}));
    EXPECT_EQ((Fecha{2024, 2, 28}).diaSiguiente(), (Fecha{2024, 2, 29}));
    EXPECT_EQ((Fecha{2025, 12, 31}).diaSiguiente(), (Fecha{2026, 1, 1}));
    EXPECT_EQ((Fecha{2024, 1, 1}).sumarDias(365), (Fecha{2024, 12, 31}));
    EXPECT_EQ((Fecha{2025, 1, 1}).sumarDias(365), (Fecha{2026, 1, 1}));
    EXPECT_EQ((Fecha{2026, 3, 1}).sumarDias(-60), (Fecha{2025, 12, 31}));

    EXPECT_EQ(diasEntre(Fecha{2024, 1, 1}, Fecha{2025, 1, 1}), 366);
    EXPECT_EQ(diasEntre(Fecha{2025, 1, 1}, Fecha{2026, 1, 1}), 365);
    EXPECT_EQ(diasEntre(Fecha{2026, 1, 1}, Fecha{2025, 1, 1}), -365);
    EXPECT_EQ(diasEntre(Fecha{2025, 2, 28}, Fecha{2025, 3, 1}), 1);
    EXPECT_EQ(diasEntre(Fecha{1999, 12, 31}, Fecha{2000, 3, 1}), 61);
    EXPECT_EQ((Fecha{1970, 1, 1}).numeroDeDia(), 0);
    EXPECT_EQ(Fecha::desdeNumeroDeDia((Fecha{1931, 7, 19}).numeroDeDia()), (Fecha{1931, 7, 19}));
}

TEST(Fecha, SumarMesesAcotaElDia) {
    EXPECT_EQ((Fecha{2024, 1, 31}).sumarMeses(1), (Fecha{2024, 2, 29}));
    EXPECT_EQ((Fecha{2025, 1, 31}).sumarMeses(1), (Fecha{2025, 2, 28}));
    EXPECT_EQ((Fecha{2025, 12, 15}).sumarMeses(1), (Fecha{2026, 1, 15}));
    EXPECT_EQ((Fecha{2026, 1, 31}).sumarMeses(-2), (Fecha{2025, 11, 30}));
    EXPECT_EQ((Fecha{2024, 2, 29}).sumarMeses(12), (Fecha{2025, 2, 28}));
    EXPECT_EQ((Fecha{2026, 1, 10}).sumarMeses(-13), (Fecha{2024, 12, 10}));
    EXPECT_EQ((Fecha{2026, 1, 10}).sumarMeses(0), (Fecha{2026, 1, 10}));
}

TEST(Fecha, DiaDeLaSemanaYOrden) {
    EXPECT_EQ((Fecha{2026, 1, 4}).diaDeLaSemana(), 1);   // domingo
    EXPECT_EQ((Fecha{2026, 1, 15}).diaDeLaSemana(), 5);  // jueves
    EXPECT_EQ((Fecha{2024, 2, 29}).diaDeLaSemana(), 5);
    EXPECT_EQ((Fecha{2026, 1, 3}).diaDeLaSemana(), 7);  // sábado
    EXPECT_LT((Fecha{2025, 12, 31}), (Fecha{2026, 1, 1}));
    EXPECT_LT((Fecha{2026, 1, 30}), (Fecha{2026, 2, 1}));
}

TEST(Mes, DesdeTextoConPivote50) {
    EXPECT_EQ(Mes::desdeTexto("12/25"), (Mes{2025, 12}));
    EXPECT_EQ(Mes::desdeTexto("01/26"), (Mes{2026, 1}));
    EXPECT_EQ(Mes::desdeTexto("03/49"), (Mes{2049, 3}));
    EXPECT_EQ(Mes::desdeTexto("03/50"), (Mes{1950, 3}));
    for (const char* mal : {"13/25", "00/25", "1/25", "01/2025", "01-25", "ab/cd", "", " 1/25"}) {
        EXPECT_FALSE(Mes::desdeTexto(mal).has_value()) << mal;
    }
}

TEST(Mes, VecinosYDias) {
    EXPECT_EQ((Mes{2025, 12}).anterior(), (Mes{2025, 11}));
    EXPECT_EQ((Mes{2026, 1}).anterior(), (Mes{2025, 12}));
    EXPECT_EQ((Mes{2025, 12}).siguiente(), (Mes{2026, 1}));
    EXPECT_EQ((Mes{2026, 1}).anterior().texto(), "12/25");
    EXPECT_EQ((Mes{1999, 5}).texto(), "05/99");
    EXPECT_EQ((Mes{2025, 12}).primerDia(), (Fecha{2025, 12, 1}));
    EXPECT_EQ((Mes{2024, 2}).ultimoDia(), (Fecha{2024, 2, 29}));
    EXPECT_EQ((Mes{2025, 2}).ultimoDia(), (Fecha{2025, 2, 28}));
    EXPECT_EQ(Mes::de(Fecha{2026, 3, 17}), (Mes{2026, 3}));
    EXPECT_EQ(CalculaMesAnterior(Fecha{2026, 1, 15}), "12/25");
    EXPECT_EQ(CalculaMesAnterior(Fecha{2025, 3, 31}), "02/25");
    EXPECT_EQ(nombreMes(1), "enero");
    EXPECT_EQ(nombreMes(9), "setiembre");
    EXPECT_EQ(nombreMes(12), "diciembre");
    EXPECT_EQ(nombreMes(0), "");
    EXPECT_EQ(nombreMes(13), "");
}

// Deja NOMIRA_HOY como estaba al terminar cada prueba.
class Reloj : public ::testing::Test {
  protected:
    void SetUp() override {
        if (const char* v = std::getenv("NOMIRA_HOY")) anterior_ = v;
    }
    void TearDown() override {
        if (anterior_) {
            setenv("NOMIRA_HOY", anterior_->c_str(), 1);
        } else {
            unsetenv("NOMIRA_HOY");
        }
    }
    std::optional<std::string> anterior_;
};

TEST_F(Reloj, NomiraHoyFijaElDia) {
    setenv("NOMIRA_HOY", "15/01/2026", 1);
    EXPECT_EQ(hoy(), (Fecha{2026, 1, 15}));
    setenv("NOMIRA_HOY", "29/02/2024", 1);
    EXPECT_EQ(hoy(), (Fecha{2024, 2, 29}));
}

TEST_F(Reloj, NomiraHoyMalFormado) {
    for (const char* mal : {"15/01/26", "2026-01-15", "31/02/2026", "1/1/2026", "hoy"}) {
        setenv("NOMIRA_HOY", mal, 1);
        try {
            hoy();
            ADD_FAILURE() << mal;
        } catch (const Fallo& f) {
            EXPECT_EQ(f.numero(), 13);
            EXPECT_EQ(f.descripcion(), std::string("NOMIRA_HOY mal formado: ") + mal);
        }
    }
}

TEST_F(Reloj, SinNomiraHoyEsElRelojLocal) {
    unsetenv("NOMIRA_HOY");
    auto local = [] {
        const std::time_t t = std::time(nullptr);
        std::tm tm{};
        localtime_r(&t, &tm);
        return Fecha{tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday};
    };
    const Fecha antes = local();
    const Fecha h = hoy();
    EXPECT_TRUE(h == antes || h == local()) << h.iso();
    EXPECT_TRUE(std::regex_match(horaActual(), std::regex("([01][0-9]|2[0-3]):[0-5][0-9]")));
}

}  // namespace
}  // namespace nomira::common
