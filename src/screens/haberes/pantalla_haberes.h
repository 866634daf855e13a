#pragma once
// Form42 "Haberes y Descuentos": el mes de una persona. Junta las partes (la
// cabecera con empresa, mes y persona; la fila en mano; el panel de generaciones)
// con las dos grillas, las cifras del mes y el recuadro del IRPF. Todo cálculo es
// del motor.
#include <QLineEdit>
#include <map>
#include <string>

#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"
#include "screens/haberes/cabecera_mes.h"
#include "screens/haberes/cuadro_irpf.h"
#include "screens/haberes/mes_abierto.h"
#include "screens/haberes/panel_generaciones.h"
#include "screens/haberes/renglon_en_mano.h"

namespace nomira::pantallas {

class PantallaHaberes : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit PantallaHaberes(frame::Sesion& sesion, QWidget* padre = nullptr);

    // Para la captura: deja abierto el mes de una persona que tenga filas.
    Q_INVOKABLE void prepararCaptura();

  private:
    QWidget* armarGrillas();
    QLayout* armarCifras();
    QWidget* armarTeclas();

    // Consultar_Click: las grillas y las cifras del mes abierto.
    void Consultar_Click();
    void Refrescar();
    // F12: la validación del mes de la empresa, con sus hallazgos en una lista.
    void Validar_Click();
    void olvidarMes();
    // Después de escribir: el mes se vuelve a leer entero.
    void releer();
    void mostrarIRPF(const engine::ImporteImpuesto& imp);

    MesAbierto mes_;
    CabeceraMes* cabecera_ = nullptr;
    RenglonEnMano* renglon_ = nullptr;
    PanelGeneraciones* generaciones_ = nullptr;
    ventana::Grilla *haberes_ = nullptr, *descuentos_ = nullptr;
    ventana::Grilla* ultimaGrilla_ = nullptr;
    std::map<std::string, QLineEdit*> cifras_;
    CuadroIRPF* irpf_ = nullptr;
};

}  // namespace nomira::pantallas
