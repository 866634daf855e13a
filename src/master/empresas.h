#pragma once
// Una fila de `empresas`, con las columnas por su nombre y como texto, y lo que
// se hace con ella: número propuesto, alta, modificación, baja en cascada y la
// lista de la pantalla Empresas.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "master/registro.h"
#include "store/conexion.h"

namespace nomira::master {

struct Empresa {
    std::string empresa, nroemp, direccion, telefono, fax, mail, depto, localidad, codpostal;
    std::string actividad, ruc, bps, bse, mtss, fechainsc, fechainiact, tipocontrib, tipoaport;
    std::string grupoact, subgrupoact, grupoconsal, perscont;
    std::string direccionsuc2, deptosuc2, locsuc2, direccionsuc3, deptosuc3, locsuc3;
    std::string exon, persrep, seccional, centralplanilla;
    std::string fechainiact2, fechafinact2, estado2, fechainiact3, fechafinact3, estado3;
    std::string subgrupoconsal;
};

// Las 39 columnas en su orden.
const Campos<Empresa>& camposEmpresa();

std::optional<Empresa> leerEmpresa(store::Conexion& base, const std::string& empresa);

inline constexpr const char* kFaltaEmpresa = "Debe completar el campo Empresa.";
inline constexpr const char* kNoExisteEmpresa =
    "No existe la Empresa, deberá 1ero ingresarla en la ventana Empresas.";
// Lo que impide trabajar sobre esa empresa (nombre vacío o empresa que no está
// en la base), o nada si existe. Una orden sobre una empresa que no existe no
// haría nada y parecería terminar bien.
std::optional<std::string> rechazoEmpresa(store::Conexion& base, const std::string& empresa);

// El código de aportación de la empresa: las dos cifras de su fila de
// `tipoaport` ("04" apaga el montepío y baja el SNIS); "" si no hay fila.
std::string tipoaporteDe(store::Conexion& base, const Empresa& empresa);

// El número que se propone a una empresa nueva: el mayor más uno, 1 la primera.
std::int64_t proximoNroEmp(store::Conexion& base);

// Las 39 columnas; las fechas llegan "dd/mm/aa" o como las guarda la base, y
// un NroEmp que no es número queda Null.
void agregarEmpresa(store::Conexion& base, const Empresa& empresa);
// Todas las columnas menos el nombre: el nombre se cambia en mantenimiento.
void modificarEmpresa(store::Conexion& base, const Empresa& empresa);

// Las nueve tablas con filas de la empresa, en el orden en que se borran.
// `obras` no está: las obras quedan para otra empresa del mismo nombre.
const std::vector<const char*>& tablasDeLaEmpresa();
// Borra la empresa y todo lo suyo en una transacción: o todo o nada.
void eliminarEmpresa(store::Conexion& base, const std::string& empresa);

// Los nombres de todas las empresas, ordenados: la lista de la pantalla.
std::vector<std::string> nombresDeEmpresas(store::Conexion& base);
// Los nombres del personal de la empresa: la lista de Persona Representante.
std::vector<std::string> nombresDelPersonal(store::Conexion& base, const std::string& empresa);

// Las claves de orden de la grilla de empresas.
enum class OrdenEmpresas {
    Ninguno,
    Direccion,
    Telefono,
    Actividad,
    Ruc,
    Bps,
    TipoContrib,
    TipoAport,
    GrupoAct,
    SubGrupoAct
};

// Todas las filas; con una clave de orden, ORDER BY su columna, y si además
// hay texto en "Buscar por", sólo las que empiezan con él en esa columna.
std::vector<Empresa> consultarEmpresas(store::Conexion& base,
                                       OrdenEmpresas orden = OrdenEmpresas::Ninguno,
                                       const std::string& buscarPor = "");

// Una fecha guardada ("aaaa-mm-dd") como la muestran las pantallas ("dd/mm/aa").
std::string fechaDeEmpresa(const std::string& guardada);

}  // namespace nomira::master
