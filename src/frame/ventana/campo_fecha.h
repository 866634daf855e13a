#pragma once
// Un campo de fecha "dd/mm/aa" (o de mes, "MM/aa"): la barra se agrega sola
// después del segundo y del quinto carácter (y la que teclea el liquidador no se
// duplica), y Enter comprueba la forma.
#include <QLineEdit>

namespace nomira::ventana {

inline constexpr const char* kFormatoFecha =
    "Los campos de tipo fecha deben tener el formato: dd/mm/aa.";

enum class FormaFecha { Dia, Mes };

class CampoFecha : public QLineEdit {
    Q_OBJECT
  public:
    explicit CampoFecha(QWidget* padre = nullptr, FormaFecha forma = FormaFecha::Dia);
    // Largo 8 con "/" en el tercer y el sexto carácter (un mes: largo 5 con "/" en
    // el tercero); vacío vale si `vacioValido`.
    bool formatoValido(bool vacioValido = true) const;
    // Con la forma y además un día (o mes) que existe: "31/02/26" no lo es. Vacío vale.
    bool esValida() const;
    FormaFecha forma() const { return forma_; }

  protected:
    void keyPressEvent(QKeyEvent* e) override;

  private:
    FormaFecha forma_;
};

}  // namespace nomira::ventana
