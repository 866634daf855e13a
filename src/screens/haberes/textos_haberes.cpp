#include "screens/haberes/textos_haberes.h"

#include "common/texto.h"

namespace nomira::pantallas {

std::string tituloMesLiquidado(const common::Mes& mes) {
    const std::string texto = mes.texto();
    return "La fecha corresponde a la liquidación de " +
           common::mayusculas(common::nombreMes(mes.mes)) + texto.substr(2);
}

std::optional<std::string> observacionDelMes(const std::string& observaciones,
                                             const std::string& mes) {
    std::string resto = observaciones, entre;
    const auto abre = observaciones.find('[');
    const auto cierra = abre == std::string::npos ? abre : observaciones.find(']', abre);
    if (cierra != std::string::npos) {
        entre = observaciones.substr(abre + 1, cierra - abre - 1);
        resto = observaciones.substr(0, abre) + observaciones.substr(cierra + 1);
    }
    const auto desde = resto.find_first_not_of(" \r\n\t");
    if (desde == std::string::npos) return std::nullopt;
    resto = resto.substr(desde, resto.find_last_not_of(" \r\n\t") - desde + 1);
    if (!entre.empty() && entre != mes) return std::nullopt;
    return resto;
}

}  // namespace nomira::pantallas
