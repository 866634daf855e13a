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
// Usa las iteraciones que dice el texto guardado, así verifican también los
// hashes de antes.
bool verificaContrasena(std::string_view clave, std::string_view guardado);

// Verdadero si el hash se guardó con menos iteraciones que las de hoy: hay que
// rehacerlo la próxima vez que se tenga la clave.
bool hashAnticuado(std::string_view guardado);

}  // namespace nomira::common
