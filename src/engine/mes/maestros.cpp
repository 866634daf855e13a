#include "engine/mes/maestros.h"

#include <algorithm>

#include "common/numeros.h"
#include "common/texto.h"
#include "master/catalogos.h"
#include "master/registro.h"

namespace nomira::engine {
inline namespace mes {

namespace {

long codigoDe(const master::Concepto& c) {
    return static_cast<long>(common::textoANumero(c.codigo));
}

std::vector<FilaEscala> leerFranjas(store::Conexion& base) {
    std::vector<FilaEscala> franjas;
    base.recorrer(
        "SELECT franja, min, max, tasa FROM franjasirp ORDER BY franja", {},
        [&](const store::FilaAlPaso& f) {
            franjas.push_back({static_cast<long>(f.entero(0)), f.real(1), f.real(2), f.real(3)});
        });
    return franjas;
}

// Las filas de una tabla de referencia en el orden en que se cargaron: el de
// la búsqueda con Like de una por una.
template <class Agregar>
void leerCatalogo(store::Conexion& base, const std::string& sql, const Agregar& agregar) {
    base.recorrer(sql + master::ordenDeCarga(base), {}, agregar);
}

std::optional<ArchivoHoras> archivoDelMes(const master::Empresa& e, const common::Mes& mes,
                                          std::string& ruta) {
    const auto prefijo = prefijoArchivosHoras();
    if (prefijo.empty()) return std::nullopt;
    const auto nroemp = common::numeroATexto(common::textoANumero(e.nroemp));
    const auto r = rutaArchivoHoras(prefijo, mes, nroemp);
    ruta = r.string();
    std::error_code ec;
    if (!std::filesystem::is_regular_file(r, ec)) return std::nullopt;
    return leerArchivoHoras(r);
}

}  // namespace

Conceptos::Conceptos(std::vector<master::Concepto> todos) : todos_(std::move(todos)) {
    std::stable_sort(todos_.begin(), todos_.end(),
                     [](const auto& a, const auto& b) { return codigoDe(a) < codigoDe(b); });
}

std::span<const master::Concepto> Conceptos::conCodigo(long codigo) const {
    const auto menor = [](const master::Concepto& c, long k) { return codigoDe(c) < k; };
    const auto mayor = [](long k, const master::Concepto& c) { return k < codigoDe(c); };
    const auto desde = std::lower_bound(todos_.begin(), todos_.end(), codigo, menor);
    const auto hasta = std::upper_bound(desde, todos_.end(), codigo, mayor);
    return {desde, hasta};
}

const master::Concepto* Conceptos::porCodigo(long codigo) const {
    const auto mismos = conCodigo(codigo);
    return mismos.empty() ? nullptr : &mismos.front();
}

const master::Concepto* Conceptos::porNombre(std::string_view concepto,
                                             std::string_view tipo) const {
    for (const auto& c : todos_)
        if (c.concepto == concepto && (tipo.empty() || c.tipo == tipo)) return &c;
    return nullptr;
}

std::vector<long> Maestros::propiosDe(const std::string& nombre, const std::string& tipo) const {
    std::vector<long> codigos;
    const auto it = propios.find(nombre);
    if (it == propios.end()) return codigos;
    for (const auto& p : it->second)
        if (p.tipo == tipo) codigos.push_back(p.codigo);
    return codigos;
}

std::string Maestros::codigoDeduccion(const std::string& texto) const {
    const auto patron = common::patronCatalogo(texto);
    for (const auto& n : codigosDeduccion)
        if (common::coincideLike(n, patron)) return common::codigoDeCatalogo(n);
    return "";
}

std::string Maestros::codigoCategoria(const std::string& deduccion,
                                      const std::string& categoria) const {
    const auto pd = common::patronCatalogo(deduccion), pc = common::patronCatalogo(categoria);
    for (const auto& [nombre, nombre2] : categoriasDeduccion)
        if (common::coincideLike(nombre, pd) && common::coincideLike(nombre2, pc)) {
            const auto c = common::codigoDeCatalogo(nombre2);
            return c.empty() ? "00" : c;
        }
    return "00";
}

double Maestros::sueldoMinimo(const std::string& sector, const std::string& categoria) const {
    for (const auto& s : sueldosMinimos)
        if (s.sector == sector && s.categoria == categoria) return s.sueldo;
    return 0;
}

Maestros leerMaestros(store::Conexion& base, const std::string& empresa, const common::Mes& mes,
                      bool conHoras) {
    Maestros m(master::LectorVariables::todas(base));
    m.empresa = master::leerEmpresa(base, empresa);
    if (m.empresa) {
        m.tipoaporte = master::tipoaporteDe(base, *m.empresa);
        m.consejo = consejoDeLaEmpresa(base, *m.empresa);
        if (conHoras) m.horas = archivoDelMes(*m.empresa, mes, m.rutaHoras);
    }
    m.conceptos = Conceptos(master::leerConceptos(base.consulta("SELECT * FROM conceptos")));
    base.recorrer("SELECT nombre, codigo, tipo, concepto FROM concpermxpers WHERE empresa = ?",
                  {empresa}, [&](const store::FilaAlPaso& f) {
                      m.propios[f.texto(0)].push_back(
                          {static_cast<long>(f.entero(1)), f.texto(2), f.texto(3)});
                  });
    m.franjas = leerFranjas(base);
    for (const auto& f : m.franjas) {
        if (f.franja < 1000) m.escala.push_back(f);
        if (f.franja > 2000) m.escalaAguinaldo.push_back(f);
    }
    leerCatalogo(base, "SELECT nombre FROM codigodeducciones",
                 [&](const store::FilaAlPaso& f) { m.codigosDeduccion.push_back(f.texto(0)); });
    leerCatalogo(base, "SELECT nombre, nombre2 FROM categoriadeducciones",
                 [&](const store::FilaAlPaso& f) {
                     m.categoriasDeduccion.emplace_back(f.texto(0), f.texto(1));
                 });
    base.recorrer(
        "SELECT nombre3, nombre4, fechafin, sueldo FROM histsueldosmin WHERE nombre = ? AND "
        "nombre2 = ? ORDER BY fechafin IS NULL, fechafin DESC",
        {m.consejo.textoGrupo, m.consejo.textoSubgrupo}, [&](const store::FilaAlPaso& f) {
            m.sueldosMinimos.push_back({f.texto(0), f.texto(1), f.texto(2), f.real(3)});
        });
    return m;
}

}  // namespace mes
}  // namespace nomira::engine
