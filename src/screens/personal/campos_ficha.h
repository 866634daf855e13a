#pragma once
// Lo que comparten las páginas de la ficha de una persona: cada campo enlazado con
// su columna de `personal` (para juntar la persona y mostrarla), y el grupo y
// subgrupo de consejo de salarios de la empresa, de los que dependen sectores y
// categorías.
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/campo_numero.h"
#include "frame/ventana/combo_catalogo.h"
#include "frame/ventana/grupo_opciones.h"
#include "frame/ventana/pantalla.h"
#include "master/personal.h"

namespace nomira::pantallas {

class CamposFicha {
  public:
    using Columna = std::string master::Persona::*;
    explicit CamposFicha(ventana::Pantalla& pantalla, frame::Sesion& sesion)
        : pantalla_(pantalla), sesion_(sesion) {}

    ventana::Pantalla& pantalla() { return pantalla_; }

    QLineEdit* texto(Columna m, const char* nombre, int ancho = 0);
    ventana::CampoNumero* numero(Columna m, const char* nombre, int ancho,
                                 ventana::ClaseNumero clase = ventana::ClaseNumero::Decimal);
    ventana::CampoFecha* fecha(Columna m, const char* nombre);
    QComboBox* lista(Columna m, const char* nombre, const QStringList& items);
    // Un combo que muestra palabras y guarda letras: pares (guardado, mostrado).
    QComboBox* listaConTextos(Columna m, const char* nombre,
                              const std::vector<std::pair<QString, QString>>& items);
    ventana::ComboCatalogo* catalogo(Columna m, const char* nombre, const char* formulario,
                                     const char* tabla);
    // Sin columna (`m` nula): lo empaquetado, que la página junta por su cuenta.
    ventana::GrupoOpciones* opciones(Columna m, const char* nombre, const QString& titulo,
                                     std::vector<std::pair<QString, QString>> items);
    // Enter en una fecha: la forma dd/mm/aa.
    bool enterFecha(ventana::CampoFecha* campo);
    bool enterNombre(QLineEdit* campo, const std::string& quien);

    void juntar(master::Persona& p) const;
    void mostrar(const master::Persona& p) const;

    // Del consejo de salarios de la empresa de la ficha.
    std::string grupo, subgrupo;
    std::vector<std::string> sectores();
    std::vector<std::string> categoriasDe(const QString& sector);

  private:
    struct Enlace {
        Columna miembro;
        std::function<std::string()> leer;
        std::function<void(const std::string&)> poner;
    };
    ventana::Pantalla& pantalla_;
    frame::Sesion& sesion_;
    std::vector<Enlace> enlaces_;
};

// Una página de la ficha. Lo que no tiene columna propia (lo empaquetado en
// socmedica, horario y sexocon) lo vuelca y lo carga la página.
class PaginaFicha : public QWidget {
  public:
    virtual void volcar(master::Persona&) const {}
    virtual void cargar(const master::Persona&) {}
};

// Los campos de una actividad que usan sus teclas: el sector filtra las categorías,
// la fecha de egreso recarga los motivos y calcula la antigüedad.
struct CamposActividad {
    ventana::CampoFecha *fechaing = nullptr, *fechaeg = nullptr;
    ventana::ComboCatalogo *sector = nullptr, *categoria = nullptr, *motivoeg = nullptr;
    QLineEdit* antiguedad = nullptr;

    // `referencias`: lo escrito en Referencias de la primera actividad.
    void enlazar(CamposFicha& campos, std::function<std::string()> referencias);
    void recargarSector() { sector->recargar(); }
    void recargarCategoria() { categoria->recargar(); }
};

}  // namespace nomira::pantallas
