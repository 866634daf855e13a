#pragma once
// La generación de los descuentos del mes (DescPerm_Click) de una persona y de
// toda una empresa (ActDesPermxEmpresa_Click): el adelanto de licencia de
// jornaleros y por hora, el arrastre de un mes anterior negativo, los
// descuentos permanentes en orden de código con sus aportes, IRP e IRPF.
#include <optional>
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "engine/calculos/irpf.h"
#include "engine/calculos/irpf_dic.h"
#include "engine/mes/aportes_lector.h"
#include "engine/mes/empresa_mes.h"
#include "engine/mes/mes_persona.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

inline constexpr const char* kFaltanCamposMes =
    "Debe completar los campos Empresa, Nombre del Personal y FMesCargo.";
inline constexpr const char* kConEgresos =
    "El funcionario ya tiene liquidado conceptos en Egresos.";
inline constexpr const char* kSoloEmpresa = "Debe completar solamente el campo Empresa.";
inline constexpr const char* kActualizacionFinalizada = "Actualización finalizada.";

// DescPerm_Click: los descuentos de una persona, leídos, calculados y escritos
// en una transacción bajo su clave. Con egresos en el mes no escribe nada y lo
// avisa.
ResultadoPersona descuentosDeUnaPersona(store::Conexion& base, const std::string& empresa,
                                        const std::string& nombre, const common::Mes& mes,
                                        common::Dialogo& dialogo);

// Los descuentos permanentes de la persona: los de todos, menos el que excluye
// su aportación y vínculo (conceptoExcluido), y los que concpermxpers le da;
// por código y cada código una vez.
std::vector<long> codigosDescuento(const MesPersona& mp, double cantbfc);

// Un descuento que no es IRP ni IRPF: su fórmula y sus aportes, escrito en la
// tabla de las opciones. Un fallo de la fórmula nombra el concepto.
FilaLiquidada descuentoDeConcepto(ContextoFormula& ctx, const master::Concepto& c,
                                  const OpcionesAportes& opciones, common::Dialogo& dialogo);

// Los pasos de la generación sobre el mes ya leído, en memoria.
std::vector<FilaLiquidada> generarDescuentos(MesPersona& mp, ContextoFormula& ctx,
                                             common::Dialogo& dialogo);

// El importe de una fila "IRP" o "IRPF", como en el Enter de la cantidad: en
// diciembre el cierre del año (0 para el jornalero o por hora cuyo único haber
// es una licencia), los demás meses el del mes con M.Irpf y M.Dedu. El texto
// de la fila lleva el detalle del IRPF.
struct ImporteImpuesto {
    double cant = 1;
    common::Dinero total;
    std::string concepto, explicacion;
    // Las cifras del cálculo, para el recuadro del IRPF de la pantalla.
    std::optional<ResultadoIRPF> irpfMes;
    std::optional<ResultadoIRPFDic> irpfDiciembre;
};
// Sobre egresos, el IRPF es el de la liquidación por egreso (sus aportes y el
// cierre del año con los egresos).
ImporteImpuesto calcularImpuesto(const MesPersona& mp, ContextoFormula& ctx,
                                 const std::string& concepto, common::Dialogo& dialogo,
                                 TablaLiquidacion tabla = TablaLiquidacion::Habydesc);

// ActDesPermxEmpresa_Click: toda la empresa, cada persona activa con haberes y
// sin egresos en el mes; antes, lo que traiga para ella el archivo de horas
// (CalculoCant2). Al final avisa "Actualización finalizada." con cuántas se
// liquidaron, si no se canceló ni falló.
ResultadoEmpresa descuentosDeLaEmpresa(store::Conexion& base, const std::string& empresa,
                                       const common::Mes& mes, common::Dialogo& dialogo,
                                       const ProgresoEmpresa& progreso = {},
                                       const CancelarEmpresa& cancelar = {});

// "Actualización finalizada." y cuántas personas se liquidaron, y de qué mes.
std::string textoActualizacionFinalizada(const ResultadoEmpresa& r);

// DescPerm2_Click: borra los descuentos del mes después de "¿Desea continuar?"
// con el título "Eliminar Desc.Perm.". Devuelve las filas borradas, o -1 si se
// respondió No.
long eliminarDescuentosDelMes(store::Conexion& base, const std::string& empresa,
                              const std::string& nombre, const common::Mes& mes,
                              common::Dialogo& dialogo);
// HabPerm2_Click: lo mismo con los haberes ("Eliminar Hab.Perm."); si el mes
// tenía haberes, también sus filas de salvacacional.
long eliminarHaberesDelMes(store::Conexion& base, const std::string& empresa,
                           const std::string& nombre, const common::Mes& mes,
                           common::Dialogo& dialogo);

}  // namespace mes
}  // namespace nomira::engine
