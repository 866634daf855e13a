#pragma once
// El listado del personal de una empresa (la grilla de la pantalla Personal, su
// impresión y su archivo) y la ficha impresa de una persona.
#include <string>
#include <vector>

#include "common/fechas.h"
#include "master/personal.h"

namespace nomira::master {

// Las claves de la grilla: por cuál columna se ordena.
enum class OrdenPersonal {
    NroFun,
    Nombre,
    FechaNac,
    Documento,
    FechaIng,
    Categoria,
    TipoRem,
    FechaEg,
    SegSalud,
    FSueVig
};

struct ConsultaPersonal {
    std::string empresa;
    // Activos: la actividad que dice impaclab sin egreso, o con egreso desde el
    // primer día del mes anterior a hoy.
    bool soloActivos = true;
    OrdenPersonal orden = OrdenPersonal::NroFun;
    // "Buscar por": con una clave de texto, sólo lo que empieza así; NroFun busca
    // ese número; las claves de fecha sólo ordenan.
    std::string buscar;
};

std::vector<Persona> consultarPersonal(store::Conexion& base, const ConsultaPersonal& consulta,
                                       const common::Fecha& hoy);

// Las columnas de la grilla y una fila por persona, con las fechas como "dd/mm/yy".
std::vector<std::string> encabezadosListado();
std::vector<std::vector<std::string>> filasListado(const std::vector<Persona>& personas);
// Las mismas filas en columnas de ancho fijo, con su encabezado: la impresión y el archivo.
std::vector<std::string> lineasListado(const std::string& empresa,
                                       const std::vector<Persona>& personas);

// "INFORMACION DEL PERSONAL" y una línea por campo: cinco blancos, la etiqueta y
// el valor cortado a 40 caracteres.
std::vector<std::string> lineasFichaImpresa(const Persona& p);

// Una fecha guardada ("aaaa-mm-dd") como se muestra ("dd/mm/yy"); otro texto queda igual.
std::string fechaParaPantalla(const std::string& guardada);

}  // namespace nomira::master
