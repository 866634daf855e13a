// demo: una base nueva con el estudio de demostración y, con --liquidar, el mes
// anterior de cada empresa liquidado y resumido.
#include <filesystem>
#include <iostream>
#include <set>

#include "cli/ordenes.h"
#include "common/reloj.h"
#include "engine/calculos/explicacion.h"
#include "engine/mes/horas.h"
#include "engine/mes/liquidacion_empresa.h"
#include "frame/arranque.h"
#include "frame/carpeta.h"
#include "master/datos_iniciales.h"
#include "master/empresas.h"
#include "master/estudio_demo.h"
#include "store/crear.h"
#include "store/destino.h"

namespace nomira::cli {

namespace {

// El prefijo de los archivos de horas que escribe la demostración.
std::string prefijoHorasDemo() {
    return (frame::rutaNomira("horas-demo") / "HORAS").string();
}

// Tablas, datos iniciales y estudio en una sola transacción: o queda la base
// entera o no queda nada. Nada si el destino ya tiene una base.
std::unique_ptr<store::Conexion> crearBaseDemo(const std::string& destino) {
    const bool esArchivo = !store::esDestinoPostgres(destino);
    const bool existia = esArchivo && std::filesystem::exists(destino);
    if (esArchivo && std::filesystem::path(destino).has_parent_path())
        std::filesystem::create_directories(std::filesystem::path(destino).parent_path());
    auto base = store::abrir(destino);
    if (store::existeEsquema(*base)) return nullptr;
    try {
        store::Transaccion t(*base);
        store::crearBase(*base);
        master::cargarDatosIniciales(*base, frame::carpetaDatos(), common::hoy());
        master::crearEstudioDemo(*base);
        t.confirmar();
    } catch (...) {
        base.reset();
        // El archivo vacío que abrió SQLite no queda como si fuera una base.
        if (esArchivo && !existia) std::filesystem::remove(destino);
        throw;
    }
    return base;
}

// Las horas del reloj del mes para los jornaleros y los por hora. Sólo en la
// carpeta propia de la demostración: la del reloj de un estudio no se toca.
void escribirHoras(const common::Mes& mes) {
    auto prefijo = engine::prefijoArchivosHoras();
    if (prefijo.empty()) {
        prefijo = prefijoHorasDemo();
        frame::escribirLinea("horas.txt", prefijo);
    }
    if (prefijo != prefijoHorasDemo()) {
        std::cout << "Las horas del reloj no se escribieron: horas.txt indica otra carpeta ("
                  << prefijo << ").\n";
        return;
    }
    const auto escritas = master::escribirHorasDemo(
        [&](const std::string& nroemp) { return engine::rutaArchivoHoras(prefijo, mes, nroemp); });
    for (const auto& r : escritas)
        std::cout << "Horas de " << mes.texto() << ": " << r.string() << '\n';
}

struct OpcionesDemo {
    bool liquidar = false;
};

int demo(const Contexto& ctx, const OpcionesDemo& o) {
    const std::string destino =
        ctx.base.empty() ? frame::destinoConfigurado().value_or(frame::destinoPorDefecto())
                         : ctx.base;
    const bool escribirBaseTxt = !frame::destinoConfigurado();
    if (escribirBaseTxt && store::llevaContrasena(destino))
        throw Rechazo(frame::kContrasenaEnBaseTxt);
    auto base = crearBaseDemo(destino);
    if (!base) {
        std::cerr << "La base de datos '" << store::destinoParaMostrar(destino)
                  << "' ya existe: el estudio de demostración se crea sólo en una base nueva.\n";
        return 1;
    }
    if (escribirBaseTxt) frame::guardarDestino(destino);
    const auto empresas = master::nombresDeEmpresas(*base);
    std::cout << "Base creada: " << store::destinoParaMostrar(destino) << '\n'
              << "Estudio de demostración: " << empresas.size() << " empresas, "
              << base->consulta("SELECT COUNT(*) AS n FROM personal").primera().entero("n")
              << " personas.\n";

    const auto mes = *common::Mes::desdeTexto(common::CalculaMesAnterior(common::hoy()));
    escribirHoras(mes);
    if (!o.liquidar) return 0;

    auto dialogo = ctx.dialogo();
    try {
        for (const auto& e : empresas) {
            // Haberes con las horas del reloj y luego descuentos.
            const auto r =
                engine::liquidarMesDeEmpresa(*base, e, mes, dialogo, engine::conArchivoDeHoras());
            std::cout << e << ", mes " << mes.texto() << '\n'
                      << "  Personas liquidadas: " << r.personas << '\n'
                      << "  T.Haberes: " << engine::pesos(r.haberes) << '\n'
                      << "  Total Descuentos: " << engine::pesos(r.descuentos) << '\n'
                      << "  Líquido: " << engine::pesos(r.haberes - r.descuentos) << '\n';
        }
    } catch (const common::Fallo& f) {
        std::cerr << f.descripcion() << '\n';
        return 2;
    }
    // Un aviso del motor en el estudio de demostración es algo que revisar.
    return dialogo.rechazada() ? 1 : 0;
}

}  // namespace

void registrarOrdenesDemo(CLI::App& app, Contexto& ctx) {
    static OpcionesDemo o;
    auto* d = app.add_subcommand(
        "demo",
        "Crea una base nueva con el estudio de demostración (empresas y personal ficticios)");
    d->add_flag("--liquidar", o.liquidar,
                "Liquida el mes anterior de cada empresa y muestra sus totales");
    d->fallthrough();  // --base también después de la orden: "demo --base RUTA"
    d->callback([&ctx] { ctx.accion = [&ctx] { return demo(ctx, o); }; });
}

}  // namespace nomira::cli
