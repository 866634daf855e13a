#pragma once
// El cierre del año (CalculoIRPFDic): los ingresos de enero a diciembre sobre
// la escala por doce, el aguinaldo y el vacacional a la tasa marginal, las
// deducciones por los meses en que corresponden y lo ya retenido en el año.
#include <array>
#include <string>
#include <vector>

#include "engine/calculos/irpf.h"

namespace nomira::engine {
inline namespace calculos {

// Meses del año que cuentan desde una fecha "desde" (vacía: 12). El año de
// dos cifras es 19yy de 50 a 99.
int mesesDesde(const std::string& fechadesde, const common::Mes& periodo);

struct EntradaIRPFDic {
    common::Mes periodo;
    double bpc = 0, exclusion = 0;
    Deducciones deducciones;
    std::vector<FilaEscala> escala;  // franjas < 1000
    bool multiEmp = false, nfam = false, l19321 = false;
    std::string fechaMultiEmp;                     // socmedica desde el carácter 10
    std::array<common::Dinero, 12> aguinaldosHab;  // por mes, se toma su doceavo
    common::Dinero salvacacional;                  // 606 y 636 del año
    std::vector<FilaMes> ingresos;                 // Hab del año (habydesc; egresos en Form45)
    common::Dinero aportesDelAnio;                 // MONTEPIO, SNIS y FRL del año
    common::Dinero retenidoDelAnio;                // filas IRPF del año
};

struct ResultadoIRPFDic {
    common::Dinero total;
    common::Dinero inggrav, ingbase, totalmontoded, escala, irpfag, credito, retenido;
    std::string explicacion;
};

ResultadoIRPFDic calcularIRPFDic(const EntradaIRPFDic& e);

}  // namespace calculos
}  // namespace nomira::engine
