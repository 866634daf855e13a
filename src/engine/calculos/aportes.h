#pragma once
// Los aportes personales (MONTEPIO, SNIS, FRL) de una fila de descuento: lo
// que se hace con el total de la fórmula antes de guardarlo (SNIS de los SAS,
// el complemento de aguinaldo, el texto con el porcentaje, el tope del
// montepío), y las tasas que imprimen los recibos.
#include <string>
#include <vector>

#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/calculos/psnis.h"
#include "engine/mes/filas_mes.h"

namespace nomira::engine {
inline namespace calculos {

// El tope del montepío cuando no hay variable TOPEAFAP (o TOPEAFAPA).
inline constexpr double kTopeAfapPorDefecto = 106549;

// "H" o "J" cuyo único haber del mes es una licencia: no paga IRPF en
// diciembre ni lleva complemento de aguinaldo.
bool excepcionLicencia(const std::string& tiposueldo, const std::vector<FilaMes>& filasDelMes);

// El concepto que la persona no genera entre los descuentos permanentes:
// "SNIS", "MONTEPIO" o "" (ninguno).
std::string conceptoExcluido(double cantbfc, const std::string& tipoaporte,
                             const std::string& vinculofun);

// ¿Lleva el SNIS el complemento del aguinaldo este mes?
bool mesConComplementoSNIS(const common::Mes& mes, const std::string& tipoaporte, double psnis,
                           bool excepcionLicencia);

struct EntradaAporte {
    std::string concepto;     // el nombre en conceptos: "MONTEPIO", "SNIS", "FRL"...
    double totalFormula = 0;  // lo que dio la fórmula
    double psnis = 0;         // el que dejó la fórmula (0 si no leyó [PSNIS])
    common::Mes mes;
    std::string tipoaporte, vinculofun;
    double cantbfc = 0;
    double bpc = 0;
    bool excepcionLicencia = false;
    common::Dinero aguinaldosHab;  // filas Hab de aguinaldos del mes
    common::Dinero snisAguinaldo;  // la fila SNIS de aguinaldos del mes
    common::Dinero montograv;
    bool tafap = false;                 // socmedica: "T.Afap/Perm." en "Si"
    double tope = kTopeAfapPorDefecto;  // TOPEAFAP, o TOPEAFAPA con la letra "A"
};

struct FilaAporte {
    std::string concepto;  // el texto que se guarda ("MONTEPIO 15%"...)
    common::Dinero total;
    double psnis = 0, psnisag = 0;
    bool hayag = false;
    std::string explicacion;
};

// Los ajustes de una fila que no es IRP ni IRPF, en su orden.
FilaAporte ajustarAporte(const EntradaAporte& e);

// "SNIS AG. 1.5% + MG. 4.5%" o "SNIS 4.5%"; "MONTEPIO 15%"; "FRL 0.10%"; los
// demás quedan como están.
std::string textoFilaAporte(const std::string& concepto, bool hayag, double psnisag, double psnis);

// El porcentaje escrito en la fórmula: lo que hay entre el primer "*" y el
// primer ")", leído con Val. Un ")" antes del "*" lanza Fallo(5).
double porcentajeDeFormula(const std::string& formula);

// --- Tasas para los recibos y la liquidación de egreso ---

struct TasasDes {
    double psnis = 0, psnisag = 0, pmontepio = 0, pfrl = 0, pirpf = 0;
    bool hayag = false;
    std::string explicacion;
};

struct EntradaTasas {
    DatosSNIS snis;  // montograv: la base del recibo
    common::Mes mes;
    bool excepcionLicencia = false;
    common::Dinero montoag;  // aguinaldo del mes; 0 si no hay
    std::string formulaMontepio, formulaFrl;
    common::Dinero irpf, montoirpf;  // el IRPF del mes y su base
};

// CalculoTasasDesNew sin la lectura: el IRPF ya calculado entra hecho.
TasasDes tasasDes(const EntradaTasas& e);

// CalculoTasasDesNewAguinaldo: la suma de los tres porcentajes.
double sumaTasas(double psnis, double pmontepio, double pfrl);

// CalculoDtosobreHaberesNew: el monto menos los tres aportes.
common::Dinero CalculoDtosobreHaberesNew(common::Dinero monto, double sumaDeTasas);

}  // namespace calculos
}  // namespace nomira::engine
