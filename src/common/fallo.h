#pragma once
// Un fallo en tiempo de ejecución: número y descripción, como los muestra
// "Error inesperado <n> en <procedimiento> del <pantalla> ".
#include <stdexcept>
#include <string>

namespace nomira::common {

class Fallo : public std::runtime_error {
public:
    Fallo(int numero, const std::string& descripcion)
        : std::runtime_error(descripcion), numero_(numero) {}
    int numero() const { return numero_; }
    std::string descripcion() const { return what(); }

private:
    int numero_;
};

// El texto del cuadro de error que muestra la acción que falló.
inline std::string textoErrorInesperado(const Fallo& f, const std::string& procedimiento,
                                        const std::string& pantalla) {
    return "Error inesperado " + std::to_string(f.numero()) + " en " + procedimiento + " del " +
           pantalla + " \n" + f.descripcion();
}

}  // namespace nomira::common
