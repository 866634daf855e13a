// El estudio de demostración en los dos motores: fichas que pasan los controles
// de la pantalla, cada fórmula estándar sobre cada persona, el mes anterior de
// cada empresa liquidado sin avisos y la orden demo de nomira-cli.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "engine/apoyo_estudio_demo.h"
#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "apoyo/dialogo_guion.h"
#include "common/cedula.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/haberes.h"
#include "engine/mes/horas.h"
#include "master/datos_iniciales.h"
#include "master/empresas.h"
#include "master/estudio_demo.h"
#include "master/obras.h"
#include "master/validacion_personal.h"

namespace nomira::engine {
namespace {

namespace fs = std::filesystem;

const std::string kFabrica = "FÁBRICA DE EJEMPLO S.A.";
const std::string kConstructora = "CONSTRUCTORA MODELO S.R.L.";
const std::string kComercio = "COMERCIO DE PRUEBA LTDA.";

struct Fila {
    double cant = 0, total = 0;
};

class EstudioDemo : public pruebas::BaseEstudioDemo {
  protected:

    std::vector<master::Persona> personal() {
        std::vector<master::Persona> v;
        for (const auto& f : c().consulta("SELECT empresa, nombre FROM personal ORDER BY "
                                          "empresa, nombre")
                                 .filas)
            v.push_back(*master::leerPersona(c(), f.texto("empresa"), f.texto("nombre")));
        return v;
    }

    // Las filas del mes de la persona por concepto; el texto de los porcentajes
    // ("SNIS 8%") queda como está.
    std::map<std::string, Fila> filas(const std::string& empresa, const std::string& nombre) {
        std::map<std::string, Fila> m;
        for (const auto& f : c().consulta("SELECT concepto, cant, total FROM habydesc WHERE "
                                          "empresa = ? AND nombre = ? AND fecha = ?",
                                          {empresa, nombre, kMes.primerDia().iso()})
                                 .filas)
            m[f.texto("concepto")] = {f.real("cant"), f.real("total")};
        return m;
    }

    // La fila del IRPF lleva su detalle en el texto.
    static double irpf(const std::map<std::string, Fila>& m) {
        for (const auto& [concepto, f] : m)
            if (concepto.starts_with("IRPF")) return f.total;
        ADD_FAILURE() << "sin fila de IRPF";
        return -1;
    }

    // Los dos botones de toda la empresa, con el archivo de horas del reloj.
    void liquidar(const std::string& empresa) {
        const auto h = haberesDeLaEmpresa(c(), empresa, kMes, dialogo, conArchivoDeHoras());
        ASSERT_FALSE(h.fallo) << h.personaFallida;
        const auto d = descuentosDeLaEmpresa(c(), empresa, kMes, dialogo);
        ASSERT_FALSE(d.fallo) << d.personaFallida;
    }

};
NOMIRA_PARA_CADA_MOTOR(EstudioDemo);

TEST_P(EstudioDemo, LasFichasPasanLosControlesDeLaPantallaYLaConstructoraTieneSuObra) {
    const auto v = personal();
    ASSERT_EQ(v.size(), 12u);
    for (const auto& p : v) {
        SCOPED_TRACE(p.nombre);
        EXPECT_EQ(master::comprobarAlModificar(p), "");
        for (const auto* doc : {&p.documento, &p.documentocon, &p.documentoben, &p.documentoben2})
            if (!doc->empty()) {
                EXPECT_EQ(common::DigitoVerificador(*doc).resultado,
                          common::ResultadoCedula::Correcta)
                    << *doc;
            }
    }
    // Los NroFun. no se repiten dentro de una empresa.
    EXPECT_EQ(c().consulta("SELECT empresa, nrofun FROM personal GROUP BY empresa, nrofun "
                           "HAVING COUNT(*) > 1")
                  .filas.size(),
              0u);

    EXPECT_TRUE(master::aportaPorConstruccion(c(), kConstructora));
    EXPECT_FALSE(master::aportaPorConstruccion(c(), kFabrica));
    EXPECT_EQ(master::numerosDeObra(c(), kConstructora), std::vector<std::string>{"1001"});
    EXPECT_EQ(master::nombresDeEmpresas(c()).size(), master::empresasDemo().size());
}

TEST_P(EstudioDemo, CadaFormulaEstandarSeEvaluaSobreCadaPersona) {
    const auto conceptos = c().consulta("SELECT concepto, formula FROM conceptos ORDER BY codigo");
    ASSERT_GT(conceptos.filas.size(), 70u);
    for (const auto& p : personal()) {
        ContextoFormula ctx;
        // El mes leído vive mientras el contexto apunta a él.
        const auto mp = leerMesDeLaPersona(c(), p.empresa, p.nombre, kMes, ctx, dialogo);
        ASSERT_TRUE(mp);
        for (const auto& f : conceptos.filas) {
            SCOPED_TRACE(p.nombre + " / " + f.texto("concepto"));
            ctx.formula = f.texto("formula");
            ctx.textoCant.clear();
            ctx.total = -12345;
            EXPECT_NO_THROW(CalculoFormula(ctx, dialogo));
            EXPECT_TRUE(std::isfinite(ctx.total));
            EXPECT_NE(ctx.total, -12345);
            if (f.texto("concepto") == "SUELDO 2DA ACT") {
                EXPECT_EQ(ctx.total, p.sueldo2.empty() ? 0 : std::stod(p.sueldo2));
            }
        }
    }
    EXPECT_TRUE(dialogo.mensajes.empty()) << dialogo.ultimoMensaje();
}

TEST_P(EstudioDemo, ElMesAnteriorDeCadaEmpresaSeLiquidaSinAvisosConLasFilasDeCadaPersona) {
    EXPECT_EQ(horasDelReloj().size(), 3u);
    // Un archivo que ya está no se pisa.
    EXPECT_TRUE(horasDelReloj().empty());

    for (const auto& e : master::empresasDemo()) liquidar(e);

    std::vector<std::string> avisos;
    for (const auto& m : dialogo.mensajes) {
        EXPECT_NE(m.tipo, common::TipoAviso::Advertencia) << m.texto;
        EXPECT_NE(m.tipo, common::TipoAviso::Error) << m.texto;
        avisos.push_back(m.texto);
    }
    // El ficto no tiene BFC cargada y toma el mayor sueldo de la fábrica.
    EXPECT_EQ(avisos,
              (std::vector<std::string>{
                  "El SUELDO FICTO de SOCIO DE MUESTRA, ROBERTO corresponde a PÉREZ DE "
                  "PRUEBA, JUAN que es el mayor sueldo.",
                  "Actualización finalizada.\n5 personas liquidadas del mes 10/26.",
                  "Actualización finalizada.\n3 personas liquidadas del mes 10/26.",
                  "Actualización finalizada.\n3 personas liquidadas del mes 10/26."}));

    // Jornalero de la constructora: sus jornales del reloj, sin montepío (aportación 04).
    auto lopez = filas(kConstructora, "LÓPEZ DE ENSAYO, MARIO");
    EXPECT_EQ(lopez["JORNALES"].cant, 22);
    EXPECT_EQ(lopez["JORNALES"].total, 22 * 2100);
    EXPECT_FALSE(lopez.contains("MONTEPIO 15%"));
    EXPECT_EQ(lopez["SNIS 1.5%"].total, 46200 * 1.5 / 100);
    EXPECT_EQ(filas(kComercio, "SUÁREZ DE PRUEBA, DIEGO")["JORNALES"].total, 24 * 1200);

    // Por hora: sus horas y las jornadas del mes sobre H.Trab.
    auto fernandez = filas(kFabrica, "FERNÁNDEZ EJEMPLAR, LUCÍA");
    EXPECT_EQ(fernandez["HORAS"].total, 176 * 260);
    EXPECT_EQ(fernandez["JORNADAS EN EL MES"].cant, 22);
    EXPECT_EQ(fernandez["MONTEPIO 15%"].total, 176 * 260 * 15 / 100);

    // Segunda actividad, ficto y quien ya egresó.
    EXPECT_EQ(filas(kFabrica, "RODRÍGUEZ INVENTADO, CARLOS")["SUELDO 2DA ACT"].total, 18000);
    auto socio = filas(kFabrica, "SOCIO DE MUESTRA, ROBERTO");
    EXPECT_FALSE(socio.contains("SUELDO"));
    EXPECT_EQ(socio["SUELDO FICTO"].total, 95000);
    EXPECT_TRUE(filas(kFabrica, "MARTÍNEZ SIMULADO, PEDRO").empty());

    // El SNIS según la BPC, el cónyuge y los hijos a cargo.
    auto perez = filas(kFabrica, "PÉREZ DE PRUEBA, JUAN");
    EXPECT_EQ(perez["SNIS 8%"].total, 95000 * 8 / 100);
    auto gomez = filas(kFabrica, "GÓMEZ FICTICIA, ANA MARÍA");
    EXPECT_TRUE(gomez.contains("SNIS 3%"));
    // IRPF: nada debajo del mínimo no imponible, algo sobre él.
    EXPECT_EQ(irpf(gomez), 0);
    EXPECT_GT(irpf(perez), 0);
    EXPECT_GT(irpf(filas(kComercio, "ÁLVAREZ EJEMPLO, MARTA")), 0);
    EXPECT_TRUE(filas(kComercio, "CASTRO INVENTADA, VALERIA").contains("SNIS 6%"));

    // Once personas activas, cada una con sus descuentos.
    EXPECT_EQ(c().consulta("SELECT DISTINCT empresa, nombre FROM habydesc WHERE tipo = 'Des' AND "
                           "fecha = ?",
                           {kMes.primerDia().iso()})
                  .filas.size(),
              11u);
}

// La orden entera, como la corre make run: la base, las horas y el resumen.
class OrdenDemo : public store::prueba::BaseVacia {
  protected:
    std::int64_t contar(const std::string& tabla) {
        return otra()->consulta("SELECT COUNT(*) AS n FROM " + tabla).primera().entero("n");
    }
    static std::string leer(const fs::path& archivo) {
        std::ifstream f(archivo, std::ios::binary);
        std::stringstream s;
        s << f.rdbuf();
        return s.str();
    }

    pruebas::CarpetaTemporal tmp{"15/11/2026"};
};
NOMIRA_PARA_CADA_MOTOR(OrdenDemo);

TEST_P(OrdenDemo, CreaLiquidaYResumeYNoTocaUnaBaseQueYaExiste) {
    const std::string comillas = pruebas::citado(destino_);
    const std::string base = "--base " + comillas + " ";
    auto s = pruebas::cli(base + "demo --liquidar");
    ASSERT_EQ(s.estado, 0) << s.texto;
    // 95000 + 16500 + 45000 + 18000 + 176 x 260 + el ficto al mayor sueldo (95000).
    EXPECT_NE(s.texto.find("FÁBRICA DE EJEMPLO S.A., mes 10/26\n  Personas liquidadas: 5\n"
                           "  T.Haberes: 315,260.00\n"),
              std::string::npos)
        << s.texto;
    // 22 x 2100 + 20 x 1750 + 58000.
    EXPECT_NE(s.texto.find("CONSTRUCTORA MODELO S.R.L., mes 10/26\n  Personas liquidadas: 3\n"
                           "  T.Haberes: 139,200.00\n"),
              std::string::npos)
        << s.texto;
    EXPECT_EQ(
        pruebas::ejecutar("cat '" + (tmp.ruta() / "Software/Nomira/base.txt").string() + "'").texto,
        destino_ + "\n");
    EXPECT_TRUE(fs::exists(tmp.ruta() / "Software/Nomira/horas-demo/HORAS10262.txt"));

    const auto filas = contar("habydesc");
    EXPECT_GT(filas, 50);
    const std::string antes = esPostgres() ? "" : leer(destino_);
    // También con --base después de la orden.
    s = pruebas::cli("demo --liquidar --base " + comillas);
    EXPECT_EQ(s.estado, 1) << s.texto;
    EXPECT_NE(s.texto.find("ya existe"), std::string::npos) << s.texto;
    EXPECT_EQ(contar("habydesc"), filas);
    EXPECT_EQ(contar("personal"), 12);
    if (!esPostgres()) {
        EXPECT_EQ(leer(destino_), antes);
    }
}

}  // namespace
}  // namespace nomira::engine
