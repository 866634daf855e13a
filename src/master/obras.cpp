#include "master/obras.h"

#include <algorithm>

#include "common/formato.h"
#include "common/numeros.h"
#include "master/empresas.h"

namespace nomira::master {

const Campos<Obra>& camposObra() {
    using O = Obra;
    static const Campos<Obra> c = {
        {"empresa", &O::empresa},
        {"nroobra", &O::nroobra},
        {"formarealizacion", &O::formarealizacion},
        {"actprincipal", &O::actprincipal},
        {"empresatitular", &O::empresatitular},
        {"direccion", &O::direccion},
        {"telefono", &O::telefono},
        {"bps", &O::bps},
        {"ruc", &O::ruc},
    };
    return c;
}

const std::vector<std::string>& formasDeRealizacion() {
    static const std::vector<std::string> f = {"obra por admin. total", "obra por contrato",
                                               "obra por menor cuantía"};
    return f;
}

std::string textoFormaRealizacion(const std::string& forma) {
    const auto& f = formasDeRealizacion();
    if (forma.size() != 1 || forma[0] < '1' || forma[0] > '3') return "";
    return f[static_cast<std::size_t>(forma[0] - '1')];
}

bool aportaPorConstruccion(store::Conexion& base, const std::string& empresa) {
    const auto e = leerEmpresa(base, empresa);
    if (!e) return false;
    const auto codigo = tipoaporteDe(base, *e);
    return common::esNumerico(codigo) && common::textoANumero(codigo) == 4;
}

std::vector<Obra> obrasDeEmpresa(store::Conexion& base, const std::string& empresa) {
    std::vector<Obra> obras;
    for (const auto& f :
         base.consulta("SELECT * FROM obras WHERE empresa = ? ORDER BY nroobra", {empresa}).filas)
        obras.push_back(leerRegistro(f, camposObra()));
    return obras;
}

std::optional<Obra> leerObra(store::Conexion& base, const std::string& empresa,
                             const std::string& nroobra) {
    const auto r =
        base.consulta("SELECT * FROM obras WHERE empresa = ? AND nroobra = ?", {empresa, nroobra});
    if (r.vacio()) return std::nullopt;
    return leerRegistro(r.primera(), camposObra());
}

std::vector<std::string> numerosDeObra(store::Conexion& base, const std::string& empresa) {
    std::vector<std::string> numeros;
    for (const auto& o : obrasDeEmpresa(base, empresa)) numeros.push_back(o.nroobra);
    return numeros;
}

std::vector<std::string> numerosRepetidos(const std::vector<std::string>& numeros) {
    std::vector<std::string> vistos, repetidos;
    for (const auto& n : numeros) {
        if (std::find(vistos.begin(), vistos.end(), n) == vistos.end())
            vistos.push_back(n);
        else if (std::find(repetidos.begin(), repetidos.end(), n) == repetidos.end())
            repetidos.push_back(n);
    }
    return repetidos;
}

void agregarObra(store::Conexion& base, const Obra& obra) {
    Obra o = obra;
    // Sin opción marcada la forma queda en 0.
    if (o.formarealizacion.empty()) o.formarealizacion = "0";
    insertarRegistro(base, "obras", o, camposObra());
}

void modificarObra(store::Conexion& base, const Obra& obra) {
    const auto& todos = camposObra();
    const Campos<Obra> campos(todos.begin() + 2, todos.end());
    const auto columnas = columnasDe(campos);
    auto valores = valoresParaColumnas("obras", columnas, textosDe(obra, campos));
    valores.emplace_back(obra.empresa);
    valores.emplace_back(obra.nroobra);
    base.ejecuta(sqlActualizar("obras", columnas, {"empresa", "nroobra"}), valores);
}

void eliminarObra(store::Conexion& base, const std::string& empresa, const std::string& nroobra) {
    base.ejecuta("DELETE FROM obras WHERE empresa = ? AND nroobra = ?", {empresa, nroobra});
}

std::vector<std::string> lineasListadoObras(const std::string& empresa,
                                            const std::vector<Obra>& obras) {
    using common::alinearIzquierda, common::cortar;
    const auto linea = [&](const std::string& nro, const std::string& forma, const std::string& act,
                           const std::string& titular) {
        return alinearIzquierda(cortar(nro, 10), 12) + alinearIzquierda(cortar(forma, 24), 26) +
               alinearIzquierda(cortar(act, 28), 30) + cortar(titular, 30);
    };
    std::vector<std::string> lineas = {
        "OBRAS DE " + empresa, "", linea("NroObra", "Real.Obra", "Act.Principal", "EmpTitular")};
    for (const auto& o : obras)
        lineas.push_back(linea(o.nroobra, textoFormaRealizacion(o.formarealizacion), o.actprincipal,
                               o.empresatitular));
    return lineas;
}

std::vector<std::string> lineasFichaObra(const Obra& o) {
    return {"INFORMACION DE LA OBRA",
            "",
            "     "
            "   NroObra: " +
                o.nroobra,
            "     "
            " Real.Obra: " +
                textoFormaRealizacion(o.formarealizacion),
            "     "
            " Act.Prin.: " +
                o.actprincipal,
            "     "
            "EmpTitular: " +
                o.empresatitular};
}

}  // namespace nomira::master
