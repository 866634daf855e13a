// La ficha del personal en la base: las 147 columnas de ida y vuelta, el cambio
// de categoría guardado, la baja en cascada, los números propuestos y la grilla.
#include <gtest/gtest.h>

#include "apoyo/base_prueba.h"
#include "common/empaquetados.h"
#include "master/cambio_categoria.h"
#include "master/listado_personal.h"
#include "master/personal.h"
#include "store/esquema.h"

namespace nomira::master {
namespace {

class Personal : public store::prueba::BasePrueba {
  protected:
    Persona persona(const std::string& nombre, const std::string& nrofun) {
        Persona p;
        p.empresa = "ACME";
        p.nombre = nombre;
        p.nrofun = p.nroord = nrofun;
        p.impaclab = "1";
        return p;
    }
    std::int64_t cuenta(const std::string& tabla, const std::string& nombre) {
        return c()
            .consulta(
                "SELECT COUNT(*) AS n FROM " + tabla + " WHERE empresa = 'ACME' AND nombre = ?",
                {nombre})
            .primera()
            .entero("n");
    }
};
NOMIRA_PARA_CADA_MOTOR(Personal);

TEST_P(Personal, LasCientoCuarentaYSieteColumnasVanYVuelven) {
    const auto& esquema = store::tabla("personal");
    ASSERT_EQ(camposPersona().size(), esquema.columnas.size());
    Persona p;
    for (std::size_t i = 0; i < camposPersona().size(); ++i) {
        const auto& campo = camposPersona()[i];
        EXPECT_EQ(esquema.columnas[i].nombre, campo.columna);
        const bool esFecha = std::string(campo.columna).starts_with("fecha");
        p.*campo.miembro =
            esFecha ? "2" + std::to_string(i % 8) + "/0" + std::to_string(1 + i % 9) + "/29"
                    : "v" + std::to_string(i);
    }
    p.empresa = "ACME";
    p.nombre = "D'ANGELO, ANA";  // el apóstrofo se guarda como cualquier letra
    p.nrofun = "17";
    p.nroord = "4";
    p.socmedica = common::SocMedica{"No", "A", "Si", "Si", "Si", "25000"}.texto();
    p.horario = common::Horario{"Lunes a viernes de 9 a 18", "BROU", "001234567"}.texto();
    p.sexocon = common::SexoCon{"F", "Si"}.texto();
    agregarPersona(c(), p);

    const auto leida = leerPersona(c(), "ACME", "D'ANGELO, ANA");
    ASSERT_TRUE(leida);
    for (const auto& campo : camposPersona()) {
        std::string esperado = p.*campo.miembro;
        if (std::string(campo.columna).starts_with("fecha"))
            esperado = common::Fecha::desdeTexto(esperado)->iso();
        if (std::string(campo.columna).starts_with("montoded")) esperado = "";  // siempre vacío
        EXPECT_EQ((*leida).*campo.miembro, esperado) << campo.columna;
    }
    EXPECT_EQ(leida->horario.size(), 50u);
    EXPECT_EQ(common::SocMedica::leer(leida->socmedica).montoOtroEmpleo, "25000");
    EXPECT_EQ(common::Horario::leer(leida->horario).banco, "BROU  ");
    EXPECT_TRUE(common::SexoCon::leer(leida->sexocon).ingresa());
    // Las fechas vuelven a la pantalla como dd/mm/yy.
    EXPECT_EQ(fechaParaPantalla(leida->fechaing), "21/09/29");
}

TEST_P(Personal, ModificarGuardaElCambioDeCategoriaConNumeroNuevo) {
    auto p = persona("PEREZ, ANA", "1");
    p.categoria = "PEON";
    p.sueldo = "30000";
    p.fechasuevig = "01/01/26";
    agregarPersona(c(), p);
    agregarPersona(c(), persona("GOMEZ, LUIS", "8"));

    p.direccion = "Rivera 1234";
    p.categoria = "OFICIAL";
    p.sueldo = "40000";
    p.fechacatvig = "01/03/26";
    p.nroord = "99";  // lo escrito no vale: el número lo da la empresa
    {
        store::Transaccion t(c());
        actualizarPersona(c(), p);
        EXPECT_EQ(aplicarCambioCategoria(c(), p, DeshacerCambio::Ninguno), "");
        t.confirmar();
    }
    auto g = leerPersona(c(), "ACME", "PEREZ, ANA");
    EXPECT_EQ(g->direccion, "Rivera 1234");
    EXPECT_EQ(g->categoria, "OFICIAL");
    EXPECT_EQ(g->nroord, "9");
    EXPECT_EQ(g->cat3, "PEON");
    EXPECT_EQ(g->nroord3, "1");
    EXPECT_EQ(g->fechacatvig3, "2026-03-01");
    EXPECT_EQ(g->fechasuevig3, "2026-01-01");
    EXPECT_EQ(g->fechacatvig, "");
    EXPECT_EQ(aplicarCambioCategoria(c(), p, DeshacerCambio::Segundo),
              "Se realizó solamente 1 cambio de categoría.");
    EXPECT_EQ(aplicarCambioCategoria(c(), p, DeshacerCambio::Primero), "");
    g = leerPersona(c(), "ACME", "PEREZ, ANA");
    EXPECT_EQ(g->categoria, "PEON");
    EXPECT_EQ(g->nroord, "1");
    EXPECT_EQ(g->cat3, "");
}

TEST_P(Personal, EliminarBorraLasSeisTablasDeLaPersonaYNadaMas) {
    agregarPersona(c(), persona("PEREZ, ANA", "1"));
    agregarPersona(c(), persona("GOMEZ, LUIS", "2"));
    for (const char* nombre : {"PEREZ, ANA", "GOMEZ, LUIS"}) {
        for (const char* tabla :
             {"habydesc", "aguinaldos", "salvacacional", "egresos", "concpermxpers"})
            c().ejecuta(
                std::string("INSERT INTO ") + tabla + " (empresa, nombre) VALUES ('ACME', ?)",
                {nombre});
    }
    eliminarPersona(c(), "ACME", "PEREZ, ANA");
    for (const char* tabla :
         {"personal", "habydesc", "aguinaldos", "salvacacional", "egresos", "concpermxpers"}) {
        EXPECT_EQ(cuenta(tabla, "PEREZ, ANA"), 0) << tabla;
        EXPECT_EQ(cuenta(tabla, "GOMEZ, LUIS"), 1) << tabla;
    }
}

TEST_P(Personal, NumerosPropuestosYConceptosDespuesDelEgreso) {
    EXPECT_EQ(proponerNrofun(c(), "ACME"), "1");
    EXPECT_EQ(proponerNroord(c(), "ACME"), "1");
    auto a = persona("PEREZ, ANA", "7");
    a.nroord = "3";
    a.cesp2 = "4";  // el número de orden de su segunda actividad
    agregarPersona(c(), a);
    EXPECT_EQ(proponerNrofun(c(), "ACME"), "8");
    EXPECT_EQ(proponerNroord(c(), "ACME"), "5");
    EXPECT_EQ(proponerNrofun(c(), "OTRA"), "1");

    for (const char* fecha : {"2026-01-01", "2026-02-01", "2026-03-01"})
        c().ejecuta(
            "INSERT INTO habydesc (empresa, nombre, fecha, concepto) VALUES ('ACME', 'PEREZ, ANA', "
            "?, 'SUELDO')",
            {std::string(fecha)});
    // Egreso el 1 de febrero: sólo lo posterior a ese día.
    const common::Fecha desde{2026, 2, 1};
    EXPECT_EQ(contarHabydescPosteriores(c(), "ACME", "PEREZ, ANA", desde), 1);
    eliminarHabydescPosteriores(c(), "ACME", "PEREZ, ANA", desde);
    EXPECT_EQ(cuenta("habydesc", "PEREZ, ANA"), 2);
}

TEST_P(Personal, ActivosSegunLaActividadQueImprime) {
    // Hoy 15/03/26: activo quien no egresó o egresó desde el 01/02/26.
    auto alta = persona("ALTA, ANA", "1");
    auto baja = persona("BAJA, BETO", "2");
    baja.fechaeg = "31/01/26";
    auto limite = persona("LIMITE, LIA", "3");
    limite.fechaeg = "01/02/26";
    auto segunda = persona("SEGUNDA, SOL", "4");
    segunda.fechaeg = "31/12/25";  // la primera terminó, pero imprime la segunda
    segunda.impaclab = "2";
    auto tercera = persona("TERCERA, TEO", "5");
    tercera.impaclab = "3";
    tercera.fechaeg3 = "15/01/26";
    for (const auto& p : {tercera, segunda, limite, baja, alta}) agregarPersona(c(), p);

    const common::Fecha hoy{2026, 3, 15};
    auto nombres = [&](const ConsultaPersonal& q) {
        std::vector<std::string> n;
        for (const auto& p : consultarPersonal(c(), q, hoy)) n.push_back(p.nombre);
        return n;
    };
    using V = std::vector<std::string>;
    EXPECT_EQ(nombres({"ACME", true, OrdenPersonal::NroFun, ""}),
              (V{"ALTA, ANA", "LIMITE, LIA", "SEGUNDA, SOL"}));
    EXPECT_EQ(nombres({"ACME", false, OrdenPersonal::NroFun, ""}),
              (V{"ALTA, ANA", "BAJA, BETO", "LIMITE, LIA", "SEGUNDA, SOL", "TERCERA, TEO"}));
    EXPECT_EQ(nombres({"ACME", false, OrdenPersonal::Nombre, "t"}), (V{"TERCERA, TEO"}));
    EXPECT_EQ(nombres({"ACME", false, OrdenPersonal::FechaEg, ""}),
              (V{"ALTA, ANA", "TERCERA, TEO", "SEGUNDA, SOL", "BAJA, BETO", "LIMITE, LIA"}));
}

}  // namespace
}  // namespace nomira::master
