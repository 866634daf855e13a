#pragma once
// Las casillas de una fila tecleada por código (código, concepto, unidad,
// cantidad y total) con sus rótulos encima, como las usan las pantallas de
// liquidación. Cada pantalla conecta sus Enter y puede agregar columnas.
#include <QGridLayout>
#include <QLineEdit>
#include <QWidget>

#include "frame/ventana/campo_numero.h"

namespace nomira::pantallas {

struct CasillasRenglon {
    QLineEdit *codigo, *concepto, *unidad;
    ventana::CampoNumero *cant, *total;
    // Rótulos en la fila 0, casillas en la 1; las columnas 0 a 4 están ocupadas.
    QGridLayout* capa;

    void limpiar();
    // Un rótulo con su casilla en la columna siguiente de `capa`.
    void agregarColumna(const char* rotulo, QLineEdit* casilla);
};

// Arma las casillas dentro de `dueno`; el concepto se estira.
CasillasRenglon armarCasillasRenglon(QWidget* dueno);

// El ancho de `caracteres` cifras más el margen de la casilla.
void anchoEnCifras(QLineEdit* c, int caracteres);

}  // namespace nomira::pantallas
