#pragma once
// El árbol del menú principal como datos: la ventana lo dibuja, los permisos
// y las pruebas lo recorren.
#include <string>
#include <vector>

#include "frame/permisos.h"

namespace nomira::frame {

enum class Accion { Pantalla, Submenu, Reparar, Compactar, Ayuda, Salir };

struct EntradaMenu {
    std::string menu;      // menú de la barra ("Empresas")
    std::string padre;     // submenú que la contiene, "" si cuelga del menú
    std::string nombre;    // nombre de la entrada ("FBasicasEmpresas")
    std::string titulo;    // lo que lee el usuario ("Empresas")
    Grupo grupo;
    Accion accion;
    std::string pantalla;  // número de formulario ("Form2") cuando abre una pantalla
};

struct MenuPrincipal {
    std::string nombre;  // "Empresas"
    std::string titulo;  // "Empresas"
};

const std::vector<MenuPrincipal>& menusPrincipales();
const std::vector<EntradaMenu>& arbolMenu();
const EntradaMenu* buscarEntrada(const std::string& nombre);

// Las ocho teclas de la barra de herramientas y la entrada que ejecuta cada una.
struct TeclaBarra {
    std::string clave;    // "Con.yFórm."
    std::string entrada;  // "FBasicasConceptosyFórmulas"
};
const std::vector<TeclaBarra>& teclasBarra();

}  // namespace nomira::frame
