#include "screens/empresas/piezas.h"

#include "frame/carpeta.h"
#include "frame/ventana/impresion.h"
#include "master/archivo_texto.h"
#include "master/configuracion.h"

namespace nomira::pantallas {

namespace {

QString rotulo(const QString& nombre, Qt::Key tecla) {
    if (tecla < Qt::Key_F1 || tecla > Qt::Key_F12) return nombre;
    return QString("%1 (F%2)").arg(nombre).arg(tecla - Qt::Key_F1 + 1);
}

}  // namespace

QPushButton* botonConTecla(const QString& nombre, Qt::Key tecla) {
    auto* b = new QPushButton(rotulo(nombre, tecla));
    b->setObjectName(nombre);
    b->setAutoDefault(false);
    return b;
}

QAction* accionConTecla(QToolBar* barra, const QString& nombre, Qt::Key tecla) {
    auto* a = barra->addAction(rotulo(nombre, tecla));
    a->setObjectName(nombre);
    return a;
}

void imprimirInforme(store::Conexion& base, const std::vector<std::string>& lineas,
                     const std::string& documento) {
    const auto destino =
        ventana::destinoDe(master::leerConfiguracion(base), ventana::UsoImpresora::Informes);
    ventana::imprimirLineas(lineas, destino, documento);
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

}  // namespace nomira::pantallas
