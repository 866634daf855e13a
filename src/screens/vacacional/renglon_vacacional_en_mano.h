#pragma once
// La fila en mano del salario vacacional: las casillas de la fila de Form42
// más el período de la licencia (Desde, Hasta). Enter en el código la busca,
// en la cantidad la calcula y en el total la guarda (Agregar o Modificar).
// Las filas son de salvacacional; todo cálculo y toda regla son del motor.
#include <QWidget>
#include <optional>
#include <string>

#include "engine/vacacional/renglon_vacacional.h"
#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/pantalla.h"
#include "screens/haberes/cabecera_mes.h"
#include "screens/haberes/casillas_renglon.h"

namespace nomira::pantallas {

class RenglonVacacionalEnMano : public QWidget {
    Q_OBJECT
  public:
    RenglonVacacionalEnMano(ventana::Pantalla& pantalla, CabeceraMes& cabecera);

    void limpiar();
    // El código de una fila elegida en una grilla.
    void traer(const std::string& codigo);
    void agregar();
    void modificar();
    void eliminar();

    QLineEdit* campoCodigo() const { return c_.codigo; }
    QWidget* ultimoCampo() const { return hasta_; }

  signals:
    // Agregar sólo para una fila nueva; Modificar y Eliminar para una guardada.
    void hallada(bool existe);
    // Sin fila en mano: ni Agregar, ni Modificar, ni Eliminar.
    void vaciada();
    // Se escribió o se borró una fila: el mes se vuelve a mostrar.
    void mesCambiado();

  private:
    bool Buscar_Click();
    bool cantEnter();
    bool totalEnter();
    void guardar(const char* procedimiento);
    // Después de escribir o borrar: la fila en mano se vacía y se sigue por el código.
    void hecho();

    ventana::Pantalla& pantalla_;
    CabeceraMes& cabecera_;
    CasillasRenglon c_;
    ventana::CampoFecha *desde_ = nullptr, *hasta_ = nullptr;
    engine::ContextoFormula ctx_;
    std::optional<engine::VacacionalBuscado> buscado_;
};

}  // namespace nomira::pantallas
