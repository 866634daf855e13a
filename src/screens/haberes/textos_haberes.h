#pragma once
// Los textos de Form42 que dependen de lo tecleado: el título de la pregunta
// por un mes que no es el anterior y la parte de las observaciones de la
// persona que se muestra en el mes.
#include <optional>
#include <string>

#include "common/fechas.h"

namespace nomira::pantallas {

inline constexpr const char* kFaltaCodigo =
    "Debe completar los campos Empresa, Nombre del Personal, FMesCargo y Código.";
inline constexpr const char* kFormatoMes =
    "Debe completar los campos Empresa, Nombre del Personal y la FMesCargo debe tener el "
    "formato: MM/aa.";
inline constexpr const char* kFaltaNroFun = "Debe completar los campos Empresa y Nro Fun.";
inline constexpr const char* kCodigoNoExiste =
    "El Código no existe, deberá 1ero ingresarlo en la ventana Conceptos y Fórmulas.";
inline constexpr const char* kNoExiste = "NO EXISTE";

// "La fecha corresponde a la liquidación de SETIEMBRE/26".
std::string tituloMesLiquidado(const common::Mes& mes);

// Las observaciones pueden llevar entre corchetes el mes "MM/yy" al que se
// refieren: el resto se muestra sin mes o cuando ese mes es `mes`. Nada si no
// hay que mostrar.
std::optional<std::string> observacionDelMes(const std::string& observaciones,
                                             const std::string& mes);

}  // namespace nomira::pantallas
