#pragma once
// La ventana principal (Form1): menú, barra de herramientas y atajos de teclado.
#include <QMainWindow>
#include <QPointer>
#include <map>
#include <string>

#include "frame/menu.h"
#include "frame/sesion.h"

class QAction;
class QMenu;

namespace nomira::ventana {

class VentanaPrincipal : public QMainWindow {
    Q_OBJECT
public:
    explicit VentanaPrincipal(frame::Sesion& sesion);

    // Lo mismo que un clic en la entrada del menú con ese nombre.
    void ejecutar(const std::string& entrada);
    // Abre (o trae al frente) la pantalla de un formulario, sin mirar permisos.
    QWidget* abrirPantalla(const std::string& formulario);
    QAction* accion(const std::string& entrada) const;
    QMenu* menu(const std::string& nombre) const;

    // Tras el ingreso se abren los menús.
    void ingresoCorrecto();
    // Terminar sin preguntar (después de reparar o compactar).
    void terminar();

protected:
    void closeEvent(QCloseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    void construirMenu();
    void construirBarra();
    void construirAtajos();
    void abrirMenus(bool abiertos);
    void mostrarAyuda();

    frame::Sesion& sesion_;
    std::map<std::string, QAction*> acciones_;
    std::map<std::string, QMenu*> menus_;
    std::map<std::string, QPointer<QWidget>> abiertas_;
    QPointer<QWidget> ayuda_;
    bool terminando_ = false;
};

}  // namespace nomira::ventana
