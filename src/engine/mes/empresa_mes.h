#pragma once
// El recorrido de una empresa en un mes, común a las dos generaciones de Form42
// (ActHamPermxEmpresa_Click y ActDesPermxEmpresa_Click) y a las liquidaciones
// que vengan: las personas en su orden, la prueba de actividad, la escritura de
// cada persona, el avance y la cancelación entre personas.
#include <cstddef>
#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "common/fechas.h"
#include "engine/mes/lectura.h"
#include "engine/mes/mes_persona.h"
#include "master/personal.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

// La generación de una persona de la corrida sobre lo leído, en memoria; activa
// dice si trabaja en el mes (ver activaEnElMes). Lo que cambie en sus filas lo
// escribe el recorrido al volver.
using PorPersona =
    std::function<ResultadoPersona(const std::shared_ptr<Lectura>&, PersonaDelMes&, bool activa)>;
// Antes de cada persona: i de n (desde 1) y su nombre.
using ProgresoEmpresa =
    std::function<void(std::size_t i, std::size_t n, const std::string& nombre)>;
// Se consulta entre personas; verdadero detiene el recorrido.
using CancelarEmpresa = std::function<bool()>;

struct ResultadoEmpresa {
    std::vector<ResultadoPersona> personas;  // las generadas y confirmadas
    std::vector<std::string> inactivas;      // fuera del mes por ingreso o egreso
    bool cancelado = false;
    // Un fallo detiene el recorrido: lo de esa persona se deshizo, lo anterior queda.
    std::exception_ptr fallo;
    std::string personaFallida;
};

// Confirmar una transacción por persona costaba más que calcularla: se
// confirman tandas de este número de personas, cada persona en su punto de
// guardado dentro de la tanda. Un fallo deshace sólo a esa persona y confirma a
// las anteriores; otro puesto espera a lo sumo una tanda para escribir lo mismo.
inline constexpr std::size_t kPersonasPorTanda = 20;

// Recorre las personas de lo leído en su orden: a cada una la calcula y
// escribe sus filas bajo su clave (ver escritura.h), por tandas.
ResultadoEmpresa recorrerEmpresa(store::Conexion& base, std::shared_ptr<Lectura> lectura,
                                 const PorPersona& porPersona, const ProgresoEmpresa& progreso = {},
                                 const CancelarEmpresa& cancelar = {});

}  // namespace mes
}  // namespace nomira::engine
