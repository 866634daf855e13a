#pragma once
// El mes de una persona en Form42: lo que leerMesDeLaPersona lee de la empresa y de la
// persona, cargado en el contexto de las fórmulas, y lo que devuelve una
// generación (las filas escritas con la explicación de cada importe).
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "common/dialogo.h"
#include "common/fallo.h"
#include "common/fechas.h"
#include "engine/calculos/base_irpf.h"
#include "engine/calculos/calculo_licencia.h"
#include "engine/calculos/irpf.h"
#include "engine/calculos/irpf_dic.h"
#include "engine/formulas/formula.h"
#include "engine/mes/filas_mes.h"
#include "engine/mes/lectura.h"
#include "master/conceptos.h"
#include "master/empresas.h"
#include "master/personal.h"
#include "master/variables.h"
#include "store/conexion.h"

namespace nomira::engine {
inline namespace mes {

// La empresa y la persona tal como las usa el mes, sobre lo leído por la
// corrida (que el mes comparte: el contexto de las fórmulas apunta ahí).
struct MesPersona {
    std::string empresa, nombre;
    common::Mes mes;
    std::shared_ptr<Lectura> lectura;
    PersonaDelMes* delMes = nullptr;    // dentro de lectura
    master::PersonaCompartida persona;  // nunca nula
    std::string tipoaporte;
    std::string tiposueldo;  // "S", "J" o "H"
    std::string vinculofun;
    double bpc = 0;
    ConsejoSalarios consejo;
    BaseMes desglose;  // la base del mes al momento de calcularla
    // Dónde van las filas que se teclean: habydesc en el mes, egresos en el egreso.
    TablaLiquidacion tabla = TablaLiquidacion::Habydesc;

    LibroPersona& libro() const { return delMes->libro; }
    const Maestros& maestros() const { return lectura->maestros; }
};

// El mes de una persona de la corrida: lo de la empresa y la persona, y la base
// del mes (Desglose) volcada en ctx, que queda con empresa, nombre, período, la
// persona, sus filas y los maestros.
MesPersona mesDeLaPersona(std::shared_ptr<Lectura> lectura, PersonaDelMes& persona,
                          ContextoFormula& ctx);

// BuscarVerif: lee la empresa y la persona con sus filas del mes y del año de
// la licencia (mesesDelRenglon; otras liquidaciones dicen los suyos), y arma
// su mes. Sin empresa o sin persona avisa con el mensaje de la pantalla y
// devuelve nada.
std::optional<MesPersona> leerMesDeLaPersona(store::Conexion& base, const std::string& empresa,
                                             const std::string& nombre, const common::Mes& mes,
                                             ContextoFormula& ctx, common::Dialogo& dialogo,
                                             const std::optional<MesesALeer>& meses = {});

// Lo que se guarda o borra se calcula sobre las filas como están ahora en la
// base: toma la clave de la persona (dentro de la transacción de quien llama) y
// vuelve a leer su mes en mp y ctx, porque otro puesto pudo escribirlo desde que
// la pantalla lo leyó. false si la empresa o la persona ya no están (avisado).
bool releerBajoClave(store::Conexion& base, MesPersona& mp, ContextoFormula& ctx,
                     common::Dialogo& dialogo);

// Vuelve a calcular la base del mes sobre las filas (después de cambiarlas) y la
// vuelca en ctx.
void refrescarDesglose(MesPersona& mp, ContextoFormula& ctx);

// La fila de un concepto con sus banderas y el tipo dado ("Hab" o "Des"); cant y
// total en 0.
FilaGenerada filaDeConcepto(const master::Concepto& c, const std::string& tipo);

// El aviso para una persona cuyo sueldo guardado (de cualquiera de sus tres
// actividades) no es un número: no se la liquida, en lugar de liquidarla en 0.
std::optional<std::string> sueldoNoNumerico(const master::Persona& p);

// Un fallo al calcular la fórmula de un concepto, con el concepto dicho: su
// código, su nombre y su fórmula, para que el cuadro de error lo muestre.
common::Fallo fallaEnConcepto(const common::Fallo& f, const master::Concepto& c);

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
    // Un mensaje detuvo el cálculo después de cambiar filas en memoria: no se
    // escribe nada de esta persona.
    bool detenido = false;
};

}  // namespace mes
}  // namespace nomira::engine
