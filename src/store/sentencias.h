#pragma once
// Clasificación de un texto SQL por su primera palabra, para decidir qué se
// guarda preparado en cada motor.
#include <string>
#include <string_view>

namespace nomira::store {

// La primera palabra en minúsculas: "select", "create"...
std::string primeraPalabra(std::string_view sql);

// SELECT, INSERT, UPDATE, DELETE o WITH: las que vale la pena preparar una vez.
bool esDeDatos(std::string_view sql);

// BEGIN, COMMIT, SAVEPOINT o RELEASE: se repiten en cada transacción.
bool esDeTransaccion(std::string_view sql);

// CREATE, ALTER o DROP: cambian las tablas que leen las ya preparadas.
bool cambiaTablas(std::string_view sql);

}  // namespace nomira::store
