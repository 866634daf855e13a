// La regla de ingreso, los permisos por categoría y grupo, y la tabla del menú.
#include <gtest/gtest.h>

#include <set>

#include "frame/ingreso.h"
#include "frame/menu.h"
#include "frame/permisos.h"

using namespace nomira;

namespace {

using Trio = std::tuple<std::string, std::string, std::string>;

master::Configuracion conUsuarios(std::initializer_list<Trio> usuarios) {
    master::Configuracion c;
    int n = 1;
    for (const auto& [u, p, cat] : usuarios) frame::ponerUsuario(c, n++, u, p, cat);
    return c;
}

}  // namespace

TEST(Ingreso, LoEscritoSePruebaEnMayusculasYEnMinusculas) {
    const auto c = conUsuarios({{"ANA", "clave", "2"}, {"Pedro", "x", "1"}, {"ñandú", "PEÑA", "3"}});
    // Guardado en mayúsculas con password en minúsculas: entra escrito en cualquier caso.
    EXPECT_EQ(frame::verificarIngreso(c, "ana", "CLAVE"), 2);
    EXPECT_EQ(frame::verificarIngreso(c, "Ana", "Clave"), 2);
    // Las letras acentuadas cambian de caso como las demás.
    EXPECT_EQ(frame::verificarIngreso(c, "ÑANDÚ", "peña"), 3);
    // Un nombre guardado con mayúsculas y minúsculas no coincide nunca.
    EXPECT_EQ(frame::verificarIngreso(c, "Pedro", "x"), std::nullopt);
    EXPECT_EQ(frame::verificarIngreso(c, "PEDRO", "x"), std::nullopt);
    // Password equivocado, o usuario de otro.
    EXPECT_EQ(frame::verificarIngreso(c, "ANA", "clavo"), std::nullopt);
    EXPECT_EQ(frame::verificarIngreso(c, "ANA", "PEÑA"), std::nullopt);
}

TEST(Ingreso, DosUsuariosIgualesDejanLaCategoriaDelUltimo) {
    const auto c = conUsuarios({{"JUAN", "uno", "1"}, {"OTRO", "dos", "2"}, {"JUAN", "uno", "3"}});
    EXPECT_EQ(frame::verificarIngreso(c, "juan", "uno"), 3);
}

TEST(Ingreso, LosLugaresVaciosNoCoincidenNunca) {
    master::Configuracion c;  // diez usuarios vacíos
    EXPECT_EQ(frame::verificarIngreso(c, "", ""), std::nullopt);
    EXPECT_EQ(frame::verificarIngreso(c, "A", ""), std::nullopt);
    // Un usuario guardado sin password tampoco entra con uno vacío ni con otro.
    c.usuarios[0] = {"ANA", "", "1"};
    EXPECT_EQ(frame::verificarIngreso(c, "ANA", ""), std::nullopt);
    EXPECT_EQ(frame::verificarIngreso(c, "ANA", "x"), std::nullopt);
}

TEST(Ingreso, ElPasswordSeGuardaComoHash) {
    const auto c = conUsuarios({{"ANA", "clave", "2"}});
    EXPECT_NE(c.usuarios[0].pas, "clave");
    EXPECT_EQ(c.usuarios[0].pas.find("clave"), std::string::npos);
}

TEST(Permisos, CadaGrupoYCategoriaLeeSuColumna) {
    using frame::Grupo;
    EXPECT_EQ(frame::columnaPermiso(Grupo::Configuracion, 1), 1);
    EXPECT_EQ(frame::columnaPermiso(Grupo::Utilidades, 1), 6);
    EXPECT_EQ(frame::columnaPermiso(Grupo::Empresas, 2), 8);
    EXPECT_EQ(frame::columnaPermiso(Grupo::Informes, 3), 17);
    EXPECT_EQ(frame::columnaPermiso(Grupo::Liquidaciones, 3), 16);
    EXPECT_EQ(frame::columnaPermiso(Grupo::Utilidades, 3), 18);
    EXPECT_EQ(frame::columnaPermiso(Grupo::Personal, 0), 0);
    EXPECT_EQ(frame::columnaPermiso(Grupo::Personal, 4), 0);

    master::Configuracion c;
    c.checks.fill("0");
    c.checks[8 - 1] = "1";   // categoría 2, Empresas
    c.checks[16 - 1] = "1";  // categoría 3, Liquidaciones
    c.checks[3 - 1] = "";    // categoría 1, Personal: vacío no permite
    EXPECT_TRUE(frame::permitido(c, 2, Grupo::Empresas));
    EXPECT_FALSE(frame::permitido(c, 1, Grupo::Empresas));
    EXPECT_FALSE(frame::permitido(c, 3, Grupo::Empresas));
    EXPECT_TRUE(frame::permitido(c, 3, Grupo::Liquidaciones));
    EXPECT_FALSE(frame::permitido(c, 2, Grupo::Liquidaciones));
    EXPECT_FALSE(frame::permitido(c, 1, Grupo::Personal));
    // Sin ingreso (categoría 0) no se abre nada con grupo; lo sin grupo siempre.
    EXPECT_FALSE(frame::permitido(c, 0, Grupo::Empresas));
    EXPECT_TRUE(frame::permitido(c, 0, Grupo::Ninguno));
}

TEST(Menu, LaTablaEstaCompletaYSinNombresRepetidos) {
    std::set<std::string> nombres, pantallas, menus;
    for (const auto& m : frame::menusPrincipales()) menus.insert(m.nombre);
    int conPantalla = 0;
    for (const auto& e : frame::arbolMenu()) {
        EXPECT_TRUE(nombres.insert(e.nombre).second) << e.nombre;
        EXPECT_TRUE(menus.count(e.menu)) << e.nombre;
        if (!e.padre.empty()) {
            EXPECT_EQ(frame::buscarEntrada(e.padre)->accion, frame::Accion::Submenu);
        }
        if (e.accion == frame::Accion::Pantalla) {
            ++conPantalla;
            EXPECT_TRUE(pantallas.insert(e.pantalla).second) << e.pantalla;
        }
    }
    EXPECT_EQ(conPantalla, 80);  // las 80 pantallas del árbol
    EXPECT_EQ(frame::buscarEntrada("SalarioVacacional")->pantalla, "Form44");
    EXPECT_EQ(frame::buscarEntrada("Categorias")->grupo, frame::Grupo::Personal);
    EXPECT_EQ(frame::buscarEntrada("RepararBase")->accion, frame::Accion::Reparar);
    for (const auto& t : frame::teclasBarra()) EXPECT_NE(frame::buscarEntrada(t.entrada), nullptr);
}
