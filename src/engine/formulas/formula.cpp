#include "engine/formulas/formula.h"

#include <array>

#include "common/numeros.h"
#include "common/texto.h"
#include "engine/calculos/psnis.h"
#include "engine/formulas/evaluador.h"

namespace nomira::engine {
inline namespace formulas {

namespace {

constexpr std::array<std::string_view, kCantTokens> kNombres = {
    "SUELDO",    "SUELDO2",     "SUELDO3",         "HTRAB",       "CANT",
    "MONTOGRAV", "MONTOGRAVAG", "MONTOSV",         "TOTALHAB",    "PSNIS",
    "PFOCER",    "CANTBFC",     "LIQUIDONETOGRAV", "LIQUIDONETO", "MONTOGRAVALIM"};

double valorDe(const ContextoFormula& c, Token t) {
    switch (t) {
        case Token::Sueldo:
            return c.sueldo;
        case Token::Sueldo2:
            return c.sueldo2;
        case Token::Sueldo3:
            return c.sueldo3;
        case Token::Htrab:
            return c.htrab;
        case Token::Cant:
            return c.cant;
        case Token::Montograv:
            return c.montograv.aDouble();
        case Token::Montogravag:
            return c.montogravag.aDouble();
        case Token::Montosv:
            return c.montosv.aDouble();
        case Token::Totalhab:
            return c.totalhab.aDouble();
        case Token::Psnis:
            return c.psnis;
        case Token::Pfocer:
            return c.pfocer.aDouble();
        case Token::Cantbfc:
            return c.cantbfc;
        case Token::Liquidonetograv:
            return c.liquidonetograv.aDouble();
        case Token::Liquidoneto:
            return c.liquidoneto.aDouble();
        case Token::Montogravalim:
            return c.montogravalim.aDouble();
    }
    return 0;
}

// El primer token de la pantalla que se llama así, en el orden de la tabla.
std::optional<Token> tokenPropio(std::string_view mayusculas, const TokensFormula& conocidos) {
    for (std::size_t i = 0; i < kCantTokens; ++i)
        if (conocidos.test(i) && kNombres[i] == mayusculas) return static_cast<Token>(i);
    return std::nullopt;
}

bool conoce(const TokensFormula& conocidos, Token t) {
    return conocidos.test(static_cast<std::size_t>(t));
}

void pasoCantidad(ContextoFormula& ctx, const OpcionesFormula& op) {
    // Sólo la casilla vacía toma el valor por defecto: un "0" tecleado es 0.
    if (!ctx.textoCant.empty())
        ctx.cant = common::textoANumero(ctx.textoCant);
    else
        ctx.cant = op.usaCantArchivo && ctx.cantarchivo != 0 ? ctx.cantarchivo : 1;
}

}  // namespace

TokensFormula tokensFormula(std::initializer_list<Token> tokens) {
    TokensFormula b;
    for (Token t : tokens) b.set(static_cast<std::size_t>(t));
    return b;
}

std::string_view nombreToken(Token t) {
    return kNombres[static_cast<std::size_t>(t)];
}

TokensFormula tokensForm42() {
    return TokensFormula().set();
}

TokensFormula tokensForm45() {
    return tokensForm42().reset(static_cast<std::size_t>(Token::Pfocer));
}

TokensFormula tokensForm43() {
    using enum Token;
    return tokensFormula({Sueldo, Htrab, Cant, Montograv, Psnis, Cantbfc, Liquidoneto});
}

TokensFormula tokensForm76() {
    using enum Token;
    return tokensFormula({Sueldo, Sueldo2, Sueldo3, Htrab, Cant});
}

OpcionesFormula opcionesForm42() {
    return {true, true, true, tokensForm42()};
}

OpcionesFormula opcionesCalculoFormula2() {
    return {false, true, true, tokensForm45()};
}

OpcionesFormula opcionesForm43() {
    return {true, false, true, tokensForm43(), true};
}

OpcionesFormula opcionesForm44() {
    return {true, false, true, tokensForm43()};
}

OpcionesFormula opcionesForm76() {
    return {false, false, false, tokensForm76()};
}

void cargarPersona(ContextoFormula& ctx, const master::Persona& p) {
    ctx.sueldo = common::textoANumero(p.sueldo);
    ctx.sueldo2 = common::textoANumero(p.sueldo2);
    ctx.sueldo3 = common::textoANumero(p.sueldo3);
    ctx.htrab = common::textoANumero(p.htrab);
    ctx.cantbfc = common::textoANumero(p.cantbfc);
}

namespace {

[[noreturn]] void sinAsignar() {
    throw common::Fallo(91, "Variable de objeto o bloque With no establecida");
}

}  // namespace

LibroPersona& libroDe(const ContextoFormula& ctx) {
    if (!ctx.libro) sinAsignar();
    return *ctx.libro;
}

const Maestros& maestrosDe(const ContextoFormula& ctx) {
    if (!ctx.maestros) sinAsignar();
    return *ctx.maestros;
}

const master::LectorVariables& variablesDe(const ContextoFormula& ctx) {
    if (!ctx.variables) sinAsignar();
    return *ctx.variables;
}

void calcularFormula(ContextoFormula& ctx, const OpcionesFormula& op, common::Dialogo& dialogo) {
    if (op.pasoCantidad) pasoCantidad(ctx, op);

    std::string copia = ctx.formula;
    const double bpc = op.leeBPC ? variablesDe(ctx).valor("BPC") : 0.0;

    for (;;) {
        const auto abre = copia.find('[');
        const auto cierra = copia.find(']');
        if (abre == std::string::npos || cierra == std::string::npos) break;
        // Posiciones desde 1, como Mid.
        std::size_t a = abre + 1, b = cierra + 1;
        if (a > b) {
            // "]x[": todo el texto pasa a ser un token y el cálculo sigue.
            a = 1;
            b = copia.size();
            dialogo.avisar(common::TipoAviso::Error, "Mensaje de advertencia",
                           "Error en la fórmula, falta algún corchete.");
        }
        const std::string token = copia.substr(a, b - 1 - a);
        // La variable se busca tal como se escribió; los propios, en mayúsculas.
        const double variable = variablesDe(ctx).valor(token);
        const std::string mayus = common::mayusculas(token);
        if (mayus == "PSNIS" && conoce(op.tokens, Token::Psnis)) {
            if (op.psnisAguinaldo)
                ctx.psnis = ctx.tipoaporte == "04" ? 0 : 3;
            else
                calcularPSNIS(ctx, bpc, dialogo);
        }
        if (mayus == "PFOCER" && conoce(op.tokens, Token::Pfocer)) {
            const auto* p = ctx.persona;
            ctx.pfocer = p ? common::Dinero::desdeDouble(common::textoANumero(p->otrotelefono))
                           : common::Dinero();
        }
        const auto propio = tokenPropio(mayus, op.tokens);
        const double valor = propio ? valorDe(ctx, *propio) : variable;
        copia = copia.substr(0, a - 1) + common::numeroATexto(valor) + copia.substr(b);
    }

    ctx.formulaSustituida = copia;
    // Sin corchetes: un texto vacío toma el importe del archivo de horas.
    const double total = copia.empty() ? ctx.importearchivo.aDouble() : evaluarExpresion(copia);
    ctx.total = total;
}

}  // namespace formulas
}  // namespace nomira::engine
