#include "master/empresas.h"

#include "common/fechas.h"
#include "master/catalogos.h"
#include "store/like.h"

namespace nomira::master {

const Campos<Empresa>& camposEmpresa() {
    using E = Empresa;
    static const Campos<Empresa> c = {
        {"empresa", &E::empresa},
        {"nroemp", &E::nroemp},
        {"direccion", &E::direccion},
        {"telefono", &E::telefono},
        {"fax", &E::fax},
        {"mail", &E::mail},
        {"depto", &E::depto},
        {"localidad", &E::localidad},
        {"codpostal", &E::codpostal},
        {"actividad", &E::actividad},
        {"ruc", &E::ruc},
        {"bps", &E::bps},
        {"bse", &E::bse},
        {"mtss", &E::mtss},
        {"fechainsc", &E::fechainsc},
        {"fechainiact", &E::fechainiact},
        {"tipocontrib", &E::tipocontrib},
        {"tipoaport", &E::tipoaport},
        {"grupoact", &E::grupoact},
        {"subgrupoact", &E::subgrupoact},
        {"grupoconsal", &E::grupoconsal},
        {"perscont", &E::perscont},
        {"direccionsuc2", &E::direccionsuc2},
        {"deptosuc2", &E::deptosuc2},
        {"locsuc2", &E::locsuc2},
        {"direccionsuc3", &E::direccionsuc3},
        {"deptosuc3", &E::deptosuc3},
        {"locsuc3", &E::locsuc3},
        {"exon", &E::exon},
        {"persrep", &E::persrep},
        {"seccional", &E::seccional},
        {"centralplanilla", &E::centralplanilla},
        {"fechainiact2", &E::fechainiact2},
        {"fechafinact2", &E::fechafinact2},
        {"estado2", &E::estado2},
        {"fechainiact3", &E::fechainiact3},
        {"fechafinact3", &E::fechafinact3},
        {"estado3", &E::estado3},
        {"subgrupoconsal", &E::subgrupoconsal},
    };
    return c;
}

namespace {

void primeraEmpresa(std::optional<Empresa>& e, const store::FilaAlPaso& f) {
    if (!e) e = leerRegistro(f, camposEmpresa());
}

}  // namespace

std::optional<Empresa> leerEmpresa(store::Conexion& base, const std::string& empresa) {
    std::optional<Empresa> e;
    base.recorrer("SELECT * FROM empresas WHERE empresa = ?", {empresa},
                  [&](const store::FilaAlPaso& f) { primeraEmpresa(e, f); });
    return e;
}

std::optional<std::string> rechazoEmpresa(store::Conexion& base, const std::string& empresa) {
    if (empresa.find_first_not_of(' ') == std::string::npos) return kFaltaEmpresa;
    if (base.consulta("SELECT 1 AS hay FROM empresas WHERE empresa = ?", {empresa}).vacio())
        return kNoExisteEmpresa;
    return std::nullopt;
}

std::string tipoaporteDe(store::Conexion& base, const Empresa& empresa) {
    return codigoEnCatalogo(base, "tipoaport", empresa.tipoaport);
}

std::int64_t proximoNroEmp(store::Conexion& base) {
    const auto r = base.consulta("SELECT MAX(nroemp) AS mayor FROM empresas");
    return r.primera().esNulo("mayor") ? 1 : r.primera().entero("mayor") + 1;
}

void agregarEmpresa(store::Conexion& base, const Empresa& empresa) {
    insertarRegistro(base, "empresas", empresa, camposEmpresa());
}

void modificarEmpresa(store::Conexion& base, const Empresa& empresa) {
    const auto& todos = camposEmpresa();
    const Campos<Empresa> campos(todos.begin() + 1, todos.end());
    const auto columnas = columnasDe(campos);
    auto valores = valoresParaColumnas("empresas", columnas, textosDe(empresa, campos));
    valores.emplace_back(empresa.empresa);
    base.ejecuta(sqlActualizar("empresas", columnas, {"empresa"}), valores);
}

const std::vector<const char*>& tablasDeLaEmpresa() {
    static const std::vector<const char*> t = {
        "empresas",      "personal", "habydesc",      "aguinaldos",
        "salvacacional", "egresos",  "concpermxpers", "histplanillatrabajo",
        "montosapagar"};
    return t;
}

void eliminarEmpresa(store::Conexion& base, const std::string& empresa) {
    store::Transaccion t(base);
    for (const char* tabla : tablasDeLaEmpresa())
        base.ejecuta("DELETE FROM " + std::string(tabla) + " WHERE empresa = ?", {empresa});
    t.confirmar();
}

std::vector<std::string> nombresDeEmpresas(store::Conexion& base) {
    std::vector<std::string> nombres;
    for (const auto& f : base.consulta("SELECT empresa FROM empresas ORDER BY empresa").filas)
        nombres.push_back(f.texto("empresa"));
    return nombres;
}

std::vector<std::string> nombresDelPersonal(store::Conexion& base, const std::string& empresa) {
    std::vector<std::string> nombres;
    for (const auto& f :
         base.consulta("SELECT nombre FROM personal WHERE empresa = ? ORDER BY nombre", {empresa})
             .filas)
        nombres.push_back(f.texto("nombre"));
    return nombres;
}

namespace {

const char* columnaDeOrden(OrdenEmpresas orden) {
    switch (orden) {
        case OrdenEmpresas::Direccion:
            return "direccion";
        case OrdenEmpresas::Telefono:
            return "telefono";
        case OrdenEmpresas::Actividad:
            return "actividad";
        case OrdenEmpresas::Ruc:
            return "ruc";
        case OrdenEmpresas::Bps:
            return "bps";
        case OrdenEmpresas::TipoContrib:
            return "tipocontrib";
        case OrdenEmpresas::TipoAport:
            return "tipoaport";
        case OrdenEmpresas::GrupoAct:
            return "grupoact";
        case OrdenEmpresas::SubGrupoAct:
            return "subgrupoact";
        case OrdenEmpresas::Ninguno:
            break;
    }
    return nullptr;
}

}  // namespace

std::vector<Empresa> consultarEmpresas(store::Conexion& base, OrdenEmpresas orden,
                                       const std::string& buscarPor) {
    std::string sql = "SELECT * FROM empresas";
    std::vector<store::Valor> parametros;
    if (const char* columna = columnaDeOrden(orden)) {
        if (!buscarPor.empty()) {
            sql += " WHERE " + store::condicionLike(base, columna);
            parametros.emplace_back(store::patronLike(buscarPor + "*"));
        }
        // Como en la grilla: sin distinguir mayúsculas.
        sql += std::string(" ORDER BY LOWER(") + columna + "), " + columna;
    } else {
        // Sin clave, el orden en que se cargaron, como las demás listas.
        sql += ordenDeCarga(base);
    }
    std::vector<Empresa> empresas;
    for (const auto& f : base.consulta(sql, parametros).filas)
        empresas.push_back(leerRegistro(f, camposEmpresa()));
    return empresas;
}

std::string fechaDeEmpresa(const std::string& guardada) {
    if (guardada.empty()) return guardada;
    const auto f = common::Fecha::desdeTexto(guardada);
    return f ? f->ddmmyy() : guardada;
}

}  // namespace nomira::master
