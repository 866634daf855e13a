#pragma once
// El primer paso de una liquidación: leer de una vez lo que la corrida
// necesita. Los maestros (maestros.h) y, de cada persona, su ficha y sus filas
// liquidadas en los meses que los cálculos miran, con una consulta por tabla
// para toda la empresa (o una persona).
#include <array>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "common/fechas.h"
#include "engine/mes/libro.h"
#include "engine/mes/maestros.h"
#include "master/personal.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

// Los meses de cada tabla que lee una corrida, y el mes que puede escribir
// (del que se leen también las explicaciones).
struct MesesALeer {
    std::array<std::pair<common::Mes, common::Mes>, kCantTablas> tramos;
    common::Mes escrito;
};
// Los haberes y descuentos del mes: el mes, y el anterior de habydesc (el
// arrastre de un mes negativo); en diciembre, el año entero (el cierre del IRPF).
MesesALeer mesesDelMes(const common::Mes& mes);
// La fila tecleada: además el año de la licencia (los días a gozar miran el año
// anterior y el tramo de la licencia hasta doce meses atrás).
MesesALeer mesesDelRenglon(const common::Mes& mes);

// Una persona de la corrida: su ficha y sus filas.
struct PersonaDelMes {
    master::PersonaCompartida ficha;  // nunca nula
    LibroPersona libro;
};

// Lo leído para una corrida: las personas en el orden en que se liquidan (las
// de sueldo ficto al final, así el mayor sueldo real ya está calculado cuando
// llega su turno; entre iguales, por nombre).
struct Lectura {
    common::Mes mes;
    Maestros maestros;
    std::vector<PersonaDelMes> personas;

    PersonaDelMes* persona(const std::string& nombre);
};

// Toda la empresa, o sólo `nombre` (nada en personas si no existe). Una
// persona de sueldo ficto trae también a las demás de la empresa: su sueldo se
// compara con el mayor de ellas.
Lectura leerCorrida(store::Conexion& base, const std::string& empresa, const common::Mes& mes,
                    const MesesALeer& meses, const std::optional<std::string>& nombre = {},
                    bool conHoras = true);

// Las filas de una tabla de una persona en un mes, con sus explicaciones, en el
// orden del libro; vacío si no hay. Para mostrarlas (aguinaldos, egresos).
std::vector<FilaMes> filasDeLaPersona(store::Conexion& base, const std::string& empresa,
                                      const std::string& nombre, const common::Mes& mes,
                                      TablaLiquidacion tabla);

// Las personas de la empresa ordenadas como las liquida la corrida (ver Lectura).
std::vector<master::PersonaCompartida> personasPorCantbfc(store::Conexion& base,
                                                          const std::string& empresa);

}  // namespace mes
}  // namespace nomira::engine
