#pragma once
// Lo que comparten los bancos de las corridas de una empresa: la base donde
// se arma (SQLite o un esquema de PostgreSQL), el reloj y la cantidad de vueltas.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "common/fechas.h"
#include "master/datos_iniciales.h"
#include "store/conexion.h"
#include "store/crear.h"

namespace nomira::banco {

// Con NOMIRA_BANCO_PG (una cadena de conexión) la empresa va a un esquema propio de ese
// servidor, que se borra y se vuelve a crear; si no, a un archivo SQLite temporal.
inline std::unique_ptr<store::Conexion> baseVacia(const std::filesystem::path& archivo) {
    const char* pg = std::getenv("NOMIRA_BANCO_PG");
    if (!pg || !*pg) {
        std::filesystem::remove(archivo);
        return store::abrir(archivo.string());
    }
    auto base = store::abrir(pg);
    const auto esquema = "banco_" + archivo.stem().string();
    base->ejecuta("DROP SCHEMA IF EXISTS " + esquema + " CASCADE");
    base->ejecuta("CREATE SCHEMA " + esquema);
    base->ejecuta("SET search_path TO " + esquema);
    return base;
}

// Una base vacía con su esquema, los datos con que nace (conceptos estándar,
// BPC, franjas) a esa fecha y la empresa ACME, ya confirmados.
inline std::unique_ptr<store::Conexion> baseConAcme(const std::filesystem::path& archivo,
                                                    const common::Fecha& hoy) {
    auto base = baseVacia(archivo);
    store::crearBase(*base);
    store::Transaccion t(*base);
    master::cargarDatosIniciales(*base, NOMIRA_DATOS, hoy);
    base->ejecuta("INSERT INTO empresas (empresa, nroemp) VALUES ('ACME', 1)");
    t.confirmar();
    return base;
}

inline double segundosDesde(std::chrono::steady_clock::time_point a) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - a).count();
}

// La máquina se mueve: quince vueltas y, de cada cifra, la mediana. Con
// NOMIRA_BANCO_VUELTAS, otra cantidad (una, para contar instrucciones con
// callgrind).
inline int vueltas() {
    const char* v = std::getenv("NOMIRA_BANCO_VUELTAS");
    return v && std::atoi(v) > 0 ? std::atoi(v) : 15;
}

}  // namespace nomira::banco
