#include "master/cambio_categoria.h"

namespace nomira::master {

namespace {

bool lleno(const std::string& s) {
    return s.find_first_not_of(' ') != std::string::npos;
}

// Lo que se escribió en pantalla para las cinco columnas; la historia como está.
Persona comoSeEscribio(const Persona& guardada, const Persona& pantalla) {
    Persona r = guardada;
    r.categoria = pantalla.categoria;
    r.sueldo = pantalla.sueldo;
    r.fechasuevig = pantalla.fechasuevig;
    r.nroord = pantalla.nroord;
    r.fechacatvig = pantalla.fechacatvig;
    return r;
}

void vaciarLugar2(Persona& p) {
    p.nroord2 = "0";
    p.cat2 = p.fechacatvig2 = p.fechasuevig2 = "";
    p.sue2 = "0";
}

void vaciarLugar3(Persona& p) {
    p.nroord3 = "0";
    p.cat3 = p.fechacatvig3 = p.fechasuevig3 = "";
    p.sue3 = "0";
}

// Un cambio: la categoría vigente pasa a un lugar de historia con la fecha del cambio.
Persona cambiar(const Persona& guardada, const Persona& pantalla, const std::string& nuevoNroord,
                bool primero) {
    Persona r = guardada;
    auto& nroord = primero ? r.nroord3 : r.nroord2;
    auto& cat = primero ? r.cat3 : r.cat2;
    auto& sue = primero ? r.sue3 : r.sue2;
    auto& fechasuevig = primero ? r.fechasuevig3 : r.fechasuevig2;
    auto& fechacatvig = primero ? r.fechacatvig3 : r.fechacatvig2;
    cat = guardada.categoria;
    nroord = guardada.nroord;
    sue = guardada.sueldo;
    fechasuevig = guardada.fechasuevig;
    fechacatvig = pantalla.fechacatvig;
    if (primero) vaciarLugar2(r);
    r.fechacatvig = "";
    r.nroord = nuevoNroord;
    r.categoria = pantalla.categoria;
    r.sueldo = pantalla.sueldo;
    r.fechasuevig = pantalla.fechasuevig;
    return r;
}

// Deshacer: los valores del lugar vuelven a ser los vigentes y el lugar queda vacío.
Persona volver(const Persona& guardada, bool lugar3) {
    Persona r = guardada;
    r.nroord = lugar3 ? guardada.nroord3 : guardada.nroord2;
    r.categoria = lugar3 ? guardada.cat3 : guardada.cat2;
    r.sueldo = lugar3 ? guardada.sue3 : guardada.sue2;
    r.fechasuevig = lugar3 ? guardada.fechasuevig3 : guardada.fechasuevig2;
    r.fechacatvig = "";
    lugar3 ? vaciarLugar3(r) : vaciarLugar2(r);
    return r;
}

constexpr const char* kSinCambios = "No se realizaron cambios de categoría.";

}  // namespace

DecisionCategoria decidirCambioCategoria(const Persona& guardada, const Persona& pantalla,
                                         DeshacerCambio opcion, const std::string& nuevoNroord) {
    switch (opcion) {
        case DeshacerCambio::Primero:
            if (lleno(guardada.cat2))
                return {std::nullopt,
                        "Se realizaron 2 cambios de categoría, deberá eliminar el 2do cambio y "
                        "luego el 1ero."};
            if (!lleno(guardada.cat3)) return {std::nullopt, kSinCambios};
            return {volver(guardada, true), ""};
        case DeshacerCambio::Segundo:
            if (lleno(guardada.cat2)) return {volver(guardada, false), ""};
            if (lleno(guardada.cat3))
                return {std::nullopt, "Se realizó solamente 1 cambio de categoría."};
            return {std::nullopt, kSinCambios};
        case DeshacerCambio::Ninguno:
            break;
    }
    const bool conFecha = lleno(pantalla.fechacatvig);
    if (!lleno(pantalla.categoria)) return {comoSeEscribio(guardada, pantalla), ""};
    if (!lleno(guardada.categoria)) {
        if (!conFecha) return {comoSeEscribio(guardada, pantalla), ""};
        return {
            std::nullopt,
            "Para hacer un cambio de categoría primero deberá completar el campo Categoría dejando "
            "el campo FCatVig vacío."};
    }
    if (guardada.categoria == pantalla.categoria || !conFecha)
        return {comoSeEscribio(guardada, pantalla), ""};
    return {cambiar(guardada, pantalla, nuevoNroord, !lleno(guardada.cat3)), ""};
}

std::string aplicarCambioCategoria(store::Conexion& base, const Persona& pantalla,
                                   DeshacerCambio opcion) {
    const auto guardada = leerPersona(base, pantalla.empresa, pantalla.nombre);
    if (!guardada) return "";
    const auto d = decidirCambioCategoria(*guardada, pantalla, opcion,
                                          std::to_string(siguienteNroord(base, pantalla.empresa)));
    if (d.categoria) {
        Campos<Persona> columnas;
        for (const auto& campo : camposPersona())
            if (esColumnaDeCategoria(campo.columna)) columnas.push_back(campo);
        const auto nombres = columnasDe(columnas);
        auto valores = valoresParaColumnas("personal", nombres, textosDe(*d.categoria, columnas));
        valores.emplace_back(pantalla.empresa);
        valores.emplace_back(pantalla.nombre);
        base.ejecuta(sqlActualizar("personal", nombres, {"empresa", "nombre"}), valores);
    }
    return d.mensaje;
}

}  // namespace nomira::master
