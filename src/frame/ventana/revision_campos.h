#pragma once
// La revisión de lo tecleado antes de guardar: todo campo de número y de fecha de
// una ventana, con un mensaje que nombra el campo. Vale para todas las pantallas.
#include <QString>
#include <QWidget>
#include <optional>
#include <string>

namespace nomira::ventana {

// El nombre con que el liquidador conoce el campo: la propiedad "rotulo", o la
// etiqueta que lo tiene por compañero (las de QFormLayout y de las rejillas), o
// su objectName.
QString rotuloDe(const QWidget* campo);

// El mensaje si lo escrito en un campo de número o de fecha no sirve; "" si sirve
// (o si no es un campo que se revise, o es de sólo lectura).
std::string problemaDe(const QWidget* campo);

struct CampoConProblema {
    QWidget* campo;
    std::string mensaje;
};
// El primero, en el orden de creación, de los campos de `ventana` que no sirven.
std::optional<CampoConProblema> primerCampoConProblema(const QWidget* ventana);

// Lleva el foco al campo, mostrando antes la página de pestañas donde esté.
void mostrarCampo(QWidget* campo);

}  // namespace nomira::ventana
