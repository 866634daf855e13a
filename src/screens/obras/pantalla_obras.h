#pragma once
// Obras (Form291): las obras de una empresa de la construcción, con la puerta
// a la ficha de cada una; imprime y copia la lista.
#include <QComboBox>
#include <functional>
#include <string>

#include "frame/ventana/combo_catalogo.h"
#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"

namespace nomira::pantallas {

class FichaObra;

class PantallaObras : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit PantallaObras(frame::Sesion& sesion, QWidget* padre = nullptr);

    void buscar();
    void consultar();
    void agregar();
    void modificar();
    void eliminar();
    void imprimir();
    void copiar();
    // CargarNroObra: los números de la empresa, avisando los repetidos.
    void cargarNroObra();

    void cambiarElegirCarpeta(std::function<QString()> elegir) {
        elegirCarpeta_ = std::move(elegir);
    }

    QComboBox* empresa() const { return empresa_; }
    QComboBox* nroObra() const { return nroObra_; }
    ventana::Grilla* grilla() const { return grilla_; }
    FichaObra* ficha() const { return ficha_; }

  private:
    std::string textoEmpresa() const;
    std::string textoObra() const;
    FichaObra* abrirFicha();

    ventana::ComboCatalogo* empresa_;
    QComboBox* nroObra_;
    ventana::Grilla* grilla_;
    FichaObra* ficha_ = nullptr;
    std::function<QString()> elegirCarpeta_;
};

}  // namespace nomira::pantallas
