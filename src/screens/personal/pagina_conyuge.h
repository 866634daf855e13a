#pragma once
// Ficha de una persona, página "Datos Cónyuge": documento, nombre, nacimiento,
// nacionalidad, fechas, y lo que se empaqueta en sexocon (sexo e ingreso al SNS).
#include "screens/personal/campos_ficha.h"

namespace nomira::pantallas {

// Las palabras con que se muestran las letras guardadas de nacionalidad y sexo.
extern const std::vector<std::pair<QString, QString>> kNacionalidades;
extern const std::vector<std::pair<QString, QString>> kSexos;

class PaginaConyuge : public PaginaFicha {
  public:
    explicit PaginaConyuge(CamposFicha& campos);

    void volcar(master::Persona& p) const override;
    void cargar(const master::Persona& p) override;

  private:
    ventana::GrupoOpciones *sexocon_ = nullptr, *sns_ = nullptr;
};

}  // namespace nomira::pantallas
