#pragma once
// Una fila de `personal`, con las 147 columnas por su nombre y en su orden. Los
// números que la tabla guarda como texto (sueldo, htrab, cantbfc...) quedan como
// texto: cada cálculo los lee con textoANumero, que da 0 para lo vacío. Las
// fechas llegan como las guarda la base ("aaaa-mm-dd"); las pantallas las
// muestran como "dd/mm/aa" y así pueden volver: se guardan como fecha igual.
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "common/fechas.h"
#include "master/registro.h"
#include "store/conexion.h"

namespace nomira::master {

struct Persona {
    std::string empresa, nombre, nrofun, direccion, telefono, otrotelefono, fechanac, lugarnac,
        nacionalidad;
    std::string sexo, estcivil, tipodedoc, paisdeldoc, documento, credencial, socmedica,
        observaciones;
    std::string fechaing, sector, categoria, sueldo, tiposueldo, htrab, fechaeg, motivoeg,
        antiguedad;
    std::string horario, tiporemmtss, tiporembps, imprecibo, segurosalud, vinculofun, cantbfc, exon;
    std::string cesp, nrosuc, referencias, fechaing2, sector2, categoria2, sueldo2, fechaeg2,
        motivoeg2;
    std::string antiguedad2, horario2, tiporemmtss2, tiporembps2, segurosalud2, vinculofun2, exon2;
    std::string cesp2, fechaing3, sector3, categoria3, sueldo3, fechaeg3, motivoeg3, antiguedad3,
        horario3;
    std::string tiporemmtss3, tiporembps3, segurosalud3, vinculofun3, exon3, cesp3, depto,
        localidad;
    std::string impaclab, fechasuevig, nroord, fechacatvig, nroord2, cat2, fechacatvig2, nroord3,
        cat3;
    std::string fechacatvig3, sue2, sue3, fechasuevig2, fechasuevig3, tipodedoccon, paisdeldoccon;
    std::string documentocon, nombrecon, fechanaccon, nacionalidadcon, sexocon, fechadesdecon,
        fechaprescon;
    std::string tipodedocben, paisdeldocben, documentoben, nombreben, fechanacben, nacionalidadben;
    std::string sexoben, causaben, relacionfilialben, regimenben, porcentajeben, montoben,
        fechadesdeben;
    std::string fechapresben, tipodedocben2, paisdeldocben2, documentoben2, nombreben2,
        fechanacben2;
    std::string nacionalidadben2, sexoben2, causaben2, relacionfilialben2, regimenben2,
        porcentajeben2;
    std::string montoben2, fechadesdeben2, fechapresben2, tipodedocben3, paisdeldocben3,
        documentoben3;
    std::string nombreben3, fechanacben3, nacionalidadben3, sexoben3, causaben3, relacionfilialben3;
    std::string regimenben3, porcentajeben3, montoben3, fechadesdeben3, fechapresben3, codigoded,
        categoriaded;
    std::string montoded, fechadesdeded, fechapresded, codigoded2, categoriaded2, montoded2,
        fechadesdeded2;
    std::string fechapresded2, codigoded3, categoriaded3, montoded3, fechadesdeded3, fechapresded3;
};

// Una ficha que se comparte sin copiarla: la leen la corrida de la empresa, el
// contexto de las fórmulas y el mes de la persona.
using PersonaCompartida = std::shared_ptr<const Persona>;

// Las 147 columnas en su orden.
const Campos<Persona>& camposPersona();

// La persona de esa empresa y ese nombre, o nada si no está.
std::optional<Persona> leerPersona(store::Conexion& base, const std::string& empresa,
                                   const std::string& nombre);

// Los cinco grupos en que se escribe la ficha: datos personales y primera
// actividad; segunda actividad; tercera con depto, localidad, impaclab y nroord;
// cónyuge y beneficiarios; otras deducciones.
const std::vector<Campos<Persona>>& gruposDePersona();

// Las columnas que guarda el cambio de categoría y no el resto de la ficha.
bool esColumnaDeCategoria(const char* columna);

// INSERT de empresa y nombre y los cinco grupos, todo o nada. Los montos de las
// otras deducciones se escriben siempre vacíos.
void agregarPersona(store::Conexion& base, Persona persona);

// Los cinco grupos sin las columnas de categoría, dentro de la transacción que
// abra quien llama (la modificación sigue con el cambio de categoría).
void actualizarPersona(store::Conexion& base, Persona persona);

// La persona y todo lo suyo: personal, habydesc, aguinaldos, salvacacional,
// egresos y concpermxpers, en una sola transacción.
void eliminarPersona(store::Conexion& base, const std::string& empresa, const std::string& nombre);

// El número que se propone a una persona nueva: el mayor de la empresa más uno
// (1 si no hay nadie). El de orden sube uno más si el propuesto es justo el mayor
// número de orden de una segunda actividad (cesp2).
std::string proponerNrofun(store::Conexion& base, const std::string& empresa);
std::string proponerNroord(store::Conexion& base, const std::string& empresa);
// El mayor nroord de la empresa más uno, 1 si no hay ninguno.
std::int64_t siguienteNroord(store::Conexion& base, const std::string& empresa);

// Filas de habydesc de la persona con fecha posterior a `desde`.
std::int64_t contarHabydescPosteriores(store::Conexion& base, const std::string& empresa,
                                       const std::string& nombre, const common::Fecha& desde);
void eliminarHabydescPosteriores(store::Conexion& base, const std::string& empresa,
                                 const std::string& nombre, const common::Fecha& desde);

}  // namespace nomira::master
