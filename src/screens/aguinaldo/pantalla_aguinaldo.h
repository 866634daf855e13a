#pragma once
// Form43 "Aguinaldos": el aguinaldo de junio o diciembre de una persona y una
// actividad, y el de toda la empresa. Usa la cabecera de Form42 (empresa, mes,
// persona); las grillas muestran las filas del pago: un haber por mes del
// semestre y actividad, y los descuentos. Todo cálculo es del motor.
#include <QLineEdit>
#include <QRadioButton>
#include <array>
#include <map>
#include <string>

#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"
#include "screens/haberes/avance_empresa.h"
#include "screens/haberes/cabecera_mes.h"
#include "screens/haberes/mes_abierto.h"

namespace nomira::pantallas {

class PantallaAguinaldo : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit PantallaAguinaldo(frame::Sesion& sesion, QWidget* padre = nullptr);

    // Para la captura: una persona con aguinaldo liquidado.
    Q_INVOKABLE void prepararCaptura();

  private:
    QWidget* armarActividad();
    QWidget* armarGrillas();
    QLayout* armarCifras();
    QWidget* armarGeneraciones();
    QWidget* armarTeclas();

    int actividad() const;
    void HabPerm_Click();
    void DescPerm_Click();
    void ActAguinxEmpresa_Click();
    void Consultar_Click();
    void olvidar();

    MesAbierto mes_;
    CabeceraMes* cabecera_ = nullptr;
    std::array<QRadioButton*, 3> actividades_{};
    ventana::Grilla *haberes_ = nullptr, *descuentos_ = nullptr;
    std::map<std::string, QLineEdit*> cifras_;
    AvanceEmpresa* avance_ = nullptr;
};

}  // namespace nomira::pantallas
