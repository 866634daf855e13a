#pragma once
// El manual en HTML de data/ayuda, en su propia ventana.
#include <QTextBrowser>

namespace nomira::ventana {

class VentanaAyuda : public QTextBrowser {
    Q_OBJECT
public:
    explicit VentanaAyuda(QWidget* padre = nullptr);
};

}  // namespace nomira::ventana
