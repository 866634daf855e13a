#pragma once
// El IRPF retenido en el mes: deducciones por beneficiario y por casilla, la
// escala por franjas en BPC, el crédito sobre las deducciones y lo ya retenido
// en aguinaldo y salario vacacional. Una sola rutina para las cuatro
// pantallas; lo que cambia entre ellas va en OpcionesIRPF.
#include <array>
#include <string>
#include <vector>

#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/mes/filas_mes.h"

namespace nomira::engine {
inline namespace calculos {

struct FilaEscala {
    long franja = 0;
    double desde = 0, hasta = 0, tasa = 0;  // en BPC por mes; tasa en %
};

enum class CreditoIRPF { PorNominal, PorPrimerArgumento, Ninguno };

struct OpcionesIRPF {
    // De dónde salen los aportes que se deducen; sin tabla no hay aportes (Form44).
    bool conAportes = true;
    TablaLiquidacion tablaAportes = TablaLiquidacion::Habydesc;
    bool aguinaldoDeEgreso = false;       // Form45: menos la fila AGUINALDO x tasas
    bool escalaAguinaldoEnJunio = false;  // Form43: franjas > 2000 en junio
    bool saltaMultiEmpEnJunio = true;     // Form43 no salta la primera franja en junio
    double factorSlot08 = 1.0 / 12;       // casilla "08": BPC / 12 o la BPC entera
    CreditoIRPF credito = CreditoIRPF::PorNominal;
    bool filasLicencia = true;    // contribuciones de una licencia que se teclea
    bool restaAguinaldos = true;  // el IRPF de aguinaldos (salvo en junio)
    bool restaSalvacacional = true;
    bool restaSalvacEnJunio = true;
    bool resultadoCero = false;  // Form43: siempre 0
};
OpcionesIRPF opcionesIRPFForm42();
OpcionesIRPF opcionesIRPFForm43();
OpcionesIRPF opcionesIRPFForm44();
OpcionesIRPF opcionesIRPFForm45();

// Un beneficiario, con los códigos ya sacados del texto ("01" de "01-Hijo").
struct Dependiente {
    std::string causa, porcentaje;
    double multiplicador = 1;  // montoben; 1 si está vacío
    bool mayor = false;        // EsMayorde18 con fecha de nacimiento cargada
    int mesNacimiento = 0;
    std::string fechadesde;  // fechadesdeben
};

// Una casilla de otras deducciones: código de codigodeducciones ("00" si no
// hay), código de categoriadeducciones y, para el "03", el valor de la
// variable que nombra la categoría.
struct Casilla {
    std::string codigo = "00", categoria = "00";
    double valorVariable = 0;
    std::string fechadesde;
};

struct Deducciones {
    std::array<Dependiente, 3> dependientes;
    std::array<Casilla, 3> casillas;
};

common::Dinero deduccionDependiente(const Dependiente& d, double bpc);
common::Dinero deduccionCasilla(const Casilla& c, double bpc, double factorSlot08);
// Las seis del mes.
common::Dinero deduccionesDelMes(const Deducciones& d, double bpc, double factorSlot08,
                                 std::string* detalle = nullptr);

// Suma las filas de MONTEPIO, SNIS y FRL; a cada fila de SNIS le quita `ajuste`.
common::Dinero aportesDeducibles(const std::vector<FilaMes>& filas, common::Dinero ajuste);

struct ResultadoEscala {
    common::Dinero impuesto;
    double tasaAlcanzada = 0;  // la de la última franja recorrida
    std::string detalle;
};
// Franja por franja: el resto se redondea a cuatro decimales en cada paso;
// lo que pasa de la última franja no paga más. `factor` es 12 en el cierre del año.
ResultadoEscala aplicarEscala(common::Dinero monto, const std::vector<FilaEscala>& escala,
                              double bpc, double factor, bool saltarPrimera);

struct EntradaIRPF {
    common::Dinero montoirpf, montonominal;
    common::Mes mes;
    double bpc = 0, exclusion = 0;  // EXCLUSIONIRPF
    Deducciones deducciones;
    std::vector<FilaEscala> escala;  // ya elegida (< 1000 o > 2000)
    bool multiEmp = false, nfam = false, l19321 = false;
    common::Dinero aportes;            // los deducibles, ya con sus ajustes
    common::Dinero irpfAguinaldo;      // fila IRPF de aguinaldos del mes
    common::Dinero irpfSalvacacional;  // filas IRPF de salvacacional del mes
};

struct ResultadoIRPF {
    common::Dinero total;  // el importe de la fila
    common::Dinero totalmontoded, irpfbruto, credito, irpfsalvac, restadoAguinaldo;
    std::string explicacion;
};

ResultadoIRPF calcularIRPF(const EntradaIRPF& e, const OpcionesIRPF& op);

// El texto de la fila "IRPF" fuera de diciembre.
std::string textoFilaIRPF(const std::string& concepto, const ResultadoIRPF& r,
                          common::Dinero montoirpf);

}  // namespace calculos
}  // namespace nomira::engine
