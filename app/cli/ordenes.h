#pragma once
// Las órdenes de nomira-cli. Cada grupo de órdenes se registra en la aplicación
// y devuelve su estado de salida: 0 hecho, 1 rechazado por un mensaje, 2 fallo.
#include <CLI/CLI.hpp>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "common/fechas.h"
#include "frame/dialogo_consola.h"
#include "store/conexion.h"

namespace nomira::cli {

// Una orden que un mensaje del sistema rechaza: el mensaje va a stderr y el
// estado de salida es 1.
class Rechazo : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Una base que debe existir: un archivo que no está se rechaza sin crearlo.
void exigirBaseExistente(const std::string& destino);

struct Contexto {
    std::string base;               // --base, o base.txt
    std::optional<bool> respuesta;  // --si / --no
    std::function<int()> accion;    // la orden elegida

    std::string destino() const;
    std::unique_ptr<store::Conexion> abrir() const;
    frame::DialogoConsola dialogo() const;
};

// Los mensajes en castellano: etiquetas de la ayuda y errores de la línea de órdenes.
void enCastellano(CLI::App& app);
std::string mensajeDeUso(const CLI::ParseError& e, const CLI::App& app);

// Comprobaciones comunes; las que fallan ya dijeron por qué en stderr.
bool empresaAceptada(store::Conexion& base, const std::string& empresa);
// --nombre "" se rechaza: sin la opción, la orden va sobre toda la empresa.
bool nombreAceptado(const std::optional<std::string>& nombre);
// Un número finito escrito con ".", o nada.
std::optional<double> leerNumero(const std::string& texto);

void registrarOrdenesBase(CLI::App& app, Contexto& ctx);
void registrarOrdenesUsuario(CLI::App& app, Contexto& ctx);
void registrarOrdenesFormula(CLI::App& app, Contexto& ctx);
void registrarOrdenesMantenimiento(CLI::App& app, Contexto& ctx);
void registrarOrdenesDatos(CLI::App& app, Contexto& ctx);
void registrarOrdenesVariables(CLI::App& app, Contexto& ctx);
void registrarOrdenesDescuentos(CLI::App& app, Contexto& ctx);
void registrarOrdenesLiquidacion(CLI::App& app, Contexto& ctx);
void registrarOrdenesVacacional(CLI::App& app, Contexto& ctx);
void registrarOrdenesDemo(CLI::App& app, Contexto& ctx);
void registrarOrdenesAguinaldo(CLI::App& app, Contexto& ctx);
void registrarOrdenesEgreso(CLI::App& app, Contexto& ctx);
void registrarOrdenesIncidencias(CLI::App& app, Contexto& ctx);

// Las filas del aguinaldo de una persona en el pago con sus cifras (liquidacion
// --tabla aguinaldos).
int mostrarAguinaldo(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                     const common::Mes& pago, bool explicar);
// Las filas de egresos de una persona en el mes con sus totales (liquidacion
// --tabla egresos).
int mostrarEgreso(store::Conexion& base, const std::string& empresa, const std::string& nombre,
                  const common::Mes& mes, bool explicar);
// Las filas del salario vacacional de una persona en el mes con su desglose
// (liquidacion --tabla salvacacional y vacacional sin --codigo).
int mostrarVacacional(store::Conexion& base, common::Dialogo& dialogo, const std::string& empresa,
                      const std::string& nombre, const common::Mes& mes, bool explicar);

}  // namespace nomira::cli
