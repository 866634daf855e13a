#include "frame/ventana/captura.h"

#include <QApplication>
#include <QMenu>
#include <QPixmap>
#include <QTabWidget>

#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/ventana_principal.h"

namespace nomira::ventana {

namespace {

bool guardar(QWidget* w, const std::filesystem::path& carpeta, const std::string& nombre) {
    QApplication::processEvents();
    const auto ruta = carpeta / (nombre + ".png");
    return w->grab().save(QString::fromStdString(ruta.string()));
}

}  // namespace

int capturarPantallas(frame::Sesion& sesion, const std::filesystem::path& carpeta) {
    std::filesystem::create_directories(carpeta);
    VentanaPrincipal ventana(sesion);
    ventana.show();
    int escritas = guardar(&ventana, carpeta, "Form1");

    // Cada menú desplegado, para revisar el árbol completo.
    for (const auto& m : frame::menusPrincipales()) {
        QMenu* menu = ventana.menu(m.nombre);
        menu->popup(ventana.mapToGlobal(QPoint(0, 0)));
        escritas += guardar(menu, carpeta, "Form1_" + m.nombre);
        menu->hide();
    }
    for (const auto& [formulario, fabrica] : registroPantallas()) {
        QWidget* w = ventana.abrirPantalla(formulario);
        if (!w) continue;
        // Una pantalla que sabe mostrarse con datos (un mes ya liquidado) se prepara sola.
        if (w->metaObject()->indexOfMethod("prepararCaptura()") >= 0)
            QMetaObject::invokeMethod(w, "prepararCaptura");
        escritas += guardar(w, carpeta, formulario);
        // Las demás páginas de las pantallas con pestañas: Form13_2, Form13_3...
        for (auto* pestanas : w->findChildren<QTabWidget*>()) {
            for (int i = 1; i < pestanas->count(); ++i) {
                pestanas->setCurrentIndex(i);
                escritas += guardar(w, carpeta, formulario + "_" + std::to_string(i + 1));
            }
            pestanas->setCurrentIndex(0);
        }
        w->close();
        QApplication::processEvents();
    }
    ventana.ejecutar("Contenido");
    if (auto* ayuda = ventana.findChild<QWidget*>("Ayuda"))
        escritas += guardar(ayuda, carpeta, "Ayuda");
    ventana.terminar();
    return escritas;
}

}  // namespace nomira::ventana
