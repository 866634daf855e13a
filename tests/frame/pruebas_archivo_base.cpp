// El archivo de la base: sólo las órdenes que crean una base la crean, una
// base de sólo lectura se lee, y base.txt puede dar una ruta relativa a su carpeta.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "frame/arranque.h"
#include "frame/carpeta.h"

using namespace nomira;
namespace fs = std::filesystem;

namespace {

using pruebas::cli;

std::string conComillas(const std::string& s) {
    return "'" + s + "'";
}

void crearConUnaEmpresa(const std::string& ruta) {
    auto base = frame::crearBaseNueva(ruta);
    base->ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('UNO', 1)");
}

// Como root los permisos no impiden escribir: la orden corre como "nobody",
// como la correría un usuario cualquiera.
pruebas::SalidaCli cliSinPrivilegios(const std::string& argumentos) {
    if (::geteuid() != 0) return cli(argumentos);
    return pruebas::ejecutar("setpriv --reuid=nobody --regid=nogroup --clear-groups " +
                             pruebas::rutaCli() + " " + argumentos);
}

}  // namespace

TEST(ArchivoBase, UnaRutaQueNoExisteNoSeCrea) {
    pruebas::CarpetaTemporal tmp;
    const auto mal = tmp.archivo("nomira-mal-escrito.db");
    for (const std::string orden :
         {"resumen", "haberes --empresa UNO", "respaldar --hacia x.bak", "actualizar-valores"}) {
        const auto r = cli("--base " + mal + " " + orden);
        EXPECT_EQ(r.estado, 1) << orden << ": " << r.texto;
        EXPECT_EQ(r.texto, "La base de datos '" + mal +
                               "' no existe. Sólo init, demo y copiar-base --hacia crean una "
                               "base.\n")
            << orden;
        EXPECT_FALSE(fs::exists(mal)) << orden;
    }
    // copiar-base crea el destino, pero no el origen.
    const auto r = cli("copiar-base --desde " + mal + " --hacia " + tmp.archivo("copia.db"));
    EXPECT_EQ(r.estado, 1) << r.texto;
    EXPECT_FALSE(fs::exists(mal));
    EXPECT_FALSE(fs::exists(tmp.archivo("copia.db")));
    // El programa tampoco la crea al abrirla.
    EXPECT_THROW(frame::abrirBase(mal), common::Fallo);
    EXPECT_FALSE(fs::exists(mal));
}

TEST(ArchivoBase, UnaBaseDeSoloLecturaSeLeeYNoSeEscribe) {
    pruebas::CarpetaTemporal tmp;
    const auto carpeta = tmp.ruta() / "estudio";
    fs::create_directories(carpeta);
    const auto ruta = (carpeta / "nomira.db").string();
    crearConUnaEmpresa(ruta);
    fs::permissions(ruta, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    {
        auto base = frame::abrirBase(ruta);
        EXPECT_EQ(base->consulta("SELECT empresa FROM empresas").primera().texto(0), "UNO");
        try {
            base->ejecuta("INSERT INTO empresas (empresa) VALUES ('DOS')");
            FAIL() << "la base es de sólo lectura";
        } catch (const common::Fallo& f) {
            EXPECT_EQ(f.numero(), 3008);
            EXPECT_EQ(f.descripcion(), "La base de datos '" + ruta +
                                           "' es de sólo lectura: no se puede guardar ningún "
                                           "cambio.");
        }
        // Una transacción también se puede abrir para leer.
        store::Transaccion t(*base);
        EXPECT_EQ(base->consulta("SELECT count(*) FROM empresas").primera().entero(0), 1);
        t.confirmar();
    }
    // Leer no deja al lado los archivos de la WAL.
    EXPECT_FALSE(fs::exists(ruta + "-wal"));
    EXPECT_FALSE(fs::exists(ruta + "-shm"));
    auto r = cliSinPrivilegios("--base " + conComillas(ruta) + " resumen");
    EXPECT_EQ(r.estado, 0) << r.texto;
    EXPECT_NE(r.texto.find("Empresas: 1"), std::string::npos) << r.texto;
    r = cliSinPrivilegios("--base " + conComillas(ruta) + " variable BPC 01/01/26 7000");
    EXPECT_EQ(r.estado, 2) << r.texto;
    EXPECT_NE(r.texto.find("es de sólo lectura"), std::string::npos) << r.texto;

    // En una carpeta de sólo lectura, donde no se pueden crear los archivos de
    // la WAL, la base también se lee.
    fs::permissions(ruta, fs::perms::owner_write, fs::perm_options::add);
    fs::permissions(carpeta, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_read |
                                 fs::perms::group_exec | fs::perms::others_read |
                                 fs::perms::others_exec);
    r = cliSinPrivilegios("--base " + conComillas(ruta) + " resumen");
    EXPECT_EQ(r.estado, 0) << r.texto;
    EXPECT_NE(r.texto.find("Empresas: 1"), std::string::npos) << r.texto;
    EXPECT_FALSE(fs::exists(ruta + "-wal"));
    fs::permissions(carpeta, fs::perms::owner_all, fs::perm_options::add);
}

TEST(ArchivoBase, UnaRutaRelativaEnBaseTxtEsDesdeSuCarpeta) {
    pruebas::CarpetaTemporal tmp;
    crearConUnaEmpresa((frame::rutaNomira() / "datos" / "estudio.db").string());
    frame::escribirLinea("base.txt", "datos/estudio.db");
    EXPECT_EQ(frame::destinoConfigurado(), (frame::rutaNomira() / "datos" / "estudio.db").string());
    // Desde cualquier carpeta de trabajo se abre la misma base.
    const auto r = pruebas::ejecutar("cd / && " + pruebas::rutaCli() + " resumen");
    EXPECT_EQ(r.estado, 0) << r.texto;
    EXPECT_NE(r.texto.find("Empresas: 1"), std::string::npos) << r.texto;
    EXPECT_FALSE(fs::exists("/datos/estudio.db"));
    // Una cadena de conexión no es una ruta y queda como está.
    frame::escribirLinea("base.txt", "host=servidor dbname=nomira");
    EXPECT_EQ(frame::destinoConfigurado(), "host=servidor dbname=nomira");
}
