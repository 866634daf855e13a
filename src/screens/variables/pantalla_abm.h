#pragma once
// Lo común de las pantallas de alta, búsqueda y baja de datos maestros: una fila de
// botones con su tecla de función cada uno, la ayuda y la impresión de un listado.
#include <QHBoxLayout>
#include <QPushButton>
#include <functional>
#include <string>
#include <vector>

#include "frame/ventana/pantalla.h"

namespace nomira::pantallas {

struct Accion {
    Qt::Key tecla;
    const char* texto;  // "F5 Agregar": el botón se llama como la palabra tras la tecla
    std::function<void()> hacer;
};

class PantallaAbm : public ventana::Pantalla {
    Q_OBJECT
public:
    using Pantalla::Pantalla;
    ~PantallaAbm() override;

protected:
    // Los botones con sus teclas. La tecla de un botón deshabilitado no hace nada.
    QHBoxLayout* botonera(const std::vector<Accion>& acciones);
    QPushButton* boton(const QString& nombre) const;
    // Habilita sólo Agregar o sólo Eliminar (y Modificar), según se haya encontrado la fila.
    void habilitarSegunHallado(bool hallado);
    void ayuda();
    // Muestra una pantalla hija que se borra al cerrarla; `alCerrar` corre entonces,
    // salvo que la que se cierre sea esta (sus hijas mueren con ella).
    void abrirHija(QWidget* hija, std::function<void()> alCerrar);
    // A la impresora de informes.
    void imprimirInforme(const std::vector<std::string>& lineas, const std::string& documento);

private:
    std::vector<QMetaObject::Connection> hijas_;
};

}  // namespace nomira::pantallas
