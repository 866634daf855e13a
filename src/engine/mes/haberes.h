#pragma once
// La generación de los haberes permanentes de Form42 (HabPerm_Click) para una
// persona, y la de toda la empresa (ActHamPermxEmpresa_Click) sobre el
// recorrido común. Regenerar los haberes siempre tira los descuentos del mes.
#include <functional>
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "engine/mes/empresa_mes.h"
#include "engine/mes/horas.h"
#include "engine/mes/mes_persona.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

// La importación del archivo de horas de la persona (CalculoCant), con las filas
// que escribió. Sin ella, como cuando no hay archivo del mes, el paso no hace
// nada.
using ImportarHoras = std::function<ImportacionHoras(ContextoFormula&, common::Dialogo&)>;

struct OpcionesHaberes {
    ImportarHoras calculoCant;
    // Los descuentos del mes de la persona se borran primero; la corrida de la
    // empresa ya los borró todos al empezar y no lo repite persona por persona.
    bool borrarDescuentos = true;
};

// Con el archivo de horas del mes (CalculoCant), como lo hacen la pantalla y
// las órdenes.
OpcionesHaberes conArchivoDeHoras();

// Los conceptos que se generan para la persona: "SUELDO FICTO" si tiene
// cantbfc, si no los permanentes generales o de su tipo de sueldo más los de
// concpermxpers, por código y sin repetir.
std::vector<const master::Concepto*> conceptosPermanentes(const Maestros& maestros,
                                                          const MesPersona& mp, double cantbfc);

// Los días que no trabajó quien ingresó en el mes después del primero: el
// día 31, y el 28 o 29 de un febrero común o bisiesto, cuentan como 30; se
// pierden día - 1. 0 si ingresó otro mes o el día 1.
int diasNoTrabajados(const std::string& fechaing, const common::Mes& mes);

// El mayor total gravado del mes entre el personal de la empresa con un vínculo
// que cobra sueldo real, y de quién es (vacío si no hay ninguno), sobre las
// filas de lo leído tal como están en este momento de la corrida.
struct MayorSueldo {
    std::string nombre;
    common::Dinero total;
};
MayorSueldo mayorSueldoDeLaEmpresa(const Lectura& lectura);

// Pasos 3 a 8 de HabPerm_Click sobre el mes ya leído, en memoria: las filas
// quedan en el libro de la persona para que alguien las escriba.
ResultadoPersona haberesDelMes(MesPersona& mp, ContextoFormula& ctx, common::Dialogo& dialogo,
                               const OpcionesHaberes& opciones = {});

// HabPerm_Click: una persona, leída, calculada y escrita en una transacción
// bajo su clave. Sin empresa o persona, el mensaje de leerMesDeLaPersona y nada escrito.
ResultadoPersona generarHaberesPermanentes(store::Conexion& base, const std::string& empresa,
                                           const std::string& nombre, const common::Mes& mes,
                                           common::Dialogo& dialogo,
                                           const OpcionesHaberes& opciones = {});

// ActHamPermxEmpresa_Click: borra los descuentos del mes de toda la empresa y
// genera los haberes de cada persona activa, escribiendo persona por persona.
// A las que no trabajan en el mes sólo les llega el archivo de horas.
ResultadoEmpresa haberesDeLaEmpresa(store::Conexion& base, const std::string& empresa,
                                    const common::Mes& mes, common::Dialogo& dialogo,
                                    const OpcionesHaberes& opciones = {},
                                    const ProgresoEmpresa& progreso = {},
                                    const CancelarEmpresa& cancelar = {});

inline constexpr const char* kYaEnEgresos =
    "El funcionario ya tiene liquidado conceptos en Egresos.";

}  // namespace mes
}  // namespace nomira::engine
