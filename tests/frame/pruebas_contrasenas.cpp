// Las contraseñas: nunca a la vista en lo que se muestra, nunca en base.txt ni
// en los argumentos de pg_dump, y los hashes viejos se rehacen al entrar.
#include <gtest/gtest.h>
#include <openssl/evp.h>

#include <filesystem>
#include <fstream>

#include "apoyo/base_prueba.h"
#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "common/contrasena.h"
#include "frame/arranque.h"
#include "frame/carpeta.h"
#include "frame/ingreso.h"
#include "maintenance/respaldo.h"
#include "store/crear.h"
#include "store/destino.h"

using namespace nomira;
namespace fs = std::filesystem;

namespace {

using pruebas::cli;

constexpr const char* kClave = "S3cr3t0Pg";

// La misma base con la contraseña en la cadena: el servidor de prueba no la
// pide, así que conecta igual.
std::string conClave(const std::string& destino) {
    const auto arroba = destino.find('@');
    return destino.substr(0, arroba) + ":" + kClave + destino.substr(arroba);
}

std::string entreComillas(const std::string& s) {
    return "'" + s + "'";
}

class ContrasenaEnLaCadena : public store::prueba::BaseVacia {};

TEST_P(ContrasenaEnLaCadena, NoSeMuestraNiSeGuardaEnBaseTxt) {
    pruebas::CarpetaTemporal tmp;
    const auto cadena = conClave(destino_);
    // Sin base.txt, init escribiría la cadena en él: se rechaza antes de crear nada.
    auto r = cli("--base " + entreComillas(cadena) + " init");
    EXPECT_EQ(r.estado, 1) << r.texto;
    EXPECT_EQ(r.texto, std::string(frame::kContrasenaEnBaseTxt) + "\n");
    EXPECT_FALSE(fs::exists(frame::rutaNomira("base.txt")));
    EXPECT_FALSE(store::existeEsquema(c()));
    r = cli("--base " + entreComillas(cadena) + " demo");
    EXPECT_EQ(r.estado, 1) << r.texto;
    EXPECT_FALSE(fs::exists(frame::rutaNomira("base.txt")));
    EXPECT_FALSE(store::existeEsquema(c()));

    // Una base que todavía no tiene las tablas: el error tampoco la muestra.
    r = cli("--base " + entreComillas(cadena) + " resumen");
    EXPECT_EQ(r.estado, 2) << r.texto;
    EXPECT_NE(r.texto.find("no tiene las tablas"), std::string::npos) << r.texto;
    EXPECT_EQ(r.texto.find(kClave), std::string::npos) << r.texto;

    // Con base.txt ya escrito init no lo toca, y crea la base.
    frame::escribirLinea("base.txt", "/otra/nomira.db");
    r = cli("--base " + entreComillas(cadena) + " init");
    EXPECT_EQ(r.estado, 0) << r.texto;
    EXPECT_EQ(r.texto.find(kClave), std::string::npos) << r.texto;
    EXPECT_NE(r.texto.find("Base creada: " + store::destinoParaMostrar(cadena)), std::string::npos)
        << r.texto;
    EXPECT_EQ(frame::destinoConfigurado(), "/otra/nomira.db");

    r = cli("--base " + entreComillas(cadena) + " resumen");
    EXPECT_EQ(r.estado, 0) << r.texto;
    EXPECT_EQ(r.texto.find(kClave), std::string::npos) << r.texto;
    EXPECT_TRUE(r.texto.starts_with("Base: postgresql://nomira:***@")) << r.texto;

    r = cli("--base " + entreComillas(cadena) + " init");
    EXPECT_EQ(r.estado, 2) << r.texto;
    EXPECT_NE(r.texto.find("ya existe"), std::string::npos) << r.texto;
    EXPECT_EQ(r.texto.find(kClave), std::string::npos) << r.texto;

    // Y tampoco se escribe base.txt a mano por la función del programa.
    EXPECT_THROW(frame::guardarDestino(cadena), common::Fallo);
    EXPECT_EQ(frame::destinoConfigurado(), "/otra/nomira.db");
}

// pg_dump recibe la contraseña por el entorno: la línea de órdenes la ve
// cualquiera con ps. Un pg_dump de mentira anota lo que recibe.
TEST_P(ContrasenaEnLaCadena, PgDumpLaRecibePorElEntorno) {
    pruebas::CarpetaTemporal tmp;
    const auto falso = tmp.ruta() / "bin";
    fs::create_directories(falso);
    {
        std::ofstream guion(falso / "pg_dump");
        guion << "#!/bin/sh\n"
                 "printf '%s\\n' \"$@\" > \"$NOMIRA_RAIZ/argumentos\"\n"
                 "printf '%s' \"$PGPASSWORD\" > \"$NOMIRA_RAIZ/entorno\"\n"
                 "for a; do case \"$a\" in --file=*) echo PGDMP > \"${a#--file=}\";; esac; done\n";
    }
    fs::permissions(falso / "pg_dump", fs::perms::owner_all);
    const std::string path = std::getenv("PATH");
    setenv("PATH", (falso.string() + ":" + path).c_str(), 1);
    auto base = store::abrir(conClave(destino_));
    maintenance::respaldarBase(*base, tmp.ruta() / "copia.bak");
    setenv("PATH", path.c_str(), 1);

    std::ifstream a(tmp.ruta() / "argumentos"), e(tmp.ruta() / "entorno");
    const std::string argumentos{std::istreambuf_iterator<char>(a), {}};
    const std::string entorno{std::istreambuf_iterator<char>(e), {}};
    EXPECT_EQ(argumentos.find(kClave), std::string::npos) << argumentos;
    EXPECT_NE(argumentos.find("--dbname=" + destino_), std::string::npos) << argumentos;
    EXPECT_EQ(entorno, kClave);
    EXPECT_TRUE(fs::exists(tmp.ruta() / "copia.bak"));
}

INSTANTIATE_TEST_SUITE_P(Motores, ContrasenaEnLaCadena, ::testing::Values(store::Motor::Postgres),
                         store::prueba::nombreMotor);

// Un hash como los que se guardaban antes, con 50.000 iteraciones.
std::string hashViejo(const std::string& clave) {
    const unsigned char sal[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    unsigned char hash[32];
    PKCS5_PBKDF2_HMAC(clave.data(), static_cast<int>(clave.size()), sal, sizeof sal, 50000,
                      EVP_sha256(), sizeof hash, hash);
    auto hex = [](const unsigned char* b, std::size_t n) {
        std::string r;
        for (std::size_t i = 0; i < n; ++i) {
            r += "0123456789abcdef"[b[i] >> 4];
            r += "0123456789abcdef"[b[i] & 15];
        }
        return r;
    };
    return "pbkdf2-sha256$50000$" + hex(sal, sizeof sal) + "$" + hex(hash, sizeof hash);
}

std::string guardado(store::Conexion& base, int n) {
    return base.consulta("SELECT pas" + std::to_string(n) + " FROM configuracion")
        .primera()
        .texto(0);
}

TEST(HashDeContrasena, ElDeAntesEntraYSeRehaceAlEntrar) {
    pruebas::CarpetaTemporal tmp;
    auto base = frame::crearBaseNueva(tmp.archivo("n.db"));
    const auto viejo = hashViejo("clave");
    base->ejecuta(
        "UPDATE configuracion SET usu1 = 'ANA', pas1 = ?, cat1 = '2', usu2 = 'LUIS', "
        "pas2 = ?, cat2 = '3'",
        {viejo, viejo});
    EXPECT_TRUE(common::hashAnticuado(viejo));

    // Una contraseña equivocada no cambia nada.
    EXPECT_EQ(frame::ingresar(*base, "ana", "clavo"), std::nullopt);
    EXPECT_EQ(guardado(*base, 1), viejo);

    EXPECT_EQ(frame::ingresar(*base, "ana", "CLAVE"), 2);
    const auto nuevo = guardado(*base, 1);
    EXPECT_TRUE(nuevo.starts_with("pbkdf2-sha256$600000$")) << nuevo;
    EXPECT_FALSE(common::hashAnticuado(nuevo));
    // Sigue entrando con lo mismo, y el hash ya no cambia.
    EXPECT_EQ(frame::ingresar(*base, "Ana", "clave"), 2);
    EXPECT_EQ(guardado(*base, 1), nuevo);
    // El otro usuario no entró: el suyo queda como estaba.
    EXPECT_EQ(guardado(*base, 2), viejo);
    EXPECT_TRUE(frame::hayUsuarios(master::leerConfiguracion(*base)));
}

}  // namespace
