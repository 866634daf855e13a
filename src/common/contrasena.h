#pragma once
// Contraseñas guardadas como hash con sal: "pbkdf2-sha256$<iter>$<sal>$<hash>",
// sal y hash en hexadecimal.
#include <string>
#include <string_view>

namespace nomira::common {

// PBKDF2-HMAC-SHA256 con 16 bytes de sal al azar; dos llamadas con la misma
// clave dan textos distintos.
std::string hashContrasena(std::string_view clave);

// Compara en tiempo constante. Falso para un `guardado` vacío o mal formado.
bool verificaContrasena(std::string_view clave, std::string_view guardado);

}  // namespace nomira::common
