#pragma once
// Un marco de opciones excluyentes que lee y escribe el texto guardado en la base
// ("Si"/"No", "todos"/"uno"/"algunos"...).
#include <QGroupBox>
#include <QRadioButton>
#include <utility>
#include <vector>

namespace nomira::ventana {

class GrupoOpciones : public QGroupBox {
public:
    // Pares de (valor guardado, etiqueta en pantalla); la primera queda elegida.
    GrupoOpciones(const QString& titulo, std::vector<std::pair<QString, QString>> opciones,
                  QWidget* padre = nullptr);
    static GrupoOpciones* siNo(const QString& titulo, QWidget* padre = nullptr);

    QString valor() const;
    // Un valor desconocido deja la primera opción.
    void ponerValor(const QString& valor);

private:
    std::vector<std::pair<QString, QRadioButton*>> opciones_;
};

}  // namespace nomira::ventana
