#pragma once
// La carpeta de configuración: "<raíz>/Software/Nomira/x.txt", archivos de una línea
// que guardan una ruta cada uno. <raíz> es $NOMIRA_RAIZ o la carpeta del usuario.
#include <filesystem>
#include <optional>
#include <string>

namespace nomira::frame {

std::filesystem::path raiz();
// "<raíz>/Software/<nombre>"
std::filesystem::path rutaSoftware(const std::string& nombre = "");
// "<raíz>/Software/Nomira/<nombre>"
std::filesystem::path rutaNomira(const std::string& nombre = "");

// Primera línea del archivo de configuración, sin fin de línea; nullopt si no existe.
std::optional<std::string> leerLinea(const std::string& archivo);
void escribirLinea(const std::string& archivo, const std::string& linea);

// Carpeta de datos del programa (manual, plantillas, catálogos): $NOMIRA_DATOS o la instalada.
std::filesystem::path carpetaDatos();

}  // namespace nomira::frame
