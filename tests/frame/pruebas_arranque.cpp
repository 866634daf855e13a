// Primer arranque, una sola instancia, reparar y compactar, y las órdenes init y resumen.
#include <gtest/gtest.h>

#include <fstream>

#include "apoyo/carpeta_temporal.h"
#include "apoyo/cli.h"
#include "apoyo/dialogo_guion.h"
#include "frame/arranque.h"
#include "frame/carpeta.h"
#include "frame/ingreso.h"
#include "frame/instancia.h"
#include "frame/reparacion.h"

using namespace nomira;

namespace {

using pruebas::cli;

void agregarEmpresa(store::Conexion& base, const std::string& nombre) {
    base.ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES (?, ?)", {nombre, std::int64_t{1}});
}

}  // namespace

TEST(Arranque, LaBaseNuevaTraeLaConfiguracionYElPrimerUsuario) {
    pruebas::CarpetaTemporal tmp;
    auto base = frame::crearBaseNueva(tmp.archivo("n.db"), "ADMIN", "secreto");
    const auto c = master::leerConfiguracion(*base);
    EXPECT_EQ(frame::verificarIngreso(c, "admin", "SECRETO"), 1);
    // Los seis permisos de la categoría 1 abiertos para que el administrador pueda entrar a todo.
    for (int i = 0; i < 6; ++i) EXPECT_EQ(c.checks[i], "1") << i;
    EXPECT_TRUE(frame::hayUsuarios(c));
    // Una segunda creación sobre la misma base se rechaza y no toca nada.
    EXPECT_THROW(frame::crearBaseNueva(tmp.archivo("n.db"), "OTRO", "x"), common::Fallo);
    EXPECT_EQ(frame::verificarIngreso(master::leerConfiguracion(*base), "OTRO", "x"), std::nullopt);
}

TEST(Arranque, LosDiezLugaresDeUsuario) {
    pruebas::CarpetaTemporal tmp;
    auto base = frame::crearBaseNueva(tmp.archivo("n.db"));
    for (int i = 0; i < master::kCantUsuarios; ++i)
        EXPECT_TRUE(frame::agregarUsuario(*base, "U" + std::to_string(i), "p", "3"));
    EXPECT_FALSE(frame::agregarUsuario(*base, "ONCE", "p", "3"));
    const auto c = master::leerConfiguracion(*base);
    EXPECT_EQ(c.usuarios[9].usu, "U9");
    EXPECT_EQ(c.usuarios[9].cat, "3");
}

TEST(Arranque, BaseTxtDaLaRutaDeLaBase) {
    pruebas::CarpetaTemporal tmp;
    EXPECT_EQ(frame::destinoConfigurado(), std::nullopt);
    frame::escribirLinea("base.txt", "/datos/estudio.db");
    EXPECT_EQ(frame::destinoConfigurado(), "/datos/estudio.db");
    EXPECT_EQ(frame::rutaNomira("base.txt"), tmp.ruta() / "Software" / "Nomira" / "base.txt");
    // Un archivo escrito en Windows, con CR LF, da la misma ruta.
    std::ofstream(frame::rutaNomira("base.txt")) << "/datos/nomira.db\r\n";
    EXPECT_EQ(frame::destinoConfigurado(), "/datos/nomira.db");
}

TEST(Instancia, LaSegundaSeRechazaHastaQueLaPrimeraTermina) {
    pruebas::CarpetaTemporal tmp;
    const auto archivo = frame::rutaNomira(".bloqueo");
    {
        frame::BloqueoInstancia primera(archivo);
        ASSERT_TRUE(primera.obtenido());
        frame::BloqueoInstancia segunda(archivo);
        EXPECT_FALSE(segunda.obtenido());
    }
    frame::BloqueoInstancia otraVez(archivo);
    EXPECT_TRUE(otraVez.obtenido());
}

TEST(Mantenimiento, CompactarDejaLaCopiaOldYLosDatos) {
    pruebas::CarpetaTemporal tmp;
    const auto ruta = tmp.archivo("nomira.db");
    EXPECT_EQ(frame::rutaCopiaAntigua(ruta), tmp.ruta() / "nomiraold.db");
    EXPECT_EQ(frame::rutaCopiaAntigua("/a.b/base"), "/a.b/baseold");
    { std::ofstream(frame::rutaCopiaAntigua(ruta)) << "una copia anterior"; }
    auto base = frame::crearBaseNueva(ruta);
    agregarEmpresa(*base, "O'Hara S.A.");

    pruebas::DialogoGuion dialogo;
    dialogo.respuestas = {false};
    EXPECT_FALSE(frame::CompactarBase(dialogo, base));
    ASSERT_TRUE(base);  // con No no se cierra nada
    EXPECT_EQ(dialogo.preguntas.at(0),
              std::string(frame::kTituloCerrarTodas) + "|¿Desea compactar la base de datos?");

    EXPECT_TRUE(frame::CompactarBase(dialogo, base));
    EXPECT_EQ(dialogo.ultimoMensaje(), "La base de datos ha sido compactada.");
    // La copia anterior se reemplazó por la base de antes de compactar; las dos tienen los datos.
    for (const auto& r : {ruta, frame::rutaCopiaAntigua(ruta).string()}) {
        auto b = frame::abrirBase(r);
        EXPECT_EQ(b->consulta("SELECT empresa FROM empresas").primera().texto("empresa"),
                  "O'Hara S.A.");
    }
}

TEST(Mantenimiento, RepararRevisaLaBase) {
    pruebas::CarpetaTemporal tmp;
    auto base = frame::crearBaseNueva(tmp.archivo("nomira.db"));
    pruebas::DialogoGuion dialogo;
    EXPECT_TRUE(frame::RepararBase(dialogo, base));
    EXPECT_EQ(dialogo.preguntas.at(0),
              std::string(frame::kTituloCerrarTodas) + "|¿Desea reparar la base de datos?");
    EXPECT_EQ(dialogo.mensajes.at(0).titulo, "Mensaje de confirmación");
    EXPECT_EQ(dialogo.ultimoMensaje(), "La base de datos ha sido reparada.");
}

TEST(LineaDeOrdenes, InitYResumen) {
    pruebas::CarpetaTemporal tmp;
    const auto ruta = tmp.archivo("carpeta/nueva/n.db");  // la carpeta todavía no existe
    auto r = cli("--base " + ruta + " init --usuario ADMIN --password clave");
    ASSERT_EQ(r.estado, 0) << r.texto;
    // Sin base.txt, la base creada pasa a ser la del programa.
    EXPECT_EQ(frame::destinoConfigurado(), ruta);
    {
        auto base = frame::abrirBase(ruta);
        agregarEmpresa(*base, "UNO");
        base->ejecuta("INSERT INTO personal (empresa, nombre) VALUES ('UNO', 'PEREZ, ANA')");
        base->ejecuta(
            "INSERT INTO habydesc (empresa, nombre, codigo) VALUES ('UNO', 'PEREZ, ANA', 1)");
        base->ejecuta("INSERT INTO aguinaldos (empresa, nombre) VALUES ('UNO', 'PEREZ, ANA')");
    }
    r = cli("resumen");
    EXPECT_EQ(r.estado, 0);
    EXPECT_EQ(r.texto, "Base: " + ruta + "\nEmpresas: 1\nPersonas: 1\nFilas de liquidación: 2\n");

    r = cli("--base " + ruta + " init");
    EXPECT_EQ(r.estado, 2);
    EXPECT_NE(r.texto.find("ya existe"), std::string::npos) << r.texto;
    r = cli("--base " + tmp.archivo("otra.db") + " init --usuario SOLO");
    EXPECT_EQ(r.estado, 1);
    EXPECT_EQ(r.texto, "Debe completar los campos USUARIO y PASSWORD.\n");
}
