#pragma once
// Lo común de las pantallas: la sesión, los avisos con sus títulos, las teclas de
// función, Enter que pasa al campo siguiente y el cuadro "Error inesperado".
#include <QKeySequence>
#include <QWidget>
#include <functional>
#include <map>
#include <string>

#include "frame/sesion.h"

namespace nomira::ventana {

class Pantalla : public QWidget {
    Q_OBJECT
public:
    // `formulario` es el objectName ("Form21"); `titulo`, el de la ventana.
    Pantalla(frame::Sesion& sesion, const QString& formulario, const QString& titulo,
             QWidget* padre = nullptr);

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

    bool eventFilter(QObject* objeto, QEvent* evento) override;

    frame::Sesion& sesion_;

private:
    std::map<QObject*, std::function<bool()>> validaciones_;
};

}  // namespace nomira::ventana
