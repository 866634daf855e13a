#pragma once
// Aumentos de sueldo: el porcentaje que compone recuperación e inflación, el
// aumento de los sueldos mínimos de las categorías por períodos de seis meses, y
// el aumento o la baja de los sueldos de una empresa.
#include <optional>
#include <string>
#include <utility>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "master/sueldos_minimos.h"
#include "store/conexion.h"

namespace nomira::master {

// Los dos aumentos se componen, no se suman: 2 y 3 dan 5.06.
double porcentajeCompuesto(double recuperacion, double inflacion);

// Suma1dia: el período que sigue al que termina en `fechafin`: del primer día del
// mes siguiente al último día del sexto mes contado desde ahí.
std::pair<common::Fecha, common::Fecha> Suma1dia(const common::Fecha& fechafin);

// Un período nuevo por categoría del grupo, subgrupo y sector (textos de los
// catálogos), con el último sueldo más el porcentaje; las categorías sin sueldo
// mínimo no se tocan. Todo o nada; devuelve cuántas categorías aumentó.
int aumentarSueldosMinimos(store::Conexion& base, const std::string& grupo,
                           const std::string& subgrupo, const std::string& sector, double porcentaje);
// Deshace el último aumento: borra el período más reciente de cada categoría.
int eliminarUltimoAumento(store::Conexion& base, const std::string& grupo,
                          const std::string& subgrupo, const std::string& sector);

// El sueldo nuevo de una persona: a dos decimales, y en pesos enteros si es
// mensual ("S"); jornales y horas conservan los centavos.
double sueldoAumentado(double sueldo, double porcentaje, const std::string& tiposueldo);
double sueldoBajado(double sueldo, double porcentaje, const std::string& tiposueldo);

// El porcentaje de un aumento o una baja: -100 o menos deja sueldos en cero o
// negativos (y al bajar divide por cero); más de kMaxPorcentaje, o un número
// que no es finito, es un error de tipeo. Devuelve el mensaje que lo rechaza.
inline constexpr double kMaxPorcentaje = 10000;
std::optional<std::string> rechazoPorcentaje(double porcentaje);
// Un porcentaje negativo hace lo contrario de lo pedido: se pregunta antes, y
// la respuesta por defecto es No. Sin pregunta para uno positivo o cero.
bool confirmarPorcentaje(common::Dialogo& dialogo, double porcentaje, bool bajar);

struct PedidoAumento {
    std::string empresa;
    double porcentaje = 0;
    common::Fecha fsuevig;
    std::string categoria;  // texto de la categoría; vacío: todas
    bool bajar = false;
};

// Aumenta (o baja) el sueldo de la primera y la segunda actividad de cada persona
// de la empresa y pone la fecha de vigencia. Se salta la actividad cuyo egreso es
// de un mes anterior al de `hoy`. En una transacción: correrlo dos veces es la
// única manera de aumentar dos veces. Devuelve cuántos sueldos cambió.
int aumentarSueldosEmpresa(store::Conexion& base, const PedidoAumento& pedido,
                           const common::Fecha& hoy);

}  // namespace nomira::master
