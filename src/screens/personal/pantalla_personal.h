#pragma once
// Form3 "Personal": el personal de una empresa en una grilla, con las claves de
// orden y búsqueda, y la puerta a la ficha de cada persona.
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <vector>

#include "frame/ventana/grilla.h"
#include "frame/ventana/grupo_opciones.h"
#include "frame/ventana/pantalla.h"
#include "master/listado_personal.h"
#include "screens/personal/ficha_personal.h"

namespace nomira::pantallas {

class PantallaPersonal : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit PantallaPersonal(frame::Sesion& sesion, QWidget* padre = nullptr);

    void buscar();
    void consultar();
    void agregar();
    void imprimir();
    // F9: la grilla al archivo "<raíz>/Software/personal.txt".
    void guardarOficial();
    // La ficha abierta, si hay (las pruebas la manejan por aquí).
    FichaPersonal* ficha() const { return ficha_; }

  private:
    void cargarNombres();
    void ordenar();
    FichaPersonal* abrirFicha();
    std::string empresa() const;

    QComboBox *empresa_ = nullptr, *nombre_ = nullptr, *clave_ = nullptr;
    QLineEdit* buscarPor_ = nullptr;
    ventana::GrupoOpciones* activos_ = nullptr;
    ventana::Grilla* grilla_ = nullptr;
    std::vector<master::Persona> listados_;
    master::OrdenPersonal orden_ = master::OrdenPersonal::NroFun;
    QPointer<FichaPersonal> ficha_;
};

}  // namespace nomira::pantallas
