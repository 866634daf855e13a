#pragma once
// Las pantallas de las tablas de referencia: una sola clase que una tabla de
// configuración convierte en "Tipo de Aportación", "Localidades", "Categorías"...
// Cada lista tiene sus columnas madre (combos encadenados), la columna del
// valor "código-texto" y a veces columnas de texto libre (Cod.Postal).
//
// Quien abre el catálogo con "*" desde un combo recibe lo elegido al pulsar
// Seleccionar (F9): el texto posterior al primer guion. La ventana que llama
// puede recibirlo por su cuenta declarando
//     Q_INVOKABLE void recibirCatalogo(const QString& formulario, const QString& texto, int
//     actividad);
// (así elige el combo de la actividad 1, 2 o 3 de las pantallas con "Ac.Lab.");
// si no lo declara, el texto va al combo desde el que se abrió el catálogo.
// La señal `elegido` sale siempre.
#include <QComboBox>
#include <QLineEdit>
#include <QPointer>
#include <QRadioButton>
#include <string>
#include <vector>

#include "frame/ventana/pantalla.h"

namespace nomira::pantallas {

// Una columna de la lista. `origen` es la tabla que la llena, filtrada por las
// columnas anteriores con "="; vacío en la columna del valor, que sale de la
// propia tabla. `libre` es un texto sin código que no se controla.
struct ColumnaCatalogo {
    const char* etiqueta;
    const char* origen = "";
    bool libre = false;
};

struct ListaCatalogo {
    const char* tabla;
    const char* titulo;  // el del marco; vacío en las pantallas de una sola lista
    std::vector<ColumnaCatalogo> columnas;
    const char* mensajeVacio;
    const char* mensajeSinGuion;
};

struct ConfiguracionCatalogo {
    const char* formulario;
    const char* titulo;
    std::vector<ListaCatalogo> listas;
    bool devuelve = false;  // tiene Seleccionar: lleva lo elegido de la primera lista a quien llamó
    bool actividades = false;  // el marco "Ac.Lab." con 1, 2 y 3
};

class PantallaCatalogo : public ventana::Pantalla {
    Q_OBJECT
  public:
    PantallaCatalogo(frame::Sesion& sesion, const ConfiguracionCatalogo& configuracion,
                     QWidget* padre = nullptr);

    // Los campos, para quien maneje la pantalla desde afuera (las pruebas).
    QComboBox* combo(int lista, int columna) const;
    QLineEdit* libre(int lista, int columna) const;
    int actividad() const;

    void agregar(int lista);
    void eliminar(int lista);
    // CargarCombo: entrega lo elegido y cierra.
    void seleccionar();

  signals:
    void elegido(const QString& texto, int actividad);

  private:
    struct Campos {
        std::vector<QComboBox*> combos;  // nullptr en las columnas libres
        std::vector<QLineEdit*> libres;  // nullptr en las demás
    };
    QWidget* armarLista(int indice);
    // Llena la columna `columna` con lo que cuelga de las anteriores.
    void llenar(int lista, int columna);
    int valor(int lista) const;  // índice de la columna del valor
    int listaConFoco() const;

    const ConfiguracionCatalogo& configuracion_;
    std::vector<Campos> campos_;
    std::vector<QRadioButton*> actividades_;
    QPointer<QComboBox> llamador_;
};

}  // namespace nomira::pantallas
