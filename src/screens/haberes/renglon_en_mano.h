#pragma once
// La fila en mano de Form42: código, concepto, unidad, cantidad y total. Enter en
// el código la busca, en la cantidad la calcula y en el total la guarda (Agregar o
// Modificar); Eliminar la borra.
#include <QLineEdit>
#include <QWidget>
#include <optional>
#include <string>

#include "engine/mes/renglon.h"
#include "frame/ventana/campo_numero.h"
#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"
#include "screens/haberes/cabecera_mes.h"
#include "screens/haberes/casillas_renglon.h"
#include "screens/haberes/mes_abierto.h"

namespace nomira::pantallas {

class RenglonEnMano : public QWidget {
    Q_OBJECT
  public:
    RenglonEnMano(ventana::Pantalla& pantalla, CabeceraMes& cabecera, MesAbierto& mes);

    void limpiar();
    // El código de una fila elegida en una grilla.
    void traer(const std::string& codigo);
    void agregar();
    void modificar();
    void eliminar();
    // La explicación de la fila en mano, o de la elegida en `grilla`.
    void comoSeCalculo(const ventana::Grilla* grilla);

    QLineEdit* campoCodigo() const { return c_.codigo; }
    QWidget* campoCant() const { return c_.cant; }
    QWidget* campoTotal() const { return c_.total; }

  signals:
    // Agregar sólo para una fila nueva; Modificar y Eliminar para una guardada.
    void hallada(bool existe);
    // Sin fila en mano: ni Agregar, ni Modificar, ni Eliminar.
    void vaciada();
    // Se escribió o se borró una fila: el mes se vuelve a mostrar.
    void mesCambiado();
    // La fila calculada fue el IRPF del mes.
    void impuesto(const engine::ImporteImpuesto& imp);

  private:
    bool Buscar_Click();
    bool Descripcion_Click();
    bool cantEnter();
    bool totalEnter();
    void guardar(const char* procedimiento);

    ventana::Pantalla& pantalla_;
    CabeceraMes& cabecera_;
    MesAbierto& abierto_;
    CasillasRenglon c_;
    std::optional<engine::RenglonBuscado> buscado_;
    std::optional<engine::CalculoRenglon> calculo_;
};

}  // namespace nomira::pantallas
