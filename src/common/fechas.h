#pragma once
// Fechas y meses de liquidación. Los años de dos cifras se resuelven con reglas
// distintas según el cálculo; cada una tiene su nombre.
#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace nomira::common {

// Fechas tecleadas o guardadas: ventana 1930-2029.
int anioVentana30(int yy);
// Meses, archivos de los organismos y la mayoría de los cálculos: 50..99 -> 19yy.
int anioPivote50(int yy);
// Nacimientos en EsMayorde18 y el tope de AFAP: 30..99 -> 19yy.
int anioPivote30(int yy);

bool esBisiesto(int anio);
int diasDelMes(int anio, int mes);

struct Fecha {
    int anio = 0, mes = 0, dia = 0;

    auto operator<=>(const Fecha&) const = default;

    bool valida() const;

    // "dd/mm/yy", "d/m/yy", "dd/mm/yyyy" o "yyyy-mm-dd"; nada si no es una
    // fecha válida. El año de dos cifras va por la ventana 1930-2029.
    static std::optional<Fecha> desdeTexto(std::string_view texto);

    std::string iso() const;       // "yyyy-mm-dd"
    std::string ddmmyy() const;    // "dd/mm/yy"
    std::string ddmmyyyy() const;  // "dd/mm/yyyy"

    // Las operaciones siguientes suponen una fecha válida.
    Fecha ultimoDiaDelMes() const;
    Fecha diaAnterior() const { return sumarDias(-1); }
    Fecha diaSiguiente() const { return sumarDias(1); }
    Fecha sumarDias(long n) const;
    // El día se acota al último del mes de llegada (31/01 + 1 mes = 28 o 29/02).
    Fecha sumarMeses(int n) const;
    // 1 domingo ... 7 sábado, como el día de la semana de siempre.
    int diaDeLaSemana() const;

    // Días desde el 01/01/1970 (negativo antes).
    long numeroDeDia() const;
    static Fecha desdeNumeroDeDia(long n);
};

// b - a en días.
long diasEntre(const Fecha& a, const Fecha& b);

struct Mes {
    int anio = 0, mes = 0;

    auto operator<=>(const Mes&) const = default;

    // Exactamente "MM/yy" con MM de 01 a 12; el año por el pivote 50.
    static std::optional<Mes> desdeTexto(std::string_view texto);
    static Mes de(const Fecha& f) { return Mes{f.anio, f.mes}; }

    std::string texto() const;                               // "MM/yy"
    Fecha primerDia() const { return Fecha{anio, mes, 1}; }  // la fecha guardada del mes
    Fecha ultimoDia() const { return Fecha{anio, mes, diasDelMes(anio, mes)}; }
    Mes anterior() const;
    Mes siguiente() const;
};

// El mes anterior al de hoy como "MM/yy" (en enero, diciembre del año anterior).
std::string CalculaMesAnterior(const Fecha& hoy);
// Hoy como "dd/mm/yy".
std::string CalculaFecha(const Fecha& hoy);

// "enero" ... "diciembre", con "setiembre" como se dice aquí; "" fuera de 1..12.
std::string nombreMes(int mes);

}  // namespace nomira::common
