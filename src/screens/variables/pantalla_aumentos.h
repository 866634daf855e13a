#pragma once
// Form408, "Actualizar Sueldos": el porcentaje de recuperación e inflación, el
// aumento de los mínimos de las categorías de un sector (y su deshacer), y el
// aumento o la baja de los sueldos de una empresa.
#include <QComboBox>
#include <QLineEdit>

#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/campo_numero.h"
#include "frame/ventana/combo_catalogo.h"
#include "frame/ventana/pantalla.h"
#include "master/sueldos_minimos.h"

namespace nomira::pantallas {

class PantallaAumentos : public ventana::Pantalla {
    Q_OBJECT
  public:
    // `sector`: grupo, subgrupo y sector elegidos en Form407 (la categoría no cuenta).
    PantallaAumentos(frame::Sesion& sesion, master::CategoriaLaboral sector,
                     QWidget* padre = nullptr);

    ventana::CampoNumero* recuperacion = new ventana::CampoNumero;
    ventana::CampoNumero* inflacion = new ventana::CampoNumero;
    ventana::CampoNumero* porcentaje = new ventana::CampoNumero;
    QComboBox* empresa = new QComboBox;
    ventana::ComboCatalogo* categoria;
    ventana::CampoFecha* fsuevig = new ventana::CampoFecha;

  private:
    bool calcularPorcentaje();
    void AumentarSueldosCategorias_Click();
    void Eliminar_Click();
    void AumentarSueldosEmpresa_Click(bool bajar);
    void finalizado(const char* texto);

    master::CategoriaLaboral sector_;
};

}  // namespace nomira::pantallas
