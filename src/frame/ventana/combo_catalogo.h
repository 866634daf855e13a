#pragma once
// Un combo de catálogo: se llena con una consulta y la tecla "*" ("Traer Tabla")
// abre la pantalla del catálogo; al cerrarla, la lista se vuelve a cargar.
#include <QComboBox>
#include <functional>
#include <string>
#include <vector>

#include "frame/sesion.h"

namespace nomira::ventana {

class ComboCatalogo : public QComboBox {
    Q_OBJECT
public:
    using Cargador = std::function<std::vector<std::string>()>;
    // `formulario` es la pantalla del catálogo ("Form390"); vacío si no tiene.
    ComboCatalogo(frame::Sesion& sesion, std::string formulario, Cargador cargador,
                  QWidget* padre = nullptr);

    // Vuelve a consultar la lista y conserva el texto escrito.
    void recargar();
    void cambiarCargador(Cargador cargador);

protected:
    void keyPressEvent(QKeyEvent* e) override;

private:
    frame::Sesion& sesion_;
    std::string formulario_;
    Cargador cargador_;
};

}  // namespace nomira::ventana
