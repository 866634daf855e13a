#pragma once
// Una sola instancia por sesión de usuario, con un archivo bloqueado en la carpeta
// de configuración. El bloqueo se libera solo si el proceso termina.
#include <filesystem>

namespace nomira::frame {

inline constexpr const char* kMensajeSegundaInstancia =
    "ERROR : \rNo se puede ejecutar dos veces el programa en el mismo PC.";

class BloqueoInstancia {
public:
    explicit BloqueoInstancia(const std::filesystem::path& archivo);
    ~BloqueoInstancia();
    BloqueoInstancia(const BloqueoInstancia&) = delete;
    BloqueoInstancia& operator=(const BloqueoInstancia&) = delete;

    // false cuando otra instancia ya tiene el bloqueo.
    bool obtenido() const { return fd_ >= 0; }

private:
    int fd_ = -1;
};

}  // namespace nomira::frame
