#pragma once
// Lo común de las pantallas: la sesión, los avisos con sus títulos, las teclas de
// función, Enter que pasa al campo siguiente, la revisión de los números y fechas
// tecleados, el cuadro "Error inesperado", la ayuda de cada pantalla y un tamaño
// que entra en el escritorio (lo que no entra se recorre con barras).
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "frame/sesion.h"

namespace nomira::ventana {

// Una tecla de función con su botón: "F5 Agregar" (o "F5-Agregar") se llama "Agregar".
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

    // Lo que usan también las partes de una pantalla (la cabecera, la fila en mano...).
    store::Conexion& base() { return *sesion_.base; }
    common::Dialogo& dialogo() { return *sesion_.dialogo; }
    // "Mensaje de advertencia".
    void advertir(const std::string& texto);
    void informar(const std::string& texto);
    // "¿Desea continuar?" con la operación como título.
    bool confirmar(const std::string& titulo, bool porDefectoSi = true);
    // Corre la acción; si falla, muestra "Error inesperado <n> en <procedimiento> del <FormN> ".
    void intentar(const char* procedimiento, const std::function<void()>& accion);
    // Antes de guardar: cada número y cada fecha de la pantalla. Avisa del primero que
    // no sirve, nombrando el campo, y le devuelve el foco.
    bool camposValidos();
    // Lo mismo para un solo campo.
    bool campoValido(QWidget* campo);

    // El tamaño con que la pantalla se mostraría entera: el de su contenido, o el
    // pedido si es mayor. Al mostrarse se acota al escritorio.
    QSize tamanoDeseado() const;
    void ayuda();

    QPushButton* boton(const QString& nombre) const;
    // Habilita sólo Agregar, o sólo Modificar y Eliminar, según se haya encontrado la fila.
    void habilitarSegunHallado(bool hallado);
    // Lo que mostraba la última búsqueda ya no vale (otra clave, una fila elegida sin
    // abrir): vacía esos campos y apaga Agregar y Eliminar hasta buscar de nuevo.
    void olvidarHallado(std::initializer_list<QLineEdit*> mostrados);
    // Muestra una pantalla hija que se borra al cerrarla; `alCerrar` corre entonces,
    // salvo que la que se cierre sea esta (sus hijas mueren con ella).
    void abrirHija(QWidget* hija, std::function<void()> alCerrar);
    // La pantalla registrada con ese formulario, como hija (F10: "Form4", los conceptos).
    void abrirRegistrada(const char* formulario);

  protected:
    // Donde cada pantalla pone su capa: va dentro de un área con barras.
    QWidget* lienzo() const { return lienzo_; }
    // El tamaño que la pantalla prefiere si el escritorio lo permite.
    void pedirTamano(int ancho, int alto) { pedido_ = QSize(ancho, alto); }
    // Una ficha: modal, Esc la cierra como su botón Salir.
    void hacerFicha();
    // Una tecla de la pantalla (F5 Agregar...), activa en cualquiera de sus campos.
    void tecla(const QKeySequence& secuencia, std::function<void()> accion);

    // Los botones con sus teclas. La tecla de un botón deshabilitado no hace nada.
    QHBoxLayout* botonera(const std::vector<AccionTecla>& acciones);
    // La botonera en el marco "Teclas Funciones" de las pantallas de liquidación.
    QGroupBox* teclasFunciones(const std::vector<AccionTecla>& acciones);
    // A la impresora de informes de la configuración.
    void imprimirInforme(const std::vector<std::string>& lineas, const std::string& documento);

    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

    frame::Sesion& sesion_;

  private:
    void ajustarAlEscritorio();

    QScrollArea* area_;
    QWidget* lienzo_;
    QSize pedido_;
    bool ajustada_ = false;
    std::set<int> teclas_;
    std::map<QObject*, std::function<bool()>> validaciones_;
    std::vector<QMetaObject::Connection> hijas_;
};

}  // namespace nomira::ventana
