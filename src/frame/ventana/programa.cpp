#include "frame/ventana/programa.h"

#include <unistd.h>
#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QTranslator>
#include <cstdlib>
#include <iostream>

#include "common/numeros.h"
#include "common/reloj.h"
#include "engine/aguinaldo/aguinaldo.h"
#include "engine/egreso/liquidacion_egreso.h"
#include "engine/mes/liquidacion_empresa.h"
#include "engine/mes/mes_en_pantalla.h"
#include "engine/vacacional/renglon_vacacional.h"
#include "frame/arranque.h"
#include "frame/carpeta.h"
#include "frame/dialogo_consola.h"
#include "frame/instancia.h"
#include "frame/ventana/captura.h"
#include "frame/ventana/dialogo_qt.h"
#include "frame/ventana/primer_usuario.h"
#include "frame/ventana/ventana_principal.h"
#include "master/estudio_demo.h"
#include "master/personal.h"

namespace nomira::ventana {

namespace {

std::string argumento(int argc, char** argv, const std::string& nombre) {
    for (int i = 1; i + 1 < argc; ++i)
        if (argv[i] == nombre) return argv[i + 1];
    return {};
}

// Una fila de salario vacacional, tecleada como en su pantalla, para la primera
// persona mensual de la empresa: veinte días de licencia en el mes, con el total
// que el liquidador escribe (el sueldo de veinte días) porque la fórmula de
// demostración del concepto es 0.
void vacacionalDeMuestra(store::Conexion& base, const std::string& empresa, const common::Mes& mes,
                         common::Dialogo& dialogo) {
    for (const auto& nombre : engine::nombresDelMes(base, empresa, mes)) {
        engine::ContextoFormula ctx;
        auto r = engine::buscarVacacional(base, {empresa, nombre, mes, "606"}, ctx, dialogo);
        if (!r.buscado || r.buscado->persona.tiposueldo != "S") continue;
        auto& b = *r.buscado;
        const auto calculo = engine::calcularVacacional(b, ctx, "20", dialogo);
        auto hasta = mes.primerDia().ddmmyy();
        hasta.replace(0, 2, "20");
        const engine::CasillasVacacional casillas{
            common::numeroATexto(calculo.cant),
            common::numeroATexto(b.persona.sueldo / 30 * calculo.cant), mes.primerDia().ddmmyy(),
            hasta};
        engine::guardarVacacional(base, b, ctx, casillas, dialogo);
        return;
    }
}

// Un despido de muestra: la primera mensual de la empresa egresa el último día
// del mes anterior al liquidado (que no tiene filas), con su pasada y sus
// descuentos; así las pantallas del egreso y de sus incidencias tienen a quién mostrar.
void egresoDeMuestra(store::Conexion& base, const std::string& empresa, const common::Mes& mes,
                     common::Dialogo& dialogo) {
    const auto salida = mes.anterior();
    for (const auto& nombre : engine::nombresDelMes(base, empresa, salida)) {
        auto p = master::leerPersona(base, empresa, nombre);
        if (!p || p->tiposueldo != "S" || !p->fechaeg.empty()) continue;
        p->fechaeg = salida.ultimoDia().iso();
        p->motivoeg = "Despido";
        p->antiguedad = "6";
        master::actualizarPersona(base, *p);
        engine::egresoDeUnaPersona(base, empresa, nombre, salida, {}, true, dialogo);
        return;
    }
}

// Capturas: una base propia, usuario de categoría 1. Sin base indicada, una
// nueva con el estudio de demostración y su mes anterior liquidado, para que
// las pantallas se vean con datos.
int capturar(const std::string& carpeta, const std::string& base) {
    frame::Sesion sesion;
    frame::DialogoConsola dialogo(std::cerr, false);
    sesion.dialogo = &dialogo;
    sesion.categoria = 1;
    if (base.empty()) {
        const auto temporal = std::filesystem::temp_directory_path() /
                              ("nomira-captura-" + std::to_string(::getpid()) + ".db");
        std::filesystem::remove(temporal);
        sesion.base = frame::crearBaseNueva(temporal.string());
        master::crearEstudioDemo(*sesion.base);
        const auto mes = *common::Mes::desdeTexto(common::CalculaMesAnterior(common::hoy()));
        // Y el aguinaldo que cubre ese mes, para que su pantalla también tenga filas.
        const common::Mes pago{mes.anio, mes.mes <= 6 ? 6 : 12};
        for (const auto& e : master::empresasDemo()) {
            engine::liquidarMesDeEmpresa(*sesion.base, e, mes, dialogo);
            engine::aguinaldoDeLaEmpresa(*sesion.base, e, pago, 1, dialogo);
        }
        vacacionalDeMuestra(*sesion.base, master::empresasDemo().front(), mes, dialogo);
        egresoDeMuestra(*sesion.base, master::empresasDemo().back(), mes, dialogo);
    } else {
        sesion.base = frame::abrirBase(base);
    }
    const int n = capturarPantallas(sesion, carpeta);
    std::cout << n << " capturas en " << carpeta << '\n';
    return 0;
}

// Sin base.txt se crea la base en la carpeta de configuración y se pide el primer
// administrador; lo mismo si la base no tiene ningún usuario todavía.
bool prepararBase(frame::Sesion& sesion, const std::string& indicada) {
    std::string destino = indicada;
    if (destino.empty()) {
        if (auto d = frame::destinoConfigurado()) {
            destino = *d;
        } else {
            destino = frame::destinoPorDefecto();
            std::filesystem::create_directories(frame::rutaNomira());
            if (!std::filesystem::exists(destino)) frame::crearBaseNueva(destino);
            frame::escribirLinea("base.txt", destino);
        }
    }
    sesion.base = frame::abrirBase(destino);
    if (frame::hayUsuarios(master::leerConfiguracion(*sesion.base))) return true;
    DialogoPrimerUsuario primero(*sesion.dialogo);
    if (primero.exec() != QDialog::Accepted) return false;
    return frame::agregarUsuario(*sesion.base, primero.usuario(), primero.password(), "1");
}

}  // namespace

int iniciarPrograma(int argc, char** argv) {
    const auto carpetaCaptura = argumento(argc, argv, "--captura");
    const auto base = argumento(argc, argv, "--base");
    if (!carpetaCaptura.empty()) setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication app(argc, argv);
    QApplication::setApplicationName("Nomira");
    // Los botones estándar (Sí, No, Aceptar, Cancelar) en castellano.
    QTranslator traduccion;
    if (traduccion.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&traduccion);

    try {
        if (!carpetaCaptura.empty()) return capturar(carpetaCaptura, base);
    } catch (const std::exception& e) {
        std::cerr << "Error inesperado " << e.what() << '\n';
        return 2;
    }

    frame::BloqueoInstancia bloqueo(frame::rutaNomira(".nomira.bloqueo"));
    if (!bloqueo.obtenido()) {
        QMessageBox::critical(nullptr, "Nomira", frame::kMensajeSegundaInstancia);
        return 1;
    }
    frame::Sesion sesion;
    DialogoQt dialogo(nullptr);
    sesion.dialogo = &dialogo;
    try {
        if (!prepararBase(sesion, base)) return 0;
    } catch (const std::exception& e) {
        common::avisarErrorInesperado(dialogo, e, "Form_Load", "Form1");
        return 2;
    }
    VentanaPrincipal ventana(sesion);
    ventana.show();
    return app.exec();
}

}  // namespace nomira::ventana
