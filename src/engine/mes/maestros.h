#pragma once
// Lo que una corrida toma una vez de los datos maestros para todas sus
// personas: la empresa, los conceptos, los conceptos propios de cada persona,
// las variables, las escalas del IRPF, los catálogos de las deducciones, los
// sueldos mínimos de su consejo y el archivo de horas del mes. Valores leídos
// al empezar: los cálculos no vuelven a la base.
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/fechas.h"
#include "engine/calculos/calculo_licencia.h"
#include "engine/calculos/irpf.h"
#include "engine/mes/horas.h"
#include "master/conceptos.h"
#include "master/empresas.h"
#include "master/variables.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

// Todos los conceptos, por código (un código repetido, en el orden de la tabla).
class Conceptos {
  public:
    Conceptos() = default;
    explicit Conceptos(std::vector<master::Concepto> todos);

    const std::vector<master::Concepto>& todos() const { return todos_; }
    // El primero con ese código; el primero por código con ese nombre exacto
    // (y ese tipo, si se da).
    const master::Concepto* porCodigo(long codigo) const;
    // Todos los de ese código, en el orden de la tabla.
    std::span<const master::Concepto> conCodigo(long codigo) const;
    const master::Concepto* porNombre(std::string_view concepto, std::string_view tipo = {}) const;

  private:
    std::vector<master::Concepto> todos_;
};

// Una fila de concpermxpers: el código, su tipo ("Hab" o "Des") y el texto del
// concepto como se guardó.
struct ConceptoPropio {
    long codigo = 0;
    std::string tipo, concepto;
};

// Una fila de histsueldosmin del consejo de la empresa.
struct SueldoMinimo {
    std::string sector, categoria, fechafin;
    double sueldo = 0;
};

struct Maestros {
    std::optional<master::Empresa> empresa;  // nada si la empresa no existe
    std::string tipoaporte;                  // "04" es la exoneración; "" sin fila en tipoaport
    ConsejoSalarios consejo;
    Conceptos conceptos;
    std::map<std::string, std::vector<ConceptoPropio>> propios;  // por persona
    master::LectorVariables variables;
    // Las franjas del IRPF (franja < 1000), las del aguinaldo (> 2000) y todas.
    std::vector<FilaEscala> escala, escalaAguinaldo, franjas;
    // Las filas de codigodeducciones y de categoriadeducciones (nombre, nombre2)
    // en el orden en que se cargaron.
    std::vector<std::string> codigosDeduccion;
    std::vector<std::pair<std::string, std::string>> categoriasDeduccion;
    std::vector<SueldoMinimo> sueldosMinimos;  // del más nuevo al más viejo
    // El archivo de horas del mes y dónde se lo buscó ("" sin horas.txt).
    std::optional<ArchivoHoras> horas;
    std::string rutaHoras;

    explicit Maestros(master::LectorVariables v) : variables(std::move(v)) {}

    // Los conceptos propios de la persona de ese tipo, por código de concepto.
    std::vector<long> propiosDe(const std::string& nombre, const std::string& tipo) const;
    // El código de catálogo de codigodeducciones para ese texto ("" sin fila).
    std::string codigoDeduccion(const std::string& texto) const;
    // El código de la categoría (categoriadeducciones) de una deducción; "00" sin fila.
    std::string codigoCategoria(const std::string& deduccion, const std::string& categoria) const;
    // El sueldo mínimo más nuevo de la categoría; 0 sin fila.
    double sueldoMinimo(const std::string& sector, const std::string& categoria) const;
};

// Lee los maestros de la empresa para una corrida del mes. Sin `conHoras` el
// archivo de horas no se busca.
Maestros leerMaestros(store::Conexion& base, const std::string& empresa, const common::Mes& mes,
                      bool conHoras = true);

}  // namespace mes
}  // namespace nomira::engine
