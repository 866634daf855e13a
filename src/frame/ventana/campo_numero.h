#pragma once
// Un campo de número (sueldo, importe, cantidad, tasa, horas...). El liquidador
// teclea la coma decimal ("1,5"); la base y las fórmulas reciben el punto ("1.5").
// Un importe mostrado con "##,##0.00" ("1,234.56") se lee igual que tecleado.
#include <QLineEdit>
#include <optional>
#include <string>
#include <string_view>

namespace nomira::ventana {

enum class ClaseNumero { Decimal, Entero };

// El número tecleado con "." decimal y sin separadores de miles; "" si no hay
// nada escrito; nada si no es un número. Con punto, las comas son de miles; sin
// punto, una sola coma es la decimal y varias, de miles (grupos de tres cifras).
std::optional<std::string> numeroTecleado(std::string_view texto,
                                          ClaseNumero clase = ClaseNumero::Decimal);

class CampoNumero : public QLineEdit {
    Q_OBJECT
  public:
    explicit CampoNumero(ClaseNumero clase = ClaseNumero::Decimal, QWidget* padre = nullptr);

    ClaseNumero clase() const { return clase_; }
    // Lo que se guarda: el número con "." decimal, o "" si está vacío. Un texto que
    // no es número da "": las pantallas revisan los campos antes de guardar.
    std::string valor() const;
    bool esValido() const;
    // El importe con la forma de las grillas, "##,##0.00".
    void ponerImporte(double importe);

  private:
    ClaseNumero clase_;
};

}  // namespace nomira::ventana
