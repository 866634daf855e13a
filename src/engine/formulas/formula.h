#pragma once
// Las fórmulas de los conceptos: cada token entre corchetes se reemplaza por un
// número en texto y lo que queda va al evaluador.
//
// Una sola rutina para CalculoFormula, CalculoFormula3 y CalculoFormula2 (y las
// copias de las demás pantallas): lo que cambia entre ellas son las opciones,
// es decir el paso de la cantidad, la lectura de la BPC y los tokens que conocen.
#include <bitset>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "common/fechas.h"
#include "master/personal.h"
#include "master/variables.h"

namespace nomira::engine {
// Lo que la corrida leyó (mes/), al que el contexto apunta.
inline namespace mes {
class LibroPersona;
struct Maestros;
}  // namespace mes
inline namespace formulas {

// Los tokens propios, en el orden en que se comparan.
enum class Token : std::uint8_t {
    Sueldo,
    Sueldo2,
    Sueldo3,
    Htrab,
    Cant,
    Montograv,
    Montogravag,
    Montosv,
    Totalhab,
    Psnis,
    Pfocer,
    Cantbfc,
    Liquidonetograv,
    Liquidoneto,
    Montogravalim
};
inline constexpr std::size_t kCantTokens = 15;
using TokensFormula = std::bitset<kCantTokens>;

TokensFormula tokensFormula(std::initializer_list<Token> tokens);
// "SUELDO", "MONTOGRAVALIM"...
std::string_view nombreToken(Token t);

// Los que conoce cada pantalla. En Form43 y Form44 SUELDO y MONTOGRAV son los
// campos propios de la pantalla: quien llama los pone en el contexto.
TokensFormula tokensForm42();
TokensFormula tokensForm45();
TokensFormula tokensForm43();  // también Form44
TokensFormula tokensForm76();  // también Form70

struct OpcionesFormula {
    bool pasoCantidad = true;    // cant sale de textoCant antes de sustituir
    bool usaCantArchivo = true;  // textoCant vacío: cantarchivo si no es 0 (si no, siempre 1)
    bool leeBPC = true;          // la BPC para PSNIS se lee al empezar
    TokensFormula tokens;
    // En el aguinaldo PSNIS es 3 para todos (0 con aportación "04"): el
    // complemento por hijos y cónyuge lo paga el sueldo del mes.
    bool psnisAguinaldo = false;
};

OpcionesFormula opcionesForm42();           // CalculoFormula y CalculoFormula3
OpcionesFormula opcionesCalculoFormula2();  // sin paso de cantidad ni PFOCER
OpcionesFormula opcionesForm43();           // PSNIS fijo
OpcionesFormula opcionesForm44();           // cantidad vacía = 1
OpcionesFormula opcionesForm76();           // sin BPC ni cantidad, cinco tokens

// Lo que la fórmula lee y escribe: los valores de los tokens, la cantidad y el
// total, y de dónde salen los demás (la ficha de la persona, sus filas del mes y
// los maestros de la corrida, ya leídos). Los importes son Dinero (montogravalim
// incluido, como toda la familia del líquido); cantidades, sueldos y
// porcentajes, double.
struct ContextoFormula {
    std::string formula;
    double cant = 0;
    double total = 0;
    double cantarchivo = 0;
    common::Dinero importearchivo;
    double sueldo = 0, sueldo2 = 0, sueldo3 = 0, htrab = 0, cantbfc = 0;
    common::Dinero montograv, montogravag, montosv, totalhab;
    common::Dinero liquidonetograv, liquidoneto, montogravalim;
    double psnis = 0;
    common::Dinero pfocer;
    std::string tipoaporte;
    bool esmayor = false;

    std::string empresa, nombre;
    common::Mes periodo;            // el mes que se liquida (ver common::mesDeReferencia)
    std::string textoCant;          // la cantidad tal como se tecleó
    std::string formulaSustituida;  // lo que se evaluó, para la explicación
    const master::LectorVariables* variables = nullptr;
    // Lo leído por la corrida; nulos si la fórmula no los necesita.
    const master::Persona* persona = nullptr;
    LibroPersona* libro = nullptr;
    const Maestros* maestros = nullptr;
};

// sueldo, sueldo2, sueldo3, htrab y cantbfc desde la fila (lo vacío da 0).
void cargarPersona(ContextoFormula& ctx, const master::Persona& p);

// Las filas y los maestros del contexto. Sin ellos es el error 91, como un
// objeto sin asignar.
LibroPersona& libroDe(const ContextoFormula& ctx);
const Maestros& maestrosDe(const ContextoFormula& ctx);
const master::LectorVariables& variablesDe(const ContextoFormula& ctx);

// Escribe cant (si corresponde), psnis, pfocer, esmayor y total. Un fallo del
// evaluador o de la base sale como common::Fallo y deja total como estaba.
// El aviso de corchetes va por el diálogo y el cálculo sigue.
void calcularFormula(ContextoFormula& ctx, const OpcionesFormula& opciones,
                     common::Dialogo& dialogo);

inline void CalculoFormula(ContextoFormula& ctx, common::Dialogo& dialogo) {
    calcularFormula(ctx, opcionesForm42(), dialogo);
}
inline void CalculoFormula3(ContextoFormula& ctx, common::Dialogo& dialogo) {
    calcularFormula(ctx, opcionesForm42(), dialogo);
}
inline void CalculoFormula2(ContextoFormula& ctx, common::Dialogo& dialogo) {
    calcularFormula(ctx, opcionesCalculoFormula2(), dialogo);
}

}  // namespace formulas
}  // namespace nomira::engine
