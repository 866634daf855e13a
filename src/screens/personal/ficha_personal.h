#pragma once
// Form31: la ficha de una persona, en siete páginas, una clase cada una. La abre la
// pantalla Personal con la empresa y el nombre elegidos; la ficha nunca elige
// persona por sí misma.
#include <QPushButton>
#include <QTabWidget>
#include <functional>
#include <vector>

#include "frame/ventana/pantalla.h"
#include "master/personal.h"
#include "screens/personal/campos_ficha.h"

namespace nomira::pantallas {

class PaginaPersonales;
class PaginaActividad;

class FichaPersonal : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit FichaPersonal(frame::Sesion& sesion, QWidget* padre = nullptr);

    // Ficha vacía para agregar, con los números propuestos.
    void nueva(const std::string& empresa, const std::string& nombre);
    // La persona guardada, para modificarla o eliminarla; false si no está.
    bool abrir(const std::string& empresa, const std::string& nombre);

    // Lo que avisa a la pantalla Personal: nombre agregado (true) o eliminado (false).
    std::function<void(const std::string&, bool)> alCambiarNombres;

    master::Persona juntar() const;
    void mostrar(const master::Persona& p);

    void agregar();
    void modificar();
    void eliminar();
    void imprimir();

  private:
    void leerConsejo(const std::string& empresa);
    void recargarSectores();
    void limpiar();
    void ponerModo(bool existente);
    void preguntarGafi(const master::Persona& p);

    CamposFicha campos_;
    QTabWidget* paginas_ = nullptr;
    std::vector<PaginaFicha*> todas_;
    std::vector<CamposActividad*> actividades_;
    PaginaPersonales* personales_ = nullptr;
    PaginaActividad* primera_ = nullptr;
    QPushButton *agregar_ = nullptr, *modificar_ = nullptr, *eliminar_ = nullptr,
                *imprimir_ = nullptr;
};

}  // namespace nomira::pantallas
