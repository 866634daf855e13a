#pragma once
// Impresión de informes de texto: líneas en la impresora, la fuente y el tamaño que
// dice `configuracion` para cada uso. Sin impresora instalada se guarda un PDF.
#include <QString>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "common/dialogo.h"
#include "master/configuracion.h"
#include "store/conexion.h"

namespace nomira::ventana {

enum class UsoImpresora { Recibos, Informes, Otros };

struct DestinoImpresion {
    QString impresora;  // vacía: la predeterminada del sistema
    QString fuente;
    int tamano = 10;
};

DestinoImpresion destinoDe(const master::Configuracion& c, UsoImpresora uso);

// Escribe las líneas en un PDF, con la fuente del destino.
void escribirPdf(const std::vector<std::string>& lineas, const DestinoImpresion& destino,
                 const std::filesystem::path& ruta);

// Imprime; sin impresoras en el sistema guarda "<raíz>/Software/<documento>.pdf" y
// devuelve su ruta. Un PDF anterior con ese nombre sólo se reemplaza si se responde
// Sí; el guardado se avisa con su ruta entera ("Archivo guardado.").
std::optional<std::filesystem::path> imprimirLineas(const std::vector<std::string>& lineas,
                                                    const DestinoImpresion& destino,
                                                    const std::string& documento,
                                                    common::Dialogo& dialogo);

// Las líneas a la impresora de informes que dice la configuración de la base.
void imprimirInforme(store::Conexion& base, const std::vector<std::string>& lineas,
                     const std::string& documento, common::Dialogo& dialogo);

}  // namespace nomira::ventana
