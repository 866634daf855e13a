#pragma once
// El recorrido de una empresa en un mes, común a las dos generaciones de Form42
// (ActHamPermxEmpresa_Click y ActDesPermxEmpresa_Click): las personas en su
// orden, la prueba de actividad, la transacción de cada persona, el avance y
// la cancelación entre personas.
#include <chrono>
#include <cstddef>
#include <exception>
#include <functional>
#include <string>
#include <vector>

#include "common/fechas.h"
#include "engine/mes/horas.h"
#include "engine/mes/mes_persona.h"
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
    std::vector<ResultadoPersona> personas;  // las generadas, ya confirmadas al volver
    std::vector<std::string> inactivas;      // fuera del mes por ingreso o egreso
    bool cancelado = false;
    // Un fallo detiene el recorrido: lo de esa persona se deshizo, lo anterior queda.
    std::exception_ptr fallo;
    std::string personaFallida;
};

// Lo que las dos corridas de una empresa leen una vez para todas sus personas:
// la empresa del mes y el archivo de horas (las variables, quien las pasa).
class LecturasDeLaCorrida {
  public:
    LecturasDeLaCorrida(store::Conexion& base, master::LectorVariables& variables,
                        std::string empresa, const common::Mes& mes);
    // BuscarVerif de una persona de la corrida, con la persona ya leída y lo
    // de la corrida en ctx.
    std::optional<MesPersona> buscarVerif(store::Conexion& base,
                                          const master::PersonaCompartida& persona,
                                          ContextoFormula& ctx, common::Dialogo& dialogo);

  private:
    master::LectorVariables& variables_;
    std::string empresa_;
    common::Mes mes_;
    std::optional<EmpresaDelMes> leida_;
    HorasDeLaCorrida horas_;
};

// Confirmar una transacción por persona costaba más que liquidarla: las
// personas se confirman por tandas de este largo. Cada persona va en su punto
// de guardado dentro de la tanda, que se confirma al cumplirse el plazo, al
// detenerse (cancelación o fallo) y al terminar; así un fallo no deja a medias
// a nadie ni pierde a los terminados, y los demás puestos esperan a lo sumo
// una tanda para escribir.
inline constexpr std::chrono::milliseconds kTanda{50};

// Recorre las personas activas en el mes; cada una en su punto de guardado,
// que se deshace si porPersona lanza.
ResultadoEmpresa recorrerEmpresa(store::Conexion& base, const std::string& empresa,
                                 const common::Mes& mes, const PorPersona& porPersona,
                                 const ProgresoEmpresa& progreso = {},
                                 const CancelarEmpresa& cancelar = {});

}  // namespace nomira::engine
