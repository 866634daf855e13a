#pragma once
// Form45 "Liquidación por Egreso": la pasada de una persona y una actividad
// (sueldo de los días del último mes, aguinaldo hasta el egreso, licencia no
// gozada, salario vacacional e IPD) y sus descuentos, en egresos, y las filas
// que se teclean (jornales, horas...). Usa la cabecera y la fila en mano de
// Form42 sobre egresos; todo cálculo es del motor.
#include <QLineEdit>
#include <map>
#include <string>

#include "frame/ventana/grilla.h"
#include "frame/ventana/grupo_opciones.h"
#include "frame/ventana/pantalla.h"
#include "screens/haberes/cabecera_mes.h"
#include "screens/haberes/mes_abierto.h"
#include "screens/haberes/renglon_en_mano.h"

namespace nomira::pantallas {

class PantallaEgreso : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit PantallaEgreso(frame::Sesion& sesion, QWidget* padre = nullptr);

    // Para la captura: una persona con su egreso liquidado.
    Q_INVOKABLE void prepararCaptura();

  private:
    QWidget* armarBotones();
    QWidget* armarTeclas();
    void HabPerm_Click();
    void DescPerm_Click();
    void Consultar_Click();
    void olvidar();

    MesAbierto mes_;
    CabeceraMes* cabecera_ = nullptr;
    RenglonEnMano* renglon_ = nullptr;
    ventana::GrupoOpciones *actividad_ = nullptr, *incidencias_ = nullptr, *vacacional_ = nullptr,
                           *licencia_ = nullptr;
    ventana::Grilla *haberes_ = nullptr, *descuentos_ = nullptr;
    std::map<std::string, QLineEdit*> cifras_;
};

}  // namespace nomira::pantallas
