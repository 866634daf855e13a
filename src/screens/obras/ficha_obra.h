#pragma once
// Una obra (Form292): se abre desde Obras con la operación elegida como título
// y sólo su botón habilitado.
#include <QButtonGroup>
#include <QLineEdit>
#include <QPushButton>
#include <map>
#include <string>

#include "frame/ventana/combo_catalogo.h"
#include "frame/ventana/pantalla.h"
#include "master/obras.h"

namespace nomira::pantallas {

enum class OperacionObra { Agregar, Modificar, Eliminar, Consultar };

class FichaObra : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit FichaObra(frame::Sesion& sesion, QWidget* padre = nullptr);

    // La obra de la empresa en mano: nueva o leída, según la operación.
    void preparar(OperacionObra operacion, const master::Obra& obra);

    void agregar();
    void modificar();
    void eliminar();
    void imprimir();

    QLineEdit* campo(const std::string& columna) const { return campos_.at(columna); }
    ventana::ComboCatalogo* actividad() const { return actividad_; }
    QButtonGroup* formas() const { return formas_; }
    QPushButton* boton(const std::string& nombre) const { return botones_.at(nombre); }

  signals:
    void agregada(const QString& nroobra);
    void eliminada(const QString& nroobra);
    void modificada();

  private:
    master::Obra leerCampos() const;
    void ponerCampos(const master::Obra& o);

    std::map<std::string, QLineEdit*> campos_;
    ventana::ComboCatalogo* actividad_;
    QButtonGroup* formas_;
    std::map<std::string, QPushButton*> botones_;
};

}  // namespace nomira::pantallas
