#pragma once
// Form41: un concepto, para agregarlo, modificarlo o eliminarlo; sólo el botón de
// la operación pedida en Form4 queda habilitado.
#include <QLineEdit>

#include "frame/ventana/grupo_opciones.h"
#include "frame/ventana/pantalla.h"
#include "master/conceptos.h"

namespace nomira::pantallas {

enum class ModoConcepto { Agregar, Modificar, Eliminar };

class PantallaConcepto : public ventana::Pantalla {
    Q_OBJECT
  public:
    PantallaConcepto(frame::Sesion& sesion, long codigo, ModoConcepto modo,
                     QWidget* padre = nullptr);

    QLineEdit* codigo = new QLineEdit;
    QLineEdit* concepto = new QLineEdit;
    QLineEdit* formula = new QLineEdit;
    ventana::GrupoOpciones* especificode;
    ventana::GrupoOpciones* tipo;
    ventana::GrupoOpciones* unidad;
    ventana::GrupoOpciones* permanente;
    ventana::GrupoOpciones* gravado;
    ventana::GrupoOpciones* aguinaldo;
    ventana::GrupoOpciones* lic;
    ventana::GrupoOpciones* ipd;

  private:
    master::Concepto leido() const;
    void cargar(const master::Concepto& c);
    // La fórmula se puede evaluar; si no, avisa con el mensaje y el lugar del error.
    bool formulaEvaluable();
    void Agregar_Click();
    void Modificar_Click();
    void Eliminar_Click();
};

}  // namespace nomira::pantallas
