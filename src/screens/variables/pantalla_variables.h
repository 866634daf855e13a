#pragma once
// Las ocho pantallas de variables fechadas: una sola clase, configurada por la
// tabla de sus instancias (título, variable fija o cualquiera, qué lista).
#include <QLineEdit>
#include <string>
#include <vector>

#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/campo_numero.h"
#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"

namespace nomira::pantallas {

struct InstanciaVariables {
    const char* formulario;
    const char* titulo;
    const char* variable;  // "" en OTROS: cualquier nombre
};

const std::vector<InstanciaVariables>& instanciasVariables();

class PantallaVariables : public ventana::Pantalla {
    Q_OBJECT
  public:
    PantallaVariables(frame::Sesion& sesion, const InstanciaVariables& instancia,
                      QWidget* padre = nullptr);

    QLineEdit* nombre = new QLineEdit;
    ventana::CampoFecha* fecha = new ventana::CampoFecha;
    ventana::CampoNumero* valor = new ventana::CampoNumero;
    ventana::Grilla* grilla = new ventana::Grilla;

  private:
    bool CalculoFecha();
    bool fechaCompleta();
    void Buscar_Click();
    void Consultar_Click();
    void Agregar_Click();
    void Eliminar_Click();
    void Imprimir_Click();
    void limpiar();

    InstanciaVariables instancia_;
};

}  // namespace nomira::pantallas
