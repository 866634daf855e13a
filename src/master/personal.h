#pragma once
// Una fila de `personal`, con las columnas por su nombre. Los números que la
// tabla guarda como texto (sueldo, htrab, cantbfc...) quedan como texto: cada
// cálculo los lee con textoANumero, que da 0 para lo vacío.
#include <optional>
#include <string>

#include "store/conexion.h"

namespace nomira::master {

struct Persona {
    std::string empresa, nombre;
    std::string otrotelefono;  // guarda el porcentaje de FOCER
    std::string fechaing, sueldo, tiposueldo, htrab, cantbfc;
    std::string sueldo2, sueldo3;
    std::string sexocon;
    std::string fechanacben, causaben;
    std::string fechanacben2, causaben2;
    std::string fechanacben3, causaben3;
};

// La persona de esa empresa y ese nombre, o nada si no está.
std::optional<Persona> leerPersona(store::Conexion& base, const std::string& empresa,
                                   const std::string& nombre);

}  // namespace nomira::master
