#pragma once
// La ficha de una empresa (Form21): alta, modificación, baja e impresión. La
// abre la pantalla Empresas con el nombre y los botones de la operación elegida.
#include <QLineEdit>
#include <QPushButton>
#include <map>
#include <string>

#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/combo_catalogo.h"
#include "frame/ventana/grupo_opciones.h"
#include "frame/ventana/pantalla.h"
#include "master/empresas.h"

namespace nomira::pantallas {

class FichaEmpresa : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit FichaEmpresa(frame::Sesion& sesion, QWidget* padre = nullptr);

    // Una empresa nueva con ese nombre y el número propuesto: sólo Agregar.
    void nueva(const std::string& nombre);
    // CargarText: la empresa guardada, con los botones que se pidan.
    void cargar(const master::Empresa& empresa, bool modificar, bool eliminar);

    void agregar();
    void modificar();
    void eliminar();
    void imprimir();

    // El campo de una columna de `empresas` ("depto", "fechainsc"...), para las pruebas.
    QWidget* campo(const std::string& columna) const;
    QPushButton* boton(const std::string& nombre) const;

  signals:
    // Se agregó, modificó o eliminó: la lista de empresas se recarga.
    void guardada();

  private:
    void armar();
    void habilitar(bool agregar, bool modificar, bool eliminar);
    master::Empresa leerCampos() const;
    void ponerCampos(const master::Empresa& e);
    bool fechasValidas();
    ventana::ComboCatalogo* catalogo(const char* columna, const char* formulario, const char* tabla,
                                     const char* columnaMadre = nullptr);
    void buscarCodigoPostal();

    std::map<std::string, QWidget*> campos_;
    std::map<std::string, QPushButton*> botones_;
    ventana::GrupoOpciones* central_ = nullptr;
};

}  // namespace nomira::pantallas
