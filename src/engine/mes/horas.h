#pragma once
// Los archivos de horas del reloj de la empresa: una línea por concepto de un
// funcionario, "nrofun|codigo|cantidad" o "nrofun|codigo|cantidad|importe".
// CalculoCant las suma a los haberes del mes; CalculoCant2 reemplaza con ellas
// los descuentos.
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "common/dinero.h"
#include "common/fechas.h"
#include "engine/formulas/formula.h"
#include "engine/mes/filas_mes.h"

namespace nomira::engine {
inline namespace mes {

// La primera línea de <raíz>/Software/Nomira/horas.txt: carpeta y prefijo de
// los archivos ("" si no está). <raíz> es $NOMIRA_RAIZ, o $HOME. El motor no
// depende del marco, por eso la lee por su cuenta.
std::string prefijoArchivosHoras();

// prefijo & MM & yy & nroemp & ".txt".
std::filesystem::path rutaArchivoHoras(const std::string& prefijo, const common::Mes& mes,
                                       const std::string& nroemp);

struct LineaHoras {
    double nrofun = 0;
    long codigo = 0;
    double cantidad = 0;
    common::Dinero importe;
};
// Nada si la línea no tiene dos o tres "|". Cada campo se lee con Val.
std::optional<LineaHoras> leerLineaHoras(const std::string& linea);

// Un archivo de horas leído: sus líneas en el orden del archivo, nada en las
// que no tienen el formato. Error 53 si no se puede abrir.
struct ArchivoHoras {
    std::vector<std::optional<LineaHoras>> lineas;
};
ArchivoHoras leerArchivoHoras(const std::filesystem::path& ruta);

struct ImportacionHoras {
    std::vector<FilaGenerada> filas;  // en el orden en que se escribieron
    std::string explicacion;
};

// ¿Cobra por jornal o por hora? Son los que traen horas del reloj.
inline bool jornaleroOPorHora(const std::string& tiposueldo) {
    return tiposueldo == "H" || tiposueldo == "J";
}

// Avisa, si la corrida no encontró el archivo de horas del mes, qué archivo
// buscó (o que horas.txt no dice dónde buscarlo).
void avisarSinArchivoDeHoras(const Maestros& maestros, common::Dialogo& dialogo);

// El archivo del mes que leyeron los maestros de la corrida. ctx trae la
// persona, sus filas, los maestros, sueldos, htrab y la base del mes. Sin
// archivo no hace nada.
ImportacionHoras CalculoCant(ContextoFormula& ctx, common::Dialogo& dialogo);
// Los descuentos: ctx.tipoaporte ya leído.
ImportacionHoras CalculoCant2(ContextoFormula& ctx, common::Dialogo& dialogo);

// Lo mismo desde un archivo ya leído.
ImportacionHoras importarHoras(ContextoFormula& ctx, const ArchivoHoras& archivo, bool descuentos,
                               common::Dialogo& dialogo);

}  // namespace mes
}  // namespace nomira::engine
