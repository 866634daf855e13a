// Reglas de la ficha sin base: cambios de categoría, obligatorios y seguro de salud.
#include <gtest/gtest.h>

#include "master/cambio_categoria.h"
#include "master/validacion_personal.h"

namespace nomira::master {
namespace {

Persona conCategoria(const std::string& cat, const std::string& nroord, const std::string& sueldo,
                     const std::string& fsue) {
    Persona p;
    p.empresa = "ACME";
    p.nombre = "PEREZ, ANA";
    p.categoria = cat;
    p.nroord = nroord;
    p.sueldo = sueldo;
    p.fechasuevig = fsue;
    return p;
}

Persona pantalla(const std::string& cat, const std::string& sueldo, const std::string& fcat) {
    auto p = conCategoria(cat, "7", sueldo, "01/02/26");
    p.fechacatvig = fcat;
    return p;
}

// Lo que queda guardado después de una decisión.
Persona aplicar(const Persona& guardada, const Persona& escrita, DeshacerCambio o,
                const std::string& nuevo, std::string* mensaje = nullptr) {
    const auto d = decidirCambioCategoria(guardada, escrita, o, nuevo);
    if (mensaje) *mensaje = d.mensaje;
    return d.categoria ? *d.categoria : guardada;
}

TEST(CambioCategoria, SinDeshacerFilaPorFila) {
    const auto vacia = conCategoria("", "5", "", "");
    const auto peon = conCategoria("PEON", "5", "30000", "2025-01-01");
    std::string m;
    // Categoría vacía en pantalla: las cinco como se escribieron, sin historia.
    auto r = aplicar(peon, pantalla("", "31000", "01/03/26"), DeshacerCambio::Ninguno, "9", &m);
    EXPECT_EQ(r.categoria, "");
    EXPECT_EQ(r.fechacatvig, "01/03/26");
    EXPECT_EQ(r.cat3, "");
    // Guardada vacía sin FCatVig: igual.
    r = aplicar(vacia, pantalla("PEON", "30000", ""), DeshacerCambio::Ninguno, "9");
    EXPECT_EQ(r.categoria, "PEON");
    EXPECT_EQ(r.nroord, "7");
    // Guardada vacía con FCatVig: se rechaza y no se guarda nada de la categoría.
    const auto d = decidirCambioCategoria(vacia, pantalla("PEON", "30000", "01/03/26"),
                                          DeshacerCambio::Ninguno, "9");
    EXPECT_FALSE(d.categoria);
    EXPECT_EQ(d.mensaje,
              "Para hacer un cambio de categoría primero deberá completar el campo Categoría "
              "dejando el campo "
              "FCatVig vacío.");
    // La misma categoría: cambia el sueldo, no hay historia.
    r = aplicar(peon, pantalla("PEON", "32000", "01/03/26"), DeshacerCambio::Ninguno, "9");
    EXPECT_EQ(r.sueldo, "32000");
    EXPECT_EQ(r.cat3, "");
    // Otra categoría sin FCatVig: cambia sin historia.
    r = aplicar(peon, pantalla("OFICIAL", "40000", ""), DeshacerCambio::Ninguno, "9");
    EXPECT_EQ(r.categoria, "OFICIAL");
    EXPECT_EQ(r.nroord, "7");
    EXPECT_EQ(r.cat3, "");

    // Primer cambio: lo vigente va al lugar 3 con la fecha del cambio; número nuevo.
    auto uno =
        aplicar(peon, pantalla("OFICIAL", "40000", "01/03/26"), DeshacerCambio::Ninguno, "9", &m);
    EXPECT_EQ(m, "");
    EXPECT_EQ(uno.categoria, "OFICIAL");
    EXPECT_EQ(uno.sueldo, "40000");
    EXPECT_EQ(uno.fechasuevig, "01/02/26");
    EXPECT_EQ(uno.nroord, "9");
    EXPECT_EQ(uno.fechacatvig, "");
    EXPECT_EQ(uno.cat3, "PEON");
    EXPECT_EQ(uno.nroord3, "5");
    EXPECT_EQ(uno.sue3, "30000");
    EXPECT_EQ(uno.fechasuevig3, "2025-01-01");
    EXPECT_EQ(uno.fechacatvig3, "01/03/26");
    EXPECT_EQ(uno.nroord2, "0");
    EXPECT_EQ(uno.sue2, "0");
    EXPECT_EQ(uno.cat2, "");

    // Segundo cambio: al lugar 2, el 3 queda como estaba.
    auto dos =
        aplicar(uno, pantalla("CAPATAZ", "50000", "01/06/26"), DeshacerCambio::Ninguno, "12");
    EXPECT_EQ(dos.categoria, "CAPATAZ");
    EXPECT_EQ(dos.nroord, "12");
    EXPECT_EQ(dos.cat2, "OFICIAL");
    EXPECT_EQ(dos.nroord2, "9");
    EXPECT_EQ(dos.sue2, "40000");
    EXPECT_EQ(dos.fechacatvig2, "01/06/26");
    EXPECT_EQ(dos.cat3, "PEON");
    EXPECT_EQ(dos.fechacatvig3, "01/03/26");
    // Un tercero pisa el lugar 2.
    auto tres = aplicar(dos, pantalla("JEFE", "60000", "01/09/26"), DeshacerCambio::Ninguno, "13");
    EXPECT_EQ(tres.cat2, "CAPATAZ");
    EXPECT_EQ(tres.cat3, "PEON");
}

TEST(CambioCategoria, DeshacerUnoYDos) {
    const auto peon = conCategoria("PEON", "5", "30000", "2025-01-01");
    const auto uno =
        aplicar(peon, pantalla("OFICIAL", "40000", "01/03/26"), DeshacerCambio::Ninguno, "9");
    const auto dos =
        aplicar(uno, pantalla("CAPATAZ", "50000", "01/06/26"), DeshacerCambio::Ninguno, "12");
    const auto cualquiera = pantalla("X", "1", "");
    std::string m;
    // "1" después de dos cambios se niega y no toca nada.
    auto r = aplicar(dos, cualquiera, DeshacerCambio::Primero, "20", &m);
    EXPECT_EQ(
        m, "Se realizaron 2 cambios de categoría, deberá eliminar el 2do cambio y luego el 1ero.");
    EXPECT_EQ(r.categoria, "CAPATAZ");
    // "2" y luego "1" vuelven al estado del principio.
    const auto sinSegundo = aplicar(dos, cualquiera, DeshacerCambio::Segundo, "20", &m);
    EXPECT_EQ(m, "");
    EXPECT_EQ(sinSegundo.categoria, "OFICIAL");
    EXPECT_EQ(sinSegundo.nroord, "9");
    EXPECT_EQ(sinSegundo.cat2, "");
    EXPECT_EQ(sinSegundo.cat3, "PEON");
    const auto inicio = aplicar(sinSegundo, cualquiera, DeshacerCambio::Primero, "20", &m);
    EXPECT_EQ(m, "");
    EXPECT_EQ(inicio.categoria, "PEON");
    EXPECT_EQ(inicio.nroord, "5");
    EXPECT_EQ(inicio.sueldo, "30000");
    EXPECT_EQ(inicio.fechasuevig, "2025-01-01");
    EXPECT_EQ(inicio.fechacatvig, "");
    EXPECT_EQ(inicio.cat3, "");
    // Sin cambios ya no hay qué deshacer; con uno solo, "2" lo dice.
    aplicar(inicio, cualquiera, DeshacerCambio::Primero, "20", &m);
    EXPECT_EQ(m, "No se realizaron cambios de categoría.");
    aplicar(inicio, cualquiera, DeshacerCambio::Segundo, "20", &m);
    EXPECT_EQ(m, "No se realizaron cambios de categoría.");
    aplicar(uno, cualquiera, DeshacerCambio::Segundo, "20", &m);
    EXPECT_EQ(m, "Se realizó solamente 1 cambio de categoría.");
}

Persona completa() {
    Persona p;
    p.nombre = "PEREZ, ANA";
    p.nrofun = p.nroord = "1";
    p.direccion = "Rivera 1234";
    p.fechanac = "01/01/90";
    p.lugarnac = p.paisdeldoc = "URUGUAY";
    p.tipodedoc = "DO";
    p.documento = "12345672";
    p.fechaing = "01/03/24";
    p.sueldo = "30000";
    p.fechasuevig = "01/02/26";
    p.htrab = "8";
    p.tiporembps = "Mensual";
    p.segurosalud = "Con hijos";
    p.vinculofun = "Dependiente";
    p.exon = "9";
    p.cesp = "44";
    p.nrosuc = "1";
    return p;
}

TEST(ValidacionPersonal, MensajesAntesDeGuardar) {
    auto p = completa();
    EXPECT_EQ(comprobarAlAgregar(p), "");
    p.direccion = "";
    p.fechasuevig = "";
    p.nrosuc = " ";
    EXPECT_EQ(faltantesObligatorios(p),
              "Debe completar los siguientes campos obligatorios: Dirección, FSueVig, Nro Suc.");
    EXPECT_EQ(comprobarAlAgregar(p), faltantesObligatorios(p));
    p = completa();
    p.nombre = "PEREZ ANA";
    EXPECT_EQ(
        comprobarAlAgregar(p),
        "El campo Nombre del Personal no tiene la coma que separa los apellidos de los nombres.");
    const std::string pares =
        "En Datos Cónyuge, Datos Beneficiarios o en Otras Deducciones verifique que los campos "
        "Nombres tengan la "
        "coma que separa los apellidos de los nombres y que los campos Fecha Des. y Fecha Pres. "
        "estén ambos "
        "completos.";
    p = completa();
    p.fechadesdeded2 = "01/01/26";
    EXPECT_EQ(comprobarAlAgregar(p), pares);
    p.fechapresded2 = "05/01/26";
    EXPECT_EQ(comprobarAlAgregar(p), "");
    p.nombreben3 = "GOMEZ LUIS";
    EXPECT_EQ(comprobarAlAgregar(p), pares);
    p = completa();
    p.tiposueldo = "H";
    p.htrab = "9";
    EXPECT_EQ(comprobarAlAgregar(p),
              "Si el Tipo de rem. es Hora entonces el campo H.Trab. debe tener como máximo 8.");
    p.htrab = "8";
    p.fechaeg2 = "31/01/26";
    p.antiguedad2 = "3";
    EXPECT_EQ(comprobarAlAgregar(p),
              "En el campo FechaEg. deberá presionar Enter para que cargue la Antiguedad y además "
              "deberá completar "
              "el campo Motivo de Egreso.");
    // Al modificar, la actividad que imprime Ac.Lab tiene que estar completa.
    p = completa();
    p.impaclab = "2";
    EXPECT_EQ(comprobarAlModificar(p),
              "Si Ac.Lab está en 2 entonces en D.Lab. 2da Act. deberá completar todos los campos.");
    EXPECT_TRUE(pideFormularioGafi("Socio con actividad"));
    EXPECT_FALSE(pideFormularioGafi("Dependiente"));
}

TEST(ValidacionPersonal, AdvertenciasDelSeguroDeSalud) {
    using V = std::vector<std::string>;
    const std::string hijos1 =
        "Deberá completar los campos en Datos Beneficiarios con al menos 1 hijo ya que el código "
        "de Seguro de "
        "salud es 1.";
    const std::string vacios15 =
        "En Datos Beneficiarios los campos deberán estar vacíos ya que el código de Seguro de "
        "salud es 15.";
    const std::string sns9 =
        "Si el código de Seguro de salud es 9 entonces en Datos Cónyuge en Ingresa al SNS deberá "
        "estar en No.";
    const std::string concordancia =
        "El código de Seguro de salud no está en concordancia con la opción seleccionada en "
        "Ingresa al SNS.";
    // 01 en la segunda actividad sin hijos.
    EXPECT_EQ(advertenciasSeguroSalud({{"06", "01", ""}, {"", "", ""}, "No"}), V{hijos1});
    EXPECT_EQ(advertenciasSeguroSalud({{"06", "01", ""}, {"", "02", ""}, "No"}), V{});
    // 15 con un beneficiario con causa.
    EXPECT_EQ(advertenciasSeguroSalud({{"15", "", ""}, {"", "", "04"}, "No"}), V{vacios15});
    EXPECT_EQ(advertenciasSeguroSalud({{"15", "", ""}, {"", "", ""}, "No"}), V{});
    // 09 con el cónyuge en el SNS: dos avisos, en su orden.
    EXPECT_EQ(advertenciasSeguroSalud({{"09", "", ""}, {"", "", ""}, "Si"}),
              (V{sns9, concordancia}));
    EXPECT_EQ(advertenciasSeguroSalud({{"08", "", ""}, {"", "", ""}, "Si"}), V{});
    // 16 pide hijos y además el SNS en Si.
    EXPECT_EQ(advertenciasSeguroSalud({{"16", "", ""}, {"", "", ""}, "No"}),
              (V{hijos1, concordancia}));
}

}  // namespace
}  // namespace nomira::master
