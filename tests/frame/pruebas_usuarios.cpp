// Usuarios que se pueden guardar, y nomira-cli usuario como salida de quien
// quedó afuera: después de la orden, el ingreso funciona.
#include <gtest/gtest.h>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "frame/arranque.h"
#include "frame/ingreso.h"
#include "frame/usuarios.h"

using namespace nomira;

TEST(Usuarios, MayusculasYMinusculasMezcladasNoSePuedenGuardar) {
    EXPECT_EQ(frame::rechazoUsuario("Admin", "clave"), frame::kUsuarioMezclado);
    EXPECT_EQ(frame::rechazoUsuario("aDMIN", "clave"), frame::kUsuarioMezclado);
    EXPECT_EQ(frame::rechazoUsuario("José", "clave"), frame::kUsuarioMezclado);
    EXPECT_EQ(frame::rechazoUsuario("ADMIN", "Clave"), frame::kPasswordMezclado);
    EXPECT_EQ(frame::rechazoUsuario("ADMIN", "clave", "4"), frame::kCategoriaInvalida);
    // Todo en una forma, con eñes, tildes, cifras o signos, se puede guardar.
    for (const char* usuario : {"ADMIN", "admin", "JOSÉ", "josé", "PEÑA2", "12-34", ""})
        EXPECT_EQ(frame::rechazoUsuario(usuario, "clave", "2"), std::nullopt) << usuario;
    EXPECT_EQ(frame::rechazoUsuario("ADMIN", "CLAVE.1"), std::nullopt);
}

TEST(Usuarios, LaOrdenUsuarioAgregaYCambiaElPassword) {
    pruebas::CarpetaTemporal tmp;
    const std::string db = tmp.archivo("n.db");
    const std::string b = "--base " + db + " ";
    ASSERT_EQ(pruebas::cli(b + "init --usuario ADMIN --password clave").estado, 0);
    auto ingreso = [&](const char* usuario, const char* password) {
        auto base = store::abrir(db);
        return frame::verificarIngreso(master::leerConfiguracion(*base), usuario, password);
    };

    auto s = pruebas::cli(b + "usuario --nombre ADMIN --password otra");
    EXPECT_EQ(s.estado, 0) << s.texto;
    EXPECT_EQ(s.texto, "Password cambiado: ADMIN\n");
    EXPECT_EQ(ingreso("admin", "OTRA"), 1);
    EXPECT_EQ(ingreso("ADMIN", "clave"), std::nullopt);

    s = pruebas::cli(b + "usuario --nombre oper --password op --categoria 3");
    EXPECT_EQ(s.texto, "Usuario agregado: oper\n");
    EXPECT_EQ(ingreso("OPER", "op"), 3);
    // Cambiar el password no cambia la categoría si no se pide.
    pruebas::cli(b + "usuario --nombre OPER --password op2");
    EXPECT_EQ(ingreso("oper", "op2"), 3);

    // Un usuario que ya quedó guardado con las dos mezcladas nunca puede entrar;
    // la orden lo encuentra sin mirar mayúsculas y le deja un nombre que sí.
    {
        auto base = store::abrir(db);
        auto c = master::leerConfiguracion(*base);
        frame::ponerUsuario(c, 5, "Jefe", "Clave", "1");
        master::guardarConfiguracion(*base, c);
    }
    EXPECT_EQ(ingreso("Jefe", "Clave"), std::nullopt);
    s = pruebas::cli(b + "usuario --nombre JEFE --password clave");
    EXPECT_EQ(s.texto, "Password cambiado: JEFE\n");
    EXPECT_EQ(ingreso("jefe", "clave"), 1);

    for (const auto& [argumentos, mensaje] :
         {std::pair{"--nombre Nuevo --password x", frame::kUsuarioMezclado},
          {"--nombre NUEVO --password Xy", frame::kPasswordMezclado},
          {"--nombre NUEVO --password x --categoria 4", frame::kCategoriaInvalida},
          {"--nombre NUEVO --password ''", frame::kFaltanCampos}}) {
        s = pruebas::cli(b + "usuario " + argumentos);
        EXPECT_EQ(s.estado, 1) << argumentos;
        EXPECT_EQ(s.texto, std::string(mensaje) + "\n") << argumentos;
    }
    EXPECT_EQ(ingreso("NUEVO", "x"), std::nullopt);

    // Con los diez lugares ocupados no se agrega, pero se puede cambiar un password.
    for (int i = 3; i <= 10; ++i)
        if (i != 5) pruebas::cli(b + "usuario --nombre U" + std::to_string(i) + " --password x");
    s = pruebas::cli(b + "usuario --nombre OTRO --password x");
    EXPECT_EQ(s.estado, 1);
    EXPECT_EQ(s.texto, std::string(frame::kSinLugarUsuario) + "\n");
    EXPECT_EQ(pruebas::cli(b + "usuario --nombre U7 --password y").estado, 0);
    EXPECT_EQ(ingreso("U7", "Y"), 1);

    // init tampoco deja crear un administrador que no podría entrar.
    s = pruebas::cli("--base " + tmp.archivo("otra.db") + " init --usuario Admin --password x");
    EXPECT_EQ(s.estado, 1);
    EXPECT_EQ(s.texto, std::string(frame::kUsuarioMezclado) + "\n");
}
