#pragma once
// Las cuentas de la liquidación por egreso que no leen nada: los días de
// sueldo del último mes y los días de licencia generados en el año del egreso.
#include <optional>
#include <string>

#include "common/fechas.h"

namespace nomira::engine {
inline namespace calculos {

inline constexpr const char* kCeseMalaConducta = "Cese por mala conducta";
inline constexpr const char* kDespido = "Despido";

// Los días de sueldo del mes del egreso: el día del egreso, con el 31 (y el 28
// o 29 del último de febrero) contado como 30; si ingresó en ese mismo mes,
// desde el día de ingreso.
int diasDelUltimoMes(const common::Fecha& egreso, const std::optional<common::Fecha>& ingreso);

// Los días de licencia generados en el año del egreso. Mensuales: 20 por año
// sobre los días trabajados en el año (CantidadDiasTrabEg, o desde el ingreso
// si fue en el año), más los extra por antigüedad, menos las faltas. Jornaleros
// y por hora: los días trabajados del año / 300 x 20, más los extra.
struct EntradaLicenciaEgreso {
    std::string tiposueldo;
    common::Fecha ingreso, egreso;
    int diasextras = 0;
    long faltas = 0;
    double diasTrabajados = 0;  // jornaleros y por hora
};
struct LicenciaEgreso {
    double dias = 0;
    std::string explicacion;
};
LicenciaEgreso licenciaDelAnioDelEgreso(const EntradaLicenciaEgreso& e);

}  // namespace calculos
}  // namespace nomira::engine
