#pragma once
// El mes de una persona en Form42: lo que BuscarVerif lee de la empresa y de la
// persona, cargado en el contexto de las fórmulas, y lo que devuelve una
// generación (las filas escritas con la explicación de cada importe).
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "common/dialogo.h"
#include "common/fechas.h"
#include "engine/calculos/base_irpf.h"
#include "engine/calculos/calculo_licencia.h"
#include "engine/mes/filas_mes.h"
#include "engine/formulas/formula.h"
#include "engine/calculos/irpf.h"
#include "engine/calculos/irpf_dic.h"
#include "master/conceptos.h"
#include "master/empresas.h"
#include "master/personal.h"
#include "master/variables.h"
#include "store/conexion.h"

namespace nomira::engine {

// Lo que el mes de cada persona toma de su empresa. La corrida de una empresa
// lo lee una vez para todas.
struct EmpresaDelMes {
    std::string empresa;
    std::string tipoaporte;   // "04" es la exoneración; "" sin fila en tipoaport
    ConsejoSalarios consejo;  // grupo y subgrupo, para los divisores de la licencia
};
// Nada si la empresa no existe.
std::optional<EmpresaDelMes> leerEmpresaDelMes(store::Conexion& base, const std::string& empresa);

// La empresa y la persona tal como las usa el mes.
struct MesPersona {
    std::string empresa, nombre;
    common::Mes mes;
    master::PersonaCompartida persona;  // nunca nula
    std::string tipoaporte;
    std::string tiposueldo;  // "S", "J" o "H"
    std::string vinculofun;
    double bpc = 0;
    ConsejoSalarios consejo;
    BaseMes desglose;  // la base del mes al momento de leerla
};

// BuscarVerif: la empresa (tipoaporte, consejo) y la persona (sueldo, tiposueldo,
// htrab, cantbfc, sueldo2, sueldo3), y la base del mes (Desglose) volcada en ctx.
// ctx queda con empresa, nombre, periodo y variables. Sin empresa o sin persona
// avisa con el mensaje de la pantalla y devuelve nada. Si ctx ya trae leída esa
// persona (personaLeida) no se la vuelve a leer: un contexto nuevo la lee. Con
// `leida` (de esa misma empresa) la empresa tampoco se lee.
std::optional<MesPersona> BuscarVerif(store::Conexion& base, master::LectorVariables& variables,
                                      const std::string& empresa, const std::string& nombre,
                                      const common::Mes& mes, ContextoFormula& ctx,
                                      common::Dialogo& dialogo,
                                      const EmpresaDelMes* leida = nullptr);

// Vuelve a leer la base del mes (después de escribir filas) y la vuelca en ctx.
void refrescarDesglose(store::Conexion& base, MesPersona& mp, ContextoFormula& ctx);

// La fila de un concepto con sus banderas y el tipo dado ("Hab" o "Des"); cant y
// total en 0.
FilaGenerada filaDeConcepto(const master::Concepto& c, const std::string& tipo);

// ¿Puede tener la persona conceptos propios (concpermxpers) de ese tipo ("Hab" o
// "Des")? En la corrida de una empresa se sabe de una lectura de toda la
// empresa; fuera de ella es siempre que sí y se buscan.
bool tieneConceptosPropios(store::Conexion& base, const MesPersona& mp, const char* tipo);

// ¿Trabaja la persona en el mes? Ingresó antes del año, o en el año y no
// después del mes; y no egresó en un año anterior ni en un mes anterior del
// mismo año. Una fecha vacía no excluye.
bool activaEnElMes(const master::Persona& p, const common::Mes& mes);

// Una fila escrita y cómo se llegó a su importe; una fila de IRPF, además, con
// las cifras de su cálculo (las del recuadro del IRPF de la pantalla).
struct FilaLiquidada {
    FilaLiquidada() = default;
    FilaLiquidada(FilaGenerada f, std::string e) : fila(std::move(f)), explicacion(std::move(e)) {}

    FilaGenerada fila;
    std::string explicacion;
    std::optional<ResultadoIRPF> irpfMes;
    std::optional<ResultadoIRPFDic> irpfDiciembre;
};

// Lo que deja la generación de una persona. Sin `hecho`, un mensaje del sistema
// la detuvo (`aviso`) y no se escribió nada.
struct ResultadoPersona {
    std::string empresa, nombre;
    common::Mes mes;
    bool hecho = false;
    std::string aviso;
    std::vector<FilaLiquidada> filas;
};

}  // namespace nomira::engine
