#pragma once
// Las comprobaciones de la ficha del personal antes de guardar, y los avisos del
// seguro de salud después. Cada función devuelve el texto del cuadro, "" si no hay.
#include <array>
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "master/personal.h"

namespace nomira::master {

// "Debe completar los siguientes campos obligatorios: NroFun., Dirección" con los
// que falten, en el orden de la ficha.
std::string faltantesObligatorios(const Persona& p);

// Lo que se comprueba al agregar, en orden: la coma del nombre, los obligatorios,
// cónyuge, beneficiarios y deducciones, la Hora y la fecha de egreso. El primer
// problema encontrado, o "".
std::string comprobarAlAgregar(const Persona& p);

// Lo mismo y además las actividades que imprime Ac.Lab y las dos fechas.
std::string comprobarAlModificar(const Persona& p);

// "El campo Nombre del <quien> no tiene la coma..." si el nombre lleno no la tiene.
std::string comprobarComa(const std::string& nombre, const std::string& quien);

// ¿El vínculo funcional pide mandar el formulario de GAFI?
bool pideFormularioGafi(const std::string& vinculofun);

// Los códigos con que se avisa sobre el seguro de salud.
struct CodigosSeguroSalud {
    std::array<std::string, 3> actividades;  // el código de Seguro salud de cada actividad
    std::array<std::string, 3> causas;       // el código de Causa de cada beneficiario que cuenta
    std::string ingresaSns;                  // "Si" o "No"
};

// Las advertencias en su orden; nunca impiden guardar.
std::vector<std::string> advertenciasSeguroSalud(const CodigosSeguroSalud& c);

// Los códigos de la persona: los seguros se buscan en `segurosalud` y un
// beneficiario mayor de edad (EsMayorde18, que avisa por `dialogo`) no cuenta.
CodigosSeguroSalud codigosSeguroSalud(store::Conexion& base, const Persona& p,
                                      common::Dialogo* dialogo);

// Después de guardar: cada advertencia en su propio cuadro.
void ValidarSeguroSalud(store::Conexion& base, const Persona& p, common::Dialogo& dialogo);

}  // namespace nomira::master
