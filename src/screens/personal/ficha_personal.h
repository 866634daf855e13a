#pragma once
// Form31: la ficha de una persona, en siete páginas. La abre la pantalla Personal
// con la empresa y el nombre elegidos; la ficha nunca elige persona por sí misma.
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <array>
#include <functional>
#include <vector>

#include "frame/ventana/campo_fecha.h"
#include "frame/ventana/combo_catalogo.h"
#include "frame/ventana/grupo_opciones.h"
#include "frame/ventana/pantalla.h"
#include "master/personal.h"

namespace nomira::pantallas {

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
    struct Enlace {
        std::string master::Persona::*miembro;
        std::function<std::string()> leer;
        std::function<void(const std::string&)> poner;
    };
    // Una actividad: los campos que usan las teclas de su página.
    struct Actividad {
        ventana::CampoFecha *fechaing = nullptr, *fechaeg = nullptr;
        ventana::ComboCatalogo *sector = nullptr, *categoria = nullptr, *motivoeg = nullptr;
        QLineEdit* antiguedad = nullptr;
    };

    QWidget* paginaPersonales();
    QWidget* paginaPrimeraActividad();
    QWidget* paginaOtraActividad(int n);
    QWidget* paginaConyuge();
    QWidget* paginaBeneficiarios();
    QWidget* paginaDeducciones();
    QWidget* marcoCategorias();

    // Campos enlazados con su columna.
    QLineEdit* texto(std::string master::Persona::*m, const char* nombre, int ancho = 0);
    ventana::CampoFecha* fecha(std::string master::Persona::*m, const char* nombre);
    QComboBox* lista(std::string master::Persona::*m, const char* nombre, const QStringList& items);
    ventana::ComboCatalogo* catalogo(std::string master::Persona::*m, const char* nombre,
                                     const char* formulario, const char* tabla);
    ventana::GrupoOpciones* opciones(std::string master::Persona::*m, const char* nombre,
                                     const QString& titulo,
                                     std::vector<std::pair<QString, QString>> items);
    void enlazarActividad(int n, Actividad& a);
    std::vector<std::string> categoriasDe(const QString& sector);

    bool enterFecha(ventana::CampoFecha* campo);
    bool enterFechaEgreso(int n);
    bool enterDocumento();
    bool enterNombre(QLineEdit* campo, const std::string& quien);
    bool enterCantBfc();
    void limpiar();
    void ponerModo(bool existente);
    void preguntarGafi(const master::Persona& p);

    std::vector<Enlace> enlaces_;
    std::string grupo_, subgrupo_;  // del consejo de salarios de la empresa
    QTabWidget* paginas_ = nullptr;
    QLineEdit *empresa_ = nullptr, *nombre_ = nullptr, *nrofun_ = nullptr, *nroord_ = nullptr;
    QLineEdit *documento_ = nullptr, *credencial_ = nullptr, *sueldo_ = nullptr, *htrab_ = nullptr;
    QLineEdit *cantbfc_ = nullptr, *exon_ = nullptr, *referencias_ = nullptr;
    ventana::CampoFecha* fechasuevig_ = nullptr;
    ventana::GrupoOpciones *tiposueldo_ = nullptr, *deshacer_ = nullptr;
    std::array<Actividad, 3> actividades_;
    // Lo que se empaqueta: socmedica, horario y sexocon.
    ventana::GrupoOpciones *tafap_ = nullptr, *bseap_ = nullptr, *nfam_ = nullptr,
                           *l19321_ = nullptr, *multiemp_ = nullptr, *sexocon_ = nullptr,
                           *sns_ = nullptr;
    QLineEdit *montoOtroEmpleo_ = nullptr, *horario_ = nullptr, *cuenta_ = nullptr;
    QComboBox* banco_ = nullptr;
    QPushButton *agregar_ = nullptr, *modificar_ = nullptr, *eliminar_ = nullptr,
                *imprimir_ = nullptr;
};

}  // namespace nomira::pantallas
