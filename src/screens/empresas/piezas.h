#pragma once
// Piezas que comparten las pantallas de empresas, obras y catálogos: textos
// entre Qt y la base, botones con su tecla, impresión y copia de listados.
#include <QAction>
#include <QPushButton>
#include <QString>
#include <QToolBar>
#include <functional>
#include <string>
#include <vector>

#include "store/conexion.h"

namespace nomira::pantallas {

inline QString aQt(const std::string& s) {
    return QString::fromStdString(s);
}
// Lo escrito en un campo, sin los blancos de los extremos.
inline std::string deQt(const QString& q) {
    return q.trimmed().toStdString();
}

// "F5 Agregar", con objectName "Agregar"; sin tecla, sólo el nombre.
QPushButton* botonConTecla(const QString& nombre, Qt::Key tecla = Qt::Key_unknown);
QAction* accionConTecla(QToolBar* barra, const QString& nombre, Qt::Key tecla);

// GuardarOficial y su copia: las líneas en "<raíz>/Software/<archivo>", que se
// llevan a la carpeta elegida; si no se elige ninguna, no queda nada.
void llevarListado(const std::vector<std::string>& lineas, const std::string& archivo,
                   const std::function<QString()>& elegirCarpeta);

}  // namespace nomira::pantallas
