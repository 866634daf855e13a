#include "master/archivo_texto.h"

#include <fstream>

#include "common/fallo.h"

namespace nomira::master {

void guardarLineas(const std::filesystem::path& archivo, const std::vector<std::string>& lineas) {
    std::filesystem::create_directories(archivo.parent_path());
    std::ofstream f(archivo, std::ios::binary | std::ios::trunc);
    if (!f) throw common::Fallo(75, "Error de acceso a la ruta o el archivo: " + archivo.string());
    for (const auto& l : lineas) f << l << "\r\n";
    if (!f) throw common::Fallo(61, "No se pudo escribir " + archivo.string());
}

std::filesystem::path llevarACarpeta(const std::filesystem::path& archivo,
                                     const std::filesystem::path& carpeta) {
    const auto destino = carpeta / archivo.filename();
    std::error_code e;
    std::filesystem::copy_file(archivo, destino, std::filesystem::copy_options::overwrite_existing,
                               e);
    if (e) throw common::Fallo(76, "No se encontró la ruta de acceso: " + destino.string());
    std::filesystem::remove(archivo, e);
    return destino;
}

}  // namespace nomira::master
