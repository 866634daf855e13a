#pragma once
// La pantalla Empresas (Form2): la lista de empresas con sus claves de orden y
// "Buscar por", y la puerta a la ficha de cada una para agregar, modificar o
// eliminar; imprime la lista y la copia a una carpeta.
#include <QLineEdit>
#include <functional>
#include <string>
#include <vector>

#include "frame/ventana/combo_catalogo.h"
#include "frame/ventana/grilla.h"
#include "frame/ventana/pantalla.h"
#include "master/empresas.h"

namespace nomira::pantallas {

class FichaEmpresa;

class PantallaEmpresas : public ventana::Pantalla {
    Q_OBJECT
  public:
    explicit PantallaEmpresas(frame::Sesion& sesion, QWidget* padre = nullptr);

    void buscar();
    void consultar();
    void agregar();
    void modificar();
    void eliminar();
    void imprimir();
    void copiar();
    // Una clave de orden: con "Buscar por" vacío ordena, con texto además filtra.
    void ordenar(master::OrdenEmpresas orden);

    // Dónde se copia empresas.txt; por omisión lo pregunta con un cuadro de carpetas.
    void cambiarElegirCarpeta(std::function<QString()> elegir) {
        elegirCarpeta_ = std::move(elegir);
    }

    QComboBox* empresa() const { return empresa_; }
    QLineEdit* buscarPor() const { return buscarPor_; }
    ventana::Grilla* grilla() const { return grilla_; }
    // La ficha abierta por la última operación (nullptr si se cerró).
    FichaEmpresa* ficha() const { return ficha_; }

  private:
    // Desplegar: la grilla con las empresas dadas.
    void desplegar(std::vector<master::Empresa> empresas);
    void abrirFicha(const std::function<void(FichaEmpresa&)>& preparar);
    std::string nombre() const;

    ventana::ComboCatalogo* empresa_;
    QLineEdit* buscarPor_;
    ventana::Grilla* grilla_;
    std::vector<master::Empresa> mostradas_;
    master::OrdenEmpresas orden_ = master::OrdenEmpresas::Direccion;
    FichaEmpresa* ficha_ = nullptr;
    std::function<QString()> elegirCarpeta_;
};

}  // namespace nomira::pantallas
