#include "engine/formulas/analizador_expresion.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

#include "common/dinero.h"
#include "common/fallo.h"

namespace nomira::engine::inline formulas::detalle {

namespace {

const char* descripcion(int numero) {
    switch (numero) {
        case 5:
            return "Llamada a procedimiento o argumento no válido";
        case 6:
            return "Desbordamiento";
        case 11:
            return "División por cero";
        case kErrorAnidamiento:
            return "Fórmula demasiado anidada";
        case 13:
            return "No coinciden los tipos";
        case 94:
            return "Uso no válido de Null";
        case 424:
            return "Se requiere un objeto";
        case 450:
            return "Número de argumentos incorrecto o asignación de propiedad no válida";
        case 1006:
            return "Se esperaba ')'";
        case 1025:
            return "Se esperaba el final de la instrucción";
        case 1032:
            return "Carácter no válido";
        default:
            return "Error de sintaxis";
    }
}

// Todo resultado pasa por aquí: VBScript no tiene infinitos ni NaN, y tampoco
// un cero negativo que luego se escriba "-0".
double finito(double r) {
    if (!std::isfinite(r)) fallar(6);
    return r + 0.0;
}

// Conversión a Long de \, Mod y los operadores lógicos: mitad al par.
std::int32_t aLargo(double x) {
    return common::enteroAgencia(x);
}

double enRango(double x, double minimo, double maximo) {
    const double r = std::nearbyint(x);  // al más cercano, mitad al par
    if (!(r >= minimo && r <= maximo)) fallar(6);
    return r + 0.0;
}

double verdad(bool b) {
    return b ? -1.0 : 0.0;
}

bool igualesSinMayusculas(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        char x = a[i];
        if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
        if (x != b[i]) return false;
    }
    return true;
}

bool esLetra(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           static_cast<unsigned char>(c) >= 0x80;
}
bool esCifra(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

void fallar(int numero) {
    throw common::Fallo(numero, descripcion(numero));
}

double aplicar(Operador op, double a, double b) {
    switch (op) {
        case Operador::Potencia:
            // Base negativa con exponente fraccionario no tiene valor real.
            if ((a < 0 && b != std::trunc(b)) || (a == 0 && b < 0)) fallar(5);
            return finito(std::pow(a, b));
        case Operador::Producto:
            return finito(a * b);
        case Operador::Cociente:
            if (b == 0) fallar(a == 0 ? 6 : 11);  // 0/0 desborda; x/0 divide por cero
            return finito(a / b);
        case Operador::DivisionEntera:
        case Operador::Modulo: {
            const std::int64_t x = aLargo(a);
            const std::int64_t y = aLargo(b);
            if (y == 0) fallar(11);
            const std::int64_t r = op == Operador::Modulo ? x % y : x / y;
            if (r > std::numeric_limits<std::int32_t>::max()) fallar(6);
            return static_cast<double>(r);
        }
        case Operador::Suma:
            return finito(a + b);
        case Operador::Resta:
            return finito(a - b);
        case Operador::Igual:
            return verdad(a == b);
        case Operador::Distinto:
            return verdad(a != b);
        case Operador::Menor:
            return verdad(a < b);
        case Operador::Mayor:
            return verdad(a > b);
        case Operador::MenorIgual:
            return verdad(a <= b);
        case Operador::MayorIgual:
            return verdad(a >= b);
        case Operador::Y:
            return aLargo(a) & aLargo(b);
        case Operador::O:
            return aLargo(a) | aLargo(b);
        case Operador::OExclusivo:
            return aLargo(a) ^ aLargo(b);
        case Operador::Equivalencia:
            return ~(aLargo(a) ^ aLargo(b));
        case Operador::Implicacion:
            return ~aLargo(a) | aLargo(b);
    }
    fallar(1002);
}

double negar(double x) {
    return 0.0 - x;
}

double negacionLogica(double x) {
    return ~aLargo(x);
}

double llamar(Funcion f, const double* args, int cuantos) {
    if (f == Funcion::Desconocida) fallar(13);  // una variable no se puede llamar
    if (cuantos < 1 || cuantos > (f == Funcion::Round ? 2 : 1)) fallar(450);
    const double x = args[0];
    switch (f) {
        case Funcion::Int:
            return std::floor(x) + 0.0;
        case Funcion::Fix:
            return std::trunc(x) + 0.0;
        case Funcion::Abs:
            return std::fabs(x);
        case Funcion::Sgn:
            return x > 0 ? 1.0 : (x < 0 ? -1.0 : 0.0);
        case Funcion::Sqr:
            if (x < 0) fallar(5);
            return std::sqrt(x);
        case Funcion::Exp:
            return finito(std::exp(x));
        case Funcion::Log:
            if (x <= 0) fallar(5);
            return std::log(x);
        case Funcion::Round: {
            const std::int32_t decimales = cuantos == 2 ? aLargo(args[1]) : 0;
            if (decimales < 0) fallar(5);
            // Más decimales de los que tiene un double no cambian nada.
            return finito(common::redondearPar(x, decimales > 400 ? 400 : decimales));
        }
        case Funcion::CInt:
            return enRango(x, -32768, 32767);
        case Funcion::CLng:
            return aLargo(x);
        case Funcion::CDbl:
            return x;
        case Funcion::CCur:
            return common::Dinero::desdeDouble(x).aDouble();
        case Funcion::CSng: {
            if (std::fabs(x) > std::numeric_limits<float>::max()) fallar(6);
            return static_cast<float>(x);
        }
        case Funcion::CBool:
            return verdad(x != 0);
        case Funcion::CByte:
            return enRango(x, 0, 255);
        case Funcion::Atn:
            return std::atan(x);
        case Funcion::Sin:
            return finito(std::sin(x));
        case Funcion::Cos:
            return finito(std::cos(x));
        case Funcion::Tan:
            return finito(std::tan(x));
        case Funcion::Desconocida:
            break;
    }
    fallar(13);
}

Funcion buscarFuncion(std::string_view nombre) {
    struct Entrada {
        std::string_view nombre;
        Funcion funcion;
    };
    static constexpr Entrada tabla[] = {
        {"int", Funcion::Int},   {"fix", Funcion::Fix},     {"abs", Funcion::Abs},
        {"sgn", Funcion::Sgn},   {"sqr", Funcion::Sqr},     {"exp", Funcion::Exp},
        {"log", Funcion::Log},   {"round", Funcion::Round}, {"cint", Funcion::CInt},
        {"clng", Funcion::CLng}, {"cdbl", Funcion::CDbl},   {"ccur", Funcion::CCur},
        {"csng", Funcion::CSng}, {"cbool", Funcion::CBool}, {"cbyte", Funcion::CByte},
        {"atn", Funcion::Atn},   {"sin", Funcion::Sin},     {"cos", Funcion::Cos},
        {"tan", Funcion::Tan},
    };
    for (const Entrada& e : tabla) {
        if (igualesSinMayusculas(nombre, e.nombre)) return e.funcion;
    }
    return Funcion::Desconocida;
}

void Lexico::avanzar() {
    while (pos_ < texto_.size() && (texto_[pos_] == ' ' || texto_[pos_] == '\t')) ++pos_;
    if (pos_ >= texto_.size() || texto_[pos_] == '\'') {  // ' abre un comentario
        pos_ = texto_.size();
        pieza = Pieza::Fin;
        return;
    }
    const char c = texto_[pos_];
    const char sig = pos_ + 1 < texto_.size() ? texto_[pos_ + 1] : '\0';
    if (esCifra(c) || (c == '.' && esCifra(sig))) return leerNumero();
    if (esLetra(c) || c == '[') return leerNombre();
    ++pos_;
    switch (c) {
        case '\r':
        case '\n':
        case ':':
            pieza = Pieza::FinDeLinea;
            return;
        case '(':
            pieza = Pieza::Abre;
            return;
        case ')':
            pieza = Pieza::Cierra;
            return;
        case ',':
            pieza = Pieza::Coma;
            return;
        case '+':
            pieza = Pieza::Mas;
            return;
        case '-':
            pieza = Pieza::Menos;
            return;
        case '*':
            pieza = Pieza::Por;
            return;
        case '/':
            pieza = Pieza::Entre;
            return;
        case '\\':
            pieza = Pieza::BarraInvertida;
            return;
        case '^':
            pieza = Pieza::Circunflejo;
            return;
        // VBScript también acepta =>, =< y >< por >=, <= y <>, y hay fórmulas
        // escritas así.
        case '=':
            pieza =
                sig == '>' ? Pieza::MayorIgual : (sig == '<' ? Pieza::MenorIgual : Pieza::Igual);
            if (pieza != Pieza::Igual) ++pos_;
            return;
        case '<':
            pieza = sig == '>' ? Pieza::Distinto : (sig == '=' ? Pieza::MenorIgual : Pieza::Menor);
            if (pieza != Pieza::Menor) ++pos_;
            return;
        case '>':
            pieza = sig == '=' ? Pieza::MayorIgual : (sig == '<' ? Pieza::Distinto : Pieza::Mayor);
            if (pieza != Pieza::Mayor) ++pos_;
            return;
        case '&':
            if (sig == 'h' || sig == 'H') return leerHexOctal(16);
            if (sig == 'o' || sig == 'O') return leerHexOctal(8);
            break;  // la concatenación de textos queda fuera: sólo hay números
        default:
            break;
    }
    fallar(1032);
}

void Lexico::leerNumero() {
    const std::size_t inicio = pos_;
    while (pos_ < texto_.size() && esCifra(texto_[pos_])) ++pos_;
    if (pos_ < texto_.size() && texto_[pos_] == '.') {
        ++pos_;
        while (pos_ < texto_.size() && esCifra(texto_[pos_])) ++pos_;
    }
    if (pos_ < texto_.size() && (texto_[pos_] == 'e' || texto_[pos_] == 'E')) {
        ++pos_;
        if (pos_ < texto_.size() && (texto_[pos_] == '+' || texto_[pos_] == '-')) ++pos_;
        if (pos_ >= texto_.size() || !esCifra(texto_[pos_])) fallar(1002);
        while (pos_ < texto_.size() && esCifra(texto_[pos_])) ++pos_;
    }
    const char* primero = texto_.data() + inicio;
    const char* ultimo = texto_.data() + pos_;
    pieza = Pieza::Numero;
    desborde = false;
    const auto [fin, error] = std::from_chars(primero, ultimo, numero);
    if (error == std::errc::result_out_of_range) {
        // Fuera de rango por arriba desborda; por abajo es cero, como 1E-400.
        numero = std::strtod(std::string(primero, ultimo).c_str(), nullptr);
        desborde = std::isinf(numero);
    } else if (error != std::errc() || fin != ultimo) {
        fallar(1002);
    }
}

void Lexico::leerHexOctal(int base) {
    pos_ += 1;  // la letra; el & ya se consumió
    const std::size_t inicio = pos_;
    std::uint64_t valor = 0;
    while (pos_ < texto_.size()) {
        const char c = texto_[pos_];
        int cifra;
        if (esCifra(c))
            cifra = c - '0';
        else if (c >= 'a' && c <= 'f')
            cifra = c - 'a' + 10;
        else if (c >= 'A' && c <= 'F')
            cifra = c - 'A' + 10;
        else
            break;
        if (cifra >= base) break;
        valor = valor * base + cifra;
        if (valor > 0xFFFFFFFFu) fallar(1002);
        ++pos_;
    }
    if (pos_ == inicio) fallar(1002);
    const std::size_t cifras = pos_ - inicio;
    const bool sufijoLong = pos_ < texto_.size() && texto_[pos_] == '&';
    if (sufijoLong) ++pos_;
    pieza = Pieza::Numero;
    desborde = false;
    // Hasta cuatro cifras hexadecimales sin & son un Integer de 16 bits
    // (&HFFFF es -1); con & o con más cifras, un Long de 32 (&HFFFFFFFF es -1).
    if (base == 16 && !sufijoLong && cifras <= 4)
        numero = static_cast<std::int16_t>(static_cast<std::uint16_t>(valor));
    else
        numero = static_cast<std::int32_t>(static_cast<std::uint32_t>(valor));
}

void Lexico::leerNombre() {
    if (texto_[pos_] == '[') {
        // [nombre con blancos]: un identificador entre corchetes.
        const std::size_t cierre = texto_.find(']', pos_);
        if (cierre == std::string_view::npos) fallar(1002);
        nombre = texto_.substr(pos_ + 1, cierre - pos_ - 1);
        pos_ = cierre + 1;
        pieza = Pieza::Nombre;
        return;
    }
    const std::size_t inicio = pos_;
    while (pos_ < texto_.size() &&
           (esLetra(texto_[pos_]) || esCifra(texto_[pos_]) || texto_[pos_] == '_')) {
        ++pos_;
    }
    nombre = texto_.substr(inicio, pos_ - inicio);
    struct Palabra {
        std::string_view texto;
        Pieza pieza;
        double valor;
    };
    static constexpr Palabra reservadas[] = {
        {"mod", Pieza::Mod, 0},      {"and", Pieza::And, 0},      {"or", Pieza::Or, 0},
        {"xor", Pieza::Xor, 0},      {"eqv", Pieza::Eqv, 0},      {"imp", Pieza::Imp, 0},
        {"not", Pieza::Not, 0},      {"is", Pieza::Is, 0},        {"true", Pieza::Numero, -1},
        {"false", Pieza::Numero, 0}, {"empty", Pieza::Numero, 0}, {"null", Pieza::Nulo, 0},
    };
    pieza = Pieza::Nombre;
    if (nombre.size() > 5) return;
    for (const Palabra& p : reservadas) {
        if (igualesSinMayusculas(nombre, p.texto)) {
            pieza = p.pieza;
            numero = p.valor;
            desborde = false;
            return;
        }
    }
}

}  // namespace nomira::engine::formulas::detalle
