#include <gtest/gtest.h>

#include "common/fallo.h"
#include "common/texto.h"

namespace nomira::common {

void PrintTo(const NombreSeparado& n, std::ostream* os) {
    *os << "[" << n.apellido1 << "|" << n.apellido2 << "|" << n.nombre1 << "|" << n.nombre2 << "]";
}

namespace {

TEST(Mayusculas, CastellanoEnUtf8) {
    EXPECT_EQ(mayusculas("peña ñandú"), "PEÑA ÑANDÚ");
    EXPECT_EQ(mayusculas("áéíóúü"), "ÁÉÍÓÚÜ");
    EXPECT_EQ(minusculas("ÁÉÍÓÚÜÑ"), "áéíóúüñ");
    EXPECT_EQ(minusculas("PEÑA ÑANDÚ"), "peña ñandú");
    EXPECT_EQ(mayusculas("Sueldo 2da Act. 15%"), "SUELDO 2DA ACT. 15%");
    // Fuera de la lista, nada cambia: ni otras letras ni otros caracteres.
    EXPECT_EQ(mayusculas("à ç €"), "à ç €");
    EXPECT_EQ(minusculas("ÀÇ"), "ÀÇ");
    EXPECT_EQ(longitudCaracteres("ñandú"), 5u);
    EXPECT_EQ(longitudCaracteres(""), 0u);
}

TEST(Catalogo, CodigoYTexto) {
    EXPECT_EQ(codigoDeCatalogo("01-Privada"), "01");
    EXPECT_EQ(textoDeCatalogo("01-Privada"), "Privada");
    // Dos guiones: el código termina en el primero, el texto conserva el segundo.
    EXPECT_EQ(codigoDeCatalogo("05-Cuota-parte"), "05");
    EXPECT_EQ(textoDeCatalogo("05-Cuota-parte"), "Cuota-parte");
    EXPECT_EQ(codigoDeCatalogo("Privada"), "");
    EXPECT_EQ(textoDeCatalogo("Privada"), "Privada");
    EXPECT_EQ(codigoDeCatalogo("-Suelto"), "");
    EXPECT_EQ(textoDeCatalogo("12-"), "");
    EXPECT_EQ(patronCatalogo("Privada"), "*Privada");
    EXPECT_EQ(patronCatalogo(""), "*NADA");
    EXPECT_EQ(patronCatalogo("  "), "*NADA");
}

TEST(Catalogo, ElPatronEncuentraElValorCompleto) {
    EXPECT_TRUE(coincideLike("01-Privada", patronCatalogo("Privada")));
    EXPECT_TRUE(coincideLike("01-Privada", patronCatalogo("privada")));
    EXPECT_TRUE(coincideLike("02-Pública", patronCatalogo("PÚBLICA")));
    EXPECT_FALSE(coincideLike("01-Privada X", patronCatalogo("Privada")));
    EXPECT_FALSE(coincideLike("01-Privada", patronCatalogo("")));
    // Códigos distintos con el mismo texto: el patrón no los distingue.
    EXPECT_TRUE(coincideLike("99-Privada", patronCatalogo("Privada")));
}

TEST(Like, ComodinesYMayusculas) {
    EXPECT_TRUE(coincideLike("01-Privada", "?1-*"));
    EXPECT_TRUE(coincideLike("01-Privada", "01-Priv?da"));
    EXPECT_TRUE(coincideLike("ñ", "?"));
    EXPECT_FALSE(coincideLike("ab", "?"));
    EXPECT_TRUE(coincideLike("", "*"));
    EXPECT_TRUE(coincideLike("", ""));
    EXPECT_FALSE(coincideLike("a", ""));
    EXPECT_TRUE(coincideLike("aXbXc", "*b*c"));
    EXPECT_TRUE(coincideLike("abcbcd", "a*bcd"));
    EXPECT_FALSE(coincideLike("abc", "a*b*d"));
    EXPECT_TRUE(coincideLike("SUELDO 2DA ACT", "*2da act*"));
    EXPECT_FALSE(coincideLike("SUELDO", "*2DA ACT*"));
    EXPECT_TRUE(coincideLike("JORNALES OBRA 1", "JORNALES*"));
    EXPECT_TRUE(coincideLike("a*b", "a*b"));
}

TEST(SepararNombre, ComaYPrimerBlanco) {
    EXPECT_EQ(separarNombre("PEREZ GOMEZ, JUAN CARLOS", ReemplazoNombre::Todos),
              (NombreSeparado{"PEREZ", "GOMEZ", "JUAN", "CARLOS"}));
    EXPECT_EQ(separarNombre("PEREZ,JUAN", ReemplazoNombre::Todos),
              (NombreSeparado{"PEREZ", "", "JUAN", ""}));
    // Un lado cuyo único blanco es el último no tiene segunda parte.
    EXPECT_EQ(separarNombre("PEREZ , JUAN ", ReemplazoNombre::Todos),
              (NombreSeparado{"PEREZ", "", "JUAN", ""}));
    // Lo que sigue al primer blanco queda entero en la segunda parte.
    EXPECT_EQ(separarNombre("PEREZ GOMEZ DIAZ, ANA", ReemplazoNombre::Todos),
              (NombreSeparado{"PEREZ", "GOMEZ DIAZ", "ANA", ""}));
    // Se quita un solo blanco inicial.
    EXPECT_EQ(separarNombre("PEREZ,  JUAN", ReemplazoNombre::Todos),
              (NombreSeparado{"PEREZ", "", "", "JUAN"}));
    EXPECT_EQ(separarNombre("A B, C, D", ReemplazoNombre::Todos),
              (NombreSeparado{"A", "B", "C,", "D"}));
}

TEST(SepararNombre, ReemplazosSegunElArchivo) {
    const char* nombre = "DE_LA_CRUZ O-NEILL-SMITH, MARIA_DEL_CARMEN JEAN-PIERRE";
    EXPECT_EQ(separarNombre(nombre, ReemplazoNombre::Todos),
              (NombreSeparado{"DE LA CRUZ", "O'NEILL'SMITH", "MARIA DEL CARMEN", "JEAN'PIERRE"}));
    EXPECT_EQ(separarNombre(nombre, ReemplazoNombre::Primero),
              (NombreSeparado{"DE LA_CRUZ", "O'NEILL-SMITH", "MARIA DEL_CARMEN", "JEAN'PIERRE"}));
    EXPECT_EQ(separarNombre(nombre, ReemplazoNombre::Ninguno),
              (NombreSeparado{"DE_LA_CRUZ", "O-NEILL-SMITH", "MARIA_DEL_CARMEN", "JEAN-PIERRE"}));
}

TEST(SepararNombre, SinComaFalla) {
    try {
        separarNombre("PEREZ JUAN", ReemplazoNombre::Primero);
        FAIL();
    } catch (const Fallo& f) {
        EXPECT_EQ(f.numero(), 5);
        EXPECT_EQ(f.descripcion(), "Llamada a procedimiento o argumento no válido");
    }
    EXPECT_THROW(separarNombre("", ReemplazoNombre::Todos), Fallo);
}

}  // namespace
}  // namespace nomira::common
