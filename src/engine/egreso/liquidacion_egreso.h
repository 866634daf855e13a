#pragma once
// La liquidación por egreso (Form45): una pasada por actividad que escribe en
// egresos el sueldo de los días del último mes, el aguinaldo hasta el egreso,
// la licencia no gozada del año anterior y del actual con su salario
// vacacional, y sus descuentos. Todo lo de una pasada va en una transacción:
// un mensaje que la detiene no deja nada escrito.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "engine/egreso/ipd.h"
#include "engine/mes/lectura.h"
#include "engine/mes/mes_persona.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace egreso {

inline constexpr const char* kFaltanDatosEgreso =
    "En el form. de Personal en Datos Laborales deberá completar los campos Fecha Ingreso, Fecha "
    "Egreso, Motivo de Egreso y Antiguedad corresp. a la ac.lab del egreso que está liquidando.";
inline constexpr const char* kMesDistintoDelEgreso =
    "La FMesCargo es distinta a la Fecha Egreso, deberá cambiar la FMesCargo manualmente.";
inline constexpr const char* kConHaberesDelMes =
    "El funcionario ya tiene liquidado conceptos en Hab.y Desc. Para hacer la liquidación deberá "
    "eliminarlos de Hab.y Desc. y agregarlos en Egresos.";
// "Deberá agregar antes el concepto <concepto> o sino eliminarlo de ConceptosPermanentesxPersonal."
std::string mensajeFaltaConceptoPermanente(const std::string& concepto);

// Lo que lee una pasada: habydesc desde enero del año anterior (la licencia del
// año anterior y el semestre del aguinaldo), salvacacional igual, egresos y
// aguinaldos del año (el cierre del IRPF), y lo que mira el IPD desde el ingreso.
MesesALeer mesesDelEgreso(const common::Mes& mes, const std::optional<common::Fecha>& ingreso,
                          const std::optional<common::Fecha>& egreso);

// La actividad, y del IPD de un despido: si lleva sus incidencias, y si se le
// suman la licencia no gozada y el salario vacacional de la pasada.
struct OpcionesEgreso {
    int actividad = 1;
    bool incidencias = true;
    bool licencia = false, vacacional = false;
};

// Los haberes de la pasada sobre lo leído, en memoria: reemplazan en el mes las
// filas de los conceptos que escribe y dejan las demás (las que tecleó el
// liquidador). Sin `hecho`, un mensaje la detuvo (`aviso`, ya dicho).
ResultadoPersona haberesDelEgreso(MesPersona& mp, ContextoFormula& ctx,
                                  const OpcionesEgreso& opciones, common::Dialogo& dialogo);

// Los descuentos permanentes sobre egresos: los aportes sobre sus filas, el
// IRPF del mes o, en diciembre, el cierre del año con los egresos.
ResultadoPersona descuentosDelEgreso(MesPersona& mp, ContextoFormula& ctx,
                                     common::Dialogo& dialogo);

// Una pasada para una persona, leída, calculada y escrita en una transacción
// bajo su clave; con `conDescuentos`, también sus descuentos.
ResultadoPersona egresoDeUnaPersona(store::Conexion& base, const std::string& empresa,
                                    const std::string& nombre, const common::Mes& mes,
                                    const OpcionesEgreso& opciones, bool conDescuentos,
                                    common::Dialogo& dialogo);

// DescPerm_Click: sólo los descuentos del egreso de una persona.
ResultadoPersona descuentosEgresoDeUnaPersona(store::Conexion& base, const std::string& empresa,
                                              const std::string& nombre, const common::Mes& mes,
                                              common::Dialogo& dialogo);

// T.Haberes, Total Descuentos, Líquido Neto y Líquido a Cobrar (nunca
// negativo) de las filas de egresos del mes.
struct CifrasEgreso {
    common::Dinero haberes, descuentos, liquido, aCobrar;
};
CifrasEgreso cifrasDelEgreso(const std::vector<FilaMes>& filas);

}  // namespace egreso
}  // namespace nomira::engine
