#pragma once
// Una fila del salario vacacional de una persona (Form44): el código
// (Buscar_Click), el cálculo al dar Enter en la cantidad, el guardado al dar
// Enter en el total (Agregar_Click o Modificar_Click) y la baja
// (Eliminar_Click). Las filas van a salvacacional, una por código en el mes.
#include <optional>
#include <string>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/calculos/irpf.h"
#include "engine/mes/mes_persona.h"
#include "master/conceptos.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace vacacional {

inline constexpr const char* kFaltanCamposVacacional =
    "Debe completar los campos Empresa, Nombre del Personal, Fecha y Código.";
inline constexpr const char* kUnicoHaberVacacional =
    "El único Haber posible en esta liquidación es el SALARIO VACACIONAL.";
inline constexpr const char* kTituloEliminarHaber = "Eliminar Haber";

// Los campos de arriba de la pantalla. El mes llega ya leído (la pantalla
// revisa su formato): vacío es nada.
struct ClaveVacacional {
    std::string empresa, nombre;
    std::optional<common::Mes> mes;
    std::string codigo;
};

// Lo que la pantalla muestra de la persona.
struct PersonaVacacional {
    double sueldo = 0;  // 0 si está vacío
    std::string tiposueldo;
    double htrab = 0, cantbfc = 0;
};

// Lo que queda en las casillas de la fila después del Enter en la cantidad (o
// lo que trajo la fila guardada): el texto del concepto (el nombre, extendido
// en IRP e IRPF), la cantidad, el total y cómo se llegó a él.
struct CalculoVacacional {
    std::string texto;
    double cant = 0;
    common::Dinero total;
    std::string explicacion;
    std::optional<ResultadoIRPF> irpf;  // las cifras del IRPF, si se calculó
};

// Lo que Buscar_Click deja cargado: el mes de la persona (ctx apunta a lo que
// se leyó), el concepto, la fila del mes de ese código si está y el último
// cálculo.
struct VacacionalBuscado {
    MesPersona mp;
    master::Concepto concepto;
    long codigo = 0;
    PersonaVacacional persona;
    bool existe = false;  // Modificar y Eliminar; si no, Agregar
    // Las casillas de la fila guardada (CargarText); vacías si no hay.
    std::string textoCant, textoTotal, desdelic, hastalic;  // fechas dd/mm/aa
    CalculoVacacional calculo;
};

// Sin `buscado`, un mensaje lo impidió (ya avisado); con `limpiarCasillas`
// además la pantalla vacía los campos de la fila (el código no existe).
struct ResultadoBuscarVacacional {
    std::optional<VacacionalBuscado> buscado;
    bool limpiarCasillas = false;
};
ResultadoBuscarVacacional buscarVacacional(store::Conexion& base, const ClaveVacacional& clave,
                                           ContextoFormula& ctx, common::Dialogo& dialogo);

// El Enter en la cantidad: IRP, IRPF sobre el salario vacacional del mes, o la
// fórmula del concepto (menos LICENCIA, que aquí no se calcula). Deja el
// resultado también en b.calculo.
CalculoVacacional calcularVacacional(VacacionalBuscado& b, ContextoFormula& ctx,
                                     const std::string& textoCant, common::Dialogo& dialogo);

// Las casillas al dar Enter en el total, como se teclearon ("." decimal).
struct CasillasVacacional {
    std::string cant, total;
    std::string desdelic, hastalic;  // dd/mm/aa, o vacías
};

// El Enter en el total: agrega o modifica la fila del código con el texto de
// b.calculo y las casillas, en una transacción bajo la clave de la persona
// (b.mp y ctx quedan con el mes releído). Devuelve el mensaje que lo impidió
// (ya avisado), o nada si se guardó.
std::optional<std::string> guardarVacacional(store::Conexion& base, VacacionalBuscado& b,
                                             ContextoFormula& ctx, const CasillasVacacional& c,
                                             common::Dialogo& dialogo);

// Eliminar_Click: "¿Desea continuar?"; con Sí borra la fila del código y su
// explicación. Devuelve "" si se respondió No, o nada si se borró.
std::optional<std::string> eliminarVacacional(store::Conexion& base, VacacionalBuscado& b,
                                              ContextoFormula& ctx, common::Dialogo& dialogo);

}  // namespace vacacional
}  // namespace nomira::engine
