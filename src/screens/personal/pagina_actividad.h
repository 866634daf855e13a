#pragma once
// Ficha de una persona, página "D.Lab. 1ra Act.": ingreso, sector y categoría,
// sueldo y su tipo, horas, egreso y antigüedad, horario y cuenta del banco (lo que
// se empaqueta en horario), tipos de remuneración, bases fictas, y los dos últimos
// cambios de categoría con la opción de deshacerlos.
#include "screens/personal/campos_ficha.h"

namespace nomira::pantallas {

class PaginaActividad : public PaginaFicha {
  public:
    explicit PaginaActividad(CamposFicha& campos);

    void volcar(master::Persona& p) const override;
    void cargar(const master::Persona& p) override;

    CamposActividad actividad;
    // "0", "1" o "2": ningún cambio de categoría, o cuál deshacer al modificar.
    ventana::GrupoOpciones* deshacer = nullptr;
    std::string referencias() const;

  private:
    QWidget* marcoCategorias();
    bool enterCantBfc();

    CamposFicha& campos_;
    ventana::CampoNumero *sueldo_ = nullptr, *htrab_ = nullptr, *cantbfc_ = nullptr;
    QLineEdit *exon_ = nullptr, *referencias_ = nullptr, *horario_ = nullptr, *cuenta_ = nullptr;
    ventana::CampoFecha* fechasuevig_ = nullptr;
    ventana::GrupoOpciones* tiposueldo_ = nullptr;
    QComboBox* banco_ = nullptr;
};

}  // namespace nomira::pantallas
