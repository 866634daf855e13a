#pragma once
// El recuadro del IRPF de Form42: las cifras del cálculo del mes que dejó la
// última fila IRPF y, en diciembre, el detalle del cierre del año.
#include <QGroupBox>
#include <QLineEdit>
#include <QWidget>
#include <vector>

#include "common/dinero.h"
#include "engine/calculos/irpf.h"
#include "engine/calculos/irpf_dic.h"

namespace nomira::pantallas {

class CuadroIRPF : public QGroupBox {
    Q_OBJECT
  public:
    explicit CuadroIRPF(QWidget* padre = nullptr);
    // Vacía las casillas y esconde el detalle del año.
    void limpiar();
    void mostrarMes(const engine::ResultadoIRPF& r, common::Dinero montoirpf,
                    common::Dinero montonominal);
    void mostrarDiciembre(const engine::ResultadoIRPFDic& r);

  private:
    QLineEdit* casilla(const char* nombre);
    QWidget* detalleAnio_ = nullptr;
};

}  // namespace nomira::pantallas
