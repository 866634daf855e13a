#pragma once
// Piezas que comparten las pantallas: botones con su tecla y la copia de
// listados a una carpeta.
#include <QAction>
#include <QPushButton>
#include <QString>
#include <QToolBar>
#include <functional>
#include <string>
#include <vector>

#include "frame/ventana/texto_qt.h"

namespace nomira::ventana {

// "F5 Agregar", con objectName "Agregar"; sin tecla, sólo el nombre.
QPushButton* botonConTecla(const QString& nombre, Qt::Key tecla = Qt::Key_unknown);
QAction* accionConTecla(QToolBar* barra, const QString& nombre, Qt::Key tecla);

// GuardarOficial y su copia: las líneas en "<raíz>/Software/<archivo>", que se
// llevan a la carpeta elegida; si no se elige ninguna, no queda nada.
void llevarListado(const std::vector<std::string>& lineas, const std::string& archivo,
                   const std::function<QString()>& elegirCarpeta);

}  // namespace nomira::ventana
