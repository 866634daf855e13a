#include "common/reloj.h"

#include <cstdlib>
#include <ctime>

#include "common/fallo.h"

namespace nomira::common {

namespace {

std::tm ahoraLocal() {
    const std::time_t t = std::time(nullptr);
    std::tm local{};
    localtime_r(&t, &local);
    return local;
}

}  // namespace

Fecha hoy() {
    const char* fijo = std::getenv("NOMIRA_HOY");
    if (fijo != nullptr && *fijo != '\0') {
        const std::string_view texto(fijo);
        // Solo la forma completa: un año de dos cifras aquí sería ambiguo.
        const auto f = Fecha::desdeTexto(texto);
        if (!f || texto.size() != 10 || texto[2] != '/') {
            throw Fallo(13, "NOMIRA_HOY mal formado: " + std::string(texto));
        }
        return *f;
    }
    const std::tm local = ahoraLocal();
    return Fecha{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

std::string horaActual() {
    const std::tm local = ahoraLocal();
    char buf[8];
    std::strftime(buf, sizeof buf, "%H:%M", &local);
    return buf;
}

}  // namespace nomira::common
