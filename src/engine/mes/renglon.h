#pragma once
// Una fila tecleada en el mes de una persona: el código (Buscar_Click), el
// cálculo al dar Enter en la cantidad (Text5) y el guardado al dar Enter en
// el total (Text6), con las altas, modificaciones y bajas y sus controles.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "engine/mes/descuentos.h"
#include "engine/mes/mes_persona.h"
#include "master/conceptos.h"

namespace nomira::engine {
inline namespace mes {

inline constexpr const char* kLicenciaCero = "La cantidad de días de licencia no puede ser cero.";
inline constexpr const char* kTituloMenosDias = "El funcionario tiene menos días a gozar";
inline constexpr const char* kTituloMenosDe10 =
    "La cantidad de días de licencia por período no puede ser menor que 10";
inline constexpr const char* kTituloPeriodoLicencia =
    "Período de Licencia (largo de fechas + el guión = 17)";
inline constexpr const char* kPidePeriodoLicencia = "Modifique las fechas desde y hasta.";
inline constexpr const char* kFaltaTotal = "Debe completar el campo Total.";

// "Ya hay Descuentos ingresados, para <accion> un Haber deberá eliminar...".
std::string mensajeHayDescuentos(const std::string& accion);

// ¿Es una de las tres filas de licencia?
bool esConceptoLicencia(const std::string& concepto);

// Lo que muestra el código al buscarlo: la fila del mes si ya está, y lo que
// va a la casilla de cantidad (la de la fila; los días a gozar de una
// licencia; las horas del mes sobre htrab para las jornadas).
struct RenglonBuscado {
    master::Concepto concepto;
    bool existe = false;  // Modificar en lugar de Agregar
    std::string textoCant, textoTotal;
};
std::optional<RenglonBuscado> buscarRenglon(const MesPersona& mp, const ContextoFormula& ctx,
                                            long codigo, common::Dialogo& dialogo);

// El cálculo del Enter en la cantidad.
struct CalculoRenglon {
    master::Concepto concepto;
    std::string texto;  // lo que queda en la casilla del concepto
    double cant = 0;
    common::Dinero total;
    std::string fechadesdelic, fechahastalic;  // el período de una licencia
    std::string explicacion;
    std::optional<ImporteImpuesto> impuesto;  // IRP e IRPF: el cálculo entero
};
// Nada si una respuesta No cortó el cálculo de una licencia.
std::optional<CalculoRenglon> calcularRenglon(MesPersona& mp, ContextoFormula& ctx,
                                              const master::Concepto& concepto,
                                              const std::string& textoCant,
                                              common::Dialogo& dialogo);

// El Enter en el total: agrega o modifica la fila del código con la cantidad
// y el total de las casillas, sobre las filas releídas bajo la clave de la
// persona (mp y ctx quedan con ellas). Devuelve el mensaje que lo impidió (ya
// avisado), o nada si se guardó.
std::optional<std::string> guardarRenglon(store::Conexion& base, MesPersona& mp,
                                          ContextoFormula& ctx, const CalculoRenglon& calculo,
                                          const std::string& textoCant,
                                          const std::string& textoTotal, common::Dialogo& dialogo);

// Eliminar_Click: la fila del código, después de "¿Desea continuar?". Devuelve
// el mensaje que lo impidió, "" si se respondió No, o nada si se borró.
std::optional<std::string> eliminarRenglon(store::Conexion& base, MesPersona& mp,
                                           ContextoFormula& ctx, const master::Concepto& concepto,
                                           common::Dialogo& dialogo);

}  // namespace mes
}  // namespace nomira::engine
