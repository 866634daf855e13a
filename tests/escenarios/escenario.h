#pragma once
// Un escenario de punta a punta: una carpeta con las órdenes de nomira-cli que
// se corren sobre una base nueva y lo que se espera de ellas, en archivos.
//
//   ordenes   una orden por línea, sin --base (lo agrega quien la corre);
//             las líneas vacías y las que empiezan con # no cuentan
//   hoy       opcional: el día de hoy, dd/mm/aaaa (15/11/2026 si no está)
//   salida    lo que escribieron las órdenes, stdout y luego stderr
//   filas     las filas de las tablas de la liquidación al terminar
#include <filesystem>
#include <string>
#include <vector>

namespace nomira::pruebas::escenarios {

struct Escenario {
    std::filesystem::path carpeta;
    std::string hoy;
    std::vector<std::string> ordenes;
};

Escenario leerEscenario(const std::filesystem::path& carpeta);

// Corre las órdenes en orden sobre la base `destino`, con NOMIRA_RAIZ en
// `raiz` y NOMIRA_HOY ya puestos, y devuelve su salida como va en "salida":
// cada orden tras "$ nomira-cli", stderr después de "--- stderr" y el estado
// si no es 0. La base y la raíz se escriben <BASE> y <RAIZ>, porque cambian de
// una corrida a otra.
std::string correrOrdenes(const Escenario& e, const std::string& destino,
                          const std::filesystem::path& raiz);

// La diferencia unificada entre el archivo esperado y lo obtenido, o "" si
// son iguales byte por byte. Con `reescribir`, lo obtenido pasa a ser el
// archivo esperado y no hay diferencia.
std::string diferenciaCon(const std::filesystem::path& esperado, const std::string& obtenido,
                          bool reescribir);

}  // namespace nomira::pruebas::escenarios
