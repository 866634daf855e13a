#include "store/sentencias.h"

#include <cctype>

namespace nomira::store {

std::string primeraPalabra(std::string_view sql) {
    std::size_t i = 0;
    while (i < sql.size() && std::isspace(static_cast<unsigned char>(sql[i]))) ++i;
    std::string palabra;
    for (; i < sql.size() && std::isalpha(static_cast<unsigned char>(sql[i])); ++i)
        palabra += static_cast<char>(std::tolower(static_cast<unsigned char>(sql[i])));
    return palabra;
}

bool esDeDatos(std::string_view sql) {
    std::string p = primeraPalabra(sql);
    return p == "select" || p == "insert" || p == "update" || p == "delete" || p == "with";
}

bool esDeTransaccion(std::string_view sql) {
    std::string p = primeraPalabra(sql);
    return p == "begin" || p == "commit" || p == "savepoint" || p == "release";
}

bool cambiaTablas(std::string_view sql) {
    std::string p = primeraPalabra(sql);
    return p == "create" || p == "alter" || p == "drop";
}

}  // namespace nomira::store
