#pragma once
// El estudio de demostración: tres empresas inventadas con una docena de
// personas que cubren lo que el mes sabe liquidar (sueldo, jornal y hora, una
// segunda actividad, cónyuge e hijos, sueldo ficto, alguien que ya egresó) y
// las horas del reloj de los jornaleros y los por hora. Se agrega a una base
// recién creada, con sus catálogos, valores y conceptos ya cargados.
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "store/conexion.h"

namespace nomira::master {

// Empresas, obra, personal y conceptos permanentes por persona, en una sola
// transacción. Si falta la fila de Construcción en `tipoaport` la agrega con el
// código 04, el que el programa reconoce para ese rubro.
void crearEstudioDemo(store::Conexion& base);

// Los nombres de las empresas del estudio, en el orden en que se crean.
const std::vector<std::string>& empresasDemo();

// Las líneas del archivo de horas de una empresa ("nrofun|codigo|cantidad").
struct HorasDemo {
    std::string empresa, nroemp;
    std::vector<std::string> lineas;
};
const std::vector<HorasDemo>& horasDemo();

// Escribe el archivo de horas de cada empresa que tiene líneas, en la ruta que
// da `rutaDe` para su NroEmp; no pisa un archivo que ya exista. Devuelve las
// rutas escritas.
std::vector<std::filesystem::path> escribirHorasDemo(
    const std::function<std::filesystem::path(const std::string& nroemp)>& rutaDe);

}  // namespace nomira::master
