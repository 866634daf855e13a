#pragma once
// Ficha de una persona, página "Datos Personales": nombre, números, documento
// (con su dígito verificador), nacimiento, domicilio, y lo que se empaqueta en
// socmedica (T.Afap, C/A, N.Fam., L.19321, Multi Emp. y el monto del otro empleo).
#include <QLineEdit>

#include "screens/personal/campos_ficha.h"

namespace nomira::pantallas {

class PaginaPersonales : public PaginaFicha {
  public:
    explicit PaginaPersonales(CamposFicha& campos);

    void volcar(master::Persona& p) const override;
    void cargar(const master::Persona& p) override;

    QLineEdit *empresa = nullptr, *nombre = nullptr, *nrofun = nullptr, *nroord = nullptr;

  private:
    bool enterDocumento();

    CamposFicha& campos_;
    QLineEdit *documento_ = nullptr, *credencial_ = nullptr;
    ventana::GrupoOpciones *tafap_ = nullptr, *bseap_ = nullptr, *nfam_ = nullptr,
                           *l19321_ = nullptr, *multiemp_ = nullptr;
    ventana::CampoNumero* montoOtroEmpleo_ = nullptr;
};

}  // namespace nomira::pantallas
