#include "master/conceptos.h"

#include "common/formato.h"
#include "store/like.h"

namespace nomira::master {

namespace {

using C = Concepto;

// Las columnas de una liquidación que copian el concepto; `habydesc` y `egresos` las
// tienen todas.
const std::vector<const char*> kCopiadas = {"concepto", "tipo",      "unidad", "permanente",
                                            "gravado",  "aguinaldo", "lic",    "ipd"};

store::Valor valor(const Concepto& c, const char* columna) {
    for (const auto& campo : camposConcepto())
        if (std::string_view(campo.columna) == columna) return c.*campo.miembro;
    return store::Nulo{};
}

}  // namespace

const Campos<Concepto>& camposConcepto() {
    static const Campos<Concepto> campos = {{"codigo", &C::codigo},
                                            {"concepto", &C::concepto},
                                            {"especificode", &C::especificode},
                                            {"formula", &C::formula},
                                            {"tipo", &C::tipo},
                                            {"unidad", &C::unidad},
                                            {"permanente", &C::permanente},
                                            {"gravado", &C::gravado},
                                            {"aguinaldo", &C::aguinaldo},
                                            {"lic", &C::lic},
                                            {"ipd", &C::ipd}};
    return campos;
}

std::vector<Concepto> leerConceptos(const store::Resultado& r) {
    std::vector<Concepto> lista;
    for (const auto& f : r.filas) lista.push_back(leerRegistro(f, camposConcepto()));
    return lista;
}

namespace {

void primerConcepto(std::optional<Concepto>& c, const store::FilaAlPaso& f) {
    if (!c) c = leerRegistro(f, camposConcepto());
}

}  // namespace

std::optional<Concepto> leerConcepto(store::Conexion& base, long codigo) {
    std::optional<Concepto> c;
    base.recorrer("SELECT * FROM conceptos WHERE codigo = ?", {std::int64_t{codigo}},
                  [&](const store::FilaAlPaso& f) { primerConcepto(c, f); });
    return c;
}

std::vector<Concepto> listarConceptos(store::Conexion& base) {
    return leerConceptos(base.consulta("SELECT * FROM conceptos ORDER BY codigo"));
}

const std::vector<CriterioBusqueda>& criteriosBusquedaConceptos() {
    static const std::vector<CriterioBusqueda> criterios = {{"Concepto", "concepto"},
                                                            {"Fórmula", "formula"},
                                                            {"Específico de", "especificode"},
                                                            {"Tipo", "tipo"},
                                                            {"Unidad", "unidad"}};
    return criterios;
}

std::vector<Concepto> buscarConceptos(store::Conexion& base, const std::string& columna,
                                      const std::string& texto) {
    // La columna va dentro del SQL: sólo una de las de la lista.
    bool conocida = false;
    for (const auto& c : criteriosBusquedaConceptos()) conocida = conocida || columna == c.columna;
    if (!conocida) throw common::Fallo(5, "Columna de búsqueda desconocida: " + columna);
    return leerConceptos(base.consulta(
        "SELECT * FROM conceptos WHERE " + store::condicionLike(base, columna) + " ORDER BY codigo",
        {store::patronLike("*" + texto + "*")}));
}

std::optional<std::string> prepararConcepto(Concepto& c) {
    if (c.tipo == "Des" && c.especificode != "G")
        return "Si el Tipo es un Desc. entonces en Específico de debe seleccionar la opción "
               "General.";
    if (c.tipo == "Des") c.gravado = c.aguinaldo = c.lic = c.ipd = "";
    return std::nullopt;
}

void agregarConcepto(store::Conexion& base, const Concepto& c) {
    insertarRegistro(base, "conceptos", c, camposConcepto());
}

void modificarConcepto(store::Conexion& base, const Concepto& c) {
    const std::int64_t codigo = std::stoll(c.codigo);
    auto valores = [&](const std::vector<const char*>& columnas, store::Valor clave) {
        std::vector<store::Valor> v;
        for (const auto* col : columnas) v.push_back(valor(c, col));
        v.push_back(std::move(clave));
        return v;
    };
    store::Transaccion t(base);
    // Todas las columnas y luego el código de la condición, cada una con su tipo.
    auto columnas = columnasDe(camposConcepto());
    auto textos = textosDe(c, camposConcepto());
    const auto sql = sqlActualizar("conceptos", columnas, {"codigo"});
    columnas.push_back("codigo");
    textos.push_back(c.codigo);
    base.ejecuta(sql, valoresParaColumnas("conceptos", columnas, textos));
    base.ejecuta(sqlActualizar("habydesc", kCopiadas, {"codigo"}), valores(kCopiadas, codigo));
    // En `aguinaldos` las filas de un concepto llevan el código como texto en `mes`.
    base.ejecuta(sqlActualizar("aguinaldos", {"concepto", "tipo"}, {"mes"}),
                 valores({"concepto", "tipo"}, c.codigo));
    base.ejecuta(sqlActualizar("salvacacional", {"concepto", "unidad"}, {"codigo"}),
                 valores({"concepto", "unidad"}, codigo));
    base.ejecuta(sqlActualizar("egresos", kCopiadas, {"codigo"}), valores(kCopiadas, codigo));
    t.confirmar();
}

void eliminarConcepto(store::Conexion& base, long codigo) {
    store::Transaccion t(base);
    base.ejecuta("DELETE FROM conceptos WHERE codigo = ?", {std::int64_t{codigo}});
    base.ejecuta("DELETE FROM concpermxpers WHERE codigo = ?", {std::int64_t{codigo}});
    t.confirmar();
}

std::vector<std::string> lineasListaConceptos(const std::vector<Concepto>& conceptos) {
    struct Columna {
        const char* encabezado;
        std::size_t ancho;
        std::string C::*miembro;
    };
    static const Columna kColumnas[] = {{"    Código", 10, &C::codigo},
                                        {"                      Concepto", 30, &C::concepto},
                                        {"Específico", 10, &C::especificode},
                                        {"                       Fórmula", 30, &C::formula},
                                        {"      Tipo", 10, &C::tipo},
                                        {"    Unidad", 10, &C::unidad},
                                        {"Perm", 4, &C::permanente},
                                        {"Grav", 4, &C::gravado},
                                        {"Agui", 4, &C::aguinaldo},
                                        {"Lic/Ipd", 7, &C::lic},
                                        {"Irpf.", 5, &C::ipd}};
    auto celda = [](const std::string& texto, std::size_t ancho) {
        return " " + common::alinearIzquierda(common::cortar(texto, ancho), ancho);
    };
    std::vector<std::string> lineas = {"", std::string(35, ' ') + "LISTA DE CONCEPTOS", ""};
    std::string encabezado;
    for (const auto& col : kColumnas) encabezado += celda(col.encabezado, col.ancho);
    lineas.push_back(encabezado);
    for (const auto& c : conceptos) {
        std::string linea;
        for (const auto& col : kColumnas) linea += celda(c.*col.miembro, col.ancho);
        lineas.push_back(linea);
    }
    return lineas;
}

bool existeConceptoPersona(store::Conexion& base, const std::string& empresa,
                           const std::string& nombre, long codigo) {
    return !base.consulta(
                    "SELECT codigo FROM concpermxpers WHERE empresa = ? AND nombre = ? AND codigo "
                    "= ?",
                    {empresa, nombre, std::int64_t{codigo}})
                .vacio();
}

std::optional<std::string> agregarConceptoPersona(store::Conexion& base, const std::string& empresa,
                                                  const std::string& nombre, long codigo) {
    const auto c = leerConcepto(base, codigo);
    if (!c) return kCodigoInexistente;
    if (c->permanente == "Si") return kYaEsPermanente;
    base.ejecuta(
        "INSERT INTO concpermxpers (empresa, nombre, codigo, concepto, tipo) VALUES (?, ?, ?, ?, "
        "?)",
        {empresa, nombre, std::int64_t{codigo}, c->concepto, c->tipo});
    return std::nullopt;
}

std::vector<Concepto> listarConceptosPersona(store::Conexion& base, const std::string& empresa,
                                             const std::string& nombre) {
    std::vector<Concepto> lista;
    for (const auto& f : base.consulta("SELECT codigo, concepto, tipo FROM concpermxpers WHERE "
                                       "empresa = ? AND nombre = ? ORDER BY codigo",
                                       {empresa, nombre})
                             .filas) {
        Concepto c;
        c.codigo = f.texto("codigo");
        c.concepto = f.texto("concepto");
        c.tipo = f.texto("tipo");
        lista.push_back(std::move(c));
    }
    return lista;
}

void eliminarConceptoPersona(store::Conexion& base, const std::string& empresa,
                             const std::string& nombre, long codigo) {
    base.ejecuta("DELETE FROM concpermxpers WHERE empresa = ? AND nombre = ? AND codigo = ?",
                 {empresa, nombre, std::int64_t{codigo}});
}

}  // namespace nomira::master
