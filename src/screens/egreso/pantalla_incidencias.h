#pragma once
// Form70 "Incidencias del IPD" y Form76 "Incidencias de la licencia": una
// misma pantalla de consulta. Empresa, persona y fecha; Generar muestra la
// traza del cálculo del motor y Imprimir la manda a la impresora de informes.
// No escriben nada. La del IPD tiene además sus opciones: si entran las
// incidencias y la licencia y el salario vacacional que se suman al monto.
#include <QComboBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <string>

#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/campo_numero.h"
#include "frame/ventana/pantalla.h"

namespace nomira::pantallas {

enum class ClaseIncidencias { Ipd, Licencia };

class PantallaIncidencias : public ventana::Pantalla {
    Q_OBJECT
  public:
    PantallaIncidencias(frame::Sesion& sesion, ClaseIncidencias clase, QWidget* padre = nullptr);

    // Para la captura: la primera persona despedida (o egresada, en la de la
    // licencia) con su cálculo generado.
    Q_INVOKABLE void prepararCaptura();

    // La traza como la da el motor, con sus CR LF (la caja muestra saltos de línea).
    const std::string& traza() const { return traza_; }

  private:
    QWidget* armarOpcionesIpd();
    void CargarNombredelPersonal();
    void Generar_Click();
    void Imprimir_Click();

    ClaseIncidencias clase_;
    QComboBox *empresa_ = nullptr, *nombre_ = nullptr;
    ventana::CampoFecha* fecha_ = nullptr;
    QRadioButton* conIncidencias_ = nullptr;
    ventana::CampoNumero *licencia_ = nullptr, *vacacional_ = nullptr;
    QPlainTextEdit* texto_ = nullptr;
    std::string traza_;
};

}  // namespace nomira::pantallas
