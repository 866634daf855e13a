#pragma once
// CalculoIpd sobre lo leído: la indemnización por despido de una persona en
// una actividad, con las filas de sus meses ya en memoria. La pantalla de
// incidencias del IPD sólo la muestra; el egreso la usa para su fila.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/calculos/ipd.h"
#include "engine/mes/lectura.h"
#include "master/personal.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace egreso {

inline constexpr const char* kFaltanCamposIpd =
    "Debe completar los campos Empresa, Nombre del Personal y Fecha Ipd.";
inline constexpr const char* kFechaIpdDistinta =
    "La Fecha Ipd. es distinta a la Fecha Egreso, deberá cambiar la Fecha Ipd.";
inline constexpr const char* kFaltanDatosDeEgreso =
    "En el form. de Personal en Datos Laborales deberá completar los campos Fecha Ingreso, "
    "Fecha Egreso, Motivo de Egreso y Antiguedad corresp. al Egreso.";
inline constexpr const char* kJornalesManual =
    "Debe ingresar el concepto Jornales en forma manual.";
inline constexpr const char* kHorasManual =
    "Debe ingresar los conceptos HORAS y JORNADAS EN EL MES en forma manual.";

// Las opciones de la pantalla: la actividad (1, 2 o 3), si entran las
// incidencias, y la licencia y el salario vacacional que se suman al mes.
struct OpcionesIpd {
    int actividad = 1;
    bool incidencias = true;
    common::Dinero licencia, salVacacional;
};

// Lo que dice la persona de una actividad: sus fechas (un año de dos cifras de
// ingreso es 19yy de 50 a 99, el de egreso siempre 20yy), el motivo (el texto
// del catálogo) y los años.
struct EgresoDeLaActividad {
    int numero = 1;
    std::string sufijo;  // "", " 2DA ACT", " 3RA ACT"
    std::optional<common::Fecha> ingreso, egreso;
    std::string motivoeg;
    double antiguedad = 0;
};
EgresoDeLaActividad egresoDe(const master::Persona& p, int actividad);

// Lo que lee el IPD: habydesc y egresos desde el ingreso (los períodos de los
// jornaleros van año por año) hasta el egreso, y salvacacional del año móvil.
MesesALeer mesesDelIpd(const common::Fecha& ingreso, const common::Fecha& egreso);

// El resultado: `aviso` es el mensaje que detuvo el cálculo (ya dicho por el
// diálogo); sin aviso ni resultado, el motivo de egreso no es "Despido" y no
// hay nada que calcular.
struct Ipd {
    std::string aviso;
    std::optional<ResultadoIpd> resultado;
    std::string traza() const { return resultado ? trazaIpd(*resultado) : ""; }
};

// CalculoIpd con la persona y sus filas en memoria: libro debe traer los
// meses de mesesDelIpd. fechaIpd es la fecha de egreso que se confirma.
Ipd CalculoIpd(const master::Persona& persona, LibroPersona& libro, const Maestros& maestros,
               const common::Fecha& fechaIpd, const OpcionesIpd& opciones,
               common::Dialogo& dialogo);

// El botón Generar: lee la persona y sus filas y calcula. textoFecha vacío
// (o empresa o nombre vacíos) es el aviso de los campos.
Ipd incidenciasDelIpd(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                      const std::optional<common::Fecha>& fechaIpd, const OpcionesIpd& opciones,
                      common::Dialogo& dialogo);

}  // namespace egreso
}  // namespace nomira::engine
