#pragma once
// La única fila de `configuracion`: usuarios, permisos, impresoras y recibos.
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "store/conexion.h"

namespace nomira::master {

struct Usuario {
    std::string usu, pas, cat;  // `pas` guarda el hash de la contraseña
};

inline constexpr int kCantUsuarios = 10;
inline constexpr int kCantPermisos = 18;  // seis grupos por tres categorías

struct Configuracion {
    std::string impresorarecibos, impresorainformes, impresoracomanda;
    std::array<Usuario, kCantUsuarios> usuarios;
    std::array<std::string, kCantPermisos> checks;  // checks[0] es `check1`; "1" permite
    std::string tiporec, tipoinf, tipocom;
    std::string tamrec, taminf, tamcom;
    std::string contitulos, cantpers, tipodepapel, concopiativo;
    std::string cortehoja, cantlineasarr, cantespizq;
    std::string desdenrofun, hastanrofun, nroempges;

    // Nombre de columna y campo, en el orden de la tabla.
    std::vector<std::pair<std::string, std::string*>> campos();
};

Configuracion leerConfiguracion(store::Conexion& base);
// Escribe la fila entera con un solo UPDATE.
void guardarConfiguracion(store::Conexion& base, Configuracion& c);

}  // namespace nomira::master
