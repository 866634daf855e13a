#pragma once
// Las tablas de referencia guardan "código-texto" y los registros sólo el texto:
// el código se vuelve a encontrar buscando el texto al final del valor.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/conexion.h"

namespace nomira::master {

// ¿Es una de las 24 tablas de referencia (tipoaport, segurosalud, paises...)?
bool esTablaDeReferencia(std::string_view tabla);

// El código de la primera fila de la tabla cuyo `nombre` es Like '*texto' (un
// texto vacío busca "NADA"): lo anterior al primer guion, "" si no hay fila o
// la fila no tiene guion. Una tabla que no es de referencia lanza Fallo.
std::string codigoEnCatalogo(store::Conexion& base, std::string_view tabla, std::string_view texto);

// " ORDER BY ..." del orden en que se cargaron las filas: SELECT * sin orden
// las devuelve así en los dos motores, pero sólo pidiéndolo queda asegurado.
std::string ordenDeCarga(store::Motor motor);
std::string ordenDeCarga(const store::Conexion& base);

// Filtro de una lista dependiente: (columna, texto). Los registros guardan el
// texto sin código, por eso cada filtro es `columna Like '*texto'`.
using FiltrosCatalogo = std::vector<std::pair<std::string, std::string>>;

// Los valores guardados ("código-texto") en el orden en que se cargaron, que
// es como los muestran las pantallas. La columna listada es la que sigue a
// las filtradas: `subgrupoact` con el filtro de `nombre` da `nombre2`,
// `categorias` con los de nombre, nombre2 y nombre3 da `nombre4`.
std::vector<std::string> valoresCatalogo(store::Conexion& base, std::string_view tabla,
                                         const FiltrosCatalogo& filtros = {});

// Lo mismo, sólo el texto posterior al primer guion: lo que va a los registros.
std::vector<std::string> textosCatalogo(store::Conexion& base, std::string_view tabla,
                                        const FiltrosCatalogo& filtros = {});

// Las filas completas, columna por columna, con las condiciones exactas
// `columna = valor` (así lee una pantalla de catálogo la lista hija de lo
// elegido en la madre). Sin condiciones, todas.
std::vector<std::vector<std::string>> filasCatalogo(
    store::Conexion& base, std::string_view tabla,
    const std::vector<std::pair<std::string, std::string>>& iguales = {});

// El código postal de la localidad del departamento, los dos como los guarda
// la empresa (sin código); nada si `local` no la tiene.
std::optional<std::string> codigoPostal(store::Conexion& base, std::string_view depto,
                                        std::string_view localidad);

// Una fila nueva con todas las columnas de la tabla en su orden (madres y
// luego el valor). No se controla duplicado.
void agregarACatalogo(store::Conexion& base, std::string_view tabla,
                      const std::vector<std::string>& valores);

// Borra las filas que cumplen `columna = valor` en todas las condiciones
// dadas; los registros que usaban el valor conservan su texto.
std::int64_t eliminarDeCatalogo(store::Conexion& base, std::string_view tabla,
                                const std::vector<std::pair<std::string, std::string>>& iguales);

}  // namespace nomira::master
