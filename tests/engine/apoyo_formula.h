#pragma once
// Una base nueva en cada motor, con lo que las fórmulas leen: variables
// fechadas y las personas de una empresa.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "apoyo/base_prueba.h"
#include "apoyo/carpeta_temporal.h"
#include "apoyo/dialogo_guion.h"
#include "engine/formulas/formula.h"
#include "master/variables.h"
#include "store/conexion.h"

namespace nomira::pruebas {

class BaseFormula : public store::prueba::BasePrueba {
  protected:
    void SetUp() override {
        store::prueba::BasePrueba::SetUp();
        if (IsSkipped()) return;
        base = conexion_.get();
        variables = std::make_unique<master::LectorVariables>(*base);
        c.variables = variables.get();
        c.empresa = "ACME";
        c.nombre = "PEREZ, JUAN";
        c.periodo = common::Mes{2026, 2};
    }

    void variable(const std::string& nombre, const std::string& fecha, double valor) {
        base->ejecuta("INSERT INTO definiciondevariables (nombre, fecha, valor) VALUES (?, ?, ?)",
                      {nombre, store::textoONulo(fecha), valor});
    }

    // Una persona de ACME; las columnas se dan de a pares columna, valor.
    void persona(const std::string& nombre,
                 std::initializer_list<std::pair<std::string, std::string>> columnas) {
        std::string cols = "empresa, nombre", marcas = "?, ?";
        std::vector<store::Valor> valores = {std::string("ACME"), nombre};
        for (const auto& [col, v] : columnas) {
            cols += ", " + col;
            marcas += ", ?";
            valores.push_back(store::textoONulo(v));
        }
        base->ejecuta("INSERT INTO personal (" + cols + ") VALUES (" + marcas + ")", valores);
    }

    // Una corrida nueva: otro lector, que vuelve a leer las variables.
    void nuevaCorrida() {
        variables = std::make_unique<master::LectorVariables>(*base);
        c.variables = variables.get();
    }

    double total(const std::string& formula,
                 const engine::OpcionesFormula& op = engine::opcionesForm42()) {
        c.formula = formula;
        engine::calcularFormula(c, op, dialogo);
        return c.total;
    }

    CarpetaTemporal tmp;  // hoy fijo
    store::Conexion* base = nullptr;
    std::unique_ptr<master::LectorVariables> variables;
    DialogoGuion dialogo;
    engine::ContextoFormula c;
};

}  // namespace nomira::pruebas
