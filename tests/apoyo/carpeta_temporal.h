#pragma once
// Una carpeta temporal que hace de <raíz> (NOMIRA_RAIZ) y se borra al final,
// con hoy fijo: las pruebas nunca tocan la carpeta ni la base del usuario.
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

namespace nomira::pruebas {

class CarpetaTemporal {
public:
    explicit CarpetaTemporal(const char* hoy = "15/03/2026") {
        std::random_device azar;
        ruta_ = std::filesystem::temp_directory_path() / ("nomira-prueba-" + std::to_string(azar()));
        std::filesystem::create_directories(ruta_);
        setenv("NOMIRA_RAIZ", ruta_.c_str(), 1);
        setenv("NOMIRA_HOY", hoy, 1);
    }
    ~CarpetaTemporal() {
        std::error_code ec;
        std::filesystem::remove_all(ruta_, ec);
    }
    const std::filesystem::path& ruta() const { return ruta_; }
    std::string archivo(const std::string& nombre) const { return (ruta_ / nombre).string(); }

private:
    std::filesystem::path ruta_;
};

}  // namespace nomira::pruebas
