#pragma once
// Los listados que se guardan como texto para llevarlos a otra parte: se
// escriben en "<raíz>/Software", se copian a la carpeta que elige el usuario
// (la que antes era el disquete) y el de "Software" se borra.
#include <filesystem>
#include <string>
#include <vector>

namespace nomira::master {

// Una línea por elemento, en UTF-8 con fin de línea CR LF; reemplaza lo que hubiera.
void guardarLineas(const std::filesystem::path& archivo, const std::vector<std::string>& lineas);

// Copia el archivo a la carpeta con el mismo nombre (pisando uno anterior) y
// borra el original. Devuelve la ruta de la copia; lanza Fallo si no puede.
std::filesystem::path llevarACarpeta(const std::filesystem::path& archivo,
                                     const std::filesystem::path& carpeta);

}  // namespace nomira::master
