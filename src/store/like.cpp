#include "store/like.h"

namespace nomira::store {

std::string like(Motor m) {
    return m == Motor::Postgres ? "ILIKE" : "LIKE";
}

std::string like(const Conexion& c) {
    return like(c.motor());
}

std::string condicionLike(Motor m, std::string_view columna) {
    return std::string(columna) + " " + like(m) + " ? ESCAPE '\\'";
}

std::string condicionLike(const Conexion& c, std::string_view columna) {
    return condicionLike(c.motor(), columna);
}

std::string patronLike(std::string_view patron) {
    std::string salida;
    salida.reserve(patron.size() + 4);
    for (char ch : patron) {
        if (ch == '*') {
            salida += '%';
            continue;
        }
        if (ch == '%' || ch == '_' || ch == '\\') salida += '\\';
        salida += ch;
    }
    return salida;
}

}  // namespace nomira::store
