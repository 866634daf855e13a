#include "frame/ventana/ventana_ayuda.h"

#include <QUrl>
#include <filesystem>

#include "frame/carpeta.h"

namespace nomira::ventana {

VentanaAyuda::VentanaAyuda(QWidget* padre, const QString& pagina) : QTextBrowser(padre) {
    setWindowFlag(Qt::Window);
    setObjectName("Ayuda");
    setWindowTitle("Ayuda de Nomira");
    setOpenExternalLinks(false);
    const auto indice = frame::carpetaDatos() / "ayuda" / "index.html";
    setSearchPaths({QString::fromStdString(indice.parent_path().string())});
    setSource(
        QUrl::fromLocalFile(pagina.isEmpty() ? QString::fromStdString(indice.string()) : pagina));
    resize(760, 560);
}

QString paginaDeAyuda(const QString& formulario) {
    const auto carpeta = frame::carpetaDatos() / "ayuda";
    const auto propia = carpeta / (formulario.toLower().toStdString() + ".html");
    return QString::fromStdString(
        (std::filesystem::exists(propia) ? propia : carpeta / "index.html").string());
}

VentanaAyuda* abrirAyuda(QWidget* padre, const QString& formulario) {
    auto* v = new VentanaAyuda(padre, paginaDeAyuda(formulario));
    v->setAttribute(Qt::WA_DeleteOnClose);
    v->show();
    return v;
}

}  // namespace nomira::ventana
