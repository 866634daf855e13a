#pragma once
// Copia de seguridad de la base entera en un archivo.
#include <filesystem>

#include "store/conexion.h"

namespace nomira::maintenance {

// SQLite: una copia coherente con VACUUM INTO, aunque otra PC tenga la base abierta.
// PostgreSQL: pg_dump en su formato propio, para volver con pg_restore.
// Un destino que ya existe se reemplaza; si la copia falla, no queda un archivo a medias.
void respaldarBase(store::Conexion& base, const std::filesystem::path& destino);

}  // namespace nomira::maintenance
