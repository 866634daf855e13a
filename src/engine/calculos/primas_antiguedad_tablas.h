#pragma once
// Las primas por antigüedad de los convenios de los consejos de salarios: qué
// convenio corresponde a cada grupo y subgrupo, y de cada uno su base y su
// tabla de porcentajes por años de servicio. Son datos: una sola rutina los
// aplica (primas_antiguedad.h).
#include <optional>
#include <span>

namespace nomira::engine {
inline namespace calculos {

// Sobre qué se aplica el porcentaje.
enum class BaseAntiguedad {
    Sueldo,       // el sueldo de la actividad
    BPC,          // la variable BPC más nueva
    SALMIN,       // la variable SALMIN más nueva
    SueldoMinimo  // el de histsueldosmin de la categoría
};

// Un tramo de años: desde <= anios < hasta da pct + paso x (Int(anios) - desde).
// Con paso 0 el porcentaje es fijo en todo el tramo.
struct TramoAntiguedad {
    double desde, hasta, pct, paso;
};
inline constexpr double kSinTope = 1e9;

struct MiembroAntiguedad {
    int numero = 0;
    BaseAntiguedad base = BaseAntiguedad::Sueldo;
    // Para SueldoMinimo: sector y categoría fijos del convenio; nullptr es el
    // de la persona.
    const char* sector = nullptr;
    const char* categoria = nullptr;
    std::span<const TramoAntiguedad> tramos;
    bool sinCantidad = false;  // el total no se multiplica por cant
    // Un ingreso anterior a este (dd, mm, yy) cuenta desde aquí.
    const int* ingresoMinimo = nullptr;
};

// El miembro 1 a 28.
const MiembroAntiguedad& miembroAntiguedad(int numero);

// Grupo y subgrupo (Val de sus códigos) a miembro, en el orden de la tabla de
// convenios; nada si el grupo no tiene convenio de antigüedad y vale la fórmula.
std::optional<int> miembroPorConsejo(int grupo, int subgrupo);

// El porcentaje de la tabla del miembro para esos años; 0 debajo del primer tramo.
double porcentajeAntiguedad(const MiembroAntiguedad& m, double anios);

}  // namespace calculos
}  // namespace nomira::engine
