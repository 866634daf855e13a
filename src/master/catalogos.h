#pragma once
// Las tablas de referencia guardan "código-texto" y los registros sólo el texto:
// el código se vuelve a encontrar buscando el texto al final del valor.
#include <string>
#include <string_view>

#include "store/conexion.h"

namespace nomira::master {

// ¿Es una de las 24 tablas de referencia (tipoaport, segurosalud, paises...)?
bool esTablaDeReferencia(std::string_view tabla);

// El código de la primera fila de la tabla cuyo `nombre` es Like '*texto' (un
// texto vacío busca "NADA"): lo anterior al primer guion, "" si no hay fila o
// la fila no tiene guion. Una tabla que no es de referencia lanza Fallo.
std::string codigoEnCatalogo(store::Conexion& base, std::string_view tabla, std::string_view texto);

}  // namespace nomira::master
