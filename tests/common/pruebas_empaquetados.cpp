#include <gtest/gtest.h>

#include "common/contrasena.h"
#include "common/empaquetados.h"
#include "common/texto.h"

namespace nomira::common {
namespace {

TEST(SocMedica, LeeYEscribe) {
    const auto a = SocMedica::leer("SiCSiNoNo");
    EXPECT_EQ(a, (SocMedica{"Si", "C", "Si", "No", "No", ""}));
    EXPECT_EQ(a.texto(), "SiCSiNoNo");
    const auto b = SocMedica::leer("NoASiSiSi25000");
    EXPECT_EQ(b, (SocMedica{"No", "A", "Si", "Si", "Si", "25000"}));
    EXPECT_EQ(b.texto(), "NoASiSiSi25000");
    EXPECT_EQ(SocMedica::leer(""), SocMedica{});
    EXPECT_EQ(SocMedica::leer("SiCS"), (SocMedica{"Si", "C", "S", "", "", ""}));
}

TEST(Horario, CincuentaCaracteresFijos) {
    const Horario h{"8 a 17", "BROU", "001234567"};
    const std::string t = h.texto();
    EXPECT_EQ(t, "8 a 17" + std::string(24, ' ') + "BROU  " + "001234567     ");
    const Horario leido = Horario::leer(t);
    EXPECT_EQ(leido.horario, "8 a 17" + std::string(24, ' '));
    EXPECT_EQ(leido.banco, "BROU  ");
    EXPECT_EQ(leido.cuenta, "001234567     ");
    EXPECT_EQ(leido.texto(), t);

    // Cada parte se corta a su ancho, y se cuentan caracteres, no bytes.
    const Horario largo{"Lunes a sábado de 8 a 12 y de 14 a 18", "Santander", "123456789012345678"};
    const std::string tl = largo.texto();
    EXPECT_EQ(longitudCaracteres(tl), 50u);
    EXPECT_EQ(Horario::leer(tl),
              (Horario{"Lunes a sábado de 8 a 12 y de ", "Santan", "12345678901234"}));

    EXPECT_EQ(Horario::leer(""), Horario{});
    EXPECT_EQ(Horario::leer("8 a 17"), (Horario{"8 a 17", "", ""}));
    EXPECT_EQ(Horario{}.texto(), std::string(50, ' '));
}

TEST(SexoConYConCopiativo, LeenYEscriben) {
    const auto s = SexoCon::leer("MSi");
    EXPECT_EQ(s, (SexoCon{"M", "Si"}));
    EXPECT_TRUE(s.ingresa());
    EXPECT_EQ(s.texto(), "MSi");
    EXPECT_FALSE(SexoCon::leer("FNo").ingresa());
    EXPECT_EQ(SexoCon::leer("FNo").texto(), "FNo");
    EXPECT_EQ(SexoCon::leer(""), SexoCon{});
    EXPECT_EQ(SexoCon::leer("M"), (SexoCon{"M", ""}));

    for (const char* v : {"SiSi", "SiNo", "NoSi", "NoNo"}) {
        EXPECT_EQ(ConCopiativo::leer(v).texto(), v);
    }
    const auto c = ConCopiativo::leer("SiNo");
    EXPECT_TRUE(c.conCopiativo());
    EXPECT_FALSE(c.conPesos());
    EXPECT_TRUE(ConCopiativo::leer("NoSi").conPesos());
    EXPECT_EQ(ConCopiativo::leer("Si"), (ConCopiativo{"Si", ""}));
}

TEST(Contrasena, HashConSalYVerificacion) {
    const std::string h = hashContrasena("contraseña");
    EXPECT_TRUE(verificaContrasena("contraseña", h));
    EXPECT_FALSE(verificaContrasena("CONTRASEÑA", h));
    EXPECT_FALSE(verificaContrasena("contrasena", h));
    EXPECT_FALSE(verificaContrasena("", h));

    const std::string otro = hashContrasena("contraseña");
    EXPECT_NE(h, otro);
    EXPECT_TRUE(verificaContrasena("contraseña", otro));

    // Forma: esquema, iteraciones, 16 bytes de sal y 32 de hash en hexadecimal.
    const auto p1 = h.find('$'), p2 = h.find('$', p1 + 1), p3 = h.find('$', p2 + 1);
    EXPECT_EQ(h.substr(0, p2), "pbkdf2-sha256$600000");
    EXPECT_EQ(p3 - p2 - 1, 32u);
    EXPECT_EQ(h.size() - p3 - 1, 64u);

    EXPECT_TRUE(verificaContrasena("", hashContrasena("")));
}

TEST(Contrasena, GuardadoAlteradoOMalFormado) {
    const std::string h = hashContrasena("clave");
    std::string cambiado = h;
    cambiado.back() = cambiado.back() == '0' ? '1' : '0';
    EXPECT_FALSE(verificaContrasena("clave", cambiado));
    std::string otrasIteraciones = h;
    otrasIteraciones.replace(otrasIteraciones.find("600000"), 6, "600001");
    EXPECT_FALSE(verificaContrasena("clave", otrasIteraciones));

    for (const std::string& mal :
         {std::string(), std::string("clave"), std::string("pbkdf2-sha256$50000$$"),
          "pbkdf2-sha1" + h.substr(h.find('$')), "pbkdf2-sha256$0" + h.substr(h.find('$', 14)),
          "pbkdf2-sha256$-5" + h.substr(h.find('$', 14)),
          "pbkdf2-sha256$50000$zz" + h.substr(h.rfind('$')), h + "$", h.substr(0, h.size() - 1)}) {
        EXPECT_FALSE(verificaContrasena("clave", mal)) << mal;
    }
}

TEST(Contrasena, CompatibleConPbkdf2Sha256) {
    // Vector conocido de PBKDF2-HMAC-SHA256: "passwd", sal "salt", 1 iteración.
    const std::string guardado =
        "pbkdf2-sha256$1$73616c74$"
        "55ac046e56e3089fec1691c22544b605f94185216dde0465e68b9d57c20dacbc"
        "49ca9cccf179b645991664b39d77ef317c71b845b1e30bd509112041d3a19783";
    EXPECT_TRUE(verificaContrasena("passwd", guardado));
    EXPECT_FALSE(verificaContrasena("passwe", guardado));
}

}  // namespace
}  // namespace nomira::common
