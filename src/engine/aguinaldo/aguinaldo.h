#pragma once
// La liquidación del aguinaldo (Form43): los haberes de una persona y una
// actividad, una fila por mes del semestre con lo que ganó ese mes; sus
// descuentos sobre lo que se paga (la suma / 12); y toda la empresa sobre el
// recorrido común de las corridas. Lo que se paga no se guarda: se divide al
// leerlo (cifrasDelAguinaldo).
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/mes/empresa_mes.h"
#include "engine/mes/lectura.h"
#include "engine/mes/mes_persona.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace aguinaldo {

inline constexpr const char* kFaltanCamposHaberesAguinaldo =
    "Debe completar los campos Empresa, Nombre del Personal y F.MesAct.";
inline constexpr const char* kFaltanCamposDescuentosAguinaldo =
    "Debe completar los campos Empresa, Nombre del Personal y FMesAct.";
inline constexpr const char* kFaltaEmpresa = "Debe completar el campo Empresa.";
inline constexpr const char* kMesSinAguinaldo =
    "El aguinaldo se liquida en junio (06) o en diciembre (12).";

// Lo que lee una liquidación de aguinaldo: habydesc y salvacacional del
// semestre hasta el mes del pago, y de aguinaldos y egresos el mes del pago.
MesesALeer mesesDelAguinaldo(const common::Mes& pago);

// La actividad (1, 2 o 3) y sus fechas de ingreso y egreso.
struct ActividadAguinaldo {
    int numero = 1;
    std::optional<common::Fecha> ingreso, egreso;
};
ActividadAguinaldo actividadDe(const master::Persona& p, int actividad);

// Lo que generó aguinaldo en un mes en la actividad (haberes con aguinaldo, el
// salario vacacional y su reliquidación si el concepto o el convenio lo dicen),
// como la fila del mes con su detalle. También lo promedia el IPD.
FilaMes aguinaldoGeneradoEnElMes(const LibroPersona& libro, const Conceptos& conceptos,
                                 const common::Mes& mes, int actividad, bool convenio);

// Pasos del botón de haberes sobre lo leído, en memoria: con egresos en el mes
// avisa y no hace nada; si no, tira los descuentos del aguinaldo de la
// persona y, si le corresponde, escribe una fila por mes del semestre (aunque
// sea 0). `aviso` dice por qué no, sin cuadro cuando no es un mensaje.
ResultadoPersona haberesDelAguinaldo(MesPersona& mp, int actividad);

// Lo que se paga: las filas de haberes del mes del pago / 12, de todas las
// actividades.
common::Dinero montoDelAguinaldo(const LibroPersona& libro, const common::Mes& pago);
// Sobre qué se descuenta: lo que se paga más, salvo en junio, el salario
// vacacional del mes del pago.
common::Dinero baseDeDescuentos(const LibroPersona& libro, const common::Mes& pago);

// Los descuentos del aguinaldo sobre lo leído, en memoria: reemplaza los del
// mes. Con ficto (cantbfc) no hay ninguno. PSNIS vale 3, el montepío tiene la
// mitad del tope y el IRPF es siempre 0 (lo paga el mes por el doceavo).
ResultadoPersona descuentosDelAguinaldo(MesPersona& mp, ContextoFormula& ctx,
                                        common::Dialogo& dialogo);

// Los dos botones para una persona: leída, calculada y escrita en una
// transacción bajo su clave.
ResultadoPersona haberesAguinaldoDeUnaPersona(store::Conexion& base, const std::string& empresa,
                                              const std::string& nombre, const common::Mes& pago,
                                              int actividad, common::Dialogo& dialogo);
ResultadoPersona descuentosAguinaldoDeUnaPersona(store::Conexion& base, const std::string& empresa,
                                                 const std::string& nombre, const common::Mes& pago,
                                                 common::Dialogo& dialogo);

// ActAguinxEmpresa_Click: haberes y descuentos de cada persona de la empresa,
// persona por persona, con avance y cancelación entre personas. Al final,
// "Actualización finalizada." con cuántas se liquidaron.
ResultadoEmpresa aguinaldoDeLaEmpresa(store::Conexion& base, const std::string& empresa,
                                      const common::Mes& pago, int actividad,
                                      common::Dialogo& dialogo,
                                      const ProgresoEmpresa& progreso = {},
                                      const CancelarEmpresa& cancelar = {});

// Las cifras del aguinaldo de una persona: lo que se paga, los descuentos y el
// líquido (nunca negativo).
struct CifrasAguinaldo {
    common::Dinero sumaDeMeses, haberes, descuentos, liquido;
};
CifrasAguinaldo cifrasDelAguinaldo(const std::vector<FilaMes>& filasDelPago);

}  // namespace aguinaldo
}  // namespace nomira::engine
