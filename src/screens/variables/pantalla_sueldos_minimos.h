#pragma once
// Form407, "Sueldos Mínimos por Categoría": grupo, subgrupo, sector y categoría
// encadenados, el período y el sueldo; abre Form408 para los aumentos.
#include <QLineEdit>

#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/campo_numero.h"
#include "frame/ventana/combo_catalogo.h"
#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"
#include "master/sueldos_minimos.h"

namespace nomira::pantallas {

class PantallaSueldosMinimos : public ventana::Pantalla {
    Q_OBJECT
  public:
    PantallaSueldosMinimos(frame::Sesion& sesion, QWidget* padre = nullptr);

    ventana::ComboCatalogo* grupo;
    ventana::ComboCatalogo* subgrupo;
    ventana::ComboCatalogo* sector;
    ventana::ComboCatalogo* categoria;
    ventana::CampoFecha* fechaini = new ventana::CampoFecha;
    ventana::CampoFecha* fechafin = new ventana::CampoFecha;
    ventana::CampoNumero* sueldo = new ventana::CampoNumero;
    ventana::Grilla* grilla = new ventana::Grilla;

  private:
    // Los textos elegidos, sin el código del catálogo: lo que guarda la tabla.
    master::CategoriaLaboral elegida() const;
    // Cuántos de los cuatro combos, en orden, tienen texto.
    int completos() const;
    bool validarHasta(int campos);
    void Buscar_Click();
    void Consultar_Click();
    void Agregar_Click();
    void Eliminar_Click();
    void Porcaum_Click();
    void limpiar();
};

}  // namespace nomira::pantallas
