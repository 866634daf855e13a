#include "frame/ventana/ventana_principal.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QShortcut>
#include <QToolBar>

#include "frame/reparacion.h"
#include "frame/ventana/pantalla_ingreso.h"
#include "frame/ventana/registro_pantallas.h"
#include "frame/ventana/texto_qt.h"
#include "frame/ventana/ventana_ayuda.h"

namespace nomira::ventana {

using frame::Accion;

namespace {
// Estos menús se usan antes de ingresar; los demás esperan al ingreso.
bool menuSiempreAbierto(const std::string& m) {
    return m == "Entrar" || m == "Ayuda" || m == "Salir";
}
}  // namespace

VentanaPrincipal::VentanaPrincipal(frame::Sesion& sesion) : sesion_(sesion) {
    setObjectName("Form1");
    setWindowTitle("Nomira");
    construirMenu();
    construirBarra();
    construirAtajos();
    abrirMenus(sesion_.ingresado());
    resize(1000, 700);
}

void VentanaPrincipal::construirMenu() {
    for (const auto& m : frame::menusPrincipales()) {
        auto* menu = menuBar()->addMenu(aQt(m.titulo));
        menu->setObjectName(aQt(m.nombre));
        menus_[m.nombre] = menu;
    }
    const auto& registro = registroPantallas();
    for (const auto& e : frame::arbolMenu()) {
        QMenu* dentro = menus_.at(e.padre.empty() ? e.menu : e.padre);
        if (e.accion == Accion::Submenu) {
            auto* sub = dentro->addMenu(aQt(e.titulo));
            sub->setObjectName(aQt(e.nombre));
            menus_[e.nombre] = sub;
            continue;
        }
        auto* a = dentro->addAction(aQt(e.titulo));
        a->setObjectName(aQt(e.nombre));
        // Las pantallas que todavía no existen se ven, pero no se pueden elegir.
        a->setEnabled(e.accion != Accion::Pantalla || registro.count(e.pantalla));
        connect(a, &QAction::triggered, this, [this, n = e.nombre] { ejecutar(n); });
        acciones_[e.nombre] = a;
    }
}

void VentanaPrincipal::construirBarra() {
    auto* barra = addToolBar("Barra");
    barra->setObjectName("barra");
    barra->setMovable(false);
    barra->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const auto& t : frame::teclasBarra()) {
        auto* a = barra->addAction(aQt(t.clave));
        a->setObjectName(aQt("tecla_" + t.entrada));
        a->setEnabled(acciones_.at(t.entrada)->isEnabled());
        connect(a, &QAction::triggered, this, [this, n = t.entrada] { ejecutar(n); });
    }
}

void VentanaPrincipal::construirAtajos() {
    auto atajo = [this](QKeySequence tecla, std::string entrada) {
        auto* s = new QShortcut(tecla, this);
        connect(s, &QShortcut::activated, this, [this, entrada] { ejecutar(entrada); });
    };
    atajo(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_Return), "Entraralprograma");
    atajo(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_Enter), "Entraralprograma");
    const std::pair<Qt::Key, const char*> letras[] = {
        {Qt::Key_C, "FBasicasConfiguracion"},
        {Qt::Key_E, "FBasicasEmpresas"},
        {Qt::Key_P, "FBasicasPersonal"},
        {Qt::Key_H, "HaberesyDescuentos"},
        {Qt::Key_L, "HistoriaLaboralBPS"},
        {Qt::Key_R, "RepararBase"},
        {Qt::Key_A, "Contenido"},
    };
    for (auto [tecla, entrada] : letras) {
        atajo(QKeySequence(Qt::CTRL | tecla), entrada);
        atajo(QKeySequence(Qt::ALT | tecla), entrada);
    }
    atajo(QKeySequence(Qt::Key_F10), "FBasicasConceptosyFórmulas");
}

void VentanaPrincipal::abrirMenus(bool abiertos) {
    for (const auto& m : frame::menusPrincipales())
        menus_.at(m.nombre)->menuAction()->setEnabled(abiertos || menuSiempreAbierto(m.nombre));
}

void VentanaPrincipal::ingresoCorrecto() {
    abrirMenus(true);
}

QAction* VentanaPrincipal::accion(const std::string& entrada) const {
    auto it = acciones_.find(entrada);
    return it == acciones_.end() ? nullptr : it->second;
}

QMenu* VentanaPrincipal::menu(const std::string& nombre) const {
    auto it = menus_.find(nombre);
    return it == menus_.end() ? nullptr : it->second;
}

void VentanaPrincipal::ejecutar(const std::string& nombre) {
    const auto* e = frame::buscarEntrada(nombre);
    auto* a = accion(nombre);
    if (!e || !a || !a->isEnabled()) return;
    const bool libre = menuSiempreAbierto(e->menu);
    try {
        // Sin ingreso sólo responden Entrar, Ayuda y Salir; después, los permisos
        // se leen de la base en cada clic, en silencio si no alcanzan.
        if (!libre && (!sesion_.ingresado() || !sesion_.puede(e->grupo))) return;
        switch (e->accion) {
            case Accion::Pantalla:
                abrirPantalla(e->pantalla);
                break;
            case Accion::Ayuda:
                mostrarAyuda();
                break;
            case Accion::Salir:
                close();
                break;
            case Accion::Reparar:
                if (frame::RepararBase(*sesion_.dialogo, sesion_.base)) terminar();
                break;
            case Accion::Compactar:
                if (frame::CompactarBase(*sesion_.dialogo, sesion_.base)) terminar();
                break;
            case Accion::Submenu:
                break;
        }
    } catch (const std::exception& ex) {
        common::avisarErrorInesperado(*sesion_.dialogo, ex, nombre + "_Click", "Form1");
    }
}

QWidget* VentanaPrincipal::abrirPantalla(const std::string& formulario) {
    if (auto& w = abiertas_[formulario]; w) {
        w->raise();
        w->activateWindow();
        return w;
    }
    const auto& registro = registroPantallas();
    auto it = registro.find(formulario);
    if (it == registro.end()) return nullptr;
    QWidget* w = it->second(sesion_, this);
    w->setAttribute(Qt::WA_DeleteOnClose);
    if (auto* ingreso = qobject_cast<PantallaIngreso*>(w))
        connect(ingreso, &PantallaIngreso::ingreso, this, &VentanaPrincipal::ingresoCorrecto);
    abiertas_[formulario] = w;
    w->show();
    w->activateWindow();
    return w;
}

void VentanaPrincipal::mostrarAyuda() {
    if (!ayuda_) {
        ayuda_ = new VentanaAyuda(this);
        ayuda_->setAttribute(Qt::WA_DeleteOnClose);
    }
    ayuda_->show();
    ayuda_->raise();
}

void VentanaPrincipal::terminar() {
    terminando_ = true;
    close();
    QApplication::exit(0);
}

void VentanaPrincipal::closeEvent(QCloseEvent* e) {
    if (terminando_ ||
        sesion_.dialogo->confirmar("Salir del programa", "¿Desea salir del programa?")) {
        terminando_ = true;
        e->accept();
    } else {
        e->ignore();
    }
}

void VentanaPrincipal::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Escape) return void(close());
    QMainWindow::keyPressEvent(e);
}

}  // namespace nomira::ventana
