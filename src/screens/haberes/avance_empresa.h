#pragma once
// El avance de una corrida sobre toda la empresa: la barra con la persona en
// curso y el botón que la detiene entre una persona y la siguiente.
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>
#include <functional>

#include "engine/mes/empresa_mes.h"

namespace nomira::pantallas {

class AvanceEmpresa : public QWidget {
    Q_OBJECT
  public:
    explicit AvanceEmpresa(QWidget* padre = nullptr);
    // Corre toda la empresa con la pantalla bloqueada salvo este avance (el
    // botón Detener), y lo deja limpio al terminar. La corrida usa progreso()
    // y cancelar().
    engine::ResultadoEmpresa correr(QWidget* pantalla,
                                    const std::function<engine::ResultadoEmpresa()>& corrida);
    // Prepara una corrida nueva: sin pedido de detenerse, el botón habilitado.
    void empezar();
    void terminar();
    // Sin barra ni persona: la corrida terminó y lo que muestra la pantalla es otra cosa.
    void limpiar();
    // Para el motor: muestra la persona y atiende los clics pendientes.
    engine::ProgresoEmpresa progreso();
    engine::CancelarEmpresa cancelar();
    bool corriendo() const { return corriendo_; }

  private:
    QProgressBar* barra_;
    QLabel* persona_;
    QPushButton* detener_;
    bool detenido_ = false, corriendo_ = false;
};

}  // namespace nomira::pantallas
