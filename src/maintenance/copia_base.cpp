#include "maintenance/copia_base.h"

#include <algorithm>

#include "store/crear.h"
#include "store/esquema.h"

namespace nomira::maintenance {

namespace {

std::int64_t contar(store::Conexion& c, const std::string& tabla) {
    return c.consulta("SELECT COUNT(*) AS n FROM " + tabla).primera().entero("n");
}

// Un texto vacío en una columna de número o fecha es Null, como en el origen.
store::Valor paraDestino(const store::Valor& v, store::TipoColumna tipo) {
    const auto* texto = std::get_if<std::string>(&v);
    if (texto && texto->empty() && tipo != store::TipoColumna::Texto) return store::Nulo{};
    return v;
}

std::string insercion(const store::Tabla& t) {
    std::string columnas, marcas;
    for (const auto& c : t.columnas) {
        columnas += (columnas.empty() ? "" : ", ") + c.nombre;
        marcas += marcas.empty() ? "?" : ", ?";
    }
    return "INSERT INTO " + t.nombre + " (" + columnas + ") VALUES (" + marcas + ")";
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
        const auto sql = insercion(tabla);
        const auto filas = origen.consulta("SELECT * FROM " + tabla.nombre);
        std::vector<store::Valor> valores(tabla.columnas.size());
        for (const auto& fila : filas.filas) {
            for (std::size_t i = 0; i < tabla.columnas.size(); ++i)
                valores[i] =
                    paraDestino(fila.valor(tabla.columnas[i].nombre), tabla.columnas[i].tipo);
            destino.ejecuta(sql, valores);
        }
        const auto enDestino = contar(destino, tabla.nombre);
        if (enDestino != static_cast<std::int64_t>(filas.filas.size()))
            throw store::ErrorBase(3013, "La tabla " + tabla.nombre + " quedó con " +
                                             std::to_string(enDestino) + " filas en lugar de " +
                                             std::to_string(filas.filas.size()) + ".");
        copiadas.push_back({tabla.nombre, enDestino});
        if (avance) avance(copiadas.back());
    }
    t.confirmar();
    return copiadas;
}

}  // namespace nomira::maintenance
