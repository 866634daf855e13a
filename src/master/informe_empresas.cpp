#include "master/informe_empresas.h"

#include "common/formato.h"

namespace nomira::master {

std::vector<std::string> encabezadosGrillaEmpresas() {
    return {"Nro",           "Empresa",      "NroEmp",        "Dirección",     "Teléfono",
            "Fax",           "e-mail",       "Depto",         "Loc.",          "Cod.Post",
            "Actividad",     "R.U.T.",       "B.P.S.",        "B.S.E.",        "M.T.S.S.",
            "FechaInsc",     "FechaIniAct",  "TipoContrib",   "TipoAport",     "GrupoAct",
            "SubGrupoAct",   "GrupoConSal",  "Pers.de Cont.", "Dirección S1",  "G.Con.Sal.S1",
            "S.G.Con.SalS1", "Dirección S2", "G.Con.Sal.S2",  "S.G.Con.SalS2", "Exon.",
            "Pers.Rep.",     "Conv.Banco",   "Cent.Plan.",    "Feriado P.1",   "FechaCierre1",
            "Estado1",       "Feriado P.2",  "FechaCierre2",  "Estado2",       "SubGrupoConSal"};
}

std::vector<std::vector<std::string>> filasGrillaEmpresas(const std::vector<Empresa>& empresas) {
    std::vector<std::vector<std::string>> filas;
    for (const auto& e : empresas) {
        std::vector<std::string> fila = {std::to_string(filas.size() + 1)};
        for (const auto& campo : camposEmpresa()) {
            const std::string& v = e.*campo.miembro;
            fila.push_back(std::string(campo.columna).starts_with("fecha") ? fechaDeEmpresa(v) : v);
        }
        filas.push_back(std::move(fila));
    }
    return filas;
}

namespace {

std::string lineaListado(const std::string& empresa, const std::string& direccion,
                         const std::string& telefono) {
    using common::alinearIzquierda, common::cortar;
    return alinearIzquierda(cortar(empresa, 38), 40) + alinearIzquierda(cortar(direccion, 38), 40) +
           cortar(telefono, 20);
}

}  // namespace

std::vector<std::string> lineasListadoEmpresas(const std::vector<Empresa>& empresas,
                                               const std::string& titulo) {
    std::vector<std::string> lineas;
    if (!titulo.empty()) lineas = {titulo, ""};
    lineas.push_back(lineaListado("Empresa", "Dirección", "Teléfono"));
    for (const auto& e : empresas)
        lineas.push_back(lineaListado(e.empresa, e.direccion, e.telefono));
    return lineas;
}

std::vector<std::string> lineasFichaEmpresa(const Empresa& e) {
    const auto f = fechaDeEmpresa;
    const std::vector<std::pair<const char*, std::string>> campos = {
        {"   Empresa: ", e.empresa},      {"    NroEmp: ", e.nroemp},
        {" Dirección: ", e.direccion},    {"  Teléfono: ", e.telefono},
        {"       Fax: ", e.fax},          {"    e-mail: ", e.mail},
        {"     Depto: ", e.depto},        {" Localidad: ", e.localidad},
        {" CodPostal: ", e.codpostal},    {" Actividad: ", e.actividad},
        {"    R.U.T.: ", e.ruc},          {"    B.P.S.: ", e.bps},
        {"    B.S.E.: ", e.bse},          {"  M.T.S.S.: ", e.mtss},
        {" FechaInsc: ", f(e.fechainsc)}, {"FechaInAct: ", f(e.fechainiact)},
        {"Ti.Contrib: ", e.tipocontrib},  {" TipoAport: ", e.tipoaport},
        {"  GrupoAct: ", e.grupoact},     {"SubGrupoAc: ", e.subgrupoact},
        {"Gr.Con.Sal: ", e.grupoconsal},  {"P.Contacto: ", e.perscont},
    };
    std::vector<std::string> lineas = {"INFORMACION DE LA EMPRESA", ""};
    for (const auto& [etiqueta, valor] : campos)
        lineas.push_back("     " + std::string(etiqueta) + valor);
    return lineas;
}

}  // namespace nomira::master
