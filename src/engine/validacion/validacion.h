#pragma once
// La validación del mes de una empresa (Validar_Click, F12): una serie fija de
// controles sobre el personal activo después de liquidar. No cambia nada: cada
// hallazgo es un aviso y la serie sigue. Además de avisar uno por uno, devuelve
// los hallazgos juntos para mostrarlos en una lista que se imprime o copia.
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "master/personal.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace validacion {

inline constexpr const char* kFaltanCamposValidacion =
    "Debe completar el campo Empresa y FMesCargo.";
inline constexpr const char* kValidacionTerminada = "Validación terminada.";

struct Hallazgo {
    int control = 0;  // el número del control, en el orden de la serie
    std::string nombre;
    std::string titulo, texto;
};

// Con `unoPorUno` cada hallazgo se avisa por el diálogo al encontrarlo, como
// en la pantalla; al final, "Validación terminada.".
std::vector<Hallazgo> validarMes(store::Conexion& base, const std::string& empresa,
                                 const common::Mes& mes, common::Dialogo& dialogo,
                                 bool unoPorUno = true);

// ValidarSeguroSalud: al entrar al mes de una persona, sus beneficiarios contra
// los códigos de seguro de salud de sus tres actividades (un hijo ya mayor de
// edad no cuenta). Cada mensaje se avisa y se devuelve.
std::vector<std::string> validarSeguroSalud(store::Conexion& base, const master::Persona& p,
                                            const common::Mes& mes, common::Dialogo& dialogo);

}  // namespace validacion
}  // namespace nomira::engine
