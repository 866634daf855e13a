#pragma once
// El recorrido de una empresa en un mes, común a las dos generaciones de Form42
// (ActHamPermxEmpresa_Click y ActDesPermxEmpresa_Click): las personas en su
// orden, la prueba de actividad, una transacción por persona, el avance y la
// cancelación entre personas.
#include <cstddef>
#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "common/fechas.h"
#include "engine/mes_persona.h"
#include "master/personal.h"
#include "store/conexion.h"

namespace nomira::engine {

// Las personas de la empresa por cantbfc: las de sueldo ficto al final, así el
// mayor sueldo real ya está escrito cuando llega su turno. Entre iguales, el
// orden de los nombres (el mismo en los dos motores).
std::vector<master::PersonaCompartida> personasPorCantbfc(store::Conexion& base,
                                                          const std::string& empresa);

// La generación de una persona, dentro de la transacción de esa persona. La
// conexión que recibe recuerda lo leído durante toda la corrida (la empresa,
// los conceptos, las escalas se leen una vez); todo lo de la corrida va por ella.
using PorPersona =
    std::function<ResultadoPersona(store::Conexion&, const master::PersonaCompartida&)>;
// Antes de cada persona: i de n (desde 1) y su nombre.
using ProgresoEmpresa =
    std::function<void(std::size_t i, std::size_t n, const std::string& nombre)>;
// Se consulta entre personas; verdadero detiene el recorrido.
using CancelarEmpresa = std::function<bool()>;

struct ResultadoEmpresa {
    std::vector<ResultadoPersona> personas;  // las generadas, confirmadas
    std::vector<std::string> inactivas;      // fuera del mes por ingreso o egreso
    bool cancelado = false;
    // Un fallo detiene el recorrido: lo de esa persona se deshizo, lo anterior queda.
    std::exception_ptr fallo;
    std::string personaFallida;
};

// Recorre las personas activas en el mes; cada una en su transacción, que se
// confirma al terminar porPersona y se deshace si lanza.
ResultadoEmpresa recorrerEmpresa(store::Conexion& base, const std::string& empresa,
                                 const common::Mes& mes, const PorPersona& porPersona,
                                 const ProgresoEmpresa& progreso = {},
                                 const CancelarEmpresa& cancelar = {});

}  // namespace nomira::engine
