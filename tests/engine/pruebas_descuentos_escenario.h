#pragma once
// Una empresa chica en una base de prueba, para los descuentos, las filas
// tecleadas y los archivos de horas: conceptos con sus fórmulas, la escala
// del IRPF, la BPC y las personas que cada prueba agrega.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "apoyo/base_prueba.h"
#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "engine/mes/mes_persona.h"
#include "master/variables.h"

namespace nomira::pruebas {

// BPC 6864: 2.5 BPC = 17160, 7 BPC = 48048, 10 BPC = 68640, 15 BPC = 102960.
class EscenarioMes : public store::prueba::BasePrueba {
  protected:
    void SetUp() override {
        BasePrueba::SetUp();
        if (IsSkipped()) return;
        base = conexion_.get();
        variables = std::make_unique<master::LectorVariables>(*base);
        ejecutar("INSERT INTO tipoaport (nombre) VALUES ('01-Industria y Comercio')");
        ejecutar("INSERT INTO tipoaport (nombre) VALUES ('04-Rural - Otros')");
        empresa("ACME", 7, "Industria y Comercio");
        ejecutar(
            "INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES ('BPC', "
            "'2026-01-01', 6864)");
        ejecutar(
            "INSERT INTO franjasirp (franja, min, max, tasa) VALUES (1, 0, 7, 0), (2, 7, 10, 10), "
            "(3, 10, 15, 15), (4, 15, 30, 24)");
        // codigo, concepto, especificode, formula, tipo, unidad, permanente, gravado, lic, ipd
        concepto(1, "SUELDO", "S", "[SUELDO]", "Hab", "I", "Si", "Si", "Si");
        concepto(10, "HORAS", "H", "[SUELDO]*[CANT]", "Hab", "H", "No", "Si", "Si");
        concepto(11, "HORAS NOCTURNAS", "H", "[SUELDO]*[CANT]*1.2", "Hab", "H", "No", "Si", "Si");
        concepto(12, "JORNADAS EN EL MES", "G", "0", "Hab", "J", "No", "No", "No");
        concepto(20, "LICENCIA", "G", "", "Hab", "T", "No", "Si", "Si");
        concepto(21, "LICENCIA 2DA ACT", "G", "", "Hab", "T", "No", "Si", "Si");
        concepto(30, "PREMIO", "G", "[CANT]*100", "Hab", "I", "No", "Si", "Si");
        concepto(500, "ADELANTOS", "G", "", "Des", "I", "No", "", "");
        concepto(501, "MONTEPIO", "G", "([MONTOGRAV]*15)/100", "Des", "%", "Si", "", "");
        concepto(502, "SNIS", "G", "([MONTOGRAV]*[PSNIS])/100", "Des", "%", "Si", "", "");
        concepto(503, "FRL", "G", "([MONTOGRAV]*0.1)/100", "Des", "%", "Si", "", "");
        concepto(504, "ADELANTOS LICENCIA", "G", "", "Des", "I", "No", "", "");
        concepto(510, "IRPF", "G", "", "Des", "I", "Si", "", "");
        concepto(520, "CUOTA SINDICAL", "G", "[LIQUIDONETO]*1/100", "Des", "%", "No", "", "");
    }

    void ejecutar(const std::string& sql, const std::vector<store::Valor>& p = {}) {
        base->ejecuta(sql, p);
    }

    void empresa(const std::string& nombre, int nroemp, const std::string& tipoaport) {
        ejecutar("INSERT INTO empresas (empresa, nroemp, tipoaport) VALUES (?, ?, ?)",
                 {nombre, std::int64_t{nroemp}, tipoaport});
    }

    void concepto(long codigo, const std::string& nombre, const std::string& especificode,
                  const std::string& formula, const std::string& tipo, const std::string& unidad,
                  const std::string& permanente, const std::string& gravado,
                  const std::string& ipd) {
        ejecutar(
            "INSERT INTO conceptos (codigo, concepto, especificode, formula, tipo, unidad, "
            "permanente, gravado, aguinaldo, lic, ipd) VALUES (?, ?, ?, ?, ?, ?, ?, ?, '', 'No', "
            "?)",
            {std::int64_t{codigo}, nombre, especificode, formula, tipo, unidad, permanente, gravado,
             ipd});
    }

    // Una persona de la empresa; las columnas de a pares columna, valor.
    void persona(const std::string& nombre,
                 std::initializer_list<std::pair<std::string, std::string>> columnas,
                 const std::string& emp = "ACME") {
        std::string cols = "empresa, nombre", marcas = "?, ?";
        std::vector<store::Valor> valores = {emp, nombre};
        for (const auto& [col, v] : columnas) {
            cols += ", " + col;
            marcas += ", ?";
            valores.push_back(store::textoONulo(v));
        }
        ejecutar("INSERT INTO personal (" + cols + ") VALUES (" + marcas + ")", valores);
    }

    // Una fila de habydesc como la dejaría la generación de haberes.
    void fila(const std::string& nombre, const common::Mes& mes, long codigo,
              const std::string& concepto, const std::string& tipo, double cant, double total,
              const std::string& emp = "ACME") {
        ejecutar(
            "INSERT INTO habydesc (empresa, nombre, fecha, codigo, concepto, tipo, unidad, "
            "permanente, gravado, aguinaldo, cant, total, lic, ipd) VALUES (?, ?, ?, ?, ?, ?, '', "
            "'', ?, '', ?, ?, '', ?)",
            {emp, nombre, mes.primerDia().iso(), std::int64_t{codigo}, concepto, tipo,
             std::string(tipo == "Hab" ? "Si" : ""), cant, total,
             std::string(tipo == "Hab" ? "Si" : "")});
    }

    // El total (y el texto) de la fila de un código; nada si no está.
    std::optional<double> total(const std::string& nombre, const common::Mes& mes, long codigo,
                                std::string* texto = nullptr, double* cant = nullptr) {
        const auto r = base->consulta(
            "SELECT concepto, cant, total FROM habydesc WHERE nombre = ? AND fecha = ? AND "
            "codigo = ?",
            {nombre, mes.primerDia().iso(), std::int64_t{codigo}});
        EXPECT_LE(r.filas.size(), 1u) << "código " << codigo;
        if (r.vacio()) return std::nullopt;
        if (texto) *texto = r.primera().texto("concepto");
        if (cant) *cant = r.primera().real("cant");
        return r.primera().real("total");
    }

    long cuantas(const std::string& donde, const std::vector<store::Valor>& p = {}) {
        return static_cast<long>(
            base->consulta("SELECT COUNT(*) AS n FROM habydesc WHERE " + donde, p)
                .primera()
                .entero("n"));
    }

    std::optional<engine::MesPersona> mesDe(const std::string& nombre, const common::Mes& mes) {
        return engine::leerMesDeLaPersona(*base, "ACME", nombre, mes, ctx, dialogo);
    }

    CarpetaTemporal tmp;
    store::Conexion* base = nullptr;
    std::unique_ptr<master::LectorVariables> variables;
    DialogoGuion dialogo;
    engine::ContextoFormula ctx;
    const common::Mes marzo{2026, 3};
};

}  // namespace nomira::pruebas
