#pragma once
// Lo común de las pantallas: la sesión, los avisos con sus títulos, las teclas de
// función, Enter que pasa al campo siguiente y el cuadro "Error inesperado".
#include <QHBoxLayout>
#include <QKeySequence>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "frame/sesion.h"

namespace nomira::ventana {

// Una tecla de función con su botón: "F5 Agregar" se llama "Agregar".
struct AccionTecla {
    Qt::Key tecla;
    const char* texto;
    std::function<void()> hacer;
};

// El rótulo de un botón con su tecla ("F5 Agregar"); sin tecla de función, el nombre solo.
QString rotuloTecla(const QString& nombre, Qt::Key tecla);

class Pantalla : public QWidget {
    Q_OBJECT
public:
    // `formulario` es el objectName ("Form21"); `titulo`, el de la ventana.
    Pantalla(frame::Sesion& sesion, const QString& formulario, const QString& titulo,
             QWidget* padre = nullptr);
    ~Pantalla() override;

    // Enter en `campo` corre `validar`; si devuelve false el foco se queda.
    void alPulsarEnter(QWidget* campo, std::function<bool()> validar);

protected:
    store::Conexion& base() { return *sesion_.base; }
    common::Dialogo& dialogo() { return *sesion_.dialogo; }
    // "Mensaje de advertencia".
    void advertir(const std::string& texto);
    void informar(const std::string& texto);
    // "¿Desea continuar?" con la operación como título.
    bool confirmar(const std::string& titulo, bool porDefectoSi = true);
    // Corre la acción; si falla, muestra "Error inesperado <n> en <procedimiento> del <FormN> ".
    void intentar(const char* procedimiento, const std::function<void()>& accion);
    // Una tecla de la pantalla (F5 Agregar...), activa en cualquiera de sus campos.
    void tecla(const QKeySequence& secuencia, std::function<void()> accion);

    // Los botones con sus teclas. La tecla de un botón deshabilitado no hace nada.
    QHBoxLayout* botonera(const std::vector<AccionTecla>& acciones);
    QPushButton* boton(const QString& nombre) const;
    // Habilita sólo Agregar, o sólo Modificar y Eliminar, según se haya encontrado la fila.
    void habilitarSegunHallado(bool hallado);
    void ayuda();
    // Muestra una pantalla hija que se borra al cerrarla; `alCerrar` corre entonces,
    // salvo que la que se cierre sea esta (sus hijas mueren con ella).
    void abrirHija(QWidget* hija, std::function<void()> alCerrar);
    // A la impresora de informes de la configuración.
    void imprimirInforme(const std::vector<std::string>& lineas, const std::string& documento);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

    frame::Sesion& sesion_;

private:
    std::map<QObject*, std::function<bool()>> validaciones_;
    std::vector<QMetaObject::Connection> hijas_;
};

}  // namespace nomira::ventana
