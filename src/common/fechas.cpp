#include "common/fechas.h"

#include <chrono>

#include <fmt/format.h>

namespace nomira::common {

namespace chr = std::chrono;

int anioVentana30(int yy) {
    return yy >= 30 ? 1900 + yy : 2000 + yy;
}
int anioPivote50(int yy) {
    return yy >= 50 ? 1900 + yy : 2000 + yy;
}
int anioPivote30(int yy) {
    return yy >= 30 ? 1900 + yy : 2000 + yy;
}

bool esBisiesto(int anio) {
    return (anio % 4 == 0 && anio % 100 != 0) || anio % 400 == 0;
}

int diasDelMes(int anio, int mes) {
    static constexpr int dias[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (mes < 1 || mes > 12) return 0;
    return mes == 2 && esBisiesto(anio) ? 29 : dias[mes - 1];
}

bool Fecha::valida() const {
    return anio >= 1 && anio <= 9999 && dia >= 1 && dia <= diasDelMes(anio, mes);
}

namespace {

// Lee un número de 1 a `maximo` cifras; nada si hay otra cosa o está vacío.
std::optional<int> numero(std::string_view t, std::size_t minimo, std::size_t maximo) {
    if (t.size() < minimo || t.size() > maximo) return std::nullopt;
    int n = 0;
    for (char c : t) {
        if (c < '0' || c > '9') return std::nullopt;
        n = n * 10 + (c - '0');
    }
    return n;
}

}  // namespace

std::optional<Fecha> Fecha::desdeTexto(std::string_view t) {
    Fecha f;
    if (t.size() == 10 && t[4] == '-' && t[7] == '-') {
        const auto a = numero(t.substr(0, 4), 4, 4);
        const auto m = numero(t.substr(5, 2), 2, 2);
        const auto d = numero(t.substr(8, 2), 2, 2);
        if (!a || !m || !d) return std::nullopt;
        f = Fecha{*a, *m, *d};
    } else {
        const auto b1 = t.find('/');
        const auto b2 = b1 == std::string_view::npos ? b1 : t.find('/', b1 + 1);
        if (b2 == std::string_view::npos) return std::nullopt;
        const auto d = numero(t.substr(0, b1), 1, 2);
        const auto m = numero(t.substr(b1 + 1, b2 - b1 - 1), 1, 2);
        const std::string_view textoAnio = t.substr(b2 + 1);
        const auto a = numero(textoAnio, 2, 4);
        if (!a || !m || !d || textoAnio.size() == 3) return std::nullopt;
        f = Fecha{textoAnio.size() == 2 ? anioVentana30(*a) : *a, *m, *d};
    }
    if (!f.valida()) return std::nullopt;
    return f;
}

std::string Fecha::iso() const {
    // A mano y no con format: cada consulta de un mes arma una.
    if (anio < 0 || anio > 9999) return fmt::format("{:04}-{:02}-{:02}", anio, mes, dia);
    std::string s = "0000-00-00";
    const auto cifras = [&](std::size_t fin, int n, int ancho) {
        for (int i = 0; i < ancho; ++i, n /= 10) s[fin - i] = static_cast<char>('0' + n % 10);
    };
    cifras(3, anio, 4);
    cifras(6, mes, 2);
    cifras(9, dia, 2);
    return s;
}

std::string Fecha::ddmmyy() const {
    return fmt::format("{:02}/{:02}/{:02}", dia, mes, anio % 100);
}

std::string Fecha::ddmmyyyy() const {
    return fmt::format("{:02}/{:02}/{:04}", dia, mes, anio);
}

Fecha Fecha::ultimoDiaDelMes() const {
    return Fecha{anio, mes, diasDelMes(anio, mes)};
}

long Fecha::numeroDeDia() const {
    const chr::sys_days d = chr::year{anio} / chr::month(mes) / chr::day(dia);
    return d.time_since_epoch().count();
}

Fecha Fecha::desdeNumeroDeDia(long n) {
    const chr::year_month_day ymd{chr::sys_days{chr::days{n}}};
    return Fecha{static_cast<int>(ymd.year()), static_cast<int>(static_cast<unsigned>(ymd.month())),
                 static_cast<int>(static_cast<unsigned>(ymd.day()))};
}

Fecha Fecha::sumarDias(long n) const {
    return desdeNumeroDeDia(numeroDeDia() + n);
}

Fecha Fecha::sumarMeses(int n) const {
    // Meses contados desde el año 0 para que la división no dependa del signo.
    const int total = anio * 12 + (mes - 1) + n;
    const int a = total / 12;
    const int m = total % 12 + 1;
    const int d = dia < diasDelMes(a, m) ? dia : diasDelMes(a, m);
    return Fecha{a, m, d};
}

int Fecha::diaDeLaSemana() const {
    const chr::weekday s{chr::sys_days{chr::days{numeroDeDia()}}};
    return static_cast<int>(s.c_encoding()) + 1;
}

long diasEntre(const Fecha& a, const Fecha& b) {
    return b.numeroDeDia() - a.numeroDeDia();
}

std::optional<Mes> Mes::desdeTexto(std::string_view t) {
    if (t.size() != 5 || t[2] != '/') return std::nullopt;
    const auto m = numero(t.substr(0, 2), 2, 2);
    const auto a = numero(t.substr(3, 2), 2, 2);
    if (!m || !a || *m < 1 || *m > 12) return std::nullopt;
    return Mes{anioPivote50(*a), *m};
}

std::string Mes::texto() const {
    return fmt::format("{:02}/{:02}", mes, anio % 100);
}

Mes Mes::anterior() const {
    return mes == 1 ? Mes{anio - 1, 12} : Mes{anio, mes - 1};
}

Mes Mes::siguiente() const {
    return mes == 12 ? Mes{anio + 1, 1} : Mes{anio, mes + 1};
}

std::string CalculaMesAnterior(const Fecha& hoy) {
    return Mes::de(hoy).anterior().texto();
}

std::string CalculaFecha(const Fecha& hoy) {
    return hoy.ddmmyy();
}

std::string nombreMes(int mes) {
    static constexpr const char* nombres[] = {"enero",     "febrero", "marzo",     "abril",
                                              "mayo",      "junio",   "julio",     "agosto",
                                              "setiembre", "octubre", "noviembre", "diciembre"};
    return mes >= 1 && mes <= 12 ? nombres[mes - 1] : "";
}

}  // namespace nomira::common
