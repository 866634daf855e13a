#pragma once
// Grillas de las pantallas: encabezados y filas de texto, los importes alineados a
// la derecha. En todas las listas un clic elige la fila y lleva sus claves a los
// campos de la pantalla; un doble clic o Enter la abre (la señal abrir).
#include <QStandardItemModel>
#include <QTableView>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace nomira::ventana {

class Grilla : public QTableView {
    Q_OBJECT
  public:
    explicit Grilla(QWidget* padre = nullptr);
    // `derecha`: índices de las columnas que se alinean a la derecha (importes).
    void mostrar(const std::vector<std::string>& encabezados,
                 const std::vector<std::vector<std::string>>& filas,
                 const std::set<int>& derecha = {});
    // Texto de la celda de la fila elegida, "" si no hay.
    std::string elegida(int columna) const;
    int filas() const { return modelo_->rowCount(); }
    // Al elegir una fila (clic o Enter), la celda de cada columna va a su campo: una
    // línea de texto o un combo. Lo conectado después a clicked ya los ve llenos.
    void llenarAlElegir(std::vector<std::pair<int, QWidget*>> campos);

  signals:
    void abrir();

  protected:
    void keyPressEvent(QKeyEvent* e) override;

  private:
    void llenarCampos();

    QStandardItemModel* modelo_;
    std::vector<std::pair<int, QWidget*>> campos_;
};

}  // namespace nomira::ventana
