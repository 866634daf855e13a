#pragma once
// Form4, "Conceptos y Fórmulas": la lista de conceptos, la búsqueda por código o por
// texto, el listado impreso y la copia en conceptos.txt; abre Form41 para cada alta,
// modificación o baja.
#include <QComboBox>
#include <QLineEdit>

#include "frame/ventana/grilla.h"
#include "master/conceptos.h"
#include "frame/ventana/pantalla.h"

namespace nomira::pantallas {

class PantallaConceptos : public ventana::Pantalla {
    Q_OBJECT
public:
    explicit PantallaConceptos(frame::Sesion& sesion, QWidget* padre = nullptr);

    // El código en mano, que lee Form41.
    long codigo() const;

    QLineEdit* textoCodigo = new QLineEdit;
    QLineEdit* buscarPor = new QLineEdit;
    QComboBox* criterio = new QComboBox;
    ventana::Grilla* grilla = new ventana::Grilla;

private:
    void Buscar_Click();
    void Consultar_Click();
    void abrirConcepto(int modo);
    void Imprimir_Click();
    void GuardarOficial();
    void Desplegar(const std::vector<master::Concepto>& conceptos);
};

}  // namespace nomira::pantallas
