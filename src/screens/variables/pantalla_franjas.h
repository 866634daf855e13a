#pragma once
// Form406, "Franjas IRPF": alta, búsqueda y baja de las franjas por su número.
#include <QLineEdit>

#include "frame/ventana/campo_numero.h"

#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"

namespace nomira::pantallas {

class PantallaFranjas : public ventana::Pantalla {
    Q_OBJECT
  public:
    PantallaFranjas(frame::Sesion& sesion, QWidget* padre = nullptr);

    ventana::CampoNumero* franja = new ventana::CampoNumero(ventana::ClaseNumero::Entero);
    ventana::CampoNumero* min = new ventana::CampoNumero;
    ventana::CampoNumero* max = new ventana::CampoNumero;
    ventana::CampoNumero* tasa = new ventana::CampoNumero;
    ventana::Grilla* grilla = new ventana::Grilla;

  private:
    void Buscar_Click();
    void Consultar_Click();
    void Agregar_Click();
    void Eliminar_Click();
    void Imprimir_Click();
    void limpiar();
};

}  // namespace nomira::pantallas
