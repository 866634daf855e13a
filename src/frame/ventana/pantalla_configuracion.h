#pragma once
// "Configuración": usuarios con sus categorías, los dieciocho permisos, impresoras,
// fuentes y la forma de los recibos. Guarda la fila entera de una vez.
#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QWidget>
#include <array>

#include "frame/sesion.h"
#include "frame/ventana/grupo_opciones.h"
#include "master/configuracion.h"

namespace nomira::ventana {

class PantallaConfiguracion : public QWidget {
    Q_OBJECT
public:
    PantallaConfiguracion(frame::Sesion& sesion, QWidget* padre = nullptr);
    void modificar();

private:
    struct FilaUsuario {
        QLineEdit* usu;
        QLineEdit* pas;
        QComboBox* cat;
    };
    struct Impresion {
        QComboBox* impresora;
        QFontComboBox* fuente;
        QSpinBox* tamano;
    };

    QWidget* paginaUsuarios();
    QWidget* paginaPermisos();
    QWidget* paginaImpresion();
    void cargar();
    // Lo que está en pantalla sobre la fila leída; nullopt si falta algo (ya avisado).
    std::optional<master::Configuracion> leerPantalla();

    frame::Sesion& sesion_;
    std::array<FilaUsuario, master::kCantUsuarios> usuarios_{};
    std::array<QCheckBox*, master::kCantPermisos> checks_{};
    std::array<Impresion, 3> impresion_{};  // recibos, informes, otros informes
    GrupoOpciones *contitulos_, *cantpers_, *autoguardado_, *copiativo_, *imppesos_;
    QLineEdit *desde_, *hasta_, *corte_, *arriba_, *izquierda_, *nroempges_;
};

}  // namespace nomira::ventana
