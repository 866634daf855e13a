#pragma once
// Variables fechadas (definiciondevariables): BPC, SALMIN, TOPEAFAP y las que
// defina el usuario. Siempre vale la fila más nueva, nunca la del mes que se
// liquida.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "common/fechas.h"
#include "store/conexion.h"

namespace nomira::master {

// Un lector por corrida de liquidación: recuerda cada nombre que ya leyó, así
// una fórmula que se evalúa para muchas personas consulta la base una vez por
// variable. Una corrida nueva crea un lector nuevo y vuelve a leer. `todas` las
// lee de una vez al empezar y después no vuelve a la base.
class LectorVariables {
  public:
    explicit LectorVariables(store::Conexion& base) : base_(&base) {}
    static LectorVariables todas(store::Conexion& base);

    // El valor de la fila con la fecha más nueva; 0 si no hay ninguna. El
    // nombre se compara tal como viene, distinguiendo mayúsculas.
    double valor(std::string_view nombre) const { return buscar(nombre).value_or(0.0); }
    // Nada si la variable no tiene filas.
    std::optional<double> buscar(std::string_view nombre) const;

  private:
    LectorVariables() = default;

    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view s) const {
            return std::hash<std::string_view>{}(s);
        }
    };

    store::Conexion* base_ = nullptr;  // nula si ya se leyeron todas
    mutable std::unordered_map<std::string, std::optional<double>, Hash, std::equal_to<>> leidas_;
};

// Una fila de la tabla tal como se muestra: la fecha "dd/mm/aa".
struct FilaVariable {
    std::string nombre, fecha;
    double valor = 0;
};

// Siempre inserta: un segundo valor con el mismo nombre y la misma fecha es otra
// fila, y el lector toma cualquiera de las dos.
void agregarVariable(store::Conexion& base, const std::string& nombre, const common::Fecha& fecha,
                     double valor);
// El valor de la primera fila con ese nombre y esa fecha exactos.
std::optional<double> buscarVariable(store::Conexion& base, const std::string& nombre,
                                     const common::Fecha& fecha);
// Borra todas las filas de ese nombre y esa fecha; devuelve cuántas.
std::int64_t eliminarVariable(store::Conexion& base, const std::string& nombre,
                              const common::Fecha& fecha);

// Las filas de un nombre, por fecha.
std::vector<FilaVariable> listarVariable(store::Conexion& base, const std::string& nombre);
// Las que no tienen pantalla propia (todas menos BPC, BFC, SALMIN, CUOTAMUTUALIC,
// CUOTAMUTUALCO y UR), por nombre y fecha. EXCLUSIONIRPF aparece aquí y en la suya.
std::vector<FilaVariable> listarOtrasVariables(store::Conexion& base);
std::vector<FilaVariable> listarTodasLasVariables(store::Conexion& base);

// El listado impreso "Definición de Variables".
std::vector<std::string> lineasListaVariables(const std::vector<FilaVariable>& filas);

}  // namespace nomira::master
