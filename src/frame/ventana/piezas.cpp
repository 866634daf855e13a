#include "frame/ventana/piezas.h"

#include "frame/carpeta.h"
#include "frame/ventana/pantalla.h"
#include "master/archivo_texto.h"

namespace nomira::ventana {

QPushButton* botonConTecla(const QString& nombre, Qt::Key tecla) {
    auto* b = new QPushButton(rotuloTecla(nombre, tecla));
    b->setObjectName(nombre);
    b->setAutoDefault(false);
    return b;
}

QAction* accionConTecla(QToolBar* barra, const QString& nombre, Qt::Key tecla) {
    auto* a = barra->addAction(rotuloTecla(nombre, tecla));
    a->setObjectName(nombre);
    return a;
}

void llevarListado(const std::vector<std::string>& lineas, const std::string& archivo,
                   const std::function<QString()>& elegirCarpeta) {
    const auto ruta = frame::rutaSoftware(archivo);
    master::guardarLineas(ruta, lineas);
    const QString carpeta = elegirCarpeta();
    if (carpeta.isEmpty()) {
        std::filesystem::remove(ruta);
        return;
    }
    master::llevarACarpeta(ruta, carpeta.toStdString());
}

}  // namespace nomira::ventana
