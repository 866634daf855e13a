#include "maintenance/copia_base.h"

#include <algorithm>

#include "store/crear.h"
#include "store/esquema.h"

namespace nomira::maintenance {

namespace {

std::int64_t contar(store::Conexion& c, const std::string& tabla) {
    return c.consulta("SELECT COUNT(*) AS n FROM " + tabla).primera().entero("n");
}

// La celda leída como valor para escribir. Un texto vacío en una columna de
// número o fecha es Null, como en el origen.
store::Valor paraDestino(const store::Celda& c, store::TipoColumna tipo) {
    const auto* texto = std::get_if<std::string_view>(&c);
    if (texto && texto->empty() && tipo != store::TipoColumna::Texto) return store::Nulo{};
    return store::valorDe(c);
}

// Las columnas que dicen de quién es la fila, para nombrarla en un mensaje.
std::string claveDe(const store::Tabla& t, const std::vector<store::Valor>& fila) {
    std::string clave;
    for (const char* nombre : {"empresa", "nombre", "fecha", "codigo", "franja"}) {
        const int i = t.posicion(nombre);
        if (i < 0) continue;
        clave += (clave.empty() ? "" : ", ") + std::string(nombre) + " = '" +
                 store::textoDe(store::celdaDe(fila[static_cast<std::size_t>(i)])) + "'";
    }
    if (clave.empty())
        clave = t.columnas[0].nombre + " = '" + store::textoDe(store::celdaDe(fila[0])) + "'";
    return clave;
}

// PostgreSQL no guarda el carácter nulo dentro de un texto (SQLite sí): se
// rechaza la copia entera en lugar de guardar un texto cortado.
void rechazarNulos(const store::Tabla& t, const std::vector<store::Valor>& fila) {
    for (std::size_t i = 0; i < fila.size(); ++i) {
        const auto* texto = std::get_if<std::string>(&fila[i]);
        if (texto && texto->find('\0') != std::string::npos)
            throw store::ErrorBase(
                3020, "La fila de la tabla " + t.nombre + " con " + claveDe(t, fila) +
                          " tiene un carácter nulo en la columna " + t.columnas[i].nombre +
                          ", que PostgreSQL no puede guardar. No se copió nada: corrija ese "
                          "texto en el origen y vuelva a copiar.");
    }
}

// Las filas de una tabla del origen, una por una, hacia la carga del destino.
std::int64_t copiarTabla(store::Conexion& origen, store::Conexion& destino,
                         const store::Tabla& tabla) {
    std::vector<std::string> nombres;
    std::string lista;
    for (const auto& c : tabla.columnas) {
        nombres.push_back(c.nombre);
        lista += (lista.empty() ? "" : ", ") + c.nombre;
    }
    const bool haciaPostgres = destino.motor() == store::Motor::Postgres;
    auto carga = destino.cargar(tabla.nombre, nombres);
    std::vector<store::Valor> valores(tabla.columnas.size());
    std::int64_t filas = 0;
    origen.recorrer("SELECT " + lista + " FROM " + tabla.nombre, {},
                    [&](const store::FilaAlPaso& f) {
                        for (std::size_t i = 0; i < valores.size(); ++i)
                            valores[i] = paraDestino(f.celda(i), tabla.columnas[i].tipo);
                        if (haciaPostgres) rechazarNulos(tabla, valores);
                        carga->agregar(valores);
                        ++filas;
                    });
    carga->terminar();
    return filas;
}

}  // namespace

std::vector<TablaCopiada> copiarBase(store::Conexion& origen, store::Conexion& destino,
                                     const std::function<void(const TablaCopiada&)>& avance) {
    if (!store::existeEsquema(origen))
        throw store::ErrorBase(3024, "El origen no tiene las tablas de Nomira.");
    // Un origen de una versión anterior se pone al día, como al abrirlo en el
    // programa: así lo que se copia tiene la forma de las tablas de hoy.
    store::migrar(origen);
    store::Transaccion t(destino);
    store::crearBase(destino);
    // La fila de configuración que trae una base nueva se reemplaza por la del origen.
    destino.ejecuta("DELETE FROM configuracion");
    // Las 39 y las auxiliares que tenga el origen (una base anterior no las tiene).
    std::vector<store::Tabla> tablas = store::esquema();
    const auto enOrigen = store::tablasDeLaBase(origen);
    for (const auto& t : store::tablasAuxiliares())
        if (std::find(enOrigen.begin(), enOrigen.end(), t.nombre) != enOrigen.end())
            tablas.push_back(t);
    for (const auto& tabla : tablas)
        if (contar(destino, tabla.nombre) != 0)
            throw store::ErrorBase(3012,
                                   "El destino ya tiene datos en la tabla " + tabla.nombre + ".");

    std::vector<TablaCopiada> copiadas;
    for (const auto& tabla : tablas) {
        const auto leidas = copiarTabla(origen, destino, tabla);
        const auto enDestino = contar(destino, tabla.nombre);
        if (enDestino != leidas)
            throw store::ErrorBase(3013, "La tabla " + tabla.nombre + " quedó con " +
                                             std::to_string(enDestino) + " filas en lugar de " +
                                             std::to_string(leidas) + ".");
        copiadas.push_back({tabla.nombre, enDestino});
        if (avance) avance(copiadas.back());
    }
    t.confirmar();
    // Un servidor sin estadísticas de las tablas recién llenas elige mal cómo
    // leerlas hasta que pase su análisis automático.
    if (destino.motor() == store::Motor::Postgres)
        for (const auto& c : copiadas)
            if (c.filas > 0) destino.ejecuta("ANALYZE " + c.tabla);
    return copiadas;
}

}  // namespace nomira::maintenance
