// Agregar, modificar, eliminar e imprimir la ficha.
#include "common/fechas.h"
#include "frame/ventana/impresion.h"
#include "frame/ventana/registro_pantallas.h"
#include "master/cambio_categoria.h"
#include "master/configuracion.h"
#include "master/listado_personal.h"
#include "master/validacion_personal.h"
#include "screens/personal/ficha_personal.h"
#include "screens/personal/pagina_actividad.h"
#include "screens/personal/pagina_personales.h"
#include "store/conexion.h"

namespace nomira::pantallas {

void FichaPersonal::preguntarGafi(const master::Persona& p) {
    if (!master::pideFormularioGafi(p.vinculofun)) return;
    if (!dialogo().confirmar("Deberá enviar formulario a Gafi", "¿Desea enviar formulario?", false))
        return;
    const auto& registro = ventana::registroPantallas();
    const auto it = registro.find("Form52");
    if (it == registro.end()) {
        informar(
            "La pantalla Formularios de Gafi todavía no está disponible: envíe el formulario desde "
            "Informes cuando lo esté.");
        return;
    }
    QWidget* gafi = it->second(sesion_, window());
    gafi->setAttribute(Qt::WA_DeleteOnClose);
    gafi->show();
}

void FichaPersonal::agregar() {
    if (!camposValidos()) return;
    intentar("Agregar_Click", [this] {
        const auto p = juntar();
        if (const auto m = master::comprobarAlAgregar(p); !m.empty()) return advertir(m);
        // Un segundo registro con el mismo nombre confundiría todas las liquidaciones de la
        // persona.
        if (master::leerPersona(base(), p.empresa, p.nombre))
            return advertir("Ya existe en la empresa un funcionario con el nombre " + p.nombre +
                            ".");
        if (!confirmar("Agregar Personal", false)) return;
        master::agregarPersona(base(), p);
        preguntarGafi(p);
        master::ValidarSeguroSalud(base(), p, dialogo());
        if (alCambiarNombres) alCambiarNombres(p.nombre, true);
        nueva(p.empresa, "");
        personales_->nrofun->setFocus();
    });
}

void FichaPersonal::modificar() {
    if (!camposValidos()) return;
    intentar("Modificar_Click", [this] {
        const auto p = juntar();
        if (const auto m = master::comprobarAlModificar(p); !m.empty()) return advertir(m);
        if (!confirmar("Modificar Personal", false)) return;
        const auto opcion = primera_->deshacer->valor() == "1"   ? master::DeshacerCambio::Primero
                            : primera_->deshacer->valor() == "2" ? master::DeshacerCambio::Segundo
                                                                 : master::DeshacerCambio::Ninguno;
        std::string aviso;
        {
            store::Transaccion t(base());
            master::actualizarPersona(base(), p);
            aviso = master::aplicarCambioCategoria(base(), p, opcion);
            t.confirmar();
        }
        if (!aviso.empty()) advertir(aviso);
        const auto guardada = master::leerPersona(base(), p.empresa, p.nombre);
        if (guardada && !guardada->fechaeg.empty()) {
            // Lo liquidado después del mes de egreso sobra.
            if (const auto egreso = common::Fecha::desdeTexto(guardada->fechaeg)) {
                const common::Fecha primero{egreso->anio, egreso->mes, 1};
                if (master::contarHabydescPosteriores(base(), p.empresa, p.nombre, primero) > 0 &&
                    dialogo().confirmar(
                        "Modificar Personal",
                        "Existen conceptos de este funcionario en Hab.y Desc. posteriores al mes "
                        "de cargo de la fechaeg, ¿Desea eliminarlos?",
                        false))
                    master::eliminarHabydescPosteriores(base(), p.empresa, p.nombre, primero);
            }
            preguntarGafi(p);
        }
        master::ValidarSeguroSalud(base(), p, dialogo());
        nueva(p.empresa, "");
    });
}

void FichaPersonal::eliminar() {
    intentar("Eliminar_Click", [this] {
        const auto p = juntar();
        if (!confirmar("Eliminar Personal", false)) return;
        master::eliminarPersona(base(), p.empresa, p.nombre);
        if (alCambiarNombres) alCambiarNombres(p.nombre, false);
        nueva(p.empresa, "");
    });
}

void FichaPersonal::imprimir() {
    intentar("Imprimir_Click", [this] {
        const auto destino =
            ventana::destinoDe(master::leerConfiguracion(base()), ventana::UsoImpresora::Otros);
        ventana::imprimirLineas(master::lineasFichaImpresa(juntar()), destino, "personal",
                                dialogo());
    });
}

}  // namespace nomira::pantallas
