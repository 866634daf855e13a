#pragma once
// Piezas que comparten las pantallas de liquidación (el mes, el aguinaldo...):
// la fila de cifras de sólo lectura y las teclas que esperan su pantalla.
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"

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

// Las teclas de las pantallas que liquidan sin fila en mano (aguinaldo,
// egreso): F1, F2 y F3 (consultar), F8 y F9 (pendientes hasta los recibos) y
// F10 (los conceptos).
std::vector<ventana::AccionTecla> teclasSinFilaEnMano(ventana::Pantalla& pantalla,
                                                      std::function<void()> consultar);

// Un botón de generación: su objectName, su texto con la letra Alt y qué hace.
struct BotonGeneracion {
    const char* nombre;
    const char* texto;
    std::function<void()> accion;
};
// Los botones en un marco con título, en fila.
QGroupBox* marcoDeBotones(const char* titulo, const std::vector<BotonGeneracion>& botones);

// Los botones de `teclas` con esos nombres, deshabilitados hasta que llegue su pantalla.
void teclasPendientes(QWidget* teclas, std::initializer_list<const char*> nombres);

}  // namespace nomira::pantallas
