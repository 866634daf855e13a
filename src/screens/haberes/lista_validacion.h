#pragma once
// Los hallazgos de la validación del mes juntos, en una lista que se lee de
// una vez, se copia al portapapeles o se imprime.
#include <QDialog>
#include <QTableWidget>
#include <string>
#include <vector>

#include "engine/validacion/validacion.h"

namespace nomira::pantallas {

class ListaValidacion : public QDialog {
    Q_OBJECT
  public:
    ListaValidacion(const std::string& titulo, const std::vector<engine::Hallazgo>& hallazgos,
                    QWidget* padre = nullptr);

    // Cada hallazgo en una línea: "control. persona: texto"; al final "Validación terminada.".
    std::vector<std::string> lineas() const { return lineas_; }

  signals:
    void imprimir();

  private:
    std::vector<std::string> lineas_;
};

}  // namespace nomira::pantallas
