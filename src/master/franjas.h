#pragma once
// Las franjas del IRPF (`franjasirp`): número, límites en BPC y tasa. Las
// menores de 1000 son la escala mensual, las mayores de 2000 la otra; aquí
// todas se tratan igual.
#include <optional>
#include <string>
#include <vector>

#include "store/conexion.h"

namespace nomira::master {

struct Franja {
    long franja = 0;
    double min = 0, max = 0, tasa = 0;
};

// Lo que cabe en una franja: el número es entero y positivo; los límites van
// de 0 a kMaxLimiteFranja BPC (999999 ya hace de techo de la última) y la
// tasa de 0 a 100.
inline constexpr double kMaxNumeroFranja = 999999;
inline constexpr double kMaxLimiteFranja = 9999999;

// El mensaje que rechaza la franja, o nada si se puede guardar. Recibe el
// número como se escribió, para que 1.5 no pase por 1.
std::optional<std::string> rechazoFranja(double numero, double min, double max, double tasa);

// La tasa se guarda como moneda (cuatro decimales).
void agregarFranja(store::Conexion& base, const Franja& f);
// Borra la franja de ese número y escribe la nueva, todo o nada.
void reemplazarFranja(store::Conexion& base, const Franja& f);
std::optional<Franja> buscarFranja(store::Conexion& base, long franja);
std::int64_t eliminarFranja(store::Conexion& base, long franja);
std::vector<Franja> listarFranjas(store::Conexion& base);

// El listado impreso "Franjas IRP".
std::vector<std::string> lineasListaFranjas(const std::vector<Franja>& franjas);

}  // namespace nomira::master
