// El evaluador de fórmulas frente a lo que da VBScript. Cada texto se evalúa
// de las dos maneras (de una vez y analizado para repetir) y deben coincidir.
#include <gtest/gtest.h>
#include <pthread.h>

#include <cmath>
#include <functional>
#include <string>

#include "common/fallo.h"
#include "engine/formulas/evaluador.h"

namespace nomira::engine {
namespace {

double valor(std::string_view texto) {
    const double directo = evaluarExpresion(texto);
    const double analizado = Expresion::analizar(texto).evaluar();
    EXPECT_EQ(directo, analizado) << texto;
    return directo;
}

struct Error {
    int numero = 0;
    std::string descripcion;
};

Error error(std::string_view texto) {
    Error directo, analizado;
    try {
        evaluarExpresion(texto);
    } catch (const common::Fallo& f) {
        directo = {f.numero(), f.descripcion()};
    }
    try {
        Expresion::analizar(texto).evaluar();
    } catch (const common::Fallo& f) {
        analizado = {f.numero(), f.descripcion()};
    }
    EXPECT_EQ(directo.numero, analizado.numero) << texto;
    EXPECT_EQ(directo.descripcion, analizado.descripcion) << texto;
    return directo;
}

int numeroDeError(std::string_view texto) {
    return error(texto).numero;
}

TEST(Evaluador, FormulasDeConceptos) {
    EXPECT_DOUBLE_EQ(valor("(1234.56*4.5)/100"), 55.5552);
    EXPECT_EQ(valor("15000.5/30*3"), 15000.5 / 30 * 3);
    EXPECT_DOUBLE_EQ(valor("Round((25000/30*12.5+1500)*15/100,2)"), 1787.5);
    EXPECT_EQ(valor("25000"), 25000);
    EXPECT_EQ(valor("  ( 1 + 2 )\t* 3  "), 9);
}

TEST(Evaluador, PrecedenciaYAsociatividad) {
    // El signo liga más que ^ en VBScript: -2^2 es (-2)^2.
    EXPECT_EQ(valor("-2^2"), 4);
    EXPECT_EQ(valor("-3^2"), 9);
    EXPECT_EQ(valor("0-2^2"), -4);
    EXPECT_EQ(valor("2^-1"), 0.5);
    EXPECT_EQ(valor("2^3^2"), 64);
    EXPECT_EQ(valor("2^-3^2"), 1.0 / 64);
    EXPECT_EQ(valor("2*3^2"), 18);
    EXPECT_EQ(valor("--2"), 2);
    EXPECT_EQ(valor("-+-2"), 2);
    EXPECT_EQ(valor("1+2*3"), 7);
    EXPECT_EQ(valor("10-4-3"), 3);
    EXPECT_EQ(valor("100/10/2"), 5);
    EXPECT_EQ(valor("2*(3+4)"), 14);
    EXPECT_EQ(valor("3*-2"), -6);
    // \ va por debajo de * y /, Mod por debajo de \, y + - por debajo de Mod.
    EXPECT_EQ(valor("5\\2*2"), 1);
    EXPECT_EQ(valor("12/3\\2"), 2);
    EXPECT_EQ(valor("2+3\\4"), 2);
    EXPECT_EQ(valor("2*3 Mod 4"), 2);
    EXPECT_EQ(valor("10 Mod 7\\2"), 1);
    EXPECT_EQ(valor("7 Mod 4+2"), 5);
}

TEST(Evaluador, DivisionEnteraYModuloRedondeanAlPar) {
    EXPECT_EQ(valor("7\\2"), 3);
    EXPECT_EQ(valor("-7\\2"), -3);
    EXPECT_EQ(valor("2.5\\1"), 2);
    EXPECT_EQ(valor("3.5\\1"), 4);
    EXPECT_EQ(valor("4.6\\1.5"), 2);
    EXPECT_EQ(valor("4.6\\1.49"), 5);
    EXPECT_EQ(valor("5 Mod 3"), 2);
    EXPECT_EQ(valor("-7 Mod 3"), -1);
    EXPECT_EQ(valor("7 mod -3"), 1);
    EXPECT_EQ(valor("5.5 Mod 2"), 0);
    EXPECT_EQ(valor("11.6 MOD 5.5"), 0);
}

TEST(Evaluador, ComparacionesYOperadoresLogicos) {
    EXPECT_EQ(valor("3>2"), -1);
    EXPECT_EQ(valor("2>3"), 0);
    EXPECT_EQ(valor("(3>2)*5"), -5);
    EXPECT_EQ(valor("1+1=2"), -1);
    EXPECT_EQ(valor("2<>2"), 0);
    EXPECT_EQ(valor("2<=2"), -1);
    EXPECT_EQ(valor("3>=4"), 0);
    EXPECT_EQ(valor("2<3"), -1);
    EXPECT_EQ(valor("1 = 1 < 0"), -1);  // (1 = 1) es -1, y -1 < 0
    EXPECT_EQ(valor("Not 0"), -1);
    EXPECT_EQ(valor("Not 1.5"), -3);  // Not 2
    EXPECT_EQ(valor("Not 2.5"), -3);  // también Not 2
    EXPECT_EQ(valor("Not 1 + 1"), -3);
    EXPECT_EQ(valor("Not 3 > 2"), 0);
    EXPECT_EQ(valor("5 And 3"), 1);
    EXPECT_EQ(valor("5 Or 3"), 7);
    EXPECT_EQ(valor("5 Xor 3"), 6);
    EXPECT_EQ(valor("1 Or 2 And 0"), 1);
    EXPECT_EQ(valor("1 Xor 1 Or 1"), 0);
    EXPECT_EQ(valor("-1 Eqv 0"), 0);
    EXPECT_EQ(valor("0 Imp 0"), -1);
    EXPECT_EQ(valor("True And Not False"), -1);
    EXPECT_EQ(valor("(2 > 1) And (3 > 4)"), 0);
    // Las otras grafías que acepta VBScript, con la misma precedencia.
    EXPECT_EQ(valor("2=>2"), -1);
    EXPECT_EQ(valor("3=>4"), 0);
    EXPECT_EQ(valor("1=<1"), -1);
    EXPECT_EQ(valor("2=<1"), 0);
    EXPECT_EQ(valor("2><2"), 0);
    EXPECT_EQ(valor("2><3"), -1);
    EXPECT_EQ(valor("1+1=>2*1"), -1);
    EXPECT_EQ(valor("(5=<4)*3 + (5><4)"), -1);
    EXPECT_EQ(numeroDeError("2=><3"), 1002);
}

TEST(Evaluador, RedondeosYConversiones) {
    EXPECT_EQ(valor("Round(2.5)"), 2);
    EXPECT_EQ(valor("Round(3.5)"), 4);
    EXPECT_EQ(valor("Round(-2.5)"), -2);
    EXPECT_EQ(valor("Round(-3.5)"), -4);
    EXPECT_EQ(valor("Round(3.3)"), 3);
    EXPECT_EQ(valor("Round(0.125,2)"), 0.12);
    EXPECT_EQ(valor("Round(1.005,2)"), 1);
    EXPECT_EQ(valor("Round(1234.5678, 2)"), 1234.57);
    EXPECT_EQ(valor("Round(2.567, 1.5)"), 2.57);  // los decimales también van al par
    EXPECT_EQ(valor("Int(-1.5)"), -2);
    EXPECT_EQ(valor("Fix(-1.5)"), -1);
    EXPECT_EQ(valor("Int(1.9)"), 1);
    EXPECT_EQ(valor("Fix(1.9)"), 1);
    EXPECT_EQ(valor("CInt(2.5)"), 2);
    EXPECT_EQ(valor("CInt(3.5)"), 4);
    EXPECT_EQ(valor("CInt(-2.5)"), -2);
    EXPECT_EQ(valor("CInt(-32768.5)"), -32768);
    EXPECT_EQ(valor("CLng(-2.5)"), -2);
    EXPECT_EQ(valor("CLng(2147483646.5)"), 2147483646);
    EXPECT_EQ(valor("CCur(1.23456)"), 1.2346);
    EXPECT_EQ(valor("CCur(1.00005)"), 1);
    EXPECT_EQ(valor("CSng(0.1)"), static_cast<double>(0.1f));
    EXPECT_EQ(valor("CDbl(0.1)"), 0.1);
    EXPECT_EQ(valor("CBool(5)"), -1);
    EXPECT_EQ(valor("CBool(0)"), 0);
    EXPECT_EQ(valor("CByte(254.5)"), 254);
}

TEST(Evaluador, FuncionesMatematicas) {
    EXPECT_EQ(valor("Abs(-3.25)"), 3.25);
    EXPECT_EQ(valor("Sgn(-0.5)"), -1);
    EXPECT_EQ(valor("Sgn(0)"), 0);
    EXPECT_EQ(valor("Sgn(7)"), 1);
    EXPECT_EQ(valor("Sqr(16)"), 4);
    EXPECT_EQ(valor("Exp(0)"), 1);
    EXPECT_DOUBLE_EQ(valor("Log(Exp(2))"), 2);
    EXPECT_DOUBLE_EQ(valor("Atn(1)*4"), M_PI);
    EXPECT_EQ(valor("Sin(0)+Cos(0)+Tan(0)"), 1);
    // Sin distinguir mayúsculas, con blancos antes del paréntesis.
    EXPECT_EQ(valor("round(2.5)+ROUND(3.5)"), 6);
    EXPECT_EQ(valor("iNt (-0.5)"), -1);
}

TEST(Evaluador, NombresSueltosValenCero) {
    // Una variable sin asignar es Empty: un token escrito sin corchetes.
    EXPECT_EQ(valor("SUELDO/30"), 0);
    EXPECT_EQ(valor("SUELDO*2+5"), 5);
    EXPECT_EQ(valor("sueldo2 + 1"), 1);
    EXPECT_EQ(valor("MONTO_GRAV"), 0);
    EXPECT_EQ(valor("[MONTO GRAV] + 1"), 1);
    EXPECT_EQ(valor("True"), -1);
    EXPECT_EQ(valor("False+1"), 1);
    EXPECT_EQ(valor("Empty+2"), 2);
    EXPECT_EQ(numeroDeError("30/SUELDO"), 11);
    EXPECT_EQ(numeroDeError("SUELDO/SUELDO"), 6);
    EXPECT_EQ(numeroDeError("Null+1"), 94);
}

TEST(Evaluador, FormasDeLosNumeros) {
    EXPECT_EQ(valor("1.5E3"), 1500);
    EXPECT_EQ(valor("1.5e+3"), 1500);
    EXPECT_EQ(valor("1E-05"), 0.00001);
    EXPECT_EQ(valor(".5"), 0.5);
    EXPECT_EQ(valor("5."), 5);
    EXPECT_EQ(valor("010"), 10);
    EXPECT_EQ(valor("12345678901234567890"), 12345678901234567890.0);
    EXPECT_EQ(valor("1e-400"), 0);
    EXPECT_EQ(valor("&HFF"), 255);
    EXPECT_EQ(valor("&h10&"), 16);
    EXPECT_EQ(valor("&HFFFFFFFF"), -1);
    // Sin & y con hasta cuatro cifras, un Integer de 16 bits.
    EXPECT_EQ(valor("&hffff"), -1);
    EXPECT_EQ(valor("&hfffe"), -2);
    EXPECT_EQ(valor("&h7fff"), 32767);
    EXPECT_EQ(valor("&h8000"), -32768);
    EXPECT_EQ(valor("&hffff + 1"), 0);
    EXPECT_EQ(valor("&hffff&"), 65535);
    EXPECT_EQ(valor("&h0ffff"), 65535);
    EXPECT_EQ(valor("&h10000"), 65536);
    EXPECT_EQ(valor("&h8000&"), 32768);
    EXPECT_EQ(valor("&h80000000"), -2147483648.0);
    EXPECT_EQ(valor("&O17"), 15);
    EXPECT_EQ(numeroDeError("1E400"), 6);
    EXPECT_EQ(numeroDeError("1E"), 1002);
    EXPECT_EQ(numeroDeError("1.2.3"), 1025);
}

TEST(Evaluador, TextoVacioYFinDeLinea) {
    // Eval de un texto sin expresión devuelve Empty, que como número es 0.
    EXPECT_EQ(valor(""), 0);
    EXPECT_EQ(valor("   "), 0);
    EXPECT_EQ(valor("\r\n"), 0);
    EXPECT_EQ(valor("1+1\r\n"), 2);
    EXPECT_EQ(valor("5 ' el resto es comentario"), 5);
    EXPECT_EQ(numeroDeError("1\n2"), 1025);
    EXPECT_EQ(numeroDeError("1 +\n2"), 1002);
}

TEST(Evaluador, ErroresDeCalculo) {
    const Error porCero = error("1/0");
    EXPECT_EQ(porCero.numero, 11);
    EXPECT_EQ(porCero.descripcion, "División por cero");
    const Error desborde = error("0/0");
    EXPECT_EQ(desborde.numero, 6);
    EXPECT_EQ(desborde.descripcion, "Desbordamiento");
    const Error argumento = error("Sqr(-1)");
    EXPECT_EQ(argumento.numero, 5);
    EXPECT_EQ(argumento.descripcion, "Llamada a procedimiento o argumento no válido");
    const Error tipos = error("FOO(2)");
    EXPECT_EQ(tipos.numero, 13);
    EXPECT_EQ(tipos.descripcion, "No coinciden los tipos");

    EXPECT_EQ(numeroDeError("Log(0)"), 5);
    EXPECT_EQ(numeroDeError("Log(-1)"), 5);
    EXPECT_EQ(numeroDeError("(-8)^(1/3)"), 5);
    EXPECT_EQ(valor("(-2)^3"), -8);
    EXPECT_EQ(valor("0^0"), 1);
    EXPECT_EQ(numeroDeError("0^-1"), 5);
    EXPECT_EQ(numeroDeError("1E308*10"), 6);
    EXPECT_EQ(numeroDeError("Exp(1000)"), 6);
    EXPECT_EQ(numeroDeError("5\\0"), 11);
    EXPECT_EQ(numeroDeError("5\\0.4"), 11);  // 0.4 es 0 como entero
    EXPECT_EQ(numeroDeError("5 Mod 0"), 11);
    EXPECT_EQ(numeroDeError("3000000000\\2"), 6);
    EXPECT_EQ(numeroDeError("3000000000 And 1"), 6);
    EXPECT_EQ(numeroDeError("CInt(40000)"), 6);
    EXPECT_EQ(numeroDeError("CInt(32767.5)"), 6);
    EXPECT_EQ(numeroDeError("CLng(2147483647.5)"), 6);
    EXPECT_EQ(numeroDeError("CCur(1E20)"), 6);
    EXPECT_EQ(numeroDeError("CSng(1E39)"), 6);
    EXPECT_EQ(numeroDeError("CByte(-1)"), 6);
    EXPECT_EQ(numeroDeError("Round(2.5,-1)"), 5);
    EXPECT_EQ(numeroDeError("FOO()"), 13);
    EXPECT_EQ(numeroDeError("Int()"), 450);
    EXPECT_EQ(numeroDeError("Round(1,2,3)"), 450);
    EXPECT_EQ(numeroDeError("Abs + 1"), 450);
    EXPECT_EQ(numeroDeError("1 Is 1"), 424);
    // Los argumentos se evalúan antes de la llamada, y gana el primer fallo.
    EXPECT_EQ(numeroDeError("FOO(1/0)"), 11);
    EXPECT_EQ(numeroDeError("Sqr(-1) + 1/0"), 5);
}

TEST(Evaluador, ErroresDeSintaxis) {
    const Error sintaxis = error("2 +");
    EXPECT_EQ(sintaxis.numero, 1002);
    EXPECT_EQ(sintaxis.descripcion, "Error de sintaxis");
    const Error falta = error("(1+2");
    EXPECT_EQ(falta.numero, 1006);
    EXPECT_EQ(falta.descripcion, "Se esperaba ')'");
    const Error sobra = error("3 4");
    EXPECT_EQ(sobra.numero, 1025);
    EXPECT_EQ(sobra.descripcion, "Se esperaba el final de la instrucción");

    EXPECT_EQ(numeroDeError("1+2)"), 1025);
    EXPECT_EQ(numeroDeError("Round(2.5"), 1006);
    EXPECT_EQ(numeroDeError("((1)"), 1006);
    EXPECT_EQ(numeroDeError("()"), 1002);
    EXPECT_EQ(numeroDeError("*3"), 1002);
    EXPECT_EQ(numeroDeError("2 Mod"), 1002);
    EXPECT_EQ(numeroDeError("Not"), 1002);
    EXPECT_EQ(numeroDeError("2 $ 3"), 1032);
    EXPECT_EQ(numeroDeError("SUELDO]/30"), 1032);
    EXPECT_EQ(numeroDeError("[SUELDO/30"), 1002);
    EXPECT_EQ(numeroDeError("1,5*2"), 1025);
    // VBScript compila todo el texto antes de calcular: la sintaxis gana.
    EXPECT_EQ(numeroDeError("1/0 +"), 1002);
    EXPECT_EQ(numeroDeError("Sqr(-1) * (2"), 1006);
}

TEST(Evaluador, ExpresionAnalizadaUnaVez) {
    // El análisis no calcula: 1/0 falla recién al evaluar, y cada vez.
    const Expresion division = Expresion::analizar("1/0");
    for (int vez = 0; vez < 2; ++vez) {
        try {
            division.evaluar();
            ADD_FAILURE() << "1/0 no falló";
        } catch (const common::Fallo& f) {
            EXPECT_EQ(f.numero(), 11);
        }
    }
    EXPECT_THROW(Expresion::analizar("(1"), common::Fallo);

    const Expresion formula = Expresion::analizar("Round(1234.56*4.5/100, 2)");
    EXPECT_EQ(formula.evaluar(), 55.56);
    EXPECT_EQ(formula.evaluar(), 55.56);
    EXPECT_EQ(Expresion().evaluar(), 0);

    // Un anidamiento más hondo que la pila corta del evaluador.
    std::string hondo;
    for (int i = 0; i < 50; ++i) hondo += "1+(";
    hondo += "1";
    for (int i = 0; i < 50; ++i) hondo += ")";
    EXPECT_EQ(valor(hondo), 51);
}

// Corre f en un hilo con una pila de 1 MB, la de un hilo de Windows o de un
// ulimit corto: si el análisis no tuviera tope, la prueba moriría aquí.
void conPilaDeUnMega(const std::function<void()>& f) {
    pthread_attr_t atributos;
    pthread_attr_init(&atributos);
    pthread_attr_setstacksize(&atributos, 1 << 20);
    pthread_t hilo;
    auto correr = [](void* p) -> void* {
        (*static_cast<const std::function<void()>*>(p))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&hilo, &atributos, correr, const_cast<std::function<void()>*>(&f)), 0);
    pthread_join(hilo, nullptr);
    pthread_attr_destroy(&atributos);
}

std::string repetir(std::string_view pieza, int veces) {
    std::string s;
    for (int i = 0; i < veces; ++i) s += pieza;
    return s;
}

TEST(Evaluador, AnidamientoConTope) {
    conPilaDeUnMega([] {
        const int tope = kMaxAnidamiento;
        // Hasta el tope se calcula, de las dos maneras.
        EXPECT_EQ(valor(repetir("(", tope) + "7" + repetir(")", tope)), 7);
        EXPECT_EQ(valor(repetir("Abs(", tope) + "-7" + repetir(")", tope)), 7);
        EXPECT_EQ(valor(repetir("1+(", tope) + "1" + repetir(")", tope)), tope + 1);

        const Error uno = error(repetir("(", tope + 1) + "7" + repetir(")", tope + 1));
        EXPECT_EQ(uno.numero, kErrorAnidamiento);
        EXPECT_EQ(uno.descripcion, "Fórmula demasiado anidada");
        // Lo que antes agotaba la pila: catorce mil paréntesis, abiertos y sin cerrar.
        EXPECT_EQ(numeroDeError(repetir("(", 14000) + "1" + repetir(")", 14000)),
                  kErrorAnidamiento);
        EXPECT_EQ(numeroDeError(repetir("(", 14000)), kErrorAnidamiento);
        EXPECT_EQ(numeroDeError(repetir("Round(1,", 14000)), kErrorAnidamiento);
        // El tope cuenta la profundidad, no cuántos paréntesis hay en total.
        EXPECT_EQ(valor(repetir("(1)+", 5000) + "1"), 5001);
        // Signos y Not seguidos no anidan llamadas: no tienen tope.
        EXPECT_EQ(valor(repetir("-", 100001) + "2"), -2);
        EXPECT_EQ(valor(repetir("- +", 50000) + "2"), 2);
        EXPECT_EQ(valor(repetir("Not ", 100001) + "0"), -1);
        // Un fallo de cálculo no tapa el de anidamiento, que es de análisis.
        EXPECT_EQ(numeroDeError("1/0 + " + repetir("(", tope + 1) + "1" + repetir(")", tope + 1)),
                  kErrorAnidamiento);
    });
}

}  // namespace
}  // namespace nomira::engine
