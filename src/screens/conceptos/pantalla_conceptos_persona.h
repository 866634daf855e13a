#pragma once
// Form40, "Conceptos Permanentes x Personal": un concepto que no es permanente para
// todos se vuelve permanente para una persona.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"

namespace nomira::pantallas {

class PantallaConceptosPersona : public ventana::Pantalla {
    Q_OBJECT
public:
    explicit PantallaConceptosPersona(frame::Sesion& sesion, QWidget* padre = nullptr);

    QComboBox* empresa = new QComboBox;
    QComboBox* nombre = new QComboBox;
    QLineEdit* codigo = new QLineEdit;
    QLabel* concepto = new QLabel;
    ventana::Grilla* grilla = new ventana::Grilla;

private:
    void CargarNombredelPersonal();
    void Buscar_Click();
    void Consultar_Click();
    void Agregar_Click();
    void Eliminar_Click();
    void limpiar();
};

}  // namespace nomira::pantallas
