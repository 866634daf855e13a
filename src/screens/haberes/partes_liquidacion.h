#pragma once
// Piezas que comparten las pantallas de liquidación (el mes, el aguinaldo...):
// la fila de cifras de sólo lectura y las teclas que esperan su pantalla.
#include <QHBoxLayout>
#include <QLineEdit>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>

#include "frame/ventana/grilla.h"

namespace nomira::pantallas {

// Un rótulo y una casilla de sólo lectura, alineada a la derecha, por cifra;
// las casillas quedan en `cifras` por su objectName.
QHBoxLayout* filaDeCifras(std::initializer_list<std::pair<const char*, const char*>> nombres,
                          std::map<std::string, QLineEdit*>& cifras);

// Las grillas de haberes y de descuentos lado a lado, cada una en su marco,
// con los objectName "haberes" y "descuentos"; no toman el foco con Tab.
struct GrillasLiquidacion {
    QWidget* contenedor;
    ventana::Grilla *haberes, *descuentos;
};
GrillasLiquidacion grillasLiquidacion(const char* tituloHaberes);

// Los botones de `teclas` con esos nombres, deshabilitados hasta que llegue su pantalla.
void teclasPendientes(QWidget* teclas, std::initializer_list<const char*> nombres);

}  // namespace nomira::pantallas
