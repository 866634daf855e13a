#include "frame/ventana/ventana_ayuda.h"

#include <QUrl>

#include "frame/carpeta.h"

namespace nomira::ventana {

VentanaAyuda::VentanaAyuda(QWidget* padre) : QTextBrowser(padre) {
    setWindowFlag(Qt::Window);
    setObjectName("Ayuda");
    setWindowTitle("Ayuda de Nomira");
    setOpenExternalLinks(false);
    const auto indice = frame::carpetaDatos() / "ayuda" / "index.html";
    setSearchPaths({QString::fromStdString(indice.parent_path().string())});
    setSource(QUrl::fromLocalFile(QString::fromStdString(indice.string())));
    resize(760, 560);
}

}  // namespace nomira::ventana
