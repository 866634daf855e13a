#pragma once
// El panel de generaciones de Form42: haberes y descuentos permanentes de la
// persona y sus borrados, las corridas de toda la empresa con su avance, y la
// pregunta por cómo se calculó una fila.
#include <QWidget>
#include <functional>
#include <optional>

#include "engine/mes/empresa_mes.h"
#include "engine/mes/renglon.h"
#include "frame/ventana/pantalla.h"
#include "screens/haberes/avance_empresa.h"
#include "screens/haberes/cabecera_mes.h"

namespace nomira::pantallas {

class PanelGeneraciones : public QWidget {
    Q_OBJECT
  public:
    PanelGeneraciones(ventana::Pantalla& pantalla, CabeceraMes& cabecera);

  signals:
    // Se escribieron o borraron filas del mes de la persona.
    void mesCambiado();
    // Lo que mostraba el recuadro del IRPF ya no vale.
    void irpfOlvidado();
    // Los descuentos del mes de la persona trajeron el IRPF.
    void impuesto(const engine::ImporteImpuesto& imp);
    // Después de toda la empresa: la pantalla vuelve a mostrar a la persona en pantalla.
    void empresaCorrida();
    void comoSeCalculo();

  private:
    void HabPerm_Click();
    void HabPerm2_Click();
    void DescPerm_Click();
    void DescPerm2_Click();
    using CorridaEmpresa = std::function<engine::ResultadoEmpresa(const common::Mes&)>;
    std::optional<engine::ResultadoEmpresa> correrEmpresa(const CorridaEmpresa& correr);
    void ActHamPermxEmpresa_Click();
    void ActDesPermxEmpresa_Click();

    ventana::Pantalla& pantalla_;
    CabeceraMes& cabecera_;
    AvanceEmpresa* avance_ = nullptr;
};

}  // namespace nomira::pantallas
