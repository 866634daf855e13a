#pragma once
// Los conceptos de la liquidación (`conceptos`) y los permanentes de una persona
// (`concpermxpers`). El motor encuentra muchos conceptos por su nombre: cambiar un
// nombre cambia también las liquidaciones ya hechas, que lo copian.
#include <optional>
#include <string>
#include <vector>

#include "master/registro.h"
#include "store/conexion.h"

namespace nomira::master {

struct Concepto {
    std::string codigo, concepto, especificode, formula, tipo, unidad;
    std::string permanente, gravado, aguinaldo, lic, ipd;
};

// Las once columnas en su orden.
const Campos<Concepto>& camposConcepto();

std::optional<Concepto> leerConcepto(store::Conexion& base, long codigo);
// Las filas de una consulta de conceptos (SELECT * o conceptos.*).
std::vector<Concepto> leerConceptos(const store::Resultado& r);
// Todos, por código.
std::vector<Concepto> listarConceptos(store::Conexion& base);

// Las columnas por las que se busca un texto ("Buscar por").
struct CriterioBusqueda {
    const char* etiqueta;
    const char* columna;
};
const std::vector<CriterioBusqueda>& criteriosBusquedaConceptos();
// Los conceptos cuya columna contiene el texto, sin distinguir mayúsculas.
std::vector<Concepto> buscarConceptos(store::Conexion& base, const std::string& columna,
                                      const std::string& texto);

// Un descuento no tiene banderas: se guardan vacías. Devuelve el mensaje que
// impide guardar, o nada.
std::optional<std::string> prepararConcepto(Concepto& c);

void agregarConcepto(store::Conexion& base, const Concepto& c);
// Reescribe también las filas ya liquidadas con ese código (habydesc, aguinaldos,
// salvacacional, egresos), todo o nada; los importes no cambian.
void modificarConcepto(store::Conexion& base, const Concepto& c);
// Borra el concepto y sus permanentes por persona; las liquidaciones quedan.
void eliminarConcepto(store::Conexion& base, long codigo);

// "LISTA DE CONCEPTOS": las líneas que se imprimen y que guarda conceptos.txt.
std::vector<std::string> lineasListaConceptos(const std::vector<Concepto>& conceptos);

// --- Conceptos permanentes por persona ---

inline constexpr const char* kCodigoInexistente =
    "El Código no existe, deberá 1ero ingresarlo en la ventana Conceptos y Fórmulas.";
inline constexpr const char* kYaEsPermanente =
    "Este concepto ya es permanente a todos los funcionarios, aquí sólo pueden agregarse los "
    "conceptos permanentes x personal.";

bool existeConceptoPersona(store::Conexion& base, const std::string& empresa,
                           const std::string& nombre, long codigo);
// Devuelve el mensaje que lo impide (código inexistente, ya permanente), o nada.
std::optional<std::string> agregarConceptoPersona(store::Conexion& base, const std::string& empresa,
                                                  const std::string& nombre, long codigo);
// Los permanentes de la persona, por código.
std::vector<Concepto> listarConceptosPersona(store::Conexion& base, const std::string& empresa,
                                             const std::string& nombre);
void eliminarConceptoPersona(store::Conexion& base, const std::string& empresa,
                             const std::string& nombre, long codigo);

}  // namespace nomira::master
