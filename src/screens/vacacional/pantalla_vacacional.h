#pragma once
// Form44 "Salario Vacacional": las filas de salvacacional de una persona en un
// mes, tecleadas por código. Usa la cabecera de Form42 (empresa, fecha,
// persona) y sus grillas: a la izquierda los dos haberes posibles, a la derecha
// los descuentos; abajo las cifras del motor.
#include <QLineEdit>
#include <map>
#include <string>

#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"
#include "screens/haberes/cabecera_mes.h"
#include "screens/haberes/mes_abierto.h"
#include "screens/vacacional/renglon_vacacional_en_mano.h"

namespace nomira::pantallas {

class PantallaVacacional : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit PantallaVacacional(frame::Sesion& sesion, QWidget* padre = nullptr);

    // Para la captura: una persona con salario vacacional en el mes.
    Q_INVOKABLE void prepararCaptura();

  private:
    QWidget* armarGrillas();
    QLayout* armarCifras();
    QWidget* armarTeclas();

    // Consultar_Click: las grillas y las cifras (Desglose) del mes, leído de nuevo.
    void Consultar_Click();
    void olvidar();

    MesAbierto mes_;
    CabeceraMes* cabecera_ = nullptr;
    RenglonVacacionalEnMano* renglon_ = nullptr;
    ventana::Grilla *haberes_ = nullptr, *descuentos_ = nullptr;
    std::map<std::string, QLineEdit*> cifras_;
};

}  // namespace nomira::pantallas
