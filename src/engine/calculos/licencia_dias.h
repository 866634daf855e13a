#pragma once
// Días de licencia: los generados en el año anterior, los ya gozados y los que
// quedan, con la traza que imprime la pantalla de incidencias. Todo aquí es
// cálculo puro sobre fechas de dos cifras, como se cuentan desde siempre.
#include <optional>
#include <string>
#include <vector>

#include "master/personal.h"

namespace nomira::engine {
inline namespace calculos {

// Una fecha tal como la cuentan estas rutinas: día, mes y año de dos cifras.
struct FechaCorta {
    int dd = 0, mm = 0, yy = 0;
    bool operator==(const FechaCorta&) const = default;
};

// El día anterior, en el lugar: el 1 va al último del mes anterior, el 1 de
// enero al 31 de diciembre del año anterior (00 pasa a 99); febrero tiene 29
// cuando yy Mod 4 es 0.
void Decrementa1dia(int& dd, int& mm, int& yy);

// Días trabajados en el año de ingreso: 30 por cada mes posterior a mm más
// 31 - dd, con el día 31 contado como 30.
int CantidadDiasTrab(int dd, int mm, int yy);
// Días trabajados en el año de egreso: 30 por cada mes anterior a mm más los
// días del mes de egreso en meses de 30.
int CantidadDiasTrabEg(int dd, int mm, int yy);
// Años entre dos fechas con su fracción: días corridos / 365. Una segunda fecha
// anterior a la primera da 0.
double CantidadDiasExtras(int dd1, int mm1, int yy1, int dd2, int mm2, int yy2);

// Días extra por antigüedad al 31 de diciembre del año anterior: uno cada
// cuatro años desde el quinto, hasta 12.
int diasExtrasPorAntiguedad(double antiguedad);

// Las fechas de la actividad que nombra impaclab. Un ingreso entre corchetes
// en las referencias vale para las tres; en la segunda y tercera actividad un
// ingreso vacío es el 01/01/01. Sin egreso, nada.
struct ActividadLicencia {
    FechaCorta ingreso;
    std::optional<FechaCorta> egreso;
};
ActividadLicencia actividadDeLicencia(const master::Persona& p);

// ¿Le corresponde licencia en `anio`? Ingresó en el año anterior o antes y no
// egresó antes de empezar el año (sin egreso el año cuenta 10000).
bool correspondeLicencia(const ActividadLicencia& a, int anio);

// Los nombres de fila que cuentan en el año anterior (en mayúsculas).
bool esAusencia(const std::string& concepto);
bool esDiaTrabajado(const std::string& concepto, const std::string& tiposueldo);
bool esLicenciaGozada(const std::string& concepto);          // salvacacional
bool esLicenciaNoGozadaEgreso(const std::string& concepto);  // egresos

struct EntradaDiasLicencia {
    std::string tiposueldo;  // "S", "J" o "H"
    FechaCorta ingreso;
    int anio = 0;                         // el año en curso, de cuatro cifras
    double ausencias = 0;                 // mensuales: cant de faltas, suspensiones...
    double diasTrabajados = 0;            // jornaleros y por hora
    std::vector<double> periodosGozados;  // a lo sumo cuatro, en orden
};

struct DiasLicencia {
    int cantdiastrab = 0;
    double antiguedad = 0;
    int diasextras = 0;
    long faltas = 0;
    double cantdiasgenerados = 0;
    std::vector<double> diasgozados;
    double cantdiaspendientes = 0;
    bool gozadosDeMas = false;  // generados - gozados < 0
    std::string traza;          // líneas terminadas en CR LF
    std::string explicacion;
};

DiasLicencia calcularDiasLicencia(const EntradaDiasLicencia& e);

}  // namespace calculos
}  // namespace nomira::engine
