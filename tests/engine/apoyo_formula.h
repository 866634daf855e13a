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
#include "engine/mes/lectura.h"
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

    // La ficha de c.empresa y c.nombre como la lee una corrida (nula si no está).
    void leerPersona() {
        ficha = master::leerPersona(*base, c.empresa, c.nombre);
        c.persona = ficha ? &*ficha : nullptr;
    }

    // Lo que una corrida lee para c.empresa, c.nombre y c.periodo (la ficha, sus
    // filas del mes y del año de la licencia, los maestros), con el contexto
    // apuntando ahí. Devuelve las filas de la persona (nulas si no está).
    engine::LibroPersona* leerMes() {
        lectura = std::make_shared<engine::Lectura>(engine::leerCorrida(
            *base, c.empresa, c.periodo, engine::mesesDelRenglon(c.periodo), c.nombre));
        auto* p = lectura->persona(c.nombre);
        c.maestros = &lectura->maestros;
        c.variables = &lectura->maestros.variables;
        c.persona = p ? p->ficha.get() : nullptr;
        c.libro = p ? &p->libro : nullptr;
        return c.libro;
    }

    double total(const std::string& formula,
                 const engine::OpcionesFormula& op = engine::opcionesForm42()) {
        leerPersona();
        c.formula = formula;
        engine::calcularFormula(c, op, dialogo);
        return c.total;
    }

    CarpetaTemporal tmp;  // hoy fijo
    store::Conexion* base = nullptr;
    std::unique_ptr<master::LectorVariables> variables;
    DialogoGuion dialogo;
    engine::ContextoFormula c;
    std::optional<master::Persona> ficha;
    std::shared_ptr<engine::Lectura> lectura;
};

}  // namespace nomira::pruebas
