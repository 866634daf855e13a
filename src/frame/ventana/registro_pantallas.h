#pragma once
// Las pantallas que abre el menú, por número de formulario. Cada subsistema
// registra las suyas antes de crear la ventana principal; una entrada sin pantalla registrada queda deshabilitada.
#include <QWidget>
#include <functional>
#include <map>
#include <string>

#include "frame/sesion.h"

namespace nomira::ventana {

using FabricaPantalla = std::function<QWidget*(frame::Sesion&, QWidget* padre)>;

std::map<std::string, FabricaPantalla>& registroPantallas();

// Registra las pantallas del marco (ingreso, configuración). Llamarla una vez al iniciar.
void registrarPantallasDelMarco();

}  // namespace nomira::ventana
