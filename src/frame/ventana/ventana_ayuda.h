#pragma once
// El manual en HTML de data/ayuda, en su propia ventana.
#include <QString>
#include <QTextBrowser>

namespace nomira::ventana {

class VentanaAyuda : public QTextBrowser {
    Q_OBJECT
  public:
    // `pagina`: la ruta de una página del manual; vacía, el índice.
    explicit VentanaAyuda(QWidget* padre = nullptr, const QString& pagina = {});
};

// La página del manual de un formulario ("Form42" -> data/ayuda/form42.html), o
// el índice si no tiene una propia.
QString paginaDeAyuda(const QString& formulario);
// F1: la ayuda del formulario en su ventana, que se borra al cerrarla.
VentanaAyuda* abrirAyuda(QWidget* padre, const QString& formulario);

}  // namespace nomira::ventana
